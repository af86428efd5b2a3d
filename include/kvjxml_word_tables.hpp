/// @file kvjxml_word_tables.hpp
/// The printer's words in the library: what the templates of kvjxml_words.hpp call. Hosts have no need to.
///
/// A table is named as its enumeration in kvjxml_vocabulary.hpp is, "printer_state". A library that is older than its
/// host need not know the name; it then has no words. Nothing is kept of what the host points to, and null are at most
/// a text of no characters and an array without room.
#ifndef KVJXML_WORD_TABLES_HPP
#define KVJXML_WORD_TABLES_HPP

#include <cstddef>

#include "kvjxml_export.h"

extern "C" {

/// The word of a code, the first where there are several; null when no word has it.
KVJXML_API const char* kvjxml_v1_word(const char* table, int code) noexcept;

/// Finds the code of a text of `length` characters, which need not be terminated. When it is no word, `code` stays.
/// @return whether it is a word.
KVJXML_API bool kvjxml_v1_code(const char* table, const char* text, std::size_t length, int* code) noexcept;

/// The words that bits are made of: see kvjxml::names. As many as there is room for are written to `words`, and to
/// `unnamed` the bits that are in none of them.
/// @return how many there are, which may be more than the room.
KVJXML_API std::size_t kvjxml_v1_words(const char* table, unsigned int bits, const char** words, std::size_t room,
                                       unsigned int* unnamed) noexcept;
}

#endif
