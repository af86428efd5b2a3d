#include "visible_text.h"

#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>

#include "foundation/utf8.h"

namespace kvj::tool {

namespace {

/// Characters of UTF-8, from the first byte to the last of each range, that are not shown as they are.
struct Hidden {
    std::string_view first;
    std::string_view last;
};
constexpr Hidden hidden[] = {
    {"\xC2\x80", "\xC2\x9F"},          // C1
    {"\xD8\x9C", "\xD8\x9C"},          // U+061C, a mark of direction
    {"\xE2\x80\x8E", "\xE2\x80\x8F"},  // U+200E and U+200F, likewise
    {"\xE2\x80\xA8", "\xE2\x80\xAE"},  // separators of lines and paragraphs, embeddings and overrides
    {"\xE2\x81\xA6", "\xE2\x81\xA9"},  // isolates
    {"\xEF\xBB\xBF", "\xEF\xBB\xBF"},  // the byte-order mark
};

/// The length of a character by its first byte.
std::size_t lengthOf(unsigned char first) { return first < 0x80 ? 1U : first < 0xE0 ? 2U : first < 0xF0 ? 3U : 4U; }

bool isHidden(std::string_view character) {
    for (const auto& [first, last] : hidden) {
        if (character.size() == first.size() && character >= first && character <= last) return true;
    }
    return false;
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
        if (byte < ' ' || byte == 0x7F) {
            shown += number("\\x%02X", byte);
        } else if (isHidden(character)) {
            shown += number("\\u%04X", codePoint(character));
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
