/// @file encode.h
/// Composes a request.
#ifndef KVJXML_TOOL_ENCODE_H
#define KVJXML_TOOL_ENCODE_H

#include <string>

#include "exit_code.h"
#include "input.h"
#include "messages/request.h"

namespace kvj::tool {

/// The request that the library composes from JSON, which came from `source`.
/// @throws Failure
std::string composed(const Request& request, const Choices& choices, const std::string& json,
                     const std::string& source);

/// Prints the request that the library composes from JSON.
/// @throws Failure
ExitCode encode(const Request& request, const Choices& choices, const Source& source);

}  // namespace kvj::tool

#endif
