/// @file check.h
/// The verb that says what the library would ignore, change or lose of a document.
#ifndef KVJXML_TOOL_CHECK_H
#define KVJXML_TOOL_CHECK_H

#include <kvjxml_read.hpp>
#include <string>
#include <vector>

#include "captures.h"
#include "exit_code.h"
#include "finding_writers.h"

namespace kvj::tool {

/// Findings that are not told.
struct Ignored {
    kvjxml::finding_kind kind{};
    std::string path{};  ///< an XPath location path, whose steps without an index are any of that name; empty for all

    [[nodiscard]] bool matches(const kvjxml::finding& finding) const;
};

struct CheckOptions {
    kvjxml::severity failOn = kvjxml::severity::warning;  ///< the least that is no note
    std::vector<Ignored> ignored{};
    bool hidesSecrets = false;
};

/// Tells what is found in a document.
ExitCode check(const Capture& capture, const CheckOptions& options, FindingWriter& writer);

/// Prints what is found in documents.
ExitCode check(const Captures& captures, const CheckOptions& options, MakeWriter makeWriter);

}  // namespace kvj::tool

#endif
