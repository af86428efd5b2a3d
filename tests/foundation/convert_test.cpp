// The conversions at their edges. A printer's number means the same whatever locale its host is in.
#include "foundation/convert.h"

#include <gtest/gtest.h>
#include <locale.h>

#include <cctype>
#include <cfloat>
#include <climits>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "support/locale_scope.h"

namespace convert_test {

namespace convert = kvj::convert;
using kvj::tests::LocaleScope;

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();

template <class Value>
using TextsAndValues = std::initializer_list<std::pair<std::string, std::type_identity_t<Value>>>;

template <class Value>
void expectValues(Value (*read)(const char*) noexcept, TextsAndValues<Value> cases) {
    for (const auto& [text, value] : cases) EXPECT_EQ(read(text.c_str()), value) << '"' << text.substr(0, 40) << '"';
}

template <class Value>
void expectMatches(bool (*scan)(const char*, Value&) noexcept, TextsAndValues<Value> cases) {
    for (const auto& [text, value] : cases) {
        Value read{};
        EXPECT_TRUE(scan(text.c_str(), read)) << '"' << text.substr(0, 40) << '"';
        EXPECT_EQ(read, value) << '"' << text.substr(0, 40) << '"';
    }
}

template <class Value>
void expectNoMatch(bool (*scan)(const char*, Value&) noexcept, std::initializer_list<const char*> texts) {
    for (const char* text : texts) {
        Value read = 77;
        EXPECT_FALSE(scan(text, read)) << '"' << text << '"';
        EXPECT_EQ(read, Value{77}) << '"' << text << '"';
    }
}

const std::string manyNines(100'000, '9');
const std::string manyZeros(100'000, '0');

// ---- The locale that all of this runs in ----

TEST(Environment, ItsLocaleIsInForce) {
    const char* asked = std::getenv("LC_ALL");
    ASSERT_NE(asked, nullptr) << "LC_ALL has to name the locale to test in";
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), asked);

    const bool comma = std::string_view(asked) == "de_DE.UTF-8";
    EXPECT_STREQ(std::localeconv()->decimal_point, comma ? "," : ".");
    char written[8];
    std::snprintf(written, sizeof(written), "%.1f", 1.5);
    EXPECT_STREQ(written, comma ? "1,5" : "1.5");

    const bool utf8 = std::string_view(asked) != "C";
    EXPECT_EQ(MB_CUR_MAX > 1, utf8);
}

TEST(Environment, TheTurkishLocaleHasTurkishLetters) {
    const LocaleScope turkish("tr_TR.ISO-8859-9");
    EXPECT_EQ(std::toupper(0xFD), 'I');  // the dotless i
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
}

// ---- Texts to integers ----

TEST(ToInt, ReadsASignAndDigitsBehindWhiteSpace) {
    expectValues(
        convert::toInt,
        {{"0", 0}, {"12", 12}, {"-12", -12}, {"+12", 12}, {"007", 7}, {"-0", 0}, {" 12", 12}, {" \t\n\v\f\r-12", -12}});
}

TEST(ToInt, ATextThatIsNoNumberIsZero) {
    expectValues(
        convert::toInt,
        {{"", 0}, {" ", 0}, {"abc", 0}, {"-", 0}, {"+", 0}, {"+-1", 0}, {"--1", 0}, {"- 1", 0}, {"x12", 0}, {".5", 0}});
}

TEST(ToInt, ANonBreakingSpaceIsNoWhiteSpace) {
    expectValues(convert::toInt, {{"\xC2\xA0"
                                   "12",
                                   0},
                                  {"\xA0"
                                   "12",
                                   0}});
}

TEST(ToInt, IgnoresWhatFollowsTheNumber) {
    expectValues(convert::toInt, {{"12abc", 12}, {"12 34", 12}, {"12.9", 12}, {"1,5", 1}, {"1e3", 1}, {"5-6", 5}});
}

TEST(ToInt, IsDecimalOnly) {
    expectValues(convert::toInt, {{"0x", 0}, {"0x1f", 0}, {"0X1F", 0}, {"010", 10}, {"0b11", 0}, {"1.000", 1}});
}

TEST(ToInt, ReadsTheWholeRange) { expectValues(convert::toInt, {{"2147483647", INT_MAX}, {"-2147483648", INT_MIN}}); }

TEST(ToInt, KeepsTheLow32BitsOfALargerNumber) {
    expectValues(convert::toInt, {{"2147483648", INT_MIN},
                                  {"-2147483649", INT_MAX},
                                  {"4294967295", -1},
                                  {"4294967296", 0},
                                  {"99999999999", 1215752191},  // 23 * 2^32 + 1215752191
                                  {"9223372036854775807", -1},
                                  {"-9223372036854775808", 0}});
}

TEST(ToInt, ANumberTooLargeForALongIsTheLargestLongFirst) {
    expectValues(convert::toInt, {{"9223372036854775808", -1},
                                  {"99999999999999999999", -1},
                                  {"-99999999999999999999", 0},
                                  {manyNines, -1},
                                  {"-" + manyNines, 0}});
}

TEST(ToInt, ReadsBehindAnyNumberOfZeros) { expectValues(convert::toInt, {{manyZeros, 0}, {manyZeros + "7", 7}}); }

TEST(ToLong, ReadsTheWholeRange) {
    expectValues(convert::toLong, {{"", 0},
                                   {" ", 0},
                                   {"abc", 0},
                                   {"0x", 0},
                                   {" -12abc", -12},
                                   {"+007", 7},
                                   {"4294967296", 4294967296},
                                   {"9223372036854775807", LONG_MAX},
                                   {"-9223372036854775808", LONG_MIN}});
}

TEST(ToLong, StopsAtTheEndsOfTheRange) {
    expectValues(convert::toLong, {{"9223372036854775808", LONG_MAX},
                                   {"-9223372036854775809", LONG_MIN},
                                   {manyNines, LONG_MAX},
                                   {"-" + manyNines, LONG_MIN},
                                   {manyZeros + "7", 7}});
}

// ---- Texts to numbers with a fraction ----

TEST(ToFloat, ReadsADecimalPointInEveryLocale) {
    expectValues(convert::toFloat, {{"1.5", 1.5F},
                                    {"-1.5", -1.5F},
                                    {"+1.5", 1.5F},
                                    {" \t\n1.5", 1.5F},
                                    {"001.50", 1.5F},
                                    {".5", 0.5F},
                                    {"5.", 5.0F},
                                    {"1.5abc", 1.5F},
                                    {"1.5.5", 1.5F}});
}

TEST(ToFloat, ADecimalCommaEndsTheNumberInEveryLocale) {
    expectValues(convert::toFloat, {{"1,5", 1.0F}, {",5", 0.0F}, {"1.000,5", 1.0F}, {"1,000.5", 1.0F}});
}

TEST(ToFloat, ReadsAnExponent) {
    expectValues(convert::toFloat, {{"1e3", 1000.0F},
                                    {"1E+3", 1000.0F},
                                    {"25e-2", 0.25F},
                                    {"1e", 1.0F},
                                    {"1e+", 1.0F},
                                    {"e3", 0.0F},
                                    {"1 e3", 1.0F}});
}

TEST(ToFloat, ReadsHexadecimal) {
    expectValues(convert::toFloat, {{"0x10", 16.0F}, {"0X1.8p1", 3.0F}, {"0x1p-1", 0.5F}, {"0x", 0.0F}, {"0xg", 0.0F}});
}

TEST(ToFloat, ReadsInfinityAndNan) {
    expectValues(convert::toFloat,
                 {{"inf", infinity}, {"-inf", -infinity}, {"INFINITY", infinity}, {"infi", infinity}, {"in", 0.0F}});
    EXPECT_TRUE(std::isnan(convert::toFloat("nan")));
    EXPECT_TRUE(std::isnan(convert::toFloat("NaN(1)")));
}

TEST(ToFloat, ATextThatIsNoNumberIsZero) {
    expectValues(convert::toFloat, {{"", 0}, {" ", 0}, {"abc", 0}, {"-", 0}, {".", 0}, {"+-1", 0}, {"- 1", 0}});
}

TEST(ToFloat, IsADoubleFirstAndThenNarrowed) {
    // Halfway between 1 and the next float, and a little more than that: a double cannot hold the little, so the first
    // rounding gives the half and the second rounds it to even.
    expectValues(convert::toFloat, {{"1.00000005960464477539062500000000000001", 1.0F}, {"0.1", 0.1F}});
}

TEST(ToLong, IsExactWithFifteenDigitsAndWithMore) {
    expectValues(convert::toLong, {{"999999999999999", 999999999999999},
                                   {"-999999999999999", -999999999999999},
                                   {"9999999999999999", 9999999999999999},
                                   {"-9999999999999999", -9999999999999999},
                                   {"000000000000000000000012", 12},
                                   {"12.9", 12},
                                   {"-", 0}});
}

TEST(ToFloat, RoundsOnceWithFifteenDigitsAndWithMore) {
    expectValues(convert::toFloat, {{"0.0000000000001", 1e-13F},
                                    {"0.00000000000001", 1e-14F},
                                    {"-1234567.1234567", -1234567.125F},
                                    {"1234567.1234567890", 1234567.125F},
                                    {"3.", 3.0F}});
    EXPECT_TRUE(std::signbit(convert::toFloat("-0")));
    EXPECT_TRUE(std::signbit(convert::toFloat("-0.0")));
}

TEST(ToFloat, ANumberTooLargeIsInfiniteAndOneTooSmallIsZero) {
    expectValues(convert::toFloat, {{"340282346638528859811704183484516925440", FLT_MAX},
                                    {"1e39", infinity},
                                    {"-1e39", -infinity},
                                    {"1e400", infinity},
                                    {"1e-50", 0.0F},
                                    {"1e-400", 0.0F},
                                    {manyNines, infinity},
                                    {"-" + manyNines, -infinity},
                                    {manyZeros + "7.5", 7.5F},
                                    {"0." + manyZeros + "7", 0.0F},
                                    {"1." + manyZeros + "7", 1.0F}});
}

TEST(ScanFloat, ReadsWhatToFloatReads) {
    expectMatches(convert::scanFloat, {{"1.5", 1.5F},
                                       {"-1.5", -1.5F},
                                       {"+1.5", 1.5F},
                                       {" \t\n1.5abc", 1.5F},
                                       {"0", 0.0F},
                                       {"12", 12.0F},
                                       {".5", 0.5F},
                                       {"5.", 5.0F},
                                       {"1,5", 1.0F},
                                       {"1.000,5", 1.0F},
                                       {"25e-2", 0.25F},
                                       {"0x1.8p1", 3.0F},
                                       {"inf", infinity},
                                       {"-infinity", -infinity},
                                       {"1e39", infinity},
                                       {"1e400", infinity},
                                       {"1e-400", 0.0F},
                                       {manyNines, infinity},
                                       {manyZeros + "7.5", 7.5F}});
    float read = 0;
    EXPECT_TRUE(convert::scanFloat("nan", read));
    EXPECT_TRUE(std::isnan(read));
}

TEST(ScanFloat, LeavesTheValueAloneWhereNoNumberBegins) {
    expectNoMatch(convert::scanFloat, {"", " ", "abc", "-", "+", ".", "+-1", "- 1", ",5", "e3", "0x", "0xg", "in",
                                       "infi", "infinit", "na", "x1.5"});
}

TEST(ScanFloat, LeavesTheLocaleOfItsThreadAsItWas) {
    const LocaleScope turkish("tr_TR.ISO-8859-9");
    float read = 0;
    EXPECT_TRUE(convert::scanFloat("1.5", read));
    EXPECT_EQ(read, 1.5F);
    EXPECT_EQ(uselocale(nullptr), LC_GLOBAL_LOCALE);

    const locale_t own = duplocale(LC_GLOBAL_LOCALE);
    uselocale(own);
    EXPECT_TRUE(convert::scanFloat("2.5", read));
    EXPECT_EQ(read, 2.5F);
    EXPECT_EQ(uselocale(LC_GLOBAL_LOCALE), own);
    freelocale(own);
}

// ---- Texts to other things ----

TEST(ScanPrefixedHex, ReadsDigitsBehindThePrefix) {
    expectMatches(convert::scanPrefixedHex, {{"0x0", 0},
                                             {"0x1f", 0x1F},
                                             {"0x1F", 0x1F},
                                             {"0x00000001", 1},
                                             {"0xFFFFFFFF", 0xFFFFFFFF},
                                             {"0x80000000", 0x80000000},
                                             {"0x1fz", 0x1F},
                                             {"0x1f 2", 0x1F}});
}

TEST(ScanPrefixedHex, ReadsAsTheCFunctionDoesBehindThePrefix) {
    expectMatches(
        convert::scanPrefixedHex,
        {{"0x 1f", 0x1F}, {"0x-1", 0xFFFFFFFF}, {"0x+1", 1}, {"0x0x1f", 0x1F}, {"0x0X1f", 0x1F}, {"0x0x", 0}});
}

TEST(ScanPrefixedHex, KeepsTheLow32BitsOfALargerNumber) {
    expectMatches(convert::scanPrefixedHex, {{"0x1FFFFFFFF", 0xFFFFFFFF},
                                             {"0x123456789", 0x23456789},
                                             {"0x10000000000000000", 0xFFFFFFFF},  // too large for 64 bits: all ones
                                             {"0x" + manyNines, 0xFFFFFFFF},
                                             {"0x" + manyZeros + "1f", 0x1F}});
}

TEST(ScanPrefixedHex, LeavesTheValueAloneWithoutPrefixOrDigits) {
    expectNoMatch(convert::scanPrefixedHex, {"", " ", "0", "0x", "0x ", "0x-", "0xg", "0X1f", " 0x1f", "+0x1f", "-0x1f",
                                             "1f", "12", "x1f", "00x1f", "abc"});
}

TEST(ScanUnsignedShort, ReadsANumber) {
    expectMatches(
        convert::scanUnsignedShort,
        {{"0", 0}, {"12", 12}, {"+12", 12}, {" \t\n12abc", 12}, {"007", 7}, {"0x1f", 0}, {"1,5", 1}, {"65535", 65535}});
}

TEST(ScanUnsignedShort, KeepsTheLow16BitsOfALargerNumber) {
    expectMatches(convert::scanUnsignedShort, {{"65536", 0},
                                               {"70000", 4464},
                                               {"-1", 65535},
                                               {"-70000", 61072},
                                               {"99999999999999999999", 65535},
                                               {manyNines, 65535},
                                               {manyZeros + "7", 7}});
}

TEST(ScanUnsignedShort, LeavesTheValueAloneWhereNoNumberBegins) {
    expectNoMatch(convert::scanUnsignedShort, {"", " ", "abc", "-", "+", "+-1", "- 1", "x1", ".5"});
}

TEST(ScanKeyNumber, ReadsHexadecimalDigitsBehindThePrefix) {
    expectMatches(convert::scanKeyNumber, {{"0x0", 0},
                                           {"0x1f", 0x1F},
                                           {"0x1F", 0x1F},
                                           {"0x1fz", 0x1F},
                                           {"0x1f 2", 0x1F},
                                           {"0x123456789ABCDEF0", 0x123456789ABCDEF0},
                                           {"0xFFFFFFFFFFFFFFFF", ULONG_MAX},
                                           {"0x" + manyZeros + "1f", 0x1F}});
}

TEST(ScanKeyNumber, ReadsADecimalNumberWithoutThePrefix) {
    expectMatches(convert::scanKeyNumber, {{"0", 0},
                                           {"12", 12},
                                           {"+12", 12},
                                           {" \t\n12abc", 12},
                                           {"007", 7},
                                           {"1,5", 1},
                                           {"18446744073709551615", ULONG_MAX},
                                           {"-1", ULONG_MAX},
                                           {manyZeros + "7", 7}});
}

TEST(ScanKeyNumber, ThePrefixIsInLowerCaseAtTheVeryBeginning) {
    expectMatches(convert::scanKeyNumber, {{"0X1f", 0}, {" 0x1f", 0}, {"-0x1f", 0}, {"00x1f", 0}});
}

TEST(ScanKeyNumber, ANumberTooLargeIsTheLargest) {
    expectMatches(convert::scanKeyNumber, {{"0x10000000000000000", ULONG_MAX},
                                           {"0x1FFFFFFFFFFFFFFFF", ULONG_MAX},
                                           {"18446744073709551616", ULONG_MAX},
                                           {manyNines, ULONG_MAX},
                                           {"0x" + manyNines, ULONG_MAX}});
}

TEST(ScanKeyNumber, LeavesTheValueAloneWhereNoNumberBegins) {
    expectNoMatch(convert::scanKeyNumber, {"", " ", "abc", "x1f", "-", "+", "+-1", "- 1", ".5", "f"});
}

void expectAddress(const std::string& text, const convert::HardwareAddress& address) {
    EXPECT_EQ(convert::toHardwareAddress(text.c_str()), address) << '"' << text.substr(0, 40) << '"';
}

TEST(ToHardwareAddress, ReadsSixBytesInEitherCase) {
    expectAddress("00:1a:2B:3c:4d:5e", {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E});
    expectAddress("FF:ff:Ff:fF:00:01", {0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x01});
    expectAddress("1:2:3:4:5:6", {1, 2, 3, 4, 5, 6});
    expectAddress(" 01: 02:\t03:04:05:06", {1, 2, 3, 4, 5, 6});
    expectAddress("01:02:03:04:05:06:07", {1, 2, 3, 4, 5, 6});
    expectAddress("01:02:03:04:05:06 and more", {1, 2, 3, 4, 5, 6});
}

TEST(ToHardwareAddress, WhatTheTextDoesNotGiveIsZero) {
    expectAddress("", {});
    expectAddress(" ", {});
    expectAddress("zz:01:02:03:04:05", {});
    expectAddress("zz:zz:zz:zz:zz:zz", {});
    expectAddress("aa", {0xAA});
    expectAddress("aa:", {0xAA});
    expectAddress("aa:bb:cc", {0xAA, 0xBB, 0xCC});
    expectAddress("aa:bb:cc:dd:ee", {0xAA, 0xBB, 0xCC, 0xDD, 0xEE});
    expectAddress("aa:bb:zz:dd:ee:ff", {0xAA, 0xBB});
    expectAddress("aa::bb", {0xAA});
}

TEST(ToHardwareAddress, OtherSeparatorsEndIt) {
    expectAddress("00-1a-2b-3c-4d-5e", {});
    expectAddress("aa-bb-cc-dd-ee-ff", {0xAA});
    expectAddress("aabbccddeeff", {0xAA});
    expectAddress("aa :bb:cc:dd:ee:ff", {0xAA});
}

TEST(ToHardwareAddress, AByteHasTwoCharactersAtMost) {
    expectAddress("123:45:67:89:ab:cd", {0x12});
    expectAddress("-1:02:03:04:05:06", {0xFF, 2, 3, 4, 5, 6});
    expectAddress("0x12:02:03:04:05:06", {});
    expectAddress(std::string(100'000, 'a'), {0xAA});
}

TEST(IsTrue, ExactlyEnabledAndYesAreTrue) {
    EXPECT_TRUE(convert::isTrue("enabled"));
    EXPECT_TRUE(convert::isTrue("yes"));
    for (const char* word : {"", "Yes", "YES", "Enabled", "true", "1", "on", "disabled", "no", "y", "ye", "yess",
                             "yes ", " yes", "enable", "enabled "}) {
        EXPECT_FALSE(convert::isTrue(word)) << '"' << word << '"';
    }
}

TEST(Equal, CaseCounts) {
    EXPECT_TRUE(convert::equal("", ""));
    EXPECT_TRUE(convert::equal("idle", "idle"));
    EXPECT_FALSE(convert::equal("idle", "Idle"));
    EXPECT_FALSE(convert::equal("idle", "idl"));
    EXPECT_FALSE(convert::equal("idl", "idle"));
    EXPECT_FALSE(convert::equal("", "idle"));
}

TEST(EqualIgnoringCase, CaseOfTheLettersAToZDoesNotCount) {
    EXPECT_TRUE(convert::equalIgnoringCase("", ""));
    EXPECT_TRUE(convert::equalIgnoringCase("abcdefghijklmnopqrstuvwxyz", "ABCDEFGHIJKLMNOPQRSTUVWXYZ"));
    EXPECT_TRUE(convert::equalIgnoringCase("1/2 YmCkO", "1/2 yMcKo"));
    EXPECT_FALSE(convert::equalIgnoringCase("ymcko", "ymckok"));
    EXPECT_FALSE(convert::equalIgnoringCase("ymckok", "ymcko"));
    EXPECT_FALSE(convert::equalIgnoringCase("@[`{", "`{@["));  // the neighbours of the letters
}

TEST(EqualIgnoringCase, IsTheSameInALocaleWithOtherLetters) {
    const LocaleScope turkish("tr_TR.ISO-8859-9");
    EXPECT_TRUE(convert::equalIgnoringCase("WHITE", "white"));
    EXPECT_FALSE(convert::equalIgnoringCase("wh\xFDte", "WHITE"));  // dotless i, the small letter of I there
    EXPECT_FALSE(convert::equalIgnoringCase("\xC4", "\xE4"));       // A with dots, large and small
}

// ---- All of these against the C library itself ----

TEST(Conversions, AreThoseOfTheCLibraryInItsOwnLocale) {
    for (const char* text : {"",
                             " ",
                             "0",
                             "00",
                             "-0",
                             "7",
                             "+7",
                             "-7",
                             "7up",
                             "0x",
                             "0x7",
                             "0X7",
                             "0x7g",
                             "0x-7",
                             "0x+7",
                             "0x 7",
                             "0x0x7",
                             "-0x7",
                             "1.5",
                             "1,5",
                             ".",
                             ".5",
                             "5.",
                             "-.5",
                             "1e",
                             "1e+",
                             "1e-1",
                             "1ex",
                             "0x1p",
                             "0x1p3",
                             "0x.8",
                             "0x.p1",
                             "inf",
                             "infin",
                             "INF",
                             "inf7",
                             "nan",
                             "nan(",
                             "nan(7)",
                             "nanx",
                             "65536",
                             "-65537",
                             "1e39",
                             "1e-46",
                             "\t\v7",
                             "\xA0 7",
                             "++7",
                             "+ 7",
                             "1 2",
                             "1.2.3",
                             "4294967296",
                             "2147483648",
                             "18446744073709551615",
                             "18446744073709551616",
                             "0xFFFFFFFFFFFFFFFF",
                             "0x10000000000000000"}) {
        int integer = 0;
        long longInteger = 0;
        double real = 0;
        unsigned int hex = 77;
        unsigned short shortInteger = 77;
        unsigned long key = 77;
        double scanned = 77;
        int hexMatches = 0;
        int shortMatches = 0;
        int keyMatches = 0;
        int realMatches = 0;
        {
            const LocaleScope c("C");
            integer = std::atoi(text);
            longInteger = std::atol(text);
            real = std::atof(text);
            hexMatches = std::sscanf(text, "0x%x", &hex);
            shortMatches = std::sscanf(text, "%hu", &shortInteger);
            keyMatches =
                std::strncmp(text, "0x", 2) == 0 ? std::sscanf(text, "%lx", &key) : std::sscanf(text, "%lu", &key);
            realMatches = std::sscanf(text, "%lf", &scanned);
        }
        EXPECT_EQ(convert::toInt(text), integer) << '"' << text << '"';
        EXPECT_EQ(convert::toLong(text), longInteger) << '"' << text << '"';
        const float read = convert::toFloat(text);
        EXPECT_TRUE(read == static_cast<float>(real) || (std::isnan(read) && std::isnan(real))) << '"' << text << '"';

        unsigned int ownHex = 77;
        EXPECT_EQ(convert::scanPrefixedHex(text, ownHex), hexMatches == 1) << '"' << text << '"';
        EXPECT_EQ(ownHex, hex) << '"' << text << '"';
        unsigned short ownShort = 77;
        EXPECT_EQ(convert::scanUnsignedShort(text, ownShort), shortMatches == 1) << '"' << text << '"';
        EXPECT_EQ(ownShort, shortInteger) << '"' << text << '"';
        unsigned long ownKey = 77;
        EXPECT_EQ(convert::scanKeyNumber(text, ownKey), keyMatches == 1) << '"' << text << '"';
        EXPECT_EQ(ownKey, key) << '"' << text << '"';
        float own = 77;
        EXPECT_EQ(convert::scanFloat(text, own), realMatches == 1) << '"' << text << '"';
        EXPECT_TRUE(own == static_cast<float>(scanned) || (std::isnan(own) && std::isnan(scanned)))
            << '"' << text << '"';
    }
}

// ---- Copies ----

/// Copies into the middle of a buffer of '#', and gives the whole of it with its zeros as '0'.
std::pair<bool, std::string> copied(const char* text, int capacity) {
    std::string buffer(10, '#');
    const bool fitted = convert::copy(text, &buffer[2], capacity);
    for (char& character : buffer) {
        if (character == '\0') character = '0';
    }
    return {fitted, buffer};
}

TEST(Copy, ATextThatFitsIsCopiedWithItsTerminator) {
    EXPECT_EQ(copied("abc", 8), std::pair(true, std::string("##abc0####")));
    EXPECT_EQ(copied("", 8), std::pair(true, std::string("##0#######")));
    EXPECT_EQ(copied("abc", INT_MAX), std::pair(true, std::string("##abc0####")));
}

TEST(Copy, TheCapacityCountsTheTerminator) {
    EXPECT_EQ(copied("abc", 4), std::pair(true, std::string("##abc0####")));
    EXPECT_EQ(copied("", 1), std::pair(true, std::string("##0#######")));
}

TEST(Copy, ATextThatDoesNotFitIsCutAndTerminated) {
    EXPECT_EQ(copied("abc", 3), std::pair(false, std::string("##ab0#####")));
    EXPECT_EQ(copied("abc", 2), std::pair(false, std::string("##a0######")));
    EXPECT_EQ(copied("abc", 1), std::pair(false, std::string("##0#######")));
    EXPECT_EQ(copied(manyNines.c_str(), 4), std::pair(false, std::string("##9990####")));
}

TEST(Copy, WithoutCapacityNothingIsWritten) {
    for (const int capacity : {0, -1, INT_MIN}) {
        EXPECT_EQ(copied("abc", capacity), std::pair(false, std::string(10, '#')));
        EXPECT_EQ(copied("", capacity), std::pair(false, std::string(10, '#')));
    }
}

// ---- Numbers to texts ----

TEST(FromInt, WritesTheWholeRange) {
    EXPECT_STREQ(convert::fromInt(0).c_str(), "0");
    EXPECT_STREQ(convert::fromInt(-12).c_str(), "-12");
    EXPECT_STREQ(convert::fromInt(1234567).c_str(), "1234567");
    EXPECT_STREQ(convert::fromInt(INT_MAX).c_str(), "2147483647");
    EXPECT_STREQ(convert::fromInt(INT_MIN).c_str(), "-2147483648");
}

TEST(FromUnsigned, WritesTheWholeRange) {
    EXPECT_STREQ(convert::fromUnsigned(0).c_str(), "0");
    EXPECT_STREQ(convert::fromUnsigned(UINT_MAX).c_str(), "4294967295");
}

TEST(FromLong, WritesTheWholeRange) {
    EXPECT_STREQ(convert::fromLong(0).c_str(), "0");
    EXPECT_STREQ(convert::fromLong(LONG_MAX).c_str(), "9223372036854775807");
    EXPECT_STREQ(convert::fromLong(LONG_MIN).c_str(), "-9223372036854775808");
}

TEST(FromDouble, WritesTheDecimalsAskedForWithAPoint) {
    EXPECT_STREQ(convert::fromDouble(0.1, 4).c_str(), "0.1000");
    EXPECT_STREQ(convert::fromDouble(0.1, 6).c_str(), "0.100000");
    EXPECT_STREQ(convert::fromDouble(-25.4, 2).c_str(), "-25.40");
    EXPECT_STREQ(convert::fromDouble(1234567.5, 1).c_str(), "1234567.5");
    EXPECT_STREQ(convert::fromDouble(0.0, 2).c_str(), "0.00");
    EXPECT_STREQ(convert::fromDouble(-0.0, 2).c_str(), "-0.00");
}

TEST(FromDouble, RoundsToTheNearestAndHalvesToEven) {
    EXPECT_STREQ(convert::fromDouble(9.996, 2).c_str(), "10.00");
    EXPECT_STREQ(convert::fromDouble(0.00004, 4).c_str(), "0.0000");
    EXPECT_STREQ(convert::fromDouble(-0.00004, 4).c_str(), "-0.0000");
    EXPECT_STREQ(convert::fromDouble(0.125, 2).c_str(), "0.12");
    EXPECT_STREQ(convert::fromDouble(0.375, 2).c_str(), "0.38");
    EXPECT_STREQ(convert::fromDouble(1.005, 2).c_str(), "1.00");  // as a double a little less than it is written
}

// (2^53 - 1) * 2^971
constexpr const char* largestDouble =
    "179769313486231570814527423731704356798070567525844996598917476803157260780028538760589558632766878171540458953514"
    "382464234321326889464182768467546703537516986049910576551282076245490090389328944075868508455133942304583236903222"
    "948165808559332123348274797826204144723168738177180919299881250404026184124858368";

TEST(FromDouble, TheLargestNumbersAreWrittenWhole) {
    EXPECT_EQ(convert::fromDouble(DBL_MAX, 6).c_str(), std::string(largestDouble) + ".000000");
    EXPECT_EQ(convert::fromDouble(-DBL_MAX, 6).c_str(), std::string("-") + largestDouble + ".000000");
    EXPECT_STREQ(convert::fromDouble(FLT_MAX, 4).c_str(), "340282346638528859811704183484516925440.0000");
    EXPECT_STREQ(convert::fromDouble(DBL_MIN, 6).c_str(), "0.000000");
}

TEST(FromDouble, WritesInfinityAndNan) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_STREQ(convert::fromDouble(inf, 2).c_str(), "inf");
    EXPECT_STREQ(convert::fromDouble(-inf, 2).c_str(), "-inf");
    EXPECT_STREQ(convert::fromDouble(nan, 2).c_str(), "nan");
}

TEST(FromHardwareAddress, WritesTwoSmallDigitsAByte) {
    const unsigned char address[] = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};
    EXPECT_STREQ(convert::fromHardwareAddress(address).c_str(), "00:1a:2b:3c:4d:5e");
    const unsigned char ends[] = {0xFF, 0x80, 0x7F, 0x0F, 0x01, 0x00};
    EXPECT_STREQ(convert::fromHardwareAddress(ends).c_str(), "ff:80:7f:0f:01:00");
}

}  // namespace

}  // namespace convert_test
