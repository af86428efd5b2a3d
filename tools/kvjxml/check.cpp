#include "check.h"

#include <algorithm>
#include <iostream>

#include "failure.h"
#include "visible_text.h"

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
ExitCode codeOf(const CheckedDocument& checked, kvjxml::severity failOn) {
    if (checked.readers.empty()) return ExitCode::unknownMessage;
    if (!checked.isWhole) return ExitCode::damaged;
    const bool fails =
        std::ranges::any_of(checked.findings, [&](const kvjxml::finding& one) { return one.level >= failOn; });
    return fails ? ExitCode::findings : ExitCode::done;
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

void Check::document(std::string_view file, std::size_t number, std::string_view bytes) {
    CheckedDocument checked = checkDocument(bytes);
    std::erase_if(checked.findings, [&](const kvjxml::finding& one) {
        return std::ranges::any_of(options_.ignored, [&](const Ignored& each) { return each.matches(one); });
    });
    const bool hides = options_.hidesSecrets && !checked.findings.empty();
    const HiddenText hidden = hides ? HiddenText(bytes, checked) : HiddenText();
    writer_.document({.file = file, .number = number, .bytes = bytes, .checked = checked, .hidden = hidden});
    code_ = worseOf(code_, codeOf(checked, options_.failOn));
}

void Check::failed(std::string_view file, std::string_view reason, ExitCode code) {
    std::cerr << "kvjxml: " << visible(reason) << '\n';
    writer_.failed(file, reason);
    code_ = worseOf(code_, code);
}

ExitCode check(const std::vector<Source>& sources, const CheckOptions& options, MakeWriter makeWriter) {
    const auto writer = makeWriter(std::cout);
    Check check(options, *writer);
    for (const Source& source : sources) {
        try {
            check.document(source.name(), 0, readBytes(source));
        } catch (const Failure& failure) {
            check.failed(source.name(), failure.what(), failure.code());
        }
        // What is not read by anybody need not be looked for.
        if (!std::cout) break;
    }
    writer->end();
    return check.code();
}

}  // namespace kvj::tool
