/// @file requests.h
/// The requests that the tool composes: one row per composer.
#ifndef KVJXML_TOOL_REQUESTS_H
#define KVJXML_TOOL_REQUESTS_H

#include <span>
#include <string>
#include <string_view>

#include "arguments.h"

namespace kvjxml::tool {

struct Request {
    std::string_view name;
    std::string_view composer;  ///< the library's operation
    std::string_view fields;    ///< of the JSON, for --help
    /// @return the document. @throws Failure
    std::string (*compose)(Arguments& arguments);
};

std::span<const Request> requests();

}  // namespace kvjxml::tool

#endif
