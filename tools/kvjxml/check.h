/// @file check.h
/// The verb that says what the library would ignore, change or lose of a document.
#ifndef KVJXML_TOOL_CHECK_H
#define KVJXML_TOOL_CHECK_H

#include <kvjxml_read.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "exit_code.h"
#include "finding_writers.h"
#include "input.h"

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

/// Checks documents one by one.
class Check {
public:
    /// Both outlive it.
    Check(const CheckOptions& options, FindingWriter& writer) : options_(options), writer_(writer) {}

    void document(std::string_view file, std::size_t number, std::string_view bytes);
    /// A document that could not be read.
    void failed(std::string_view file, std::string_view reason, ExitCode code);

    /// What stands for all of them.
    [[nodiscard]] ExitCode code() const { return code_; }

private:
    const CheckOptions& options_;
    FindingWriter& writer_;
    ExitCode code_ = ExitCode::done;
};

/// Prints what is found in the documents of `sources`.
ExitCode check(const std::vector<Source>& sources, const CheckOptions& options, MakeWriter makeWriter);

}  // namespace kvj::tool

#endif
