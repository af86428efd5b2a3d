/// @file row_words.h
/// Rows in words: what an element is read as, or written as.
#ifndef KVJXML_TOOL_ROW_WORDS_H
#define KVJXML_TOOL_ROW_WORDS_H

#include <string>
#include <string_view>

#include "foundation/kinds.h"

namespace kvj::tool {

enum class Direction { read, written };

/// A name in the marks that Markdown has for code; nothing for an empty one.
std::string code(std::string_view name);

/// What a kind of value is called, with names and words as code.
std::string inWords(const Description& row, Direction direction);

/// When an element is written: for which bit, and under which condition; empty for always.
std::string whenWritten(const DescribedRow& row);

}  // namespace kvj::tool

#endif
