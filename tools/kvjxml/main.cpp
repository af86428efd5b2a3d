// kvjxml: shows what the printer's replies say, and composes requests.
#include <CLI/CLI.hpp>
#include <clocale>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "failure.h"
#include "kvjxml_version.h"
#include "suggestion.h"
#include "verb.h"

namespace {

using kvj::tool::ExitCode;

/// What is wrong with a command line: most likely a word that is nearly a known one.
std::string complaint(const CLI::App* app, const CLI::Error& error) {
    using kvj::tool::unknown;
    while (!app->get_subcommands().empty()) app = app->get_subcommands().front();
    const std::vector<std::string> unread = app->remaining(true);
    std::vector<std::string> known;
    std::string wrong = kvj::tool::visible(error.what());
    if (!unread.empty() && unread.front().starts_with("--")) {
        for (const CLI::Option* const option : app->get_options()) known.push_back(option->get_name());
        wrong = unknown("option", unread.front().substr(0, unread.front().find('=')), known);
    } else if (!unread.empty() && app->get_require_subcommand_min() > 0) {
        const auto all = app->get_subcommands([](const CLI::App* /*each*/) { return true; });
        for (const CLI::App* const each : all) known.push_back(each->get_name());
        wrong = unknown(app->get_parent() == nullptr ? "verb" : "request", unread.front(), known);
    }
    return "kvjxml: " + wrong + "\nkvjxml --help says more.\n";
}

int run(int argc, char** argv) {
    CLI::App app("Shows what the messages of a card printer say.", "kvjxml");
    app.footer(kvj::tool::exitCodeTable());
    app.set_version_flag("--version", KVJXML_VERSION);
    app.require_subcommand(1);
    app.failure_message(complaint);
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
