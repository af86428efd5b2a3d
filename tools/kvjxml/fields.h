/// @file fields.h
/// The fields of each record, in the record's order, and how a record becomes JSON. The names are the members' own.
#ifndef KVJXML_TOOL_FIELDS_H
#define KVJXML_TOOL_FIELDS_H

#include <StatusRecords.h>

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>
#include <type_traits>

#include "foundation/member.h"

namespace kvjxml::tool {

using Json = nlohmann::ordered_json;

template <auto... Members>
struct FieldList {};

/// The fields of a record; a record without a list does not compile.
template <class Record>
inline constexpr std::nullptr_t fields = nullptr;

/// Whether a list has all fields of its record: laid out one behind the other, they make the whole record.
template <class Record, auto... Members>
consteval bool complete(FieldList<Members...> /*list*/) {
    std::size_t end = 0;
    const auto align = [&](std::size_t alignment) { end = (end + alignment - 1) / alignment * alignment; };
    ((align(alignof(ValueOf<Members>)), end += sizeof(ValueOf<Members>)), ...);
    align(alignof(Record));
    return end == sizeof(Record);
}

template <class Record>
Json toJson(const Record& record);

template <class Value>
Json valueToJson(const Value& value) {
    if constexpr (std::is_arithmetic_v<Value>) {
        return value;
    } else if constexpr (std::is_same_v<std::remove_extent_t<Value>, char>) {
        return std::string(value, strnlen(value, sizeof value));
    } else {
        return toJson(value);
    }
}

template <class Record, auto... Members>
Json toJson(const Record& record, FieldList<Members...> /*list*/) {
    static_assert(complete<Record>(FieldList<Members...>{}), "a field of the record is missing in its list");
    Json json = Json::object();
    (json.emplace(nameOf<Members>(), valueToJson(record.*Members)), ...);
    return json;
}

template <class Record>
Json toJson(const Record& record) {
    return toJson(record, fields<Record>);
}

// clang-format off

template <>
inline constexpr FieldList<
    &Kavrin::KVGeneralStatus::printerState,
    &Kavrin::KVGeneralStatus::alarms,
    &Kavrin::KVGeneralStatus::error,
    &Kavrin::KVGeneralStatus::printerLock,
    &Kavrin::KVGeneralStatus::jobsReceivingOrPending,
    &Kavrin::KVGeneralStatus::jobsInProgress,
    &Kavrin::KVGeneralStatus::jobsDoneOk,
    &Kavrin::KVGeneralStatus::jobsDoneError,
    &Kavrin::KVGeneralStatus::jobsTotal,
    &Kavrin::KVGeneralStatus::actionIdNext,
    &Kavrin::KVGeneralStatus::warning,
    &Kavrin::KVGeneralStatus::laminatorState,
    &Kavrin::KVGeneralStatus::paramChangeCounter>
    fields<Kavrin::KVGeneralStatus>{};

template <>
inline constexpr FieldList<
    &Kavrin::KVJobStatus::actionId,
    &Kavrin::KVJobStatus::uuid,
    &Kavrin::KVJobStatus::readyForNextJob,
    &Kavrin::KVJobStatus::copiesDone,
    &Kavrin::KVJobStatus::copiesTotalSpecified,
    &Kavrin::KVJobStatus::errorCode,
    &Kavrin::KVJobStatus::printState,
    &Kavrin::KVJobStatus::magState,
    &Kavrin::KVJobStatus::contactState,
    &Kavrin::KVJobStatus::contactlessState,
    &Kavrin::KVJobStatus::positionInTransport,
    &Kavrin::KVJobStatus::laminatorState>
    fields<Kavrin::KVJobStatus>{};

// clang-format on

}  // namespace kvjxml::tool

#endif
