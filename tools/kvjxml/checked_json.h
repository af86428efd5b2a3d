/// @file checked_json.h
/// JSON out of a text, with the checks that hold for every request, whatever its fields.
#ifndef KVJXML_TOOL_CHECKED_JSON_H
#define KVJXML_TOOL_CHECKED_JSON_H

#include <nlohmann/json.hpp>
#include <string>

namespace kvj::tool {

/// @param source  says where the text came from.
/// @throws Failure, with a JSON pointer to the place, for anything but JSON, for a key that comes twice in its object,
///         and for a text with a character that XML does not have.
nlohmann::json checkedJson(const std::string& text, const std::string& source);

}  // namespace kvj::tool

#endif
