/// @file requests.h
/// The requests that the tool composes: one row per composer.
#ifndef KVJXML_TOOL_REQUESTS_H
#define KVJXML_TOOL_REQUESTS_H

#include <CLI/CLI.hpp>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "arguments.h"
#include "foundation/rows.h"

namespace kvjxml::tool {

/// What the command line says beside the JSON.
struct Options {
    int mode = 0;  ///< of the capabilities: what of them
    bool withoutTransfer = false;
    bool allCards = false;       ///< of the media catalogue
    int card = 0;                ///< of the configuration: one custom card alone
    long mask = 0;               ///< of the sections
    std::vector<long> sections;  ///< their bits one by one
    bool full = false;           ///< of the printer's identity
    bool listSections = false;   ///< instead of composing
};

struct Request {
    std::string_view name;
    std::string_view composer;  ///< the library's operation
    std::string_view fields;    ///< of the JSON, for --help
    /// @return the document. @throws Failure
    std::string (*compose)(Arguments& arguments, const Options& options);
    /// What is written, where it is made of a record.
    std::span<const DescribedRow> table{};
    /// Adds the options that this request has of its own.
    void (*addOptions)(CLI::App& verb, Options& options) = nullptr;

    /// Whether a host chooses what is written by bits.
    [[nodiscard]] bool hasSections() const { return !table.empty() && table.front().section != 0; }
};

/// Numbers by the names that the command line has for them.
using NamedNumbers = std::map<std::string, long>;

/// Turns such a name into its number, and refuses any other text.
CLI::Validator oneOf(const NamedNumbers& numbers);

/// All of them.
std::vector<Request> requests();

/// Those that are made of single values, and those that are made of a whole record.
std::span<const Request> valueRequests();
std::span<const Request> recordRequests();

}  // namespace kvjxml::tool

#endif
