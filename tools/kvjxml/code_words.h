/// @file code_words.h
/// What the codes of a field stand for.
#ifndef KVJXML_TOOL_CODE_WORDS_H
#define KVJXML_TOOL_CODE_WORDS_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "foundation/kinds.h"

namespace kvj::tool {

/// A table of words, and whether its codes are bits that are added up.
struct CodeTable {
    const NamedWords* words;
    bool isOfBits;

    [[nodiscard]] const Words& rows() const { return words->words; }
    /// Whether it is the same table in memory: names may be shared.
    [[nodiscard]] bool is(const NamedWords& other) const { return rows().rows.data() == other.words.rows.data(); }
};

/// The table of a row; none when it has no words.
std::optional<CodeTable> codeTable(const Description& row);
/// The table that messages read a field with.
std::optional<CodeTable> codeTable(std::string_view record, std::string_view field);

/// The words of a code: all that have it, joined by `same`, or one for each bit. Empty when it has none.
std::string wordsOf(const CodeTable& table, std::int64_t code, std::string_view same = " or ");

/// "0x8002"
std::string inHexadecimal(std::uint64_t number);

}  // namespace kvj::tool

#endif
