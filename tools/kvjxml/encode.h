/// @file encode.h
/// The verb that composes a request from JSON.
#ifndef KVJXML_TOOL_ENCODE_H
#define KVJXML_TOOL_ENCODE_H

#include "exit_code.h"
#include "input.h"
#include "requests.h"

namespace kvjxml::tool {

/// Prints the request that the JSON from `source` makes.
/// @throws Failure
ExitCode encode(const Request& request, const Options& options, const Source& source);

}  // namespace kvjxml::tool

#endif
