/// @file known_root.h
/// Which message a document is.
#ifndef KVJXML_TOOL_KNOWN_ROOT_H
#define KVJXML_TOOL_KNOWN_ROOT_H

#include <string>
#include <string_view>
#include <vector>

#include "foundation/document.h"
#include "foundation/element.h"
#include "messages/message.h"

namespace kvj::tool {

struct KnownRoot {
    Element root;                         ///< null for none
    std::vector<const Message*> readers;  ///< several may each take a part of it
};

/// The first element that is the root of a known message.
KnownRoot knownRootIn(const Document& document);

/// The name of the first element; empty when there is none.
std::string_view firstRootIn(const Document& document);

/// The name of a known root that somebody may have meant by this one; empty when none is near.
std::string_view nearestRoot(std::string_view root);

/// What a document without a known message has instead, for people.
std::string describeUnknown(const Document& document);

}  // namespace kvj::tool

#endif
