/// @file member.h
/// What a pointer to a record's member says about itself, and the names of things as the source has them.
#ifndef KVJXML_FOUNDATION_MEMBER_H
#define KVJXML_FOUNDATION_MEMBER_H

#include <string_view>

namespace kvj {

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

/// A function template's argument as a compiler writes it, "Argument = &Record::name".
consteval std::string_view argumentOf(std::string_view function) {
    constexpr std::string_view before = "Argument = ";
    function.remove_prefix(function.find(before) + before.size());
    return function.substr(0, function.find_first_of(";]"));
}

/// The last name of a qualified one.
consteval std::string_view lastOf(std::string_view name) { return name.substr(name.find_last_of(":&= ") + 1); }

/// The name of a member.
template <auto Argument>
consteval std::string_view nameOf() {
    return lastOf(argumentOf(__PRETTY_FUNCTION__));
}

/// The name of a record.
template <class Argument>
consteval std::string_view nameOfType() {
    return lastOf(argumentOf(__PRETTY_FUNCTION__));
}

/// The name of a table, with the namespaces that it is in below the library's own.
template <const auto& Argument>
consteval std::string_view nameOfTable() {
    constexpr std::string_view library = "kvj::";
    const std::string_view name = argumentOf(__PRETTY_FUNCTION__);
    return name.starts_with(library) ? name.substr(library.size()) : name;
}

/// The name of a record with its namespace.
template <class Argument>
consteval std::string_view qualifiedNameOf() {
    return argumentOf(__PRETTY_FUNCTION__);
}

}  // namespace kvj

#endif
