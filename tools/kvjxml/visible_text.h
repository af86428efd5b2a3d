/// @file visible_text.h
/// Text from outside - replies, names of files, keys of JSON - as a terminal may be given it.
#ifndef KVJXML_TOOL_VISIBLE_TEXT_H
#define KVJXML_TOOL_VISIBLE_TEXT_H

#include <string>
#include <string_view>

namespace kvj::tool {

/// The text with everything that a terminal would obey, or that would show other text than there is, as a number:
/// control characters, those of C1, marks of direction, separators of lines and bytes that are no UTF-8. A line feed
/// becomes "\x0A", U+202E "\u202E", a stray byte "\xE9".
std::string visible(std::string_view text);

/// Whether standard output is a terminal.
bool writesToTerminal();

/// Whether what is printed may have colours: on a terminal, unless NO_COLOR is set.
bool writesInColour();

}  // namespace kvj::tool

#endif
