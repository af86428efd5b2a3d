#include <map>
#include <memory>
#include <string>

#include "diff.h"
#include "failure.h"
#include "verb.h"
#include "visible_text.h"

namespace kvj::tool {

Run addDiff(CLI::App& verb) {
    struct Options {
        Source before;
        Source after;
        DiffFormat format = DiffFormat::text;
        bool redacts = false;
    };
    const auto options = std::make_shared<Options>();
    verb.add_option("BEFORE", options->before.path, "A reply, in UTF-8; - for standard input")->required();
    verb.add_option("AFTER", options->after.path, "Another of the same message")->required();
    verb.add_option("--format", options->format, "text, for eyes, or json: one object on one line")
        ->option_text("text|json")
        ->transform(CLI::CheckedTransformer(
            std::map<std::string, DiffFormat>{{"text", DiffFormat::text}, {"json", DiffFormat::json}}));
    options->redacts = writesToTerminal();
    verb.add_flag("--redact,!--no-redact", options->redacts,
                  "Mask keys, passkeys and magnetic tracks; so it is on a terminal unless told otherwise");
    addMaxSize(verb, options->before.maxSize);
    return [options] {
        if (options->before.path == "-" && options->after.path == "-") {
            throw Failure(ExitCode::usage, "only one of the two can be standard input");
        }
        options->after.maxSize = options->before.maxSize;
        return diff(options->before, options->after, {options->format, options->redacts});
    };
}

}  // namespace kvj::tool
