/// @file encode.h
/// The verb that composes a request from JSON.
#ifndef KVJXML_TOOL_ENCODE_H
#define KVJXML_TOOL_ENCODE_H

#include <string>

#include "exit_code.h"
#include "requests.h"

namespace kvjxml::tool {

/// Prints the request that the JSON in the file `path` ("-" for standard input) makes.
/// @throws Failure
ExitCode encode(const Request& request, const Options& options, const std::string& path);

}  // namespace kvjxml::tool

#endif
