/// @file shown.h
/// What is shown of the value of a field, in whatever format.
#ifndef KVJXML_TOOL_SHOWN_H
#define KVJXML_TOOL_SHOWN_H

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fields/field.h"
#include "sent.h"

namespace kvj::tool {

/// What is shown besides the values, and what is not.
struct Showing {
    bool redacts = false;        ///< secrets are masked
    const Sent* sent = nullptr;  ///< gives values their words, and what was sent in their place; null for neither
};

/// The value of a field, as JSON has it.
nlohmann::json valueIn(const Field& field, const void* record);

struct Shown {
    nlohmann::json value;
    bool isCode = false;
    bool isCarried = false;
    std::vector<std::string_view>
        words{};                        ///< of a code that the printer sent a word for; several of one that has bits
    bool hasBits = false;               ///< whether a code has a word for each of its bits
    std::optional<std::string> sent{};  ///< where the value is another
};

/// @param type  of the record; null for a value that stands for itself.
Shown shown(const RecordType* type, const Field& field, const void* record, const Showing& showing);

}  // namespace kvj::tool

#endif
