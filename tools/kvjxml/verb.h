/// @file verb.h
/// What the tool can be asked to do.
#ifndef KVJXML_TOOL_VERB_H
#define KVJXML_TOOL_VERB_H

#include <CLI/CLI.hpp>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "captures.h"
#include "exit_code.h"
#include "input.h"

namespace kvj::tool {

/// Does what a command line says, once it has been read.
using Run = std::function<ExitCode()>;

struct Verb {
    std::string_view name;
    std::string_view summary;  ///< for --help
    /// Gives the verb its options. What they are stored in belongs to the result.
    Run (*add)(CLI::App& verb);
};

/// In the order of --help.
std::span<const Verb> verbs();

Run addCheck(CLI::App& verb);
Run addCompletion(CLI::App& verb);
Run addDecode(CLI::App& verb);
Run addDiff(CLI::App& verb);
Run addEncode(CLI::App& verb);
Run addExplain(CLI::App& verb);
Run addMessages(CLI::App& verb);
Run addSample(CLI::App& verb);
Run addSchema(CLI::App& verb);
Run addTemplate(CLI::App& verb);

/// The option of every verb that limits its input.
void addMaxSize(CLI::App& verb, std::uint64_t& maxSize);

/// Adds `--encoding`.
void addEncoding(CLI::App& verb, std::optional<Encoding>& encoding);
/// The documents that a verb reads, see captures.h.
/// @param captures  outlives the command line.
void addCaptures(CLI::App& verb, const std::string& content, Captures& captures);
/// Takes the root element of a known message, and says of another name which one it may be meant to be.
CLI::Validator knownRoot();
/// The file that a verb reads, and how much of it.
void addSource(CLI::App& verb, const std::string& content, Source& source);

}  // namespace kvj::tool

#endif
