#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "decode.h"
#include "verb.h"

namespace kvj::tool {

Run addDecode(CLI::App& verb) {
    struct Options {
        Captures captures;
        std::string message;
        std::string format{formats().front().name};
    };
    const auto options = std::make_shared<Options>();
    addCaptures(verb, "The replies", options->captures);
    verb.add_option("--message", options->message, "Read it as this message, whatever its root element")
        ->option_text("NAME")
        ->check(knownRoot());
    std::vector<std::string> names;
    std::string help;
    for (const Format& format : formats()) {
        names.emplace_back(format.name);
        help.append(help.empty() ? "" : "; ").append(format.name).append(": ").append(format.summary);
    }
    verb.add_option("--format", options->format, help)->option_text("FORMAT")->check(CLI::IsMember(names));
    return [options] {
        const auto format = std::ranges::find(formats(), options->format, &Format::name);
        return decode(options->captures, options->message, *format);
    };
}

}  // namespace kvj::tool
