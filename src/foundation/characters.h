/// @file characters.h
/// What each byte of a reply can be, as TinyXML tells them apart. Bytes from 7F up count as letters. Whether a control
/// character does is up to the process's locale.
#ifndef KVJXML_FOUNDATION_CHARACTERS_H
#define KVJXML_FOUNDATION_CHARACTERS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kvj::characters {

/// Kinds of bytes; one byte can be of several.
enum Kind : std::uint8_t {
    blank = 1,
    letter = 2,      ///< may begin a name
    inName = 4,      ///< may stand in a name after its first character
    control = 8,     ///< up to the locale
    lead = 16,       ///< begins a character of several bytes in UTF-8
    ampersand = 32,  ///< begins a reference
    end = 64,        ///< NUL and "<", where a text ends
    quote = 128,     ///< NUL and both quotation marks, where a value can end
};

/// All kinds of a byte.
constexpr unsigned kindsOf(unsigned byte) noexcept {
    const auto isWithin = [=](unsigned first, unsigned last) { return byte >= first && byte <= last; };
    const auto isOneOf = [=](std::string_view characters) {
        return characters.find(static_cast<char>(byte)) != std::string_view::npos;
    };
    const auto when = [](bool holds, unsigned kind) { return holds ? kind : 0U; };
    const bool isBlank = isOneOf(" \t\n\v\f\r");
    const bool isLetter = isWithin('A', 'Z') || isWithin('a', 'z') || isOneOf("_") || byte >= 0x7F;
    return when(isBlank, blank) | when(isLetter, letter | inName) | when(isWithin('0', '9') || isOneOf("-.:"), inName) |
           when(isWithin(0x01, 0x1F) && !isBlank, control) | when(isWithin(0xC2, 0xF4), lead) |
           when(isOneOf("&"), ampersand) | when(byte == 0 || isOneOf("<"), end) |
           when(byte == 0 || isOneOf("\"'"), quote);
}

inline constexpr auto kinds = [] {
    std::array<std::uint8_t, 256> table{};
    for (unsigned byte = 0; byte < table.size(); ++byte) table[byte] = static_cast<std::uint8_t>(kindsOf(byte));
    return table;
}();

inline bool is(char c, unsigned anyOf) noexcept { return (kinds[static_cast<unsigned char>(c)] & anyOf) != 0; }

/// How many bytes a UTF-8 character takes that begins with this byte.
inline std::size_t lengthInUtf8(char first) noexcept {
    const auto byte = static_cast<unsigned char>(first);
    if (!is(first, lead)) return 1;
    if (byte < 0xE0) return 2;
    return byte < 0xF0 ? 3 : 4;
}

/// Whether a text begins with a byte-order mark, or with one of the two characters that are none: in UTF-8 they count
/// as blanks.
inline bool beginsWithMark(const char* text) noexcept {
    if (text[0] != '\xEF') return false;
    return (text[1] == '\xBB' && text[2] == '\xBF') || (text[1] == '\xBF' && (text[2] == '\xBE' || text[2] == '\xBF'));
}
inline constexpr std::size_t markLength = 3;

}  // namespace kvj::characters

#endif
