/// @file request_json.h
/// The JSON of a request, before it is looked at as a record.
#ifndef KVJXML_TOOL_REQUEST_JSON_H
#define KVJXML_TOOL_REQUEST_JSON_H

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "fields/field.h"

namespace kvj::tool {

/// Where a template of a request says what its fields are. Whoever takes the JSON leaves it out.
inline constexpr const char* helpKey = "$help";

/// @param source  says where the text came from.
/// @param edits   what is to be changed in it, each as "/lcdContrast/value=15".
/// @throws Failure as checkedJson does, for what is marked as damaged, and for an edit that cannot be made.
nlohmann::json requestJson(const std::string& text, const std::string& source, const std::vector<std::string>& edits,
                           const RecordType& record);

}  // namespace kvj::tool

#endif
