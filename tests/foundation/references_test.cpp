// What a single reference stands for, and that nothing beside it is touched.
#include "foundation/references.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace references_test {

namespace {

using std::string_literals::operator""s;

/// What is written for the reference that a text begins with, and what then follows; "none" when it cannot be decoded.
std::string decoded(std::string text, bool utf8) {
    char* to = text.data();
    const char* rest = kvj::decodeReference(text.data(), to, utf8);
    if (rest == nullptr) return "none";
    return std::string(text.data(), to) + "|" + rest;
}
std::string inBytes(const std::string& text) { return decoded(text, false); }
std::string inUtf8(const std::string& text) { return decoded(text, true); }

TEST(References, OfTheFiveNames) {
    EXPECT_EQ(inBytes("&amp;x"), "&|x");
    EXPECT_EQ(inBytes("&lt;x"), "<|x");
    EXPECT_EQ(inBytes("&gt;x"), ">|x");
    EXPECT_EQ(inBytes("&quot;x"), "\"|x");
    EXPECT_EQ(inUtf8("&apos;x"), "'|x");
}

TEST(References, OfNoOtherName) {
    for (const char* name : {"amp", "AMP;", "am", "amp ;", "lt", "gT;", "quo;", "apos:", "", ";", "x"}) {
        EXPECT_EQ(inBytes("&"s + name), "|"s + name);
    }
}

TEST(References, OfANumberTakeTheLowByteInBytes) {
    EXPECT_EQ(inBytes("&#65;x"), "A|x");
    EXPECT_EQ(inBytes("&#x41;x"), "A|x");
    EXPECT_EQ(inBytes("&#x20AC;x"), "\xAC|x");
    EXPECT_EQ(inBytes("&#0;x"), "\0|x"s);
    EXPECT_EQ(inBytes("&#;x"), "\0|x"s);
    EXPECT_EQ(inBytes("&#x;x"), "\0|x"s);
}

TEST(References, OfANumberTakeAsManyBytesAsItNeedsInUtf8) {
    EXPECT_EQ(inUtf8("&#x7F;x"), "\x7F|x");
    EXPECT_EQ(inUtf8("&#x80;x"), "\xC2\x80|x");
    EXPECT_EQ(inUtf8("&#x7FF;x"), "\xDF\xBF|x");
    EXPECT_EQ(inUtf8("&#x800;x"), "\xE0\xA0\x80|x");
    EXPECT_EQ(inUtf8("&#xFFFF;x"), "\xEF\xBF\xBF|x");
    EXPECT_EQ(inUtf8("&#x10000;x"), "\xF0\x90\x80\x80|x");
    EXPECT_EQ(inUtf8("&#x12345;x"), "\xF0\x92\x8D\x85|x");
    EXPECT_EQ(inUtf8("&#x1FFFFF;x"), "\xF7\xBF\xBF\xBF|x");
    EXPECT_EQ(inUtf8("&#x200000;x"), "|x");
    EXPECT_EQ(inUtf8("&#0;x"), "\0|x"s);
}

TEST(References, OfANumberHaveTheDigitsOfItsBase) {
    EXPECT_EQ(inBytes("&#x0123456789abcdefABCDEF40;"), "@|");
    EXPECT_EQ(inBytes("&#12345678964;"), "t|");  // 2DFDC1C74
    for (const char* number :
         {"&#a;", "&#/;", "&#:;", "&#x/;", "&#x:;", "&#x@;", "&#xG;", "&#x`;", "&#xg;", "&#X41;", "&# 1;"}) {
        EXPECT_EQ(inBytes(number), "none") << number;
    }
}

TEST(References, OfANumberBeginBehindTheLastMark) {
    EXPECT_EQ(inBytes("&#1<a>#66;x"), "B|x");
    EXPECT_EQ(inBytes("&#xzzx42;x"), "B|x");
    EXPECT_EQ(inBytes("&#x#42;x"), "none");
}

TEST(References, OfANumberWithoutASemicolonAreNone) {
    EXPECT_EQ(inBytes("&#65"), "none");
    EXPECT_EQ(inBytes("&#x41"), "none");
    EXPECT_EQ(inBytes("&#x"), "none");
    EXPECT_EQ(inBytes("&#"), "|#");
}

TEST(References, MayBeDecodedToWhereTheyStandOrBefore) {
    std::string text = "abc&#x10000;";
    char* to = text.data() + 1;
    EXPECT_EQ(kvj::decodeReference(text.data() + 3, to, true), text.data() + text.size());
    EXPECT_EQ(to, text.data() + 5);
    EXPECT_EQ(text.substr(0, 5), "a\xF0\x90\x80\x80");
}

}  // namespace

}  // namespace references_test
