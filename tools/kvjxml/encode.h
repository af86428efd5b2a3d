/// @file encode.h
/// Composes a request.
#ifndef KVJXML_TOOL_ENCODE_H
#define KVJXML_TOOL_ENCODE_H

#include <string>
#include <vector>

#include "exit_code.h"
#include "input.h"
#include "messages/request.h"

namespace kvj::tool {

/// What a user says besides the choices of a request.
struct EncodeOptions {
    std::vector<std::string> edits{};  ///< made in the JSON first, each as "/lcdContrast/value=15"
    bool acceptsChanges = false;       ///< what the printer would get otherwise than the JSON asks is sent so
};

struct ComposedRequest {
    std::string text;
    std::string accepted;  ///< what of it is sent otherwise than asked, for people; empty for nothing
};

/// The request that the library composes from JSON, which came from `source`.
/// @throws Failure
ComposedRequest composed(const Request& request, const Choices& choices, const std::string& json,
                         const std::string& source, const EncodeOptions& options = {});

/// Prints the request that the library composes from JSON, and on standard error what was accepted.
/// @throws Failure
ExitCode encode(const Request& request, const Choices& choices, const Source& source, const EncodeOptions& options);

}  // namespace kvj::tool

#endif
