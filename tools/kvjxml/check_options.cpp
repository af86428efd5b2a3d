#include <map>
#include <memory>
#include <string>
#include <vector>

#include "check.h"
#include "suggestion.h"
#include "verb.h"
#include "visible_text.h"

namespace kvj::tool {

namespace {

using kvjxml::finding_kind;
using kvjxml::severity;

struct CheckCommand {
    Captures captures;
    std::string format = "text";
    std::string failOn = "warning";
    CheckOptions check{.hidesSecrets = writesToTerminal()};
};

std::map<std::string, finding_kind> kinds() {
    std::map<std::string, finding_kind> all;
    for (int kind = 0; !to_string(finding_kind{kind}).empty(); ++kind) {
        all.emplace(to_string(finding_kind{kind}), finding_kind{kind});
    }
    return all;
}

std::string unknownKind(const std::string& name) {
    return unknown("kind of finding", name, kinds(), [](const auto& known) { return std::string_view(known.first); });
}

void addIgnore(CLI::App& verb, std::vector<Ignored>& ignored) {
    std::string names;
    for (const auto& [name, kind] : kinds()) names += (names.empty() ? "" : ", ") + name;
    const auto add = [&ignored](const std::vector<std::string>& texts) {
        for (const std::string& text : texts) {
            const std::size_t colon = text.find(':');
            const auto known = kinds();
            const auto kind = known.find(text.substr(0, colon));
            if (kind == known.end()) throw CLI::ValidationError("--ignore", unknownKind(text.substr(0, colon)));
            ignored.push_back({kind->second, colon == std::string::npos ? std::string() : text.substr(colon + 1)});
        }
    };
    verb.add_option_function<std::vector<std::string>>(
            "--ignore", add,
            "Say nothing of findings of this kind, or of those at this path alone; can be given again. Kinds: " + names)
        ->option_text("KIND[:PATH]")
        ->allow_extra_args(false);
}

std::map<std::string, severity> severities() {
    return {{"error", severity::error}, {"warning", severity::warning}, {"note", severity::note}};
}
std::map<std::string, MakeWriter> writers() {
    return {{"text", textWriter}, {"json", jsonWriter}, {"sarif", sarifWriter}};
}

ExitCode run(const CheckCommand& options) {
    CheckOptions how = options.check;
    how.failOn = severities().at(options.failOn);
    return check(options.captures, how, writers().at(options.format));
}

}  // namespace

Run addCheck(CLI::App& verb) {
    const auto options = std::make_shared<CheckCommand>();
    addCaptures(verb, "The documents", options->captures);
    verb.add_option("--format", options->format,
                    "text, json (an object for each document, on one line) or sarif (SARIF 2.1.0); text unless told")
        ->option_text("FORMAT")
        ->check(CLI::IsMember(writers()));
    verb.add_option("--fail-on", options->failOn,
                    "The least severity that ends with code 6: error, warning or note; warning unless told")
        ->option_text("SEVERITY")
        ->check(CLI::IsMember(severities()));
    addIgnore(verb, options->check.ignored);
    verb.add_flag("--redact,!--no-redact", options->check.hidesSecrets,
                  "Mask keys and other secrets, or do not; unless told, they are masked on a terminal");
    return [options] { return run(*options); };
}

}  // namespace kvj::tool
