#include "foundation/multibyte.h"

#include <langinfo.h>

#include <cstring>
#include <cwchar>
#include <string>

namespace kvj {

namespace {

/// What is known of the locale's character set.
struct Charset {
    bool isUtf8;
    bool keepsAscii;  ///< Each ASCII character is the byte of its own value, whatever stands beside it.
};

Charset charset() noexcept {
    const char* name = nl_langinfo(CODESET);
    const bool isUtf8 = std::strcmp(name, "UTF-8") == 0;
    return {isUtf8, isUtf8 || std::strcmp(name, "ANSI_X3.4-1968") == 0};
}

/// Copies the ASCII that a text begins with, in whole blocks where it can: compilers turn these into vector
/// instructions.
/// @return how many characters were copied.
std::size_t copyAscii(const wchar_t* text, std::size_t length, char* bytes) noexcept {
    constexpr std::size_t block = 32;
    std::size_t copied = 0;
    for (; length - copied >= block; copied += block) {
        unsigned int bits = 0;
        for (std::size_t i = 0; i < block; ++i) bits |= static_cast<unsigned int>(text[copied + i]);
        if (bits >= 0x80) break;
        for (std::size_t i = 0; i < block; ++i) bytes[copied + i] = static_cast<char>(text[copied + i]);
    }
    for (; copied < length && static_cast<unsigned int>(text[copied]) < 0x80; ++copied) {
        bytes[copied] = static_cast<char>(text[copied]);
    }
    return copied;
}

/// A character that the locale does not know ends the text: the host gets what was converted before it.
void convert(const wchar_t* text, char* bytes, std::size_t capacity) noexcept {
    std::mbstate_t state{};
    static_cast<void>(std::wcsrtombs(bytes, &text, capacity, &state));
}

}  // namespace

void toMultibyte(const wchar_t* text, std::size_t length, char* bytes) {
    const Charset locale = charset();
    std::size_t count = wcsnlen(text, length);
    // Replies are nearly always ASCII, and copying it takes a fraction of the time that converting it does.
    const std::size_t copied = locale.keepsAscii ? copyAscii(text, count, bytes) : 0;
    text += copied;
    bytes += copied;
    length -= copied;
    count -= copied;
    if (count == 0) return;
    if (locale.isUtf8) {
        // Each character takes at least one byte, so the bytes are full before the conversion could look beyond the
        // text.
        convert(text, bytes, length);
    } else {
        // In other character sets a character may take no byte, or have to wait for the next one, and only a terminator
        // says that there is none. A conversion that takes a count instead loses what waits, and ends the process when
        // there is no byte at all.
        convert(std::wstring(text, count).c_str(), bytes, length);
    }
}

void toWide(const char* text, wchar_t* out, std::size_t capacity) noexcept {
    std::mbstate_t state{};
    static_cast<void>(std::mbsrtowcs(out, &text, capacity, &state));
}

}  // namespace kvj
