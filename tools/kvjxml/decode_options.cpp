#include <memory>
#include <set>
#include <string>

#include "decode.h"
#include "messages/message.h"
#include "verb.h"
#include "visible_text.h"

namespace kvj::tool {

namespace {

/// How a reply is shown.
void addView(CLI::App& verb, View& view) {
    verb.add_flag("--words", view.words,
                  "Beside each code the word for it, and beside each value that is not what the printer sent, what it "
                  "sent");
    verb.add_option_function<std::string>(
            "--format", [&view](const std::string& name) { view.isText = name == "text"; },
            "json, or text for eyes: with words, units and what was sent")
        ->option_text("FORMAT")
        ->check(CLI::IsMember({"json", "text"}));
    view.redacts = writesToTerminal();
    view.colours = writesInColour();
    verb.add_flag("--redact,!--no-redact", view.redacts,
                  "Mask keys, passkeys and magnetic tracks; so it is on a terminal unless told otherwise");
}

}  // namespace

Run addDecode(CLI::App& verb) {
    struct Options {
        Source source;
        std::string message;
        View view;
    };
    const auto options = std::make_shared<Options>();
    std::set<std::string> roots;
    for (const auto& known : messages()) {
        roots.emplace(known.root);
        if (!known.otherRoot.empty()) roots.emplace(known.otherRoot);
    }
    addSource(verb, "The reply, in UTF-8", options->source);
    verb.add_option("--message", options->message, "Read it as this message, whatever its root element")
        ->option_text("NAME")
        ->check(CLI::IsMember(roots));
    addView(verb, options->view);
    return [options] { return decode(options->source, options->message, options->view); };
}

}  // namespace kvj::tool
