#include "foundation/utf8.h"

#include <cstdint>
#include <cstring>

namespace kvj {

namespace {

/// Replies are nearly always ASCII: it is skipped in whole blocks.
std::size_t skipAscii(std::string_view text, std::size_t from) noexcept {
    constexpr std::size_t block = 32;
    for (; text.size() - from >= block; from += block) {
        std::uint64_t words[block / sizeof(std::uint64_t)];
        std::memcpy(words, text.data() + from, block);
        if (((words[0] | words[1] | words[2] | words[3]) & 0x8080808080808080U) != 0) break;
    }
    while (from < text.size() && static_cast<unsigned char>(text[from]) < 0x80) ++from;
    return from;
}

/// How many bytes the character takes that begins with a byte above ASCII; 0 when it is none.
std::size_t lengthOfCharacter(std::string_view rest) noexcept {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(rest[i]); };
    const unsigned char first = byte(0);
    // What the second byte has to be is all that tells overlong forms, surrogates and too large numbers.
    unsigned char least = 0x80;
    unsigned char most = 0xBF;
    std::size_t length = 0;
    if (first >= 0xC2 && first <= 0xDF) {
        length = 2;
    } else if (first >= 0xE0 && first <= 0xEF) {
        length = 3;
        if (first == 0xE0) least = 0xA0;
        if (first == 0xED) most = 0x9F;
    } else if (first >= 0xF0 && first <= 0xF4) {
        length = 4;
        if (first == 0xF0) least = 0x90;
        if (first == 0xF4) most = 0x8F;
    }
    if (length == 0 || rest.size() < length || byte(1) < least || byte(1) > most) return 0;
    for (std::size_t i = 2; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80) return 0;
    }
    return length;
}

}  // namespace

std::size_t firstOutsideUtf8(std::string_view text, std::size_t from) noexcept {
    for (;;) {
        from = skipAscii(text, from);
        if (from == text.size()) return from;
        const std::size_t length = lengthOfCharacter(text.substr(from));
        if (length == 0) return from;
        from += length;
    }
}

}  // namespace kvj
