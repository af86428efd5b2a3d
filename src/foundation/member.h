/// @file member.h
/// What a pointer to a record's member says about itself, and the names of things as the source has them.
#ifndef KVJXML_FOUNDATION_MEMBER_H
#define KVJXML_FOUNDATION_MEMBER_H

#include <string_view>

namespace kvjxml {

template <class Member>
struct MemberOf;
template <class Record_, class Value_>
struct MemberOf<Value_ Record_::*> {
    using Record = Record_;
    using Value = Value_;
};

template <auto Member>
using RecordOf = typename MemberOf<decltype(Member)>::Record;
template <auto Member>
using ValueOf = typename MemberOf<decltype(Member)>::Value;

/// The last name in what a compiler calls a function template's argument, "Argument = &Record::name".
consteval std::string_view lastNameOf(std::string_view function) {
    function.remove_prefix(function.find("Argument = "));
    function = function.substr(0, function.find_first_of(";]"));
    return function.substr(function.find_last_of(":&= ") + 1);
}

/// The name of a member.
template <auto Argument>
consteval std::string_view nameOf() {
    return lastNameOf(__PRETTY_FUNCTION__);
}

/// The name of a table.
template <const auto& Argument>
consteval std::string_view nameOfTable() {
    return lastNameOf(__PRETTY_FUNCTION__);
}

/// The name of a type, with its namespace.
template <class Argument>
consteval std::string_view nameOfType() {
    std::string_view function = __PRETTY_FUNCTION__;
    function.remove_prefix(function.find("Argument = ") + std::string_view("Argument = ").size());
    return function.substr(0, function.find_first_of(";]"));
}

}  // namespace kvjxml

#endif
