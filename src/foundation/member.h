/// @file member.h
/// What a pointer to a record's member says about itself.
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

/// The member's name, taken from what the compiler calls this function.
template <auto Member>
consteval std::string_view nameOf() {
    std::string_view name = __PRETTY_FUNCTION__;
    name.remove_prefix(name.find("Member = "));
    name = name.substr(0, name.find_first_of(";]"));
    return name.substr(name.rfind(':') + 1);
}

}  // namespace kvjxml

#endif
