/// @file decode.h
/// The verb that shows what a captured reply says.
#ifndef KVJXML_TOOL_DECODE_H
#define KVJXML_TOOL_DECODE_H

#include <string>

#include "exit_code.h"
#include "input.h"
#include "view.h"

namespace kvj::tool {

/// Prints the record of the reply from `source`.
/// @param message  the root element of the message to look for; empty to go by the document.
/// @throws Failure
ExitCode decode(const Source& source, const std::string& message, const View& view);

}  // namespace kvj::tool

#endif
