/// @file tool.h
/// Runs the tool as a user does.
#ifndef KVJXML_TESTS_TOOL_TOOL_H
#define KVJXML_TESTS_TOOL_TOOL_H

#include <string>

#include "support/shell.h"

namespace kvj::tests {

/// Runs the tool with these words of a command line, and with `input` on its standard input.
inline Outcome runTool(const std::string& words, const std::string& input = {}) {
    return runShell(std::string(KVJXML_TOOL) + " " + words, input);
}

}  // namespace kvj::tests

#endif
