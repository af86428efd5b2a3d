#include "request_options.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string_view>

#include "sections.h"
#include "suggestion.h"
#include "visible_text.h"

namespace kvj::tool {

namespace {

/// Numbers by the names that the command line has for them.
using NamedNumbers = std::map<std::string, long>;

/// Turns such a name into its number, and refuses any other text.
CLI::Validator oneOf(const NamedNumbers& numbers) {
    return {[numbers](std::string& text) {
                const auto found = numbers.find(text);
                if (found == numbers.end()) {
                    std::string reason = "\"" + visible(text) + "\" is none of";
                    for (const auto& [name, number] : numbers) reason.append(" ").append(name);
                    return reason + meant(nearest(text, numbers,
                                                  [](const auto& named) -> std::string_view { return named.first; }));
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
void addSectionOptions(CLI::App& verb, const Request& request, RequestOptions& options, bool areNeeded) {
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
    choice->require_option(areNeeded ? 1 : 0, 1);
}

}  // namespace

void addRequestOptions(CLI::App& verb, const Request& request, RequestOptions& options, bool needsSections) {
    const auto* const own = std::ranges::find(ownOptions, request.name, &OwnOptions::request);
    if (own != std::end(ownOptions)) own->add(verb, options.choices);
    if (request.hasSections()) addSectionOptions(verb, request, options, needsSections);
}

Choices choicesOf(const RequestOptions& options) {
    Choices choices = options.choices;
    for (const long bit : options.sections) choices.sections |= bit;
    return choices;
}

}  // namespace kvj::tool
