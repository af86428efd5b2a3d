/// @file multibyte.h
/// Wide text to multibyte text and back, in the process's locale: hosts speak the one, TinyXML the other.
#ifndef KVJXML_FOUNDATION_MULTIBYTE_H
#define KVJXML_FOUNDATION_MULTIBYTE_H

#include <cstddef>

namespace kvj {

/// Converts up to `length` wide characters to at most `length` bytes, and a NUL when there is room for it, as wcstombs
/// does with a terminated text. A character that the locale does not know ends the text. Nothing after these characters
/// is looked at, nor after a NUL among them.
/// @param bytes  room for `length` bytes, all zero.
/// @throws std::bad_alloc, only in a locale of another character set than UTF-8 and ASCII, or over such a character.
void toMultibyte(const wchar_t* text, std::size_t length, char* bytes);

/// Converts a terminated text to at most `capacity` wide characters, the NUL included when there is room for it, as
/// mbstowcs does. A byte that the locale does not know ends the text.
void toWide(const char* text, wchar_t* out, std::size_t capacity) noexcept;

}  // namespace kvj

#endif
