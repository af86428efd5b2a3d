// kvjxml: shows what the printer's replies say, and composes requests.
#include <CLI/CLI.hpp>
#include <clocale>
#include <iostream>
#include <map>
#include <string>

#include "failure.h"
#include "kvjxml_version.h"
#include "verb.h"

namespace {

using kvj::tool::ExitCode;

int run(int argc, char** argv) {
    CLI::App app("Shows what the messages of a card printer say.", "kvjxml");
    app.footer(kvj::tool::exitCodeTable());
    app.set_version_flag("--version", KVJXML_VERSION);
    app.require_subcommand(1);
    std::map<const CLI::App*, kvj::tool::Run> runs;
    for (const auto& verb : kvj::tool::verbs()) {
        CLI::App* const options = app.add_subcommand(std::string(verb.name), std::string(verb.summary));
        options->footer(kvj::tool::exitCodeTable());
        runs.emplace(options, verb.add(*options));
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? static_cast<int>(ExitCode::done) : static_cast<int>(ExitCode::usage);
    }
    return static_cast<int>(runs.at(app.get_subcommands().front())());
}

}  // namespace

int main(int argc, char** argv) {
    // Replies are UTF-8, whatever the terminal is set to. Numbers stay those of the "C" locale.
    static_cast<void>(std::setlocale(LC_CTYPE, "C.UTF-8"));
    // Nobody else writes to standard output, and a long stream is written much faster on its own.
    std::ios::sync_with_stdio(false);
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
