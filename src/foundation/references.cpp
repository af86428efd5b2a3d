#include "foundation/references.h"

#include <cstddef>
#include <cstring>
#include <string_view>

namespace kvj {

namespace {

struct Name {
    std::string_view text;
    char character;
};
constexpr Name names[] = {{"amp;", '&'}, {"lt;", '<'}, {"gt;", '>'}, {"quot;", '"'}, {"apos;", '\''}};

/// The value of a digit; -1 for any other character.
int valueOf(char digit, bool hexadecimal) noexcept {
    if (digit >= '0' && digit <= '9') return digit - '0';
    const char lower = static_cast<char>(digit | 0x20);
    return hexadecimal && lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// Surrogates and numbers beyond Unicode pass too; one that would take more than four bytes is left out.
void encodeInUtf8(unsigned long character, char*& to) noexcept {
    if (character >= 0x200000) return;
    const auto continuation = [&](unsigned shift) { *to++ = static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        *to++ = static_cast<char>(character);
        return;
    }
    if (character < 0x800) {
        *to++ = static_cast<char>(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            *to++ = static_cast<char>(0xE0 | (character >> 12));
        } else {
            *to++ = static_cast<char>(0xF0 | (character >> 18));
            continuation(12);
        }
        continuation(6);
    }
    continuation(0);
}

/// A numbered reference ends at the next semicolon, wherever that is, and its digits begin after the last mark before
/// it.
char* decodeNumber(char* from, char*& to, bool utf8) noexcept {
    const bool hexadecimal = from[2] == 'x';
    const char mark = hexadecimal ? 'x' : '#';
    char* const semicolon = std::strchr(from + (hexadecimal ? 3 : 2), ';');
    if (semicolon == nullptr) return nullptr;
    unsigned long character = 0;  // The sum is wide, while the weight of a digit wraps at 32 bits.
    unsigned int weight = 1;
    for (const char* digit = semicolon - 1; *digit != mark; --digit) {
        const int value = valueOf(*digit, hexadecimal);
        if (value < 0) return nullptr;
        const unsigned int part = weight * static_cast<unsigned int>(value);
        character += part;
        weight *= hexadecimal ? 16 : 10;
    }
    if (utf8) {
        encodeInUtf8(character, to);
    } else {
        *to++ = static_cast<char>(character);
    }
    return semicolon + 1;
}

}  // namespace

char* decodeReference(char* from, char*& to, bool utf8) noexcept {
    if (from[1] == '#' && from[2] != '\0') return decodeNumber(from, to, utf8);
    for (const auto& [text, character] : names) {
        // The first character already tells most of them apart, and a reply may be full of ampersands.
        if (from[1] == text[0] && std::strncmp(from + 1, text.data(), text.size()) == 0) {
            *to++ = character;
            return from + 1 + text.size();
        }
    }
    return from + 1;  // Only the ampersand is lost.
}

}  // namespace kvj
