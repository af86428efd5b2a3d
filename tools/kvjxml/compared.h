/// @file compared.h
/// What differs between two readings of a message, field by field.
#ifndef KVJXML_TOOL_COMPARED_H
#define KVJXML_TOOL_COMPARED_H

#include <functional>
#include <string>

#include "messages/any_reading.h"
#include "shown_value.h"

namespace kvj::tool {

/// One side of a difference.
struct Side {
    std::string pointer;  ///< to the value in what decode prints, "/jobs/3/uuid"
    const void* record;   ///< that has it; null when it is not in this reply
};

struct Difference {
    ShownField shown;
    Side before;
    Side after;
};

/// Tells what differs. A field that only one reply had differs too, even where it is 0. Entries of lists are brought
/// side by side by what they have in common; those without a counterpart are on one side alone.
/// @param pointer  where the message stands in what decode prints.
void compare(const AnyReading& before, const AnyReading& after, const std::string& pointer,
             const std::function<void(const Difference&)>& tell);

}  // namespace kvj::tool

#endif
