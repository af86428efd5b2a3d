#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "encode.h"
#include "messages/request.h"
#include "sections.h"
#include "verb.h"

namespace kvj::tool {

namespace {

struct Options {
    Source source;
    Choices choices;
    EncodeOptions encode;
    std::vector<long> sections;  ///< their bits one by one
    bool listSections = false;   ///< instead of composing
};

/// Numbers by the names that the command line has for them.
using NamedNumbers = std::map<std::string, long>;

/// Turns such a name into its number, and refuses any other text.
CLI::Validator oneOf(const NamedNumbers& numbers) {
    return {[numbers](std::string& text) {
                const auto found = numbers.find(text);
                if (found == numbers.end()) {
                    std::string reason = "\"" + text + "\" is none of";
                    for (const auto& [name, number] : numbers) reason.append(" ").append(name);
                    return reason;
                }
                text = std::to_string(found->second);
                return std::string();
            },
            ""};
}

/// A number in hexadecimal, with or without the prefix that says so.
std::string asHexadecimal(std::string& text) {
    if (!text.starts_with("0x")) text.insert(0, "0x");
    return {};
}

void addCapabilitiesOptions(CLI::App& verb, Choices& choices) {
    verb.add_option("--mode", choices.mode, "full: the whole description; mag or encoder: that encoder alone")
        ->option_text("full|mag|encoder")
        ->transform(oneOf({{"full", allCapabilities}, {"mag", magEncoderAlone}, {"encoder", encoderAlone}}));
    verb.add_flag("--direct-to-card", choices.withoutTransfer, "The printer prints on the card itself");
}

void addConfigurationOptions(CLI::App& verb, Choices& choices) {
    verb.add_option("--card", choices.card, "That custom card alone")->option_text("1|2")->check(CLI::Range(1, 2));
    verb.add_flag("--skip-transfer", choices.withoutTransfer,
                  "The printer prints on the card itself: leave film and transfer out");
}

void addMediaOptions(CLI::App& verb, Choices& choices) {
    verb.add_flag("--all-cards", choices.allCards, "Cards of every type, not of the types 0 and 1 alone");
    verb.add_flag("--omit-transfer", choices.withoutTransfer,
                  "The printer prints on the card itself: leave the transfer settings out");
}

void addPrinterIdOptions(CLI::App& verb, Choices& choices) {
    verb.add_flag("--full", choices.full, "The full identity, not single sections");
}

struct OwnOptions {
    std::string_view request;
    void (*add)(CLI::App& verb, Choices& choices);
};
constexpr OwnOptions ownOptions[] = {
    {"capabilities", addCapabilitiesOptions},
    {"configuration", addConfigurationOptions},
    {"media", addMediaOptions},
    {"printer-id", addPrinterIdOptions},
};

/// A request of sections does not guess which are meant.
void addSectionOptions(CLI::App& verb, const Request& request, Options& options) {
    NamedNumbers bits;
    for (const auto& section : sectionsOf(request.table)) bits.emplace(section.name, section.bit);
    CLI::Option_group* choice = verb.add_option_group("Sections", "What is written: one of these");
    choice->add_option("--sections", options.sections, "Names from --list-sections, separated by commas")
        ->option_text("NAMES")
        ->delimiter(',')
        ->allow_extra_args(false)  // What stands behind the names is the file.
        ->transform(oneOf(bits));
    choice->add_option("--mask", options.choices.sections, "Their bits")
        ->option_text("HEX")
        ->transform(CLI::Validator(asHexadecimal, ""));
    choice->add_flag("--list-sections", options.listSections, "Print the name, bit and content of each, and end");
    if (CLI::Option* full = verb.get_option_no_throw("--full")) choice->add_option(full);
    choice->require_option(1);
}

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

void addOptions(CLI::App& verb, const Request& request, Options& options) {
    addSource(verb, "The JSON", options.source);
    verb.add_option("--set", options.encode.edits, "Change a value of the JSON on the way, as /lcdContrast/value=15")
        ->option_text("POINTER=VALUE")
        ->allow_extra_args(false);
    verb.add_flag("--accept-changes", options.encode.acceptsChanges,
                  "Send what the printer gets otherwise than the JSON asks, instead of ending with 8");
    const auto* const own = std::ranges::find(ownOptions, request.name, &OwnOptions::request);
    if (own != std::end(ownOptions)) own->add(verb, options.choices);
    if (request.hasSections()) addSectionOptions(verb, request, options);
}

}  // namespace

Run addEncode(CLI::App& verb) {
    const auto options = std::make_shared<Options>();
    verb.require_subcommand(1);
    for (const auto& request : requests()) {
        CLI::App* const one =
            verb.add_subcommand(std::string(request.name), "From an object with " + contentOf(request));
        addOptions(*one, request, *options);
    }
    return [options, &verb] {
        const auto& request =
            *std::ranges::find(requests(), verb.get_subcommands().front()->get_name(), &Request::name);
        if (options->listSections) return listSections(request.table);
        for (const long bit : options->sections) options->choices.sections |= bit;
        return encode(request, options->choices, options->source, options->encode);
    };
}

}  // namespace kvj::tool
