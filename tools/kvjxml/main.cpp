// kvjxml: what a captured reply of the printer says.
#include <CLI/CLI.hpp>
#include <clocale>
#include <cstdlib>
#include <iostream>
#include <set>
#include <string>

#include "decode.h"
#include "encode.h"
#include "failure.h"
#include "messages.h"
#include "reference.h"
#include "requests.h"
#include "sections.h"

namespace {

using kvjxml::tool::ExitCode;

/// A number in hexadecimal, with or without the prefix that says so.
std::string asHexadecimal(std::string& text) {
    if (!text.starts_with("0x")) text.insert(0, "0x");
    return {};
}

/// A request of sections does not guess which are meant.
void addSectionOptions(CLI::App& verb, const kvjxml::tool::Request& request, kvjxml::tool::Options& options) {
    CLI::Option_group* choice = verb.add_option_group("Sections", "What is written: one of these");
    choice->add_option("--sections", options.sections, "Names from --list-sections, separated by commas")
        ->option_text("NAMES")
        ->delimiter(',')
        ->transform(kvjxml::tool::oneOf(kvjxml::tool::bitsByName(request.table)));
    choice->add_option("--mask", options.mask, "Their bits")
        ->option_text("HEX")
        ->transform(CLI::Validator(asHexadecimal, ""));
    choice->add_flag("--list-sections", options.listSections, "Print the name, bit and content of each, and end");
    if (CLI::Option* full = verb.get_option_no_throw("--full")) choice->add_option(full);
    choice->require_option(1);
}

int run(int argc, char** argv) {
    CLI::App app("Shows what the messages of a card printer say.", "kvjxml");
    app.footer(kvjxml::tool::exitCodeTable());
    app.set_version_flag("--version", KVJXML_VERSION);
    app.require_subcommand(1);

    std::string file = "-";
    std::string message;
    std::set<std::string> roots;
    for (const auto& known : kvjxml::tool::messages()) {
        roots.emplace(known.root);
        if (!known.otherRoot.empty()) roots.emplace(known.otherRoot);
    }

    CLI::App* decode = app.add_subcommand("decode", "Print the record that a captured reply fills, as JSON");
    decode->footer(kvjxml::tool::exitCodeTable());
    decode->add_option("FILE", file, "The reply, in UTF-8; - for standard input")->capture_default_str();
    decode->add_option("--message", message, "Read it as this message, whatever its root element")
        ->option_text("NAME")
        ->check(CLI::IsMember(roots));

    CLI::App* encode =
        app.add_subcommand("encode", "Compose a request from JSON; keys are read from it, never from options");
    encode->footer(kvjxml::tool::exitCodeTable());
    encode->require_subcommand(1);
    kvjxml::tool::Options options;
    const auto requests = kvjxml::tool::requests();
    for (const auto& request : requests) {
        CLI::App* verb =
            encode->add_subcommand(std::string(request.name), "From an object with " + std::string(request.fields));
        verb->add_option("FILE", file, "The JSON; - for standard input")->capture_default_str();
        if (request.addOptions != nullptr) request.addOptions(*verb, options);
        if (request.hasSections()) addSectionOptions(*verb, request, options);
    }

    const CLI::App* messages =
        app.add_subcommand("messages", "Print every known message element by element, as Markdown");

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? static_cast<int>(ExitCode::done) : static_cast<int>(ExitCode::usage);
    }
    for (const auto& request : requests) {
        if (encode->got_subcommand(std::string(request.name)))
            return static_cast<int>(kvjxml::tool::encode(request, options, file));
    }
    return static_cast<int>(messages->parsed() ? kvjxml::tool::printReference() : kvjxml::tool::decode(file, message));
}

}  // namespace

int main(int argc, char** argv) {
    // Replies are UTF-8, whatever the terminal is set to. Numbers stay those of the "C" locale.
    static_cast<void>(std::setlocale(LC_CTYPE, "C.UTF-8"));
    try {
        return run(argc, argv);
    } catch (const kvjxml::tool::Failure& failure) {
        std::cerr << "kvjxml: " << failure.what() << '\n';
        return static_cast<int>(failure.code());
    } catch (const std::exception& error) {
        std::cerr << "kvjxml: " << error.what() << '\n';
        return static_cast<int>(ExitCode::inputOutput);
    }
}
