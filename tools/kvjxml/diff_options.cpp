#include <map>
#include <memory>
#include <optional>
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
        bool redact = false;
        bool noRedact = false;
    };
    const auto options = std::make_shared<Options>();
    verb.add_option("BEFORE", options->before.path, "A reply, in UTF-8; - for standard input")->required();
    verb.add_option("AFTER", options->after.path, "Another of the same message")->required();
    verb.add_option("--format", options->format, "text, for eyes, or json: one object on one line")
        ->option_text("text|json")
        ->transform(CLI::CheckedTransformer(
            std::map<std::string, DiffFormat>{{"text", DiffFormat::text}, {"json", DiffFormat::json}}));
    CLI::Option* const redact =
        verb.add_flag("--redact", options->redact, "Mask keys and magnetic tracks, as on a terminal");
    verb.add_flag("--no-redact", options->noRedact, "Mask nothing")->excludes(redact);
    addMaxSize(verb, options->before.maxSize);
    return [options] {
        if (options->before.path == "-" && options->after.path == "-") {
            throw Failure(ExitCode::usage, "only one of the two can be standard input");
        }
        options->after.maxSize = options->before.maxSize;
        const bool isMasked = options->redact || (writesToTerminal() && !options->noRedact);
        return diff(options->before, options->after, {options->format, isMasked});
    };
}

}  // namespace kvj::tool
