/// @file read_back.h
/// Reads a composed request again, where a message has the same fields, and finds what is seen otherwise than asked.
#ifndef KVJXML_TOOL_READ_BACK_H
#define KVJXML_TOOL_READ_BACK_H

#include <string>

#include "asked.h"
#include "changes.h"

namespace kvj::tool {

/// Adds the fields that the JSON gives and that are seen otherwise in `text`, the request.
void addSeenOtherwise(const Asked& asked, const std::string& text, Changes& changes);

/// Adds the parts that the JSON gives but that are left out of `text` for what else the record says.
void addLeftOut(const Asked& asked, const std::string& text, Changes& changes);

}  // namespace kvj::tool

#endif
