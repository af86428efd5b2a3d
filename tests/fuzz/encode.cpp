// Any text as the JSON of a request: `kvjxml encode` composes a whole document of it or refuses it, nothing else; and
// what it composes is the same whether or not changes are accepted.
// An input is the name of the request in the first line, what the command line says beside it as numbers in the second,
// and the JSON after them.
#include <clocale>
#include <sstream>

#include "chosen.h"
#include "encode.h"
#include "failure.h"
#include "target.h"

namespace {

namespace tool = kvj::tool;
using kvj::fuzz::require;

std::string lineOf(std::istringstream& input) {
    std::string line;
    std::getline(input, line);
    return line;
}

kvj::Choices choicesOf(const std::string& line) {
    kvj::Choices choices;
    std::istringstream numbers(line);
    numbers >> choices.sections >> choices.card >> choices.mode >> choices.withoutTransfer >> choices.allCards >>
        choices.full;
    return choices;
}

/// Empty for what is refused.
std::string composed(const kvj::Request& request, const kvj::Choices& choices, const std::string& json,
                     bool acceptsChanges) {
    try {
        return tool::composed(request, choices, json, "input", {.acceptsChanges = acceptsChanges}).text;
    } catch (const tool::Failure&) {
        return {};
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::setlocale(LC_CTYPE, "C.UTF-8");  // as the tool does
    std::istringstream input(kvj::fuzz::textOf(data, size));
    const auto& request = kvj::fuzz::chosen(kvj::requests(), lineOf(input));
    const kvj::Choices choices = choicesOf(lineOf(input));
    const std::string json(std::istreambuf_iterator<char>(input), {});
    const std::string strict = composed(request, choices, json, false);
    const std::string document = composed(request, choices, json, true);
    if (!strict.empty()) require(strict == document, "without a change there is none to accept");
    if (document.empty()) return 0;
    require(document.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<"), "a document begins as one");
    require(document.ends_with(">\n"), "a document is whole");
    return 0;
}
