#include "foundation/multibyte.h"

#include <langinfo.h>

#include <cstring>
#include <cwchar>

namespace kvjxml {

namespace {

/// Whether the locale has each ASCII character as the byte of its own value, whatever stands beside it.
bool keepsAscii() noexcept {
    const char* charset = nl_langinfo(CODESET);
    return std::strcmp(charset, "UTF-8") == 0 || std::strcmp(charset, "ANSI_X3.4-1968") == 0;
}

/// Copies the ASCII that a text begins with, as far as it fills whole blocks: compilers make vector instructions of
/// them.
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
    return copied;
}

}  // namespace

void toMultibyte(const wchar_t* text, std::size_t length, char* bytes) noexcept {
    // Replies are ASCII all but always, and copying that takes a fraction of the conversion's time.
    const std::size_t copied = keepsAscii() ? copyAscii(text, wcsnlen(text, length), bytes) : 0;
    const wchar_t* rest = text + copied;
    std::mbstate_t state{};
    // What was converted up to a character that the locale does not know is what the host can read.
    static_cast<void>(std::wcsrtombs(bytes + copied, &rest, length - copied, &state));
}

void toWide(const char* text, wchar_t* out, std::size_t capacity) noexcept {
    std::mbstate_t state{};
    static_cast<void>(std::mbsrtowcs(out, &text, capacity, &state));
}

}  // namespace kvjxml
