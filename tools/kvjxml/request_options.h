/// @file request_options.h
/// What the command line of each request takes beside the JSON.
#ifndef KVJXML_TOOL_REQUEST_OPTIONS_H
#define KVJXML_TOOL_REQUEST_OPTIONS_H

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "messages/request.h"

namespace kvj::tool {

struct Options {
    Choices choices;
    std::vector<long> sections;  ///< their bits one by one
    bool listSections = false;   ///< instead of composing
};

/// What the JSON of a request has, for its help.
std::string contentOf(const Request& request);

/// Adds the options of a request to its verb.
void addOptions(CLI::App& verb, const Request& request, Options& options);

}  // namespace kvj::tool

#endif
