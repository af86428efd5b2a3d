#include "visible_text.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

#include "foundation/utf8.h"

namespace kvj::tool {

namespace {

/// Characters from the first to the last of each range that are not shown as they are.
struct Hidden {
    unsigned first;
    unsigned last;
};
constexpr Hidden hidden[] = {
    {0x00, 0x1F},      // C0
    {0x7F, 0x9F},      // DEL and C1
    {0x61C, 0x61C},    // a mark of direction
    {0x200E, 0x200F},  // likewise
    {0x2028, 0x202E},  // separators of lines and paragraphs, embeddings and overrides
    {0x2066, 0x2069},  // isolates
    {0xFEFF, 0xFEFF},  // the byte-order mark
};

/// The length of a character by its first byte.
std::size_t lengthOf(unsigned char first) { return first < 0x80 ? 1U : first < 0xE0 ? 2U : first < 0xF0 ? 3U : 4U; }

bool isHidden(unsigned point) {
    return std::ranges::any_of(hidden,
                               [&](const Hidden& range) { return point >= range.first && point <= range.last; });
}

std::string number(const char* format, unsigned value) {
    std::array<char, 16> text{};
    static_cast<void>(std::snprintf(text.data(), text.size(), format, value));
    return text.data();
}

unsigned codePoint(std::string_view character) {
    constexpr unsigned firstBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    unsigned value = static_cast<unsigned char>(character.front()) & firstBits[character.size()];
    for (const char c : character.substr(1)) value = value << 6 | (static_cast<unsigned char>(c) & 0x3F);
    return value;
}

}  // namespace

std::string visible(std::string_view text) {
    std::string shown;
    shown.reserve(text.size());
    std::size_t fault = firstOutsideUtf8(text);
    for (std::size_t at = 0; at < text.size();) {
        const auto byte = static_cast<unsigned char>(text[at]);
        if (at == fault) {
            shown += number("\\x%02X", byte);
            fault = firstOutsideUtf8(text, ++at);
            continue;
        }
        const std::string_view character = text.substr(at, lengthOf(byte));
        const unsigned point = codePoint(character);
        if (isHidden(point)) {
            shown += number(point < 0x80 ? "\\x%02X" : "\\u%04X", point);
        } else {
            shown += character;
        }
        at += character.size();
    }
    return shown;
}

bool writesToTerminal() { return isatty(STDOUT_FILENO) == 1; }

bool writesInColour() {
    const char* const refusal = std::getenv("NO_COLOR");
    return writesToTerminal() && (refusal == nullptr || *refusal == '\0');
}

}  // namespace kvj::tool
