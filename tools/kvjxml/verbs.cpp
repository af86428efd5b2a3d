#include <charconv>
#include <cstdint>
#include <limits>
#include <map>
#include <set>

#include "messages/message.h"
#include "reference.h"
#include "suggestion.h"
#include "verb.h"

namespace kvj::tool {

namespace {

/// A size, as its number of bytes. Units are powers of 1024; "KB" is refused, since it could mean either.
std::string asBytes(std::string& text) {
    static const std::map<std::string_view, int> shifts{{"", 0},     {"K", 10}, {"KiB", 10}, {"M", 20},
                                                        {"MiB", 20}, {"G", 30}, {"GiB", 30}};
    std::uint64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [unit, error] = std::from_chars(text.data(), end, number);
    const auto shift = shifts.find(std::string_view(unit, end));
    if (error != std::errc() || shift == shifts.end() ||
        number > std::numeric_limits<std::uint64_t>::max() >> shift->second) {
        return "\"" + text + "\" is not a size such as 1048576, 64M or 1GiB";
    }
    text = std::to_string(number << shift->second);
    return {};
}

constexpr Verb allVerbs[] = {
    {"decode", "Print the record that a captured reply fills, as JSON", addDecode},
    {"check", "Say what would be ignored, changed or lost of documents", addCheck},
    {"diff", "Say what differs between two replies of one message", addDiff},
    {"encode", "Compose a request from JSON; keys are read from it, never from options", addEncode},
    {"template", "Print the JSON of a request to be filled in, with what each field takes", addTemplate},
    {"explain", "Say what a message, field, element, code or word is", addExplain},
    {"sample", "Print a document of a message in which every element has a value", addSample},
    {"schema", "Print the JSON Schema of what decode prints, or the vocabulary of the replies", addSchema},
    {"messages", "Print every known message element by element, as Markdown", addMessages},
    {"completion", "Print what a shell needs to complete the command line of kvjxml", addCompletion},
};

}  // namespace

std::span<const Verb> verbs() { return allVerbs; }

Run addMessages(CLI::App& /*verb*/) { return printReference; }

void addMaxSize(CLI::App& verb, std::uint64_t& maxSize) {
    verb.add_option("--max-size", maxSize,
                    "Refuse input that is larger: bytes, or with K, M, G or KiB, MiB, GiB after the number; 64M unless "
                    "told")
        ->option_text("SIZE")
        ->transform(CLI::Validator(asBytes, ""));
}

CLI::Validator knownRoot() {
    std::set<std::string_view> roots;
    for (const Message& message : messages()) {
        roots.insert(message.root);
        if (!message.otherRoot.empty()) roots.insert(message.otherRoot);
    }
    std::string names;
    for (const auto root : roots) names.append(names.empty() ? "" : ",").append(root);
    return {[roots, names](const std::string& name) {
                if (roots.contains(name)) return std::string();
                std::string reason = unknown("message", name, roots);
                if (!reason.ends_with('?')) reason.append("; there are ").append(names);
                return reason;
            },
            "{" + names + "}"};
}

void addSource(CLI::App& verb, const std::string& content, Source& source) {
    verb.add_option("FILE", source.path, content + "; - for standard input")->capture_default_str();
    addMaxSize(verb, source.maxSize);
}

}  // namespace kvj::tool
