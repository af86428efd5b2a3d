// Where a text stops being UTF-8.
#include "foundation/utf8.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace utf8_test {

namespace {

using kvj::firstOutsideUtf8;

TEST(FirstOutsideUtf8, IsFoundWhereverItStandsInALongText) {
    const std::string ascii(100, 'a');
    EXPECT_EQ(firstOutsideUtf8(ascii), ascii.size());
    for (std::size_t at = 0; at < ascii.size(); ++at) {
        std::string text = ascii;
        text[at] = '\xFF';
        EXPECT_EQ(firstOutsideUtf8(text), at);
        EXPECT_EQ(firstOutsideUtf8(text, at), at);
        EXPECT_EQ(firstOutsideUtf8(text, at + 1), text.size());
    }
}

TEST(FirstOutsideUtf8, IsNoCharacterOfAnyLength) {
    const std::string ascii(70, 'a');
    for (const char* const character : {"\xC3\xA4", "\xE2\x82\xAC", "\xF0\x9F\x96\xA8"}) {
        for (std::size_t at = 0; at <= ascii.size(); ++at) {
            const std::string text = std::string(ascii).insert(at, character);
            EXPECT_EQ(firstOutsideUtf8(text), text.size()) << at;
        }
    }
}

TEST(FirstOutsideUtf8, IsACharacterOfWhichAnyByteIsWrongOrMissing) {
    for (const std::string_view character : {"\xC3\xA4", "\xE2\x82\xAC", "\xF0\x9F\x96\xA8"}) {
        for (std::size_t i = 1; i < character.size(); ++i) {
            for (const char wrong : {'\x7F', '\xC0'}) {
                std::string text = "a" + std::string(character);
                text[1 + i] = wrong;
                EXPECT_EQ(firstOutsideUtf8(text), 1U) << testing::PrintToString(text);
            }
            EXPECT_EQ(firstOutsideUtf8(character.substr(0, i)), 0U) << testing::PrintToString(character);
        }
    }
}

// Overlong forms, surrogates, and what is above the last character.
TEST(FirstOutsideUtf8, IsWhatStandsForNoCharacter) {
    for (const char* const wrong : {"\x80", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
                                    "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80"}) {
        EXPECT_EQ(firstOutsideUtf8(wrong), 0U) << testing::PrintToString(wrong);
    }
    for (const std::string_view right : {"\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
                                         "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_EQ(firstOutsideUtf8(right), right.size()) << testing::PrintToString(right);
    }
}

}  // namespace

}  // namespace utf8_test
