#include <map>
#include <optional>
#include <string>

#include "captures.h"
#include "verb.h"

namespace kvj::tool {

namespace {

/// An option that takes one of these words.
template <class Value>
CLI::Option* addChoice(CLI::App& verb, const std::string& name, std::map<std::string, Value> words,
                       const std::string& help, const std::string& shown, std::function<void(Value)> take) {
    std::vector<std::string> names;
    names.reserve(words.size());
    for (const auto& [word, value] : words) names.push_back(word);
    return verb
        .add_option_function<std::string>(
            name, [words = std::move(words), take = std::move(take)](const std::string& word) { take(words.at(word)); },
            help)
        ->option_text(shown)
        ->check(CLI::IsMember(names));
}

}  // namespace

void addEncoding(CLI::App& verb, std::optional<Encoding>& encoding) {
    addChoice<Encoding>(
        verb, "--encoding",
        {{"utf-8", Encoding::utf8},
         {"utf-16", Encoding::utf16},
         {"utf-16le", Encoding::utf16le},
         {"utf-16be", Encoding::utf16be},
         {"latin-1", Encoding::latin1}},
        "How the input is encoded; otherwise it is UTF-8, unless it begins as UTF-16 or declares that it "
        "is Latin-1",
        "utf-8|utf-16|utf-16le|utf-16be|latin-1", [&](Encoding chosen) { encoding = chosen; });
}

void addCaptures(CLI::App& verb, const std::string& content, Captures& captures) {
    verb.add_option("FILE", captures.paths, content + "; - for standard input, which is read when there is none")
        ->option_text("...");
    verb.add_flag("-r,--recursive", captures.isRecursive,
                  "Take the files in a folder, and in the folders in it, by name");
    addChoice<Separator>(verb, "--separator", {{"nul", Separator::nul}, {"line", Separator::line}},
                         "What is between the documents of an input; without it an input is one document. Blank lines "
                         "are none",
                         "nul|line", [&](Separator separator) { captures.separator = separator; });
    addEncoding(verb, captures.encoding);
    addMaxSize(verb, captures.maxSize);
}

}  // namespace kvj::tool
