/// @file failure.h
/// Ends the tool early, with a code for the shell and a line for the user.
#ifndef KVJXML_TOOL_FAILURE_H
#define KVJXML_TOOL_FAILURE_H

#include <stdexcept>
#include <string>

#include "exit_code.h"

namespace kvj::tool {

class Failure : public std::runtime_error {
public:
    Failure(ExitCode code, const std::string& message) : std::runtime_error(message), code_(code) {}
    [[nodiscard]] ExitCode code() const noexcept { return code_; }

private:
    ExitCode code_;
};

}  // namespace kvj::tool

#endif
