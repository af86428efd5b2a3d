#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include "encode.h"
#include "field_help.h"
#include "request_options.h"
#include "sections.h"
#include "verb.h"

namespace kvj::tool {

namespace {

struct EncodeCommand {
    Source source;
    RequestOptions request;
    EncodeOptions encode;
};

std::string_view wordsFor(FieldType type) {
    switch (type) {
        case FieldType::number:
            return "whole number";
        case FieldType::decimal:
            return "number";
        case FieldType::flag:
        case FieldType::bit:
            return "true or false";
        default:
            return "text";
    }
}

/// What the JSON of a request has, for its help.
std::string contentOf(const Request& request) {
    if (!request.table.empty()) return "the fields that decode prints; those that are not written may be left out";
    std::string text;
    for (const Field& field : request.record->fields) {
        text.append(text.empty() ? "" : ", ").append(field.name).append(": ").append(wordsFor(field.type));
    }
    return text;
}

void addOptions(CLI::App& verb, const Request& request, EncodeCommand& options) {
    addSource(verb, "The JSON", options.source);
    verb.add_option("--set", options.encode.edits, "Change a value of the JSON on the way, as /lcdContrast/value=15")
        ->option_text("POINTER=VALUE")
        ->allow_extra_args(false);
    verb.add_flag("--accept-changes", options.encode.acceptsChanges,
                  "Send what the printer gets otherwise than the JSON asks, instead of ending with 8");
    addRequestOptions(verb, request, options.request, true);
    verb.footer([&request] { return codesOf(request) + "\n"; });
}

}  // namespace

Run addEncode(CLI::App& verb) {
    const auto options = std::make_shared<EncodeCommand>();
    verb.require_subcommand(1);
    for (const auto& request : requests()) {
        CLI::App* const one =
            verb.add_subcommand(std::string(request.name), "From an object with " + contentOf(request));
        addOptions(*one, request, *options);
    }
    return [options, &verb] {
        const auto& request =
            *std::ranges::find(requests(), verb.get_subcommands().front()->get_name(), &Request::name);
        if (options->request.listSections) return listSections(request.table);
        return encode(request, choicesOf(options->request), options->source, options->encode);
    };
}

}  // namespace kvj::tool
