/// @file asked.h
/// What a request is composed from.
#ifndef KVJXML_TOOL_ASKED_H
#define KVJXML_TOOL_ASKED_H

#include <nlohmann/json.hpp>

#include "messages/request.h"
#include "needed.h"

namespace kvj::tool {

struct Asked {
    const Request& request;
    const Choices& choices;
    const Needed& needed;
    const nlohmann::json& json;
    const void* record;  ///< filled from the JSON
};

}  // namespace kvj::tool

#endif
