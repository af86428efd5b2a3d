// Any text as the JSON of a request: `kvjxml encode` composes a whole document of it or refuses it, nothing else.
// An input is the name of the request in the first line, what the command line says beside it as numbers in the second,
// and the JSON behind them.
#include <clocale>
#include <sstream>

#include "chosen.h"
#include "failure.h"
#include "requests.h"
#include "target.h"

namespace {

namespace tool = kvjxml::tool;
using kvjxml::fuzz::require;

std::string lineOf(std::istringstream& input) {
    std::string line;
    std::getline(input, line);
    return line;
}

tool::Options optionsOf(const std::string& line) {
    tool::Options options;
    std::istringstream numbers(line);
    numbers >> options.mask >> options.card >> options.mode >> options.withoutTransfer >> options.allCards >>
        options.full;
    return options;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto requests = tool::requests();
    std::setlocale(LC_CTYPE, "C.UTF-8");  // as the tool does
    std::istringstream input(kvjxml::fuzz::textOf(data, size));
    const auto& request = kvjxml::fuzz::chosen(std::span(requests), lineOf(input));
    const tool::Options options = optionsOf(lineOf(input));
    std::string document;
    try {
        tool::Arguments arguments({std::istreambuf_iterator<char>(input), {}}, "input");
        document = request.compose(arguments, options);
    } catch (const tool::Failure&) {
        return 0;
    }
    require(document.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<"), "a document begins as one");
    require(document.ends_with(">\n"), "a document is whole");
    return 0;
}
