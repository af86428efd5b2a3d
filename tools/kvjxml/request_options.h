/// @file request_options.h
/// The options that say what of a request is meant, for every verb that has to do with it.
#ifndef KVJXML_TOOL_REQUEST_OPTIONS_H
#define KVJXML_TOOL_REQUEST_OPTIONS_H

#include <CLI/CLI.hpp>
#include <vector>

#include "messages/request.h"

namespace kvj::tool {

struct RequestOptions {
    Choices choices;
    std::vector<long> sections;  ///< their bits one by one
    bool listSections = false;   ///< and nothing else
};

/// @param needsSections  whether the command line has to say which sections are meant.
void addRequestOptions(CLI::App& verb, const Request& request, RequestOptions& options, bool needsSections);

/// All that is said.
Choices choicesOf(const RequestOptions& options);

}  // namespace kvj::tool

#endif
