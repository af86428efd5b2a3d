// Which texts can stand in a request.
#include "xml_text.h"

#include <gtest/gtest.h>

#include <cwchar>

namespace xml_text_test {

namespace {

using kvj::tool::firstNotOfXml;
using kvj::tool::isElementName;

std::string utf8(char32_t character) {
    if (character < 0x80) return {static_cast<char>(character)};
    const auto next = [&](int shift) { return static_cast<char>(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x800) return {static_cast<char>(0xC0 | character >> 6), next(0)};
    if (character < 0x10000) return {static_cast<char>(0xE0 | character >> 12), next(6), next(0)};
    return {static_cast<char>(0xF0 | character >> 18), next(12), next(6), next(0)};
}

TEST(XmlText, EveryCharacterIsTakenThatXmlHasAndNoOther) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character >= 0xD800 && character <= 0xDFFF) continue;  // No UTF-8 has them.
        const bool isOfXml = character == 0x9 || character == 0xA || character == 0xD ||
                             (character >= 0x20 && character <= 0xD7FF) ||
                             (character >= 0xE000 && character <= 0xFFFD) || character >= 0x10000;
        EXPECT_EQ(firstNotOfXml("a" + utf8(character) + "b").empty(), isOfXml)
            << std::hex << static_cast<unsigned>(character);
    }
}

TEST(XmlText, TheFirstOfSeveralIsNamed) {
    EXPECT_EQ(firstNotOfXml("a\x1B\x01"), "U+001B");
    EXPECT_EQ(firstNotOfXml("\xEF\xBF\xBE\x01"), "U+FFFE");
    EXPECT_EQ(firstNotOfXml(""), "");
}

TEST(XmlText, ANameBeginsWithALetter) {
    for (const char* name : {"a", "Z", "_", "a1", "a-b.c_d"}) EXPECT_TRUE(isElementName(name)) << name;
    for (const char* text : {"", "1a", "-a", ".a", ":a", "a b", "a\n", "a<", "a/", "a\xC3\xA9"}) {
        EXPECT_FALSE(isElementName(text)) << text;
    }
}

}  // namespace

}  // namespace xml_text_test
