#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "decode.h"
#include "verb.h"
#include "visible_text.h"

namespace kvj::tool {

namespace {

/// What is shown besides the values, and what is not.
void addView(CLI::App& verb, View& view) {
    verb.add_flag("--words", view.words,
                  "Beside each code the word for it, and beside each value that is not what the printer sent, what it "
                  "sent");
    view.redacts = writesToTerminal();
    verb.add_flag("--redact,!--no-redact", view.redacts,
                  "Mask keys, passkeys and magnetic tracks; so it is on a terminal unless told otherwise");
    view.colours = writesInColour();
}

}  // namespace

Run addDecode(CLI::App& verb) {
    struct Options {
        Captures captures;
        std::string message;
        std::string format{formats().front().name};
        View view;
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
    addView(verb, options->view);
    return [options] {
        const auto format = std::ranges::find(formats(), options->format, &Format::name);
        return decode(options->captures, options->message, *format, options->view);
    };
}

}  // namespace kvj::tool
