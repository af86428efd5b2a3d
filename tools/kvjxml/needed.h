/// @file needed.h
/// What of a record has to be given for a request: what the request writes of it.
#ifndef KVJXML_TOOL_NEEDED_H
#define KVJXML_TOOL_NEEDED_H

#include <map>
#include <string_view>

#include "messages/request.h"

namespace kvj::tool {

struct Needed {
    bool all = false;                           ///< every field, with all that is in it; else only
    std::map<std::string_view, Needed> fields;  ///< these, with what of each

    /// What of a field is needed; null when the field may be left out. A group without a field of its own needs what is
    /// needed around it.
    [[nodiscard]] const Needed* of(std::string_view field) const;
};

/// For a request and what a host says besides the record.
Needed neededFor(const Request& request, const Choices& choices);

}  // namespace kvj::tool

#endif
