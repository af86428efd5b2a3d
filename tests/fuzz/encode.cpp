// Any text as the JSON of a request: `kvjxml encode` composes a whole document of it or refuses it, nothing else.
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

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::setlocale(LC_CTYPE, "C.UTF-8");  // as the tool does
    std::istringstream input(kvj::fuzz::textOf(data, size));
    const auto& request = kvj::fuzz::chosen(kvj::requests(), lineOf(input));
    const kvj::Choices choices = choicesOf(lineOf(input));
    std::string document;
    try {
        document = tool::composed(request, choices, {std::istreambuf_iterator<char>(input), {}}, "input");
    } catch (const tool::Failure&) {
        return 0;
    }
    require(document.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<"), "a document begins as one");
    require(document.ends_with(">\n"), "a document is whole");
    return 0;
}
