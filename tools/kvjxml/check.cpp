#include "check.h"

#include <algorithm>
#include <iostream>
#include <stdexcept>

#include "checked_document.h"
#include "encodings.h"
#include "failure.h"
#include "hidden_text.h"

namespace kvj::tool {

namespace {

/// The first step of a location path, which is taken off it; empty at its end.
std::string_view takeStep(std::string_view& path) {
    const std::size_t end = std::min(path.find('/', 1), path.size());
    const std::string_view step = path.substr(0, end);
    path.remove_prefix(end);
    return step;
}

/// Whether a step is meant by another: one without an index is any of that name, and the first of several is also
/// the only one.
bool isMeant(std::string_view step, std::string_view by) {
    const std::string_view name = step.substr(0, step.find('['));
    return step == by || name == by || (step == name && by == std::string(name) + "[1]");
}

/// The code of one document: what it is says more than what is found in it.
ExitCode exitCodeOf(const CheckedDocument& checked, kvjxml::severity failOn) {
    if (checked.readers.empty()) return ExitCode::unknownMessage;
    if (!checked.isWhole) return ExitCode::damaged;
    const bool fails =
        std::ranges::any_of(checked.findings, [&](const kvjxml::finding& one) { return one.level >= failOn; });
    return fails ? ExitCode::findings : ExitCode::done;
}

/// Findings are in the order of the document, so one walk over it tells where all of them are in the capture.
std::vector<ToldFinding> toldOf(const std::vector<kvjxml::finding>& findings, const Capture& capture,
                                const HiddenText& hidden) {
    const std::string_view text = capture.text;
    std::vector<ToldFinding> told;
    std::size_t passed = 0;
    std::size_t offset = capture.offset;
    for (const kvjxml::finding& one : findings) {
        offset += sizeIn(capture.encoding, text.substr(passed, one.offset - passed));
        passed = one.offset;
        ToldFinding& it = told.emplace_back(ToldFinding{hidden.shown(one), one.offset});
        it.finding.line += capture.line;
        it.finding.offset = offset;
        it.finding.length = sizeIn(capture.encoding, text.substr(one.offset, one.length));
    }
    return told;
}

}  // namespace

bool Ignored::matches(const kvjxml::finding& finding) const {
    if (finding.kind != kind) return false;
    if (path.empty() || path == finding.path) return true;
    std::string_view meant = path;
    std::string_view found = finding.path;
    while (!meant.empty() && !found.empty()) {
        if (!isMeant(takeStep(found), takeStep(meant))) return false;
    }
    return meant.empty() && found.empty();
}

ExitCode check(const Capture& capture, const CheckOptions& options, FindingWriter& writer) {
    CheckedDocument checked = checkDocument(capture.text);
    std::erase_if(checked.findings, [&](const kvjxml::finding& one) {
        return std::ranges::any_of(options.ignored, [&](const Ignored& each) { return each.matches(one); });
    });
    const bool hides = options.hidesSecrets && !checked.findings.empty();
    const HiddenText hidden = hides ? HiddenText(capture.text, checked) : HiddenText();
    writer.document({.capture = capture,
                     .message = checked.root,
                     .isDamaged = !checked.isWhole,
                     .findings = toldOf(checked.findings, capture, hidden),
                     .omitted = checked.omitted,
                     .hidden = hidden});
    return exitCodeOf(checked, options.failOn);
}

ExitCode check(const Captures& captures, const CheckOptions& options, MakeWriter makeWriter) {
    const auto writer = makeWriter(std::cout);
    // What can be written nowhere need not be looked for.
    const auto expectOutput = [] {
        if (!std::cout) throw std::runtime_error("standard output: cannot be written");
    };
    const ExitCode code = forEachDocument(
        captures,
        [&](const Capture& capture) {
            const ExitCode ofOne = check(capture, options, *writer);
            expectOutput();
            return ofOne;
        },
        [&](const Origin& origin, const Failure& failure) {
            tellFailure(origin, failure);
            writer->failed(origin, failure);
        });
    writer->end();
    return code;
}

}  // namespace kvj::tool
