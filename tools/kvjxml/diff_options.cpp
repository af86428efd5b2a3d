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
        std::string before;
        std::string after;
        Captures how;
        DiffOptions diff;
    };
    const auto options = std::make_shared<Options>();
    verb.add_option("BEFORE", options->before, "A reply; - for standard input")->required();
    verb.add_option("AFTER", options->after, "Another of the same message")->required();
    verb.add_option("--format", options->diff.format, "text, for eyes, or json: one object on one line")
        ->option_text("text|json")
        ->transform(CLI::CheckedTransformer(
            std::map<std::string, DiffFormat>{{"text", DiffFormat::text}, {"json", DiffFormat::json}}));
    options->diff.isMasked = writesToTerminal();
    verb.add_flag("--redact,!--no-redact", options->diff.isMasked,
                  "Mask keys, passkeys and magnetic tracks; so it is on a terminal unless told otherwise");
    addEncoding(verb, options->how.encoding);
    addMaxSize(verb, options->how.maxSize);
    return [options] {
        if (options->before == "-" && options->after == "-") {
            throw Failure(ExitCode::usage, "only one of the two can be standard input");
        }
        return diff(readCapture(options->before, options->how), readCapture(options->after, options->how),
                    options->diff);
    };
}

}  // namespace kvj::tool
