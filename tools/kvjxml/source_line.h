/// @file source_line.h
/// A line of a document with a mark under a place in it.
#ifndef KVJXML_TOOL_SOURCE_LINE_H
#define KVJXML_TOOL_SOURCE_LINE_H

#include <cstddef>
#include <string>
#include <string_view>

#include "hidden_text.h"

namespace kvj::tool {

struct SourceLine {
    std::string text;   ///< as a terminal may be given it; of a long line what is around the place
    std::string caret;  ///< blanks up to the place, and "^"
};

/// The line that a byte of a document is in.
SourceLine sourceLine(std::string_view bytes, std::size_t offset, const HiddenText& hidden);

}  // namespace kvj::tool

#endif
