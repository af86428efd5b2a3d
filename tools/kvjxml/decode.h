/// @file decode.h
/// The verb that shows what a captured reply says.
#ifndef KVJXML_TOOL_DECODE_H
#define KVJXML_TOOL_DECODE_H

#include <string>

#include "exit_code.h"

namespace kvjxml::tool {

/// Prints the record of the reply in the file `path` ("-" for standard input) as JSON.
/// @param message  the root element of the message to look for; empty to go by the document.
/// @throws Failure
ExitCode decode(const std::string& path, const std::string& message);

}  // namespace kvjxml::tool

#endif
