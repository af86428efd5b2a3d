/// @file diff.h
/// The verb that says what differs between two replies of one message.
#ifndef KVJXML_TOOL_DIFF_H
#define KVJXML_TOOL_DIFF_H

#include "captures.h"
#include "exit_code.h"

namespace kvj::tool {

enum class DiffFormat { text, json };

struct DiffOptions {
    DiffFormat format = DiffFormat::text;
    bool isMasked = false;  ///< whether secrets are
};

/// Prints each field that differs.
/// @return `damaged` where one of them is, as far as it could be read; else `different` or `done`.
/// @throws Failure
ExitCode diff(const Capture& before, const Capture& after, const DiffOptions& options);

}  // namespace kvj::tool

#endif
