// Wide text and multibyte text are the same text, as the C library has it in each locale, however it is converted.
#include "foundation/multibyte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>

#include "foundation/locale_scope.h"

using kvjxml::tests::LocaleScope;

namespace {

const char* const locales[] = {"C", "C.UTF-8", "de_DE.UTF-8", "tr_TR.ISO-8859-9"};

/// Converts an exact copy of the text into an exact buffer, so that a sanitizer sees what goes over either's end.
std::string multibyte(const std::wstring& text) {
    const auto exact = std::make_unique<wchar_t[]>(text.size());
    std::ranges::copy(text, exact.get());
    const auto bytes = std::make_unique<char[]>(text.size());
    kvjxml::toMultibyte(exact.get(), text.size(), bytes.get());
    return {bytes.get(), text.size()};
}

std::string multibyteOfTheCLibrary(const std::wstring& text) {
    std::string bytes(text.size(), '\0');
    static_cast<void>(std::wcstombs(bytes.data(), text.c_str(), text.size()));
    return bytes;
}

/// As many characters of ASCII, no two neighbours the same.
std::wstring ascii(std::size_t length) {
    std::wstring text(length, L' ');
    for (std::size_t i = 0; i < length; ++i) text[i] = static_cast<wchar_t>(1 + i % 127);
    return text;
}

TEST(ToMultibyte, AsciiIsItselfAtAnyLength) {
    for (const char* locale : locales) {
        const LocaleScope scope(locale);
        for (std::size_t length = 0; length <= 200; ++length) {
            const std::wstring text = ascii(length);
            ASSERT_EQ(multibyte(text), std::string(text.begin(), text.end())) << locale << ", length " << length;
        }
    }
}

TEST(ToMultibyte, NothingBehindATerminatorIsConverted) {
    for (const char* locale : locales) {
        const LocaleScope scope(locale);
        for (std::size_t position = 0; position < 100; ++position) {
            std::wstring text = ascii(100);
            text[position] = L'\0';
            std::string expected(text.begin(), text.end());
            std::fill(expected.begin() + static_cast<std::ptrdiff_t>(position), expected.end(), '\0');
            ASSERT_EQ(multibyte(text), expected) << locale << ", position " << position;
        }
    }
}

TEST(ToMultibyte, AnyCharacterAnywhereIsWhatTheCLibraryMakesOfIt) {
    for (const char* locale : locales) {
        const LocaleScope scope(locale);
        for (const wchar_t character : {L'\x7F', L'\x80', L'\xE9', L'\u011F', L'\u20AC', L'\uFEFF', L'\U0001F5A8',
                                        static_cast<wchar_t>(0xD800), static_cast<wchar_t>(-1)}) {
            for (std::size_t position = 0; position < 100; ++position) {
                std::wstring text = ascii(100);
                text[position] = character;
                ASSERT_EQ(multibyte(text), multibyteOfTheCLibrary(text))
                    << locale << ", position " << position << ", character " << static_cast<long>(character);
            }
            const std::wstring only(100, character);
            ASSERT_EQ(multibyte(only), multibyteOfTheCLibrary(only))
                << locale << ", character " << static_cast<long>(character);
        }
    }
}

TEST(ToMultibyte, ACharacterOfUtf8CostsTheEndTheBytesBeyondOne) {
    const LocaleScope utf8("C.UTF-8");
    EXPECT_EQ(multibyte(L"a\u00E9bc"), "a\xC3\xA9\x62");
    EXPECT_EQ(multibyte(L"\u20ACbc"), "\xE2\x82\xAC");
    EXPECT_EQ(multibyte(L"a\u20AC"), std::string("a\0", 2));
}

/// A buffer of as many '#', with what the text is converted to in its beginning.
std::wstring wideOf(const std::string& text, std::size_t capacity) {
    std::wstring buffer(capacity + 1, L'#');
    kvjxml::toWide(text.c_str(), buffer.data(), capacity);
    return buffer;
}

TEST(ToWide, IsTerminatedWhereThereIsRoom) {
    for (const char* locale : locales) {
        const LocaleScope scope(locale);
        EXPECT_EQ(wideOf("abc", 5), std::wstring(L"abc\0##", 6)) << locale;
        EXPECT_EQ(wideOf("abc", 4), std::wstring(L"abc\0#", 5)) << locale;
        EXPECT_EQ(wideOf("abc", 3), L"abc#") << locale;
        EXPECT_EQ(wideOf("abc", 2), L"ab#") << locale;
        EXPECT_EQ(wideOf("abc", 0), L"#") << locale;
        EXPECT_EQ(wideOf("", 1), std::wstring(L"\0#", 2)) << locale;
    }
}

TEST(ToWide, FollowsTheLocale) {
    const std::string text = "caf\xC3\xA9";
    {
        const LocaleScope utf8("C.UTF-8");
        EXPECT_EQ(wideOf(text, 5), std::wstring(L"caf\u00E9\0#", 6));
    }
    {
        const LocaleScope turkish("tr_TR.ISO-8859-9");
        EXPECT_EQ(wideOf(text, 6), std::wstring(L"caf\u00C3\u00A9\0#", 7));
    }
    const LocaleScope ascii("C");
    EXPECT_EQ(wideOf(text, 6), L"caf####");
}

}  // namespace
