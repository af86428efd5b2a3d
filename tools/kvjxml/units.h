/// @file units.h
/// The units of numbers, where the printer's are known.
#ifndef KVJXML_TOOL_UNITS_H
#define KVJXML_TOOL_UNITS_H

#include <algorithm>
#include <span>
#include <string_view>

#include "field_rows.h"

namespace kvj::tool {

struct Unit {
    std::string_view record;  ///< without its namespace
    std::string_view field;
    std::string_view name;  ///< as the comment of the record has it
    std::string_view symbol;
};

/// Of all other numbers it is the printer's own.
inline constexpr Unit units[] = {
    {"_USBTimeout", "read", "milliseconds", "ms"},
    {"_USBTimeout", "write", "milliseconds", "ms"},
    {"__MEMORY", "bytesFree", "bytes", "bytes"},
};

/// The symbol of a field's unit; empty when it is not known.
inline std::string_view unitOf(std::string_view record, std::string_view field) {
    const auto* const unit = std::ranges::find_if(
        units, [&](const Unit& each) { return each.record == unqualified(record) && each.field == field; });
    return unit == std::end(units) ? std::string_view() : unit->symbol;
}

}  // namespace kvj::tool

#endif
