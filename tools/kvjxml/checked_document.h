/// @file checked_document.h
/// What would be ignored, changed or lost of a document, as all its readers together say.
#ifndef KVJXML_TOOL_CHECKED_DOCUMENT_H
#define KVJXML_TOOL_CHECKED_DOCUMENT_H

#include <cstddef>
#include <kvjxml_read.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "messages/message.h"

namespace kvj::tool {

struct CheckedDocument {
    std::string root;                         ///< the name of its message's element; empty when no message is known
    std::vector<const Message*> readers{};    ///< those that take a part of it; none when no message is known
    bool isWhole = false;                     ///< as kvjxml.hpp says
    std::vector<kvjxml::finding> findings{};  ///< in the order of the document
    std::size_t omitted = 0;                  ///< how many there were at least beyond those that are kept
};

/// Reads a document with all readers of the first element at its top level that is a known message's.
CheckedDocument checkDocument(std::string_view bytes);

}  // namespace kvj::tool

#endif
