/// @file configuration/shown.h
/// Makes a printer's text fit to be shown on a terminal: it must neither control it nor begin a line of its own.
#ifndef KVJXML_CONFIGURATION_SHOWN_H
#define KVJXML_CONFIGURATION_SHOWN_H

#include <algorithm>
#include <cstddef>

namespace kvj::configuration {

/// The character that a terminated text begins with, and how many bytes it has.
struct Character {
    unsigned int code;
    std::size_t length;
};

/// In UTF-8; a byte that begins no character stands for itself, as in Latin-1.
inline Character firstOf(const char* text) noexcept {
    const auto byte = [text](std::size_t i) { return static_cast<unsigned int>(static_cast<unsigned char>(text[i])); };
    const std::size_t length = byte(0) >= 0xF8   ? 1
                               : byte(0) >= 0xF0 ? 4
                               : byte(0) >= 0xE0 ? 3
                               : byte(0) >= 0xC0 ? 2
                                                 : 1;
    constexpr unsigned int least[] = {0, 0, 0x80, 0x800, 0x10000};  // A longer form than needed is not valid.
    unsigned int code = length == 1 ? byte(0) : byte(0) & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80) return {byte(0), 1};
        code = code << 6U | (byte(i) & 0x3FU);
    }
    if (code < least[length] || code > 0x10FFFF) return {byte(0), 1};
    return {code, length};
}

/// A control character of ASCII or Latin-1.
constexpr bool isControl(unsigned int code) noexcept { return code < 0x20 || (code >= 0x7F && code < 0xA0); }

/// A text with each control character as "?".
template <std::size_t Capacity>
struct Shown {
    explicit Shown(const char (&text)[Capacity]) noexcept {
        char* end = characters;
        for (const char* at = text; *at != '\0';) {
            const Character character = firstOf(at);
            end = isControl(character.code) ? std::fill_n(end, 1, '?') : std::copy_n(at, character.length, end);
            at += character.length;
        }
    }
    char characters[Capacity]{};
};

}  // namespace kvj::configuration

#endif
