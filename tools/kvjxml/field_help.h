/// @file field_help.h
/// What may be given for the fields of a request.
#ifndef KVJXML_TOOL_FIELD_HELP_H
#define KVJXML_TOOL_FIELD_HELP_H

#include <nlohmann/json.hpp>
#include <string>

#include "messages/request.h"

namespace kvj::tool {

/// The JSON of a request to be filled in: its fields with null for their values, and in each object "$help", which says
/// what each of them takes.
nlohmann::ordered_json templateOf(const Request& request, const Choices& choices);

/// The words of all its codes, a line for each field that has some; empty without any.
std::string codesOf(const Request& request);

}  // namespace kvj::tool

#endif
