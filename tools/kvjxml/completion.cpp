#include <algorithm>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "verb.h"

namespace kvj::tool {

namespace {

/// What a shell has to know of an option.
struct Flag {
    std::string words;  ///< "-r --recursive"
    std::string summary;
    bool takesValue;
    std::vector<std::string> values{};  ///< where only these are taken
};

/// What can stand behind some words of a command line.
struct Command {
    std::string path;  ///< "kvjxml encode media"
    std::string summary;
    std::vector<Flag> flags{};
    std::vector<std::string> names{};  ///< of the commands below it, or the only words that it takes
};

std::string firstLine(const std::string& text) { return text.substr(0, text.find('\n')); }

/// Where only some values are taken, they are what the help has for the value, "full|mag", or what CLI11 makes of a
/// choice, "TEXT:{a,b}".
std::vector<std::string> valuesOf(const CLI::Option& option) {
    const std::string& text = option.get_option_text();
    if (text.find('|') != std::string::npos) return CLI::detail::split(text, '|');
    const std::string type = option.get_type_name();
    const auto open = type.find('{');
    const auto close = type.rfind('}');
    if (open == std::string::npos || close == std::string::npos) return {};
    return CLI::detail::split(type.substr(open + 1, close - open - 1), ',');
}

Flag flagOf(const CLI::Option& option) {
    std::string words;
    for (const auto& name : option.get_snames()) words.append(words.empty() ? "-" : " -").append(name);
    for (const auto& name : option.get_lnames()) words.append(words.empty() ? "--" : " --").append(name);
    return {words, firstLine(option.get_description()), option.get_items_expected_max() > 0, valuesOf(option)};
}

// Verbs nest as deep as they are declared, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void collect(const CLI::App& app, const std::string& path, std::vector<Command>& commands) {
    Command command{path, firstLine(app.get_description())};
    for (const CLI::Option* option : app.get_options()) {
        if (option->nonpositional()) {
            command.flags.push_back(flagOf(*option));
        } else {
            for (auto& value : valuesOf(*option)) command.names.push_back(std::move(value));
        }
    }
    const auto below = app.get_subcommands([](const CLI::App* each) { return !each->get_name().empty(); });
    for (const CLI::App* each : below) command.names.push_back(each->get_name());
    commands.push_back(std::move(command));
    for (const CLI::App* each : below) collect(*each, path + " " + each->get_name(), commands);
    // Groups of options are applications without a name.
    for (const CLI::App* group : app.get_subcommands([](const CLI::App* each) { return each->get_name().empty(); })) {
        for (const CLI::Option* option : group->get_options()) {
            auto& flags = std::ranges::find(commands, path, &Command::path)->flags;
            const Flag flag = flagOf(*option);
            const bool isThere = std::ranges::find(flags, flag.words, &Flag::words) != flags.end();
            if (option->nonpositional() && !isThere) flags.push_back(flag);
        }
    }
}

std::string summaryOf(const std::vector<Command>& commands, const std::string& path) {
    const auto command = std::ranges::find(commands, path, &Command::path);
    return command == commands.end() ? std::string() : command->summary;
}

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const auto& word : words) text.append(text.empty() ? "" : " ").append(word);
    return text;
}

/// A text in single quotes, as the shells read it.
std::string quoted(std::string_view text, std::string_view quote) {
    std::string result = "'";
    for (const char c : text) {
        if (c == '\'') {
            result.append(quote);
        } else {
            result.push_back(c);
        }
    }
    return result + "'";
}

std::vector<std::string> wordsOf(const Flag& flag) { return CLI::detail::split(flag.words, ' '); }

// ---- One function for each shell ----

void printBash(const std::vector<Command>& commands) {
    std::cout << R"(# bash completion for kvjxml, printed by "kvjxml completion bash".
_kvjxml() {
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} path=kvjxml word
    local -A below=() flags=() values=() takes=()
)";
    for (const Command& command : commands) {
        std::vector<std::string> flags;
        for (const Flag& flag : command.flags) {
            for (const auto& word : wordsOf(flag)) {
                flags.push_back(word);
                const std::string key = quoted(command.path + " " + word, R"('\'')");
                if (flag.takesValue) std::cout << "    takes[" << key << "]=1\n";
                if (!flag.values.empty()) {
                    std::cout << "    values[" << key << "]=" << quoted(joined(flag.values), R"('\'')") << '\n';
                }
            }
        }
        const std::string key = quoted(command.path, R"('\'')");
        std::cout << "    below[" << key << "]=" << quoted(joined(command.names), R"('\'')") << "\n    flags[" << key
                  << "]=" << quoted(joined(flags), R"('\'')") << '\n';
    }
    std::cout << R"(    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case " ${below[$path]} " in *" $word "*) path+=" $word" ;; esac
    done
    COMPREPLY=()
    if [ -n "${values["$path $before"]}" ]; then
        mapfile -t COMPREPLY < <(compgen -W "${values["$path $before"]}" -- "$current")
    elif [ -n "${takes["$path $before"]}" ]; then
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    elif [ "${current#-}" != "$current" ]; then
        mapfile -t COMPREPLY < <(compgen -W "${flags[$path]}" -- "$current")
    elif [ -n "${below[$path]}" ]; then
        mapfile -t COMPREPLY < <(compgen -W "${below[$path]}" -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -o filenames -F _kvjxml kvjxml
)";
}

/// For descriptions, as zsh takes them.
std::string escapedForZsh(const std::string& text) {
    std::string result;
    for (const char c : text) {
        if (c == '[' || c == ']' || c == ':' || c == '\\') result.push_back('\\');
        result.push_back(c);
    }
    return result;
}

void printZsh(const std::vector<Command>& commands) {
    constexpr std::string_view quote = R"('\'')";
    std::cout << "#compdef kvjxml\n# zsh completion for kvjxml, printed by \"kvjxml completion zsh\".\n\n"
                 "_kvjxml() {\n    local at=kvjxml word\n    local -A below\n    local -a names\n";
    for (const Command& command : commands) {
        if (command.names.empty()) continue;
        std::cout << "    below+=(" << quoted(command.path, quote) << ' ' << quoted(joined(command.names), quote)
                  << ")\n";
    }
    std::cout << R"(    for word in "${(@)words[2,CURRENT-1]}"; do
        case " ${below[$at]} " in *" $word "*) at+=" $word" ;; esac
    done
    if [[ -n ${below[$at]} && ${words[CURRENT]} != -* ]]; then
        case $at in
)";
    for (const Command& command : commands) {
        if (command.names.empty()) continue;
        std::cout << "            " << quoted(command.path, quote) << ") names=(";
        for (const auto& name : command.names) {
            const std::string summary = summaryOf(commands, command.path + " " + name);
            std::cout << "\n                " << quoted(name + ":" + escapedForZsh(summary), quote);
        }
        std::cout << ") ;;\n";
    }
    std::cout << R"(        esac
        _describe command names
        return
    fi
    case $at in
)";
    for (const Command& command : commands) {
        std::cout << "        " << quoted(command.path, quote) << ") _arguments";
        for (const Flag& flag : command.flags) {
            for (const auto& word : wordsOf(flag)) {
                std::string argument = word + "[" + escapedForZsh(flag.summary) + "]";
                if (!flag.values.empty()) {
                    argument += ":value:(" + joined(flag.values) + ")";
                } else if (flag.takesValue) {
                    argument += ":value:_files";
                }
                std::cout << " \\\n            '*'" << quoted(argument, quote);
            }
        }
        std::cout << " \\\n            '*:file:_files' ;;\n";
    }
    std::cout << "    esac\n}\n\n_kvjxml \"$@\"\n";
}

void printFish(const std::vector<Command>& commands) {
    constexpr std::string_view quote = R"(\')";
    std::cout << R"(# fish completion for kvjxml, printed by "kvjxml completion fish".
function __kvjxml_at
    set -l path kvjxml
    set -l words (commandline -opc)
    for word in $words[2..]
        if contains -- "$path $word" $__kvjxml_paths
            set path "$path $word"
        end
    end
    test "$path" = "$argv"
end

set -g __kvjxml_paths)";
    for (const Command& command : commands) std::cout << ' ' << quoted(command.path, quote);
    std::cout << '\n';
    for (const Command& command : commands) {
        const std::string at = "complete -c kvjxml -n " + quoted("__kvjxml_at " + command.path, quote);
        for (const auto& name : command.names) {
            const std::string summary = summaryOf(commands, command.path + " " + name);
            std::cout << at << " -f -a " << name << " -d " << quoted(summary, quote) << '\n';
        }
        for (const Flag& flag : command.flags) {
            std::cout << at;
            for (const auto& word : wordsOf(flag)) {
                std::cout << (word.starts_with("--") ? " -l " + word.substr(2) : " -s " + word.substr(1));
            }
            if (flag.takesValue) std::cout << " -r";
            if (!flag.values.empty()) std::cout << " -f -a " << quoted(joined(flag.values), quote);
            std::cout << " -d " << quoted(flag.summary, quote) << '\n';
        }
    }
}

struct Shell {
    std::string_view name;
    void (*print)(const std::vector<Command>& commands);
};
constexpr Shell shells[] = {{"bash", printBash}, {"fish", printFish}, {"zsh", printZsh}};

}  // namespace

Run addCompletion(CLI::App& verb) {
    const auto wanted = std::make_shared<std::string>();
    std::vector<std::string> names;
    for (const Shell& shell : shells) names.emplace_back(shell.name);
    verb.add_option("SHELL", *wanted, "bash, fish or zsh")->required()->check(CLI::IsMember(names));
    return [wanted, &verb] {
        std::vector<Command> commands;
        collect(*verb.get_parent(), "kvjxml", commands);
        std::ranges::find(shells, *wanted, &Shell::name)->print(commands);
        return ExitCode::done;
    };
}

}  // namespace kvj::tool
