// Wide text and multibyte text are the same text, as the C library has it in each locale, however it is converted.
#include "foundation/multibyte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "support/guarded_memory.h"
#include "support/locale_scope.h"

namespace multibyte_test {

using kvj::tests::End;
using kvj::tests::GuardedMemory;
using kvj::tests::LocaleScope;

namespace {

const char* const locales[] = {
    "C", "C.UTF-8", "de_DE.UTF-8", "tr_TR.ISO-8859-9", "zh_HK.BIG5-HKSCS", "ja_JP.EUC-JISX0213"};

/// Converts an exact copy of the text into an exact buffer, both at the end of what can be touched.
std::string multibyte(const std::wstring& text) {
    const GuardedMemory texts(text.size() * sizeof(wchar_t) + 1);
    auto* const exact = reinterpret_cast<wchar_t*>(texts.at(End::back, text.size() * sizeof(wchar_t)));
    std::ranges::copy(text, exact);
    const GuardedMemory buffers(text.size() + 1);
    char* const bytes = buffers.at(End::back, text.size());
    kvj::toMultibyte(exact, text.size(), bytes);
    return {bytes, text.size()};
}

std::string multibyteOfTheCLibrary(const std::wstring& text) {
    std::string bytes(text.size(), '\0');
    static_cast<void>(std::wcstombs(bytes.data(), text.c_str(), text.size()));
    return bytes;
}

/// This many ASCII characters, no two neighbours the same.
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

// In these character sets a character waits for the next one, with which it can be one: U+00CA with U+0304, U+304B with
// U+309A. A tag, as U+E0041, is left out of any text but one in UTF-8, so that a text can have room to spare.

TEST(ToMultibyte, ACharacterThatWaitsForTheNextArrivesAtTheEnd) {
    {
        const LocaleScope hongKong("zh_HK.BIG5-HKSCS");
        EXPECT_EQ(multibyte(L"ab\U000E0041\u00CA"), "ab\x88\x66");
        EXPECT_EQ(multibyte(L"\U000E0041\u00CA"), "\x88\x66");
        EXPECT_EQ(multibyte(L"\u00CA\u0304"), "\x88\x62");
        EXPECT_EQ(multibyte(L"\u00CA "), "\x88\x66");
    }
    const LocaleScope japan("ja_JP.EUC-JISX0213");
    EXPECT_EQ(multibyte(L"ab\U000E0041\u304B"), "ab\xA4\xAB");
    EXPECT_EQ(multibyte(L"\U000E0041\u304B"), "\xA4\xAB");
    EXPECT_EQ(multibyte(L"\u304B\u309A"), "\xA4\xF7");
    EXPECT_EQ(multibyte(L"\u304B "), "\xA4\xAB");
}

TEST(ToMultibyte, ACharacterThatWaitsForTheNextIsLeftOutWhereThereIsNoRoom) {
    {
        const LocaleScope hongKong("zh_HK.BIG5-HKSCS");
        EXPECT_EQ(multibyte(L"\u00CA"), std::string(1, '\0'));
        EXPECT_EQ(multibyte(L"ab\u00CA"), std::string("ab\0", 3));
    }
    const LocaleScope japan("ja_JP.EUC-JISX0213");
    EXPECT_EQ(multibyte(L"\u304B"), std::string(1, '\0'));
    EXPECT_EQ(multibyte(L"ab\u304B"), std::string("ab\0", 3));
}

TEST(ToMultibyte, ATextOfCharactersThatAreLeftOutIsEmpty) {
    for (const char* locale : {"C", "tr_TR.ISO-8859-9", "zh_HK.BIG5-HKSCS", "ja_JP.EUC-JISX0213"}) {
        const LocaleScope scope(locale);
        for (std::size_t length = 1; length <= 100; ++length) {
            ASSERT_EQ(multibyte(std::wstring(length, L'\U000E0041')), std::string(length, '\0')) << locale;
        }
        EXPECT_EQ(multibyte(L"a\U000E0041\U000E0041b"), std::string("ab\0\0", 4)) << locale;
    }
}

TEST(ToMultibyte, AnyTextOfFewCharactersIsWhatTheCLibraryMakesOfIt) {
    const std::wstring_view characters = L"a<\u00CA\u0304\u030C\u304B\u309A\u00E6\u0300\u20AC\U000E0041\U0001F5A8";
    for (const char* locale : locales) {
        const LocaleScope scope(locale);
        std::vector<std::wstring> texts{L""};
        for (std::size_t length = 1; length <= 3; ++length) {
            std::vector<std::wstring> longer;
            for (const std::wstring& text : texts) {
                for (const wchar_t character : characters) longer.push_back(text + character);
            }
            texts = std::move(longer);
            for (const std::wstring& text : texts) {
                ASSERT_EQ(multibyte(text), multibyteOfTheCLibrary(text))
                    << locale << ", " << testing::PrintToString(text);
            }
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
    kvj::toWide(text.c_str(), buffer.data(), capacity);
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

}  // namespace multibyte_test
