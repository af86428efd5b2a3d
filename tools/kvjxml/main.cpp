// kvjxml: shows what the printer's replies say, and composes requests.
#include <CLI/CLI.hpp>
#include <charconv>
#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include "decode.h"
#include "encode.h"
#include "failure.h"
#include "kvjxml_version.h"
#include "messages/message.h"
#include "messages/request.h"
#include "reference.h"
#include "request_options.h"
#include "sections.h"

namespace {

using kvj::tool::ExitCode;

/// A size, as its number of bytes. Units are powers of 1024; "KB" is refused, since it could mean either.
std::string asBytes(std::string& text) {
    static const std::map<std::string_view, int> shifts{{"", 0},     {"K", 10}, {"KiB", 10}, {"M", 20},
                                                        {"MiB", 20}, {"G", 30}, {"GiB", 30}};
    std::uint64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [unit, error] = std::from_chars(text.data(), end, number);
    const auto shift = shifts.find(std::string_view(unit, end));
    if (error != std::errc() || shift == shifts.end() ||
        number > std::numeric_limits<std::uint64_t>::max() >> shift->second) {
        return "\"" + text + "\" is not a size such as 1048576, 64M or 1GiB";
    }
    text = std::to_string(number << shift->second);
    return {};
}

/// The options of every verb that reads input.
void addSource(CLI::App& verb, const std::string& content, kvj::tool::Source& source) {
    verb.add_option("FILE", source.path, content + "; - for standard input")->capture_default_str();
    verb.add_option("--max-size", source.maxSize,
                    "Refuse input that is larger: bytes, or with K, M, G or KiB, MiB, GiB after the number; 64M unless "
                    "told")
        ->option_text("SIZE")
        ->transform(CLI::Validator(asBytes, ""));
}

int run(int argc, char** argv) {
    CLI::App app("Shows what the messages of a card printer say.", "kvjxml");
    app.footer(kvj::tool::exitCodeTable());
    app.set_version_flag("--version", KVJXML_VERSION);
    app.require_subcommand(1);

    kvj::tool::Source source;
    std::string message;
    std::set<std::string> roots;
    for (const auto& known : kvj::messages()) {
        roots.emplace(known.root);
        if (!known.otherRoot.empty()) roots.emplace(known.otherRoot);
    }

    CLI::App* decode = app.add_subcommand("decode", "Print the record that a captured reply fills, as JSON");
    decode->footer(kvj::tool::exitCodeTable());
    addSource(*decode, "The reply, in UTF-8", source);
    decode->add_option("--message", message, "Read it as this message, whatever its root element")
        ->option_text("NAME")
        ->check(CLI::IsMember(roots));

    CLI::App* encode =
        app.add_subcommand("encode", "Compose a request from JSON; keys are read from it, never from options");
    encode->footer(kvj::tool::exitCodeTable());
    encode->require_subcommand(1);
    kvj::tool::Options options;
    for (const auto& request : kvj::requests()) {
        CLI::App* verb =
            encode->add_subcommand(std::string(request.name), "From an object with " + kvj::tool::contentOf(request));
        addSource(*verb, "The JSON", source);
        kvj::tool::addOptions(*verb, request, options);
    }

    const CLI::App* messages =
        app.add_subcommand("messages", "Print every known message element by element, as Markdown");

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? static_cast<int>(ExitCode::done) : static_cast<int>(ExitCode::usage);
    }
    for (const auto& request : kvj::requests()) {
        if (!encode->got_subcommand(std::string(request.name))) continue;
        if (options.listSections) return static_cast<int>(kvj::tool::listSections(request.table));
        for (const long bit : options.sections) options.choices.sections |= bit;
        return static_cast<int>(kvj::tool::encode(request, options.choices, source));
    }
    return static_cast<int>(messages->parsed() ? kvj::tool::printReference() : kvj::tool::decode(source, message));
}

}  // namespace

int main(int argc, char** argv) {
    // Replies are UTF-8, whatever the terminal is set to. Numbers stay those of the "C" locale.
    static_cast<void>(std::setlocale(LC_CTYPE, "C.UTF-8"));
    try {
        const int code = run(argc, argv);
        if (!std::cout.flush()) {
            throw kvj::tool::Failure(ExitCode::inputOutput, "standard output: cannot be written");
        }
        return code;
    } catch (const kvj::tool::Failure& failure) {
        std::cerr << "kvjxml: " << failure.what() << '\n';
        return static_cast<int>(failure.code());
    } catch (const std::exception& error) {
        std::cerr << "kvjxml: " << error.what() << '\n';
        return static_cast<int>(ExitCode::inputOutput);
    }
}
