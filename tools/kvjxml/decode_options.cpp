#include <memory>
#include <string>

#include "decode.h"
#include "verb.h"

namespace kvj::tool {

Run addDecode(CLI::App& verb) {
    struct Options {
        Source source;
        std::string message;
    };
    const auto options = std::make_shared<Options>();
    addSource(verb, "The reply, in UTF-8", options->source);
    verb.add_option("--message", options->message, "Read it as this message, whatever its root element")
        ->option_text("NAME")
        ->check(knownRoot());
    return [options] { return decode(options->source, options->message); };
}

}  // namespace kvj::tool
