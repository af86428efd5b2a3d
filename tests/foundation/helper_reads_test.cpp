// What the text and the attributes of an element read as: KVJHelper, which has the same conversions as the rows.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <type_traits>

#include "KVJHelper.h"
#include "foundation/name.h"
#include "support/xml.h"

namespace helper_reads_test {

using kvj::tests::Name;
using kvj::tests::Xml;

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr int before = 77;  // what a destination holds that has to stay as it was

constexpr std::size_t mebibyte = 1024 * 1024;

/// What a reader said and what it left in its destination.
template <class Value>
struct Read {
    bool result;
    Value value;
    bool operator==(const Read&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Read& read) {
        return out << (read.result ? "true, " : "false, ") << +read.value;
    }
};

template <class Value>
Read<Value> numberIn(const std::string& xml, Value value = before) {
    Xml document(xml.c_str());
    const bool result = KVJHelper::GetNumber(document.root(), value);
    return {result, value};
}

template <class Value>
Read<Value> truthIn(const std::string& xml, Value value) {
    Xml document(xml.c_str());
    const bool result = KVJHelper::GetBool(document.root(), value);
    return {result, value};
}

template <class Value>
class GetNumberOfEachType : public testing::Test {};
using NumberTypes = testing::Types<int, unsigned int, unsigned short, unsigned long, long, float>;
TYPED_TEST_SUITE(GetNumberOfEachType, NumberTypes);

/// In an element's text, as short as a printer writes it.
std::string element(const std::string& text) { return "<x>" + text + "</x>"; }

// ---- Numbers ----

TYPED_TEST(GetNumberOfEachType, ReadsTheTextOfAnElement) {
    EXPECT_EQ(numberIn<TypeParam>("<x>12</x>"), (Read<TypeParam>{true, 12}));
    EXPECT_EQ(numberIn<TypeParam>("<x> 12 </x>"), (Read<TypeParam>{true, 12}));
    EXPECT_EQ(numberIn<TypeParam>("<x>\n    12\n</x>"), (Read<TypeParam>{true, 12}));
    EXPECT_EQ(numberIn<TypeParam>("<x unit=\"7\">12 cards</x>"), (Read<TypeParam>{true, 12}));
    EXPECT_EQ(numberIn<TypeParam>("<x>&#49;2</x>"), (Read<TypeParam>{true, 12}));
}

TYPED_TEST(GetNumberOfEachType, WithoutTextItIsFalseAndLeavesTheNumberAlone) {
    EXPECT_EQ(numberIn<TypeParam>("<x/>"), (Read<TypeParam>{false, before}));
    EXPECT_EQ(numberIn<TypeParam>("<x></x>"), (Read<TypeParam>{false, before}));
    EXPECT_EQ(numberIn<TypeParam>("<x> \n </x>"), (Read<TypeParam>{false, before}));
    EXPECT_EQ(numberIn<TypeParam>("<x value=\"12\"/>"), (Read<TypeParam>{false, before}));
}

TYPED_TEST(GetNumberOfEachType, WithoutAnElementItIsFalseAndLeavesTheNumberAlone) {
    TypeParam value = before;
    EXPECT_FALSE(KVJHelper::GetNumber(nullptr, value));
    EXPECT_EQ(value, TypeParam{before});
}

TYPED_TEST(GetNumberOfEachType, TextThatIsNoNumberReadsAsZeroAndTrue) {
    EXPECT_EQ(numberIn<TypeParam>("<x>abc</x>"), (Read<TypeParam>{true, 0}));
    EXPECT_EQ(numberIn<TypeParam>("<x>-</x>"), (Read<TypeParam>{true, 0}));
}

TYPED_TEST(GetNumberOfEachType, AnEmptyTextIsATextAndReadsAsZero) {
    EXPECT_EQ(numberIn<TypeParam>("<x><![CDATA[]]></x>"), (Read<TypeParam>{true, 0}));
}

TYPED_TEST(GetNumberOfEachType, ReadsCharacterData) {
    EXPECT_EQ(numberIn<TypeParam>("<x><![CDATA[ 12]]></x>"), (Read<TypeParam>{true, 12}));
}

TYPED_TEST(GetNumberOfEachType, TheFirstChildIsTheTextWhateverItIs) {
    EXPECT_EQ(numberIn<TypeParam>("<x><!--5-->12</x>"), (Read<TypeParam>{true, 5}));
    EXPECT_EQ(numberIn<TypeParam>("<x><b>5</b>12</x>"), (Read<TypeParam>{true, 0}));
    EXPECT_EQ(numberIn<TypeParam>("<x>12<b>5</b>34</x>"), (Read<TypeParam>{true, 12}));
}

TYPED_TEST(GetNumberOfEachType, TheFlagBehindHasNoEffect) {
    Xml document("<x>12</x>");
    for (const bool flag : {false, true}) {
        TypeParam value = before;
        EXPECT_TRUE(KVJHelper::GetNumber(document.root(), value, flag));
        EXPECT_EQ(value, TypeParam{12});
    }
}

TEST(GetNumber, AnIntKeepsTheLow32Bits) {
    EXPECT_EQ(numberIn<int>("<x>-2147483648</x>"), (Read<int>{true, INT_MIN}));
    EXPECT_EQ(numberIn<int>("<x>2147483648</x>"), (Read<int>{true, INT_MIN}));
    EXPECT_EQ(numberIn<int>("<x>4294967297</x>"), (Read<int>{true, 1}));
}

TEST(GetNumber, AnUnsignedIntKeepsAll32Bits) {
    EXPECT_EQ(numberIn<unsigned int>("<x>-1</x>"), (Read<unsigned int>{true, 4294967295}));
    EXPECT_EQ(numberIn<unsigned int>("<x>4294967295</x>"), (Read<unsigned int>{true, 4294967295}));
    EXPECT_EQ(numberIn<unsigned int>("<x>70000</x>"), (Read<unsigned int>{true, 70000}));
}

TEST(GetNumber, AnUnsignedShortKeepsTheLow16Bits) {
    EXPECT_EQ(numberIn<unsigned short>("<x>65535</x>"), (Read<unsigned short>{true, 65535}));
    EXPECT_EQ(numberIn<unsigned short>("<x>65536</x>"), (Read<unsigned short>{true, 0}));
    EXPECT_EQ(numberIn<unsigned short>("<x>70000</x>"), (Read<unsigned short>{true, 4464}));
    EXPECT_EQ(numberIn<unsigned short>("<x>-1</x>"), (Read<unsigned short>{true, 65535}));
}

TEST(GetNumber, AnUnsignedLongKeepsTheLow16BitsToo) {
    EXPECT_EQ(numberIn<unsigned long>("<x>65535</x>"), (Read<unsigned long>{true, 65535}));
    EXPECT_EQ(numberIn<unsigned long>("<x>65536</x>"), (Read<unsigned long>{true, 0}));
    EXPECT_EQ(numberIn<unsigned long>("<x>70000</x>"), (Read<unsigned long>{true, 4464}));
    EXPECT_EQ(numberIn<unsigned long>("<x>-1</x>"), (Read<unsigned long>{true, 65535}));
}

TEST(GetNumber, TheSixteenBitsReplaceAllThatAnUnsignedLongHeld) {
    EXPECT_EQ(numberIn<unsigned long>("<x>1</x>", ULONG_MAX), (Read<unsigned long>{true, 1}));
}

TEST(GetNumber, ALongHasItsWholeRange) {
    EXPECT_EQ(numberIn<long>("<x>9223372036854775807</x>"), (Read<long>{true, LONG_MAX}));
    EXPECT_EQ(numberIn<long>("<x>-9223372036854775808</x>"), (Read<long>{true, LONG_MIN}));
    EXPECT_EQ(numberIn<long>("<x>9223372036854775808</x>"), (Read<long>{true, LONG_MAX}));
}

TEST(GetNumber, AFloatHasADecimalPointInEveryLocale) {
    EXPECT_EQ(numberIn<float>("<x>1.5</x>"), (Read<float>{true, 1.5F}));
    EXPECT_EQ(numberIn<float>("<x>-25e-2</x>"), (Read<float>{true, -0.25F}));
    EXPECT_EQ(numberIn<float>("<x>1,5</x>"), (Read<float>{true, 1.0F}));
    EXPECT_EQ(numberIn<float>("<x>1e39</x>"), (Read<float>{true, infinity}));
}

TEST(GetNumber, AnIntegerEndsAtADecimalPoint) {
    EXPECT_EQ(numberIn<int>("<x>1.9</x>"), (Read<int>{true, 1}));
    EXPECT_EQ(numberIn<long>("<x>1e3</x>"), (Read<long>{true, 1}));
}

TEST(GetNumber, ReadsAVeryLongText) {
    const std::string nines = element(std::string(mebibyte, '9'));
    EXPECT_EQ(numberIn<int>(nines), (Read<int>{true, -1}));
    EXPECT_EQ(numberIn<unsigned int>(nines), (Read<unsigned int>{true, UINT_MAX}));
    EXPECT_EQ(numberIn<unsigned short>(nines), (Read<unsigned short>{true, 65535}));
    EXPECT_EQ(numberIn<unsigned long>(nines), (Read<unsigned long>{true, 65535}));
    EXPECT_EQ(numberIn<long>(nines), (Read<long>{true, LONG_MAX}));
    EXPECT_EQ(numberIn<float>(nines), (Read<float>{true, infinity}));
    EXPECT_EQ(numberIn<int>(element(std::string(mebibyte, '0') + "7")), (Read<int>{true, 7}));
    EXPECT_EQ(numberIn<float>(element(std::string(mebibyte, 'z'))), (Read<float>{true, 0}));
}

// ---- Texts ----

struct Field {
    char before[4] = {'#', '#', '#', '#'};
    char text[8] = {'#', '#', '#', '#', '#', '#', '#', '#'};
    char after[4] = {'#', '#', '#', '#'};
};
static_assert(sizeof(Field) == 16);

/// All of a field and of its neighbours, with zeros as '0'.
std::string all(const Field& field) {
    std::string characters(reinterpret_cast<const char*>(&field), sizeof(field));
    for (char& character : characters) {
        if (character == '\0') character = '0';
    }
    return characters;
}

struct TextRead {
    bool result;
    std::string field;
    bool operator==(const TextRead&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const TextRead& read) {
        return out << (read.result ? "true, " : "false, ") << read.field;
    }
};

TextRead textIn(const std::string& xml, int capacity = sizeof(Field::text)) {
    Xml document(xml.c_str());
    Field field;
    const bool result = KVJHelper::GetString(document.root(), field.text[0], capacity);
    return {result, all(field)};
}

TextRead attributeTextIn(const std::string& xml, int capacity = sizeof(Field::text)) {
    Xml document(xml.c_str());
    Field field;
    const bool result = KVJHelper::GetString(document.root(), Name("a"), field.text, capacity);
    return {result, all(field)};
}

const TextRead untouched{false, "################"};

TEST(GetString, CopiesTheTextWithItsTerminator) {
    EXPECT_EQ(textIn("<x>YMCKO</x>"), (TextRead{true, "####YMCKO0######"}));
    EXPECT_EQ(textIn("<x>a</x>"), (TextRead{true, "####a0##########"}));
}

TEST(GetString, ReadsTheTextAsXmlMeansIt) {
    EXPECT_EQ(textIn("<x>a &amp; b</x>"), (TextRead{true, "####a & b0######"}));
    EXPECT_EQ(textIn("<x>\n  a \n b  </x>"), (TextRead{true, "####a b0########"}));
    EXPECT_EQ(textIn("<x><![CDATA[ <a> ]]></x>"), (TextRead{true, "#### <a> 0######"}));
}

TEST(GetString, AnEmptyTextIsATextAndIsCopied) {
    EXPECT_EQ(textIn("<x><![CDATA[]]></x>"), (TextRead{true, "####0###########"}));
}

TEST(GetString, TheFirstChildIsTheTextWhateverItIs) {
    EXPECT_EQ(textIn("<x><b/></x>"), (TextRead{true, "####b0##########"}));
    EXPECT_EQ(textIn("<x><b>text</b>more</x>"), (TextRead{true, "####b0##########"}));
    EXPECT_EQ(textIn("<x><!-- c -->text</x>"), (TextRead{true, "#### c 0########"}));
    EXPECT_EQ(textIn("<x>text<!-- c -->more</x>"), (TextRead{true, "####text0#######"}));
}

TEST(GetString, WithoutTextItIsFalseAndLeavesTheFieldAlone) {
    EXPECT_EQ(textIn("<x/>"), untouched);
    EXPECT_EQ(textIn("<x></x>"), untouched);
    EXPECT_EQ(textIn("<x>   </x>"), untouched);
}

TEST(GetString, WithoutAnElementItIsFalseAndLeavesTheFieldAlone) {
    Field field;
    EXPECT_FALSE(KVJHelper::GetString(nullptr, field.text[0], sizeof(field.text)));
    EXPECT_EQ(all(field), untouched.field);
}

TEST(GetString, ATextAsLongAsTheFieldAllowsFits) {
    EXPECT_EQ(textIn("<x>1234567</x>"), (TextRead{true, "####12345670####"}));
}

TEST(GetString, ATextTooLongIsCutAndTerminatedAndReportedFalse) {
    EXPECT_EQ(textIn("<x>12345678</x>"), (TextRead{false, "####12345670####"}));
    EXPECT_EQ(textIn("<x>123456789</x>"), (TextRead{false, "####12345670####"}));
    EXPECT_EQ(textIn(element(std::string(mebibyte, 'z'))), (TextRead{false, "####zzzzzzz0####"}));
}

TEST(GetString, TheCapacityPassedIsTheBound) {
    EXPECT_EQ(textIn("<x>1234567</x>", 4), (TextRead{false, "####1230########"}));
    EXPECT_EQ(textIn("<x>1234567</x>", 1), (TextRead{false, "####0###########"}));
    EXPECT_EQ(textIn("<x>123</x>", 4), (TextRead{true, "####1230########"}));
    EXPECT_EQ(textIn("<x><![CDATA[]]></x>", 1), (TextRead{true, "####0###########"}));
}

TEST(GetString, WithoutCapacityItIsFalseAndLeavesTheFieldAlone) {
    for (const int capacity : {0, -1, INT_MIN}) {
        EXPECT_EQ(textIn("<x>a</x>", capacity), untouched);
        EXPECT_EQ(textIn("<x><![CDATA[]]></x>", capacity), untouched);
    }
}

// ---- Truth words ----

TEST(GetBool, ExactlyEnabledAndYesAreTrue) {
    for (const char* word : {"enabled", "yes"}) {
        EXPECT_EQ(truthIn<char>(element(word), 'u'), (Read<char>{true, 1})) << word;
        EXPECT_EQ(truthIn<bool>(element(word), false), (Read<bool>{true, true})) << word;
    }
}

TEST(GetBool, AnyOtherTextIsFalseAndCountsAsRead) {
    for (const char* word : {"YES", "Yes", "Enabled", "true", "1", "on", "disabled", "no", "yess", "ye", "yes no",
                             "<![CDATA[]]>", "<![CDATA[yes ]]>", "<![CDATA[ yes]]>", "<no/>", "<!--no-->yes"}) {
        EXPECT_EQ(truthIn<char>(element(word), 'u'), (Read<char>{true, 0})) << word;
        EXPECT_EQ(truthIn<bool>(element(word), true), (Read<bool>{true, false})) << word;
    }
}

TEST(GetBool, TheFirstChildIsTheWordWhateverItIs) {
    for (const char* word : {" yes ", "<![CDATA[yes]]>", "<yes/>", "<!--yes-->no", "yes<b/>"}) {
        EXPECT_EQ(truthIn<char>(element(word), 'u'), (Read<char>{true, 1})) << word;
        EXPECT_EQ(truthIn<bool>(element(word), false), (Read<bool>{true, true})) << word;
    }
}

TEST(GetBool, WithoutTextACharacterIsLeftAlone) {
    EXPECT_EQ(truthIn<char>("<x/>", 'u'), (Read<char>{false, 'u'}));
    EXPECT_EQ(truthIn<char>("<x> </x>", 'u'), (Read<char>{false, 'u'}));
    char value = 'u';
    EXPECT_FALSE(KVJHelper::GetBool(nullptr, value));
    EXPECT_EQ(value, 'u');
}

TEST(GetBool, WithoutTextABoolBecomesFalse) {
    EXPECT_EQ(truthIn<bool>("<x/>", true), (Read<bool>{false, false}));
    EXPECT_EQ(truthIn<bool>("<x> </x>", true), (Read<bool>{false, false}));
    bool value = true;
    EXPECT_FALSE(KVJHelper::GetBool(nullptr, value));
    EXPECT_FALSE(value);
}

TEST(GetBool, AVeryLongTextIsNoTruthWord) {
    std::string text = "yes";
    while (text.size() < mebibyte) text += "yes";
    EXPECT_EQ(truthIn<char>(element(text), 'u'), (Read<char>{true, 0}));
    EXPECT_EQ(truthIn<bool>(element(text), true), (Read<bool>{true, false}));
}

// ---- Hardware addresses ----

struct Address {
    unsigned char bytes[8] = {0x77, 0x77, 0x77, 0x77, 0x77, 0x77, 0x77, 0x77};  // two more than there are to write
};

testing::AssertionResult holds(const Address& address, const Address& expected) {
    if (std::memcmp(address.bytes, expected.bytes, sizeof(address.bytes)) == 0) return testing::AssertionSuccess();
    return testing::AssertionFailure() << testing::PrintToString(address.bytes);
}

void expectAddress(const std::string& text, const Address& expected) {
    Xml document(element(text).c_str());
    Address address;
    EXPECT_TRUE(KVJHelper::GetPhysicalAddress(document.root(), address.bytes)) << text.substr(0, 40);
    EXPECT_TRUE(holds(address, expected)) << text.substr(0, 40);
}

TEST(GetPhysicalAddress, ReadsSixBytesAndWritesNoMore) {
    expectAddress("00:1a:2B:3c:4d:5e", {{0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E, 0x77, 0x77}});
    expectAddress("1:2:3:4:5:6", {{1, 2, 3, 4, 5, 6, 0x77, 0x77}});
    expectAddress("01:02:03:04:05:06:07:08", {{1, 2, 3, 4, 5, 6, 0x77, 0x77}});
}

TEST(GetPhysicalAddress, BytesThatTheTextDoesNotGiveAreZeroAndItIsTrue) {
    expectAddress("00-1a-2b-3c-4d-5e", {{0, 0, 0, 0, 0, 0, 0x77, 0x77}});
    expectAddress("aa:bb:cc", {{0xAA, 0xBB, 0xCC, 0, 0, 0, 0x77, 0x77}});
    expectAddress("none", {{0, 0, 0, 0, 0, 0, 0x77, 0x77}});
    expectAddress("<![CDATA[]]>", {{0, 0, 0, 0, 0, 0, 0x77, 0x77}});
    expectAddress("<!--aa:bb-->cc:dd", {{0xAA, 0xBB, 0, 0, 0, 0, 0x77, 0x77}});
    expectAddress(std::string(mebibyte, 'a'), {{0xAA, 0, 0, 0, 0, 0, 0x77, 0x77}});
}

TEST(GetPhysicalAddress, WithoutTextOrElementItIsFalseAndLeavesTheBytesAlone) {
    Xml document("<x/>");
    Address address;
    EXPECT_FALSE(KVJHelper::GetPhysicalAddress(document.root(), address.bytes));
    EXPECT_FALSE(KVJHelper::GetPhysicalAddress(nullptr, address.bytes));
    EXPECT_TRUE(holds(address, Address{}));
}

TEST(GetPhysicalAddress, WithoutABufferItIsFalse) {
    Xml document("<x>00:1a:2b:3c:4d:5e</x>");
    EXPECT_FALSE(KVJHelper::GetPhysicalAddress(document.root(), nullptr));
}

// ---- Attributes ----

/// What an attribute reader makes of the attribute "a" of an element, and what it leaves in `value`.
template <class Value>
Read<Value> attributeIn(const std::string& xml, bool (*read)(TiXmlElement*, char*, Value&),
                        std::type_identity_t<Value> value = before) {
    Xml document(xml.c_str());
    const bool result = read(document.root(), Name("a"), value);
    return {result, value};
}

/// An element with the attribute "a".
std::string attribute(const std::string& value) { return "<x a=\"" + value + "\">88</x>"; }

/// No attribute, one of another name or of another case, one of a child.
const char* const withoutAttribute[] = {"<x/>", "<x>1</x>", "<x b=\"1\" aa=\"1\"/>", "<x A=\"1\"/>",
                                        "<x><a>1</a><b a=\"1\"/></x>"};

using IntReader = bool (*)(TiXmlElement*, char*, int&);
using FloatReader = bool (*)(TiXmlElement*, char*, float&);
constexpr IntReader intReaders[] = {KVJHelper::GetInt, KVJHelper::GetNumberFromAttr};
constexpr FloatReader floatReader = KVJHelper::GetNumberFromAttr;

TEST(IntAttribute, ReadsANumber) {
    for (const IntReader reader : intReaders) {
        EXPECT_EQ(attributeIn(attribute("12"), reader), (Read<int>{true, 12}));
        EXPECT_EQ(attributeIn(attribute(" \n-12"), reader), (Read<int>{true, -12}));
        EXPECT_EQ(attributeIn(attribute("+007 cards"), reader), (Read<int>{true, 7}));
        EXPECT_EQ(attributeIn(attribute("0x10"), reader), (Read<int>{true, 0}));
        EXPECT_EQ(attributeIn(attribute("1,5"), reader), (Read<int>{true, 1}));
        EXPECT_EQ(attributeIn(attribute("2147483647"), reader), (Read<int>{true, INT_MAX}));
        EXPECT_EQ(attributeIn(attribute("-2147483648"), reader), (Read<int>{true, INT_MIN}));
        EXPECT_EQ(attributeIn(attribute("99999999999"), reader), (Read<int>{true, 1215752191}));
        EXPECT_EQ(attributeIn(attribute(std::string(mebibyte, '9')), reader), (Read<int>{true, -1}));
    }
}

TEST(IntAttribute, OneThatIsNoNumberIsFalseAndLeavesTheNumberAlone) {
    for (const IntReader reader : intReaders) {
        for (const char* value : {"", " ", "abc", "-", "x12", ".5"}) {
            EXPECT_EQ(attributeIn(attribute(value), reader), (Read<int>{false, before})) << '"' << value << '"';
        }
    }
}

TEST(IntAttribute, AMissingOneIsFalseAndLeavesTheNumberAlone) {
    for (const IntReader reader : intReaders) {
        for (const char* xml : withoutAttribute) {
            EXPECT_EQ(attributeIn(xml, reader), (Read<int>{false, before})) << xml;
        }
    }
}

TEST(IntAttribute, WithoutElementOrNameItIsFalseAndLeavesTheNumberAlone) {
    Xml document(attribute("12").c_str());
    for (const IntReader reader : intReaders) {
        int value = before;
        EXPECT_FALSE(reader(nullptr, Name("a"), value));
        EXPECT_FALSE(reader(document.root(), nullptr, value));
        EXPECT_EQ(value, before);
    }
}

TEST(FloatAttribute, ReadsADecimalPointInEveryLocale) {
    EXPECT_EQ(attributeIn(attribute("1.5"), floatReader), (Read<float>{true, 1.5F}));
    EXPECT_EQ(attributeIn(attribute(" -25e-2mm"), floatReader), (Read<float>{true, -0.25F}));
    EXPECT_EQ(attributeIn(attribute("1,5"), floatReader), (Read<float>{true, 1.0F}));
    EXPECT_EQ(attributeIn(attribute("12"), floatReader), (Read<float>{true, 12.0F}));
    EXPECT_EQ(attributeIn(attribute("0x1.8p1"), floatReader), (Read<float>{true, 3.0F}));
    EXPECT_EQ(attributeIn(attribute("-inf"), floatReader), (Read<float>{true, -infinity}));
    EXPECT_EQ(attributeIn(attribute("1e39"), floatReader), (Read<float>{true, infinity}));
    EXPECT_EQ(attributeIn(attribute(std::string(mebibyte, '9')), floatReader), (Read<float>{true, infinity}));
    const Read<float> nan = attributeIn(attribute("nan"), floatReader);
    EXPECT_TRUE(nan.result && std::isnan(nan.value));
}

TEST(FloatAttribute, OneThatIsNoNumberIsFalseAndLeavesTheNumberAlone) {
    for (const char* value : {"", " ", "abc", "-", ".", "+-1", "0x", "infi", ",5"}) {
        EXPECT_EQ(attributeIn(attribute(value), floatReader), (Read<float>{false, before})) << '"' << value << '"';
    }
}

TEST(FloatAttribute, AMissingOneIsFalseAndLeavesTheNumberAlone) {
    for (const char* xml : withoutAttribute) {
        EXPECT_EQ(attributeIn(xml, floatReader), (Read<float>{false, before})) << xml;
    }
}

TEST(FloatAttribute, WithoutElementOrNameItIsFalseAndLeavesTheNumberAlone) {
    Xml document(attribute("1.5").c_str());
    float value = before;
    EXPECT_FALSE(KVJHelper::GetNumberFromAttr(nullptr, Name("a"), value));
    EXPECT_FALSE(KVJHelper::GetNumberFromAttr(document.root(), nullptr, value));
    EXPECT_EQ(value, 77.0F);
}

TEST(ShortAttribute, ReadsANumberAndKeepsItsLow16Bits) {
    const auto reader = KVJHelper::GetShort;
    EXPECT_EQ(attributeIn(attribute("12"), reader), (Read<unsigned short>{true, 12}));
    EXPECT_EQ(attributeIn(attribute(" +12mm"), reader), (Read<unsigned short>{true, 12}));
    EXPECT_EQ(attributeIn(attribute("65535"), reader), (Read<unsigned short>{true, 65535}));
    EXPECT_EQ(attributeIn(attribute("70000"), reader), (Read<unsigned short>{true, 4464}));
    EXPECT_EQ(attributeIn(attribute("-1"), reader), (Read<unsigned short>{true, 65535}));
    EXPECT_EQ(attributeIn(attribute("00000000000000000000000000000000000012"), reader),
              (Read<unsigned short>{true, 12}));
    EXPECT_EQ(attributeIn(attribute(std::string(mebibyte, '9')), reader), (Read<unsigned short>{true, 65535}));
}

TEST(ShortAttribute, OneThatIsNoNumberIsTrueAllTheSameAndLeavesTheNumberAlone) {
    for (const char* value : {"", " ", "abc", "-", "+-1", "x12"}) {
        EXPECT_EQ(attributeIn(attribute(value), KVJHelper::GetShort), (Read<unsigned short>{true, before}))
            << '"' << value << '"';
    }
}

TEST(ShortAttribute, AMissingOneIsFalseAndLeavesTheNumberAlone) {
    for (const char* xml : withoutAttribute) {
        EXPECT_EQ(attributeIn(xml, KVJHelper::GetShort), (Read<unsigned short>{false, before})) << xml;
    }
}

TEST(ShortAttribute, WithoutElementOrNameItIsFalseAndLeavesTheNumberAlone) {
    Xml document(attribute("12").c_str());
    unsigned short value = before;
    EXPECT_FALSE(KVJHelper::GetShort(nullptr, Name("a"), value));
    EXPECT_FALSE(KVJHelper::GetShort(document.root(), nullptr, value));
    EXPECT_EQ(value, before);
}

TEST(TruthAttribute, ExactlyEnabledAndYesAreTrue) {
    EXPECT_EQ(attributeIn<char>(attribute("enabled"), KVJHelper::GetBool), (Read<char>{true, 1}));
    EXPECT_EQ(attributeIn<char>(attribute("yes"), KVJHelper::GetBool), (Read<char>{true, 1}));
}

TEST(TruthAttribute, AnyOtherIsZeroAndCountsAsRead) {
    for (const std::string& value : {std::string(), std::string("YES"), std::string("yes "), std::string(" yes"),
                                     std::string("no"), std::string("1"), std::string(mebibyte, 'y')}) {
        EXPECT_EQ(attributeIn<char>(attribute(value), KVJHelper::GetBool), (Read<char>{true, 0}))
            << '"' << value.substr(0, 40) << '"';
    }
}

TEST(TruthAttribute, AMissingOneIsFalseAndLeavesTheFlagAlone) {
    for (const char* xml : withoutAttribute) {
        EXPECT_EQ(attributeIn<char>(xml, KVJHelper::GetBool), (Read<char>{false, before})) << xml;
    }
}

TEST(TruthAttribute, WithoutElementOrNameItIsFalseAndLeavesTheFlagAlone) {
    Xml document(attribute("yes").c_str());
    char value = before;
    EXPECT_FALSE(KVJHelper::GetBool(nullptr, Name("a"), value));
    EXPECT_FALSE(KVJHelper::GetBool(document.root(), nullptr, value));
    EXPECT_EQ(value, before);
}

TEST(TextAttribute, CopiesTheValueWithItsTerminator) {
    EXPECT_EQ(attributeTextIn(attribute("YMCKO")), (TextRead{true, "####YMCKO0######"}));
    EXPECT_EQ(attributeTextIn(attribute(" a &amp; ")), (TextRead{true, "#### a & 0######"}));
    EXPECT_EQ(attributeTextIn(attribute("")), (TextRead{true, "####0###########"}));
    EXPECT_EQ(attributeTextIn(attribute("1234567")), (TextRead{true, "####12345670####"}));
}

TEST(TextAttribute, OneTooLongIsCutAndTerminatedAndReportedFalse) {
    EXPECT_EQ(attributeTextIn(attribute("12345678")), (TextRead{false, "####12345670####"}));
    EXPECT_EQ(attributeTextIn(attribute("1234567"), 4), (TextRead{false, "####1230########"}));
    EXPECT_EQ(attributeTextIn(attribute("1234567"), 1), (TextRead{false, "####0###########"}));
    EXPECT_EQ(attributeTextIn(attribute(std::string(mebibyte, 'z'))), (TextRead{false, "####zzzzzzz0####"}));
}

TEST(TextAttribute, WithoutCapacityItIsFalseAndLeavesTheBufferAlone) {
    for (const int capacity : {0, -1, INT_MIN}) EXPECT_EQ(attributeTextIn(attribute("a"), capacity), untouched);
}

TEST(TextAttribute, AMissingOneIsFalseAndLeavesTheBufferAlone) {
    for (const char* xml : withoutAttribute) EXPECT_EQ(attributeTextIn(xml), untouched) << xml;
}

TEST(TextAttribute, WithoutElementNameOrBufferItIsFalse) {
    Xml document(attribute("YMCKO").c_str());
    Field field;
    EXPECT_FALSE(KVJHelper::GetString(nullptr, Name("a"), field.text, sizeof(field.text)));
    EXPECT_FALSE(KVJHelper::GetString(document.root(), nullptr, field.text, sizeof(field.text)));
    EXPECT_FALSE(KVJHelper::GetString(document.root(), Name("a"), nullptr, sizeof(field.text)));
    EXPECT_EQ(all(field), untouched.field);
}

TEST(GetIP, IsReservedAlwaysFalseAndWritesNothing) {
    Xml document(attribute("192.168.0.1").c_str());
    unsigned long address = before;
    EXPECT_FALSE(KVJHelper::GetIP(document.root(), Name("a"), address));
    EXPECT_FALSE(KVJHelper::GetIP(document.root(), nullptr, address));
    EXPECT_FALSE(KVJHelper::GetIP(nullptr, Name("a"), address));
    EXPECT_EQ(address, before);
}

}  // namespace

}  // namespace helper_reads_test
