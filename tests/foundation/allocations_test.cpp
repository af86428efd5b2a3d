// How much memory reading and writing take: hosts poll their printers for as long as they run.
#include <gtest/gtest.h>
#include <tinyxml.h>

#include <cstdint>
#include <string>

#include "KVJHelper.h"
#include "foundation/counted_allocations.h"
#include "foundation/name.h"
#include "foundation/reply.h"
#include "support/xml.h"

namespace allocations_test {

namespace {

using kvj::tests::Name;
using kvj::tests::wide;
using kvj::tests::Xml;

template <class Action>
std::size_t allocationsOf(Action action) {
    const std::size_t before = allocations();
    action();
    return allocations() - before;
}

TEST(Allocations, AreCountedInTinyXmlToo) {
    EXPECT_EQ(allocationsOf([] { delete new TiXmlElement("x"); }), 1U);
    EXPECT_EQ(allocationsOf([] { ::operator delete[](::operator new[](8)); }), 1U);
    TiXmlElement element("x");
    EXPECT_EQ(allocationsOf([&] { element.SetAttribute("a", "1"); }), 1U);
}

// ---- Replies ----

const std::string reply =
    "<?xml version=\"1.0\"?>\n<get_count version=\"2\">\n    <total>12</total>\n    <name>a text longer than a short "
    "one</name>\n"
    "</get_count>\n";

std::size_t allocationsOfNarrow(const std::string& text) {
    return allocationsOf([&] { static_cast<void>(kvj::Reply(text.c_str()).root("get_count")); });
}

std::size_t allocationsOfWide(const std::string& text) {
    const std::wstring characters = wide(text);
    const auto length = static_cast<std::int64_t>(characters.size());
    return allocationsOf([&] { static_cast<void>(kvj::Reply(characters[0], length).root("get_count")); });
}

TEST(Allocations, AnOrdinaryReplyTakesOneForItsText) {
    EXPECT_EQ(allocationsOfNarrow(reply), 1U);
    EXPECT_EQ(allocationsOfWide(reply), 1U);
}

TEST(Allocations, ALongReplyTakesOneMoreForItsElements) {
    std::string text = reply;
    for (int i = 0; i < 1000; ++i) text += "<x y=\"1\">text</x>";
    EXPECT_EQ(allocationsOfNarrow(text), 2U);
    EXPECT_EQ(allocationsOfWide(text), 2U);
}

TEST(Allocations, AReplyWithoutTextTakesNone) {
    const wchar_t nothing = L'\0';
    EXPECT_EQ(allocationsOf([&] { static_cast<void>(kvj::Reply(nothing, 0).root("get_count")); }), 0U);
}

TEST(Allocations, ACharacterCutAtTheEndOfAReplyDoesNotLeadBehindIt) {
    for (std::size_t padding = 0; padding < 8; ++padding) {
        const std::string text = "<?xml version=\"1.0\"?>" + std::string(padding, ' ') + "<a>\xF0";
        const kvj::Reply cut(text.c_str());
        ASSERT_TRUE(cut.root("a")) << padding;
        EXPECT_EQ(kvj::countChildren(cut.root("a")), 0U) << padding;
    }
}

// ---- Readers ----

template <class Value>
std::size_t allocationsOfNumber(TiXmlElement* element) {
    return allocationsOf([&] {
        Value value{};
        EXPECT_TRUE(KVJHelper::GetNumber(element, value));
        EXPECT_EQ(value, Value{12});
    });
}

TEST(Allocations, ReadingATextTakesNone) {
    Xml number("<x>12</x>");
    EXPECT_EQ(allocationsOfNumber<int>(number.root()), 0U);
    EXPECT_EQ(allocationsOfNumber<unsigned int>(number.root()), 0U);
    EXPECT_EQ(allocationsOfNumber<unsigned short>(number.root()), 0U);
    EXPECT_EQ(allocationsOfNumber<unsigned long>(number.root()), 0U);
    EXPECT_EQ(allocationsOfNumber<long>(number.root()), 0U);
    EXPECT_EQ(allocationsOfNumber<float>(number.root()), 0U);

    Xml words("<x>yes, and more than a short text holds</x>");
    char text[64];
    EXPECT_EQ(allocationsOf([&] { EXPECT_TRUE(KVJHelper::GetString(words.root(), text[0], sizeof(text))); }), 0U);
    char character = 0;
    EXPECT_EQ(allocationsOf([&] { EXPECT_TRUE(KVJHelper::GetBool(words.root(), character)); }), 0U);
    bool flag = false;
    EXPECT_EQ(allocationsOf([&] { EXPECT_TRUE(KVJHelper::GetBool(words.root(), flag)); }), 0U);

    Xml address("<x>00:1a:2b:3c:4d:5e</x>");
    unsigned char bytes[6];
    EXPECT_EQ(allocationsOf([&] { EXPECT_TRUE(KVJHelper::GetPhysicalAddress(address.root(), bytes)); }), 0U);
}

TEST(Allocations, ReadingAnAttributeTakesNone) {
    Xml document("<x number=\"12\" words=\"yes, and more than a short text holds\"/>");
    TiXmlElement* element = document.root();
    Name number("number");
    Name words("words");
    EXPECT_EQ(allocationsOf([&] {
                  int integer = 0;
                  EXPECT_TRUE(KVJHelper::GetInt(element, number, integer));
                  EXPECT_TRUE(KVJHelper::GetNumberFromAttr(element, number, integer));
                  float real = 0;
                  EXPECT_TRUE(KVJHelper::GetNumberFromAttr(element, number, real));
                  unsigned short shortInteger = 0;
                  EXPECT_TRUE(KVJHelper::GetShort(element, number, shortInteger));
                  char flag = 0;
                  EXPECT_TRUE(KVJHelper::GetBool(element, words, flag));
                  char text[64];
                  EXPECT_TRUE(KVJHelper::GetString(element, words, text, sizeof(text)));
                  unsigned long address = 0;
                  EXPECT_FALSE(KVJHelper::GetIP(element, words, address));
              }),
              0U);
}

TEST(Allocations, ReadingAWordTakesNone) {
    Name word("a word that is in no table of the printer");
    EXPECT_EQ(allocationsOf([&] {
                  EXPECT_EQ(KVJHelper::RibbonNameToInt(word), 263);
                  EXPECT_EQ(KVJHelper::RibbonDescriptionToInt(word), 263);
                  EXPECT_EQ(KVJHelper::RibbonTypeToInt(word), -1);
                  EXPECT_EQ(KVJHelper::FeederSmartToInt(word), -1);
                  EXPECT_EQ(KVJHelper::FeederTypeToInt(word), -1);
                  EXPECT_EQ(KVJHelper::CoercivityToInt(word), 0);
                  EXPECT_EQ(KVJHelper::LaminationTypeToInt(word), 0);
                  EXPECT_EQ(KVJHelper::CommsChannelToInt(word), 0);
                  EXPECT_EQ(KVJHelper::ContactlessEncToInt(word), 0);
                  EXPECT_EQ(KVJHelper::PanelToInt(word), -1);
                  EXPECT_EQ(KVJHelper::LaminatorWidthToInt(word), -1);
                  EXPECT_EQ(KVJHelper::LaminatorRegistrationToInt(word), -1);
              }),
              0U);
}

// ---- Writing: one allocation for the element and one for its text, as long as both are short ----

TEST(Allocations, WritingAnElementTakesTwo) {
    TiXmlElement parent("p");
    Name name("x");
    EXPECT_EQ(allocationsOf([&] { EXPECT_TRUE(KVJHelper::AddTagString(&parent, name, "text")); }), 2U);
    EXPECT_EQ(allocationsOf([&] { EXPECT_TRUE(KVJHelper::AddTagNumber(&parent, name, -12)); }), 2U);
    EXPECT_EQ(allocationsOf([&] { EXPECT_TRUE(KVJHelper::AddTagUnsigned(&parent, name, 4294967295)); }), 2U);
    EXPECT_EQ(allocationsOf([&] { EXPECT_TRUE(KVJHelper::AddTagLong(&parent, name, -12)); }), 2U);
    EXPECT_EQ(allocationsOf([&] { EXPECT_TRUE(KVJHelper::AddTagFloat(&parent, name, 1.5F)); }), 2U);
    EXPECT_EQ(allocationsOf([&] { EXPECT_TRUE(KVJHelper::AddTagDouble(&parent, name, 1.5)); }), 2U);
    EXPECT_EQ(allocationsOf([&] { EXPECT_TRUE(KVJHelper::AddTagBool(&parent, name, 1)); }), 2U);
}

TEST(Allocations, WritingAnEmptyElementTakesOne) {
    TiXmlElement parent("p");
    Name name("x");
    EXPECT_EQ(allocationsOf([&] { EXPECT_NE(KVJHelper::AddTag(&parent, name), nullptr); }), 1U);
}

TEST(Allocations, ALongTextTakesOneMore) {
    TiXmlElement parent("p");
    Name name("x");
    const unsigned char address[6] = {};
    EXPECT_EQ(allocationsOf([&] { EXPECT_TRUE(KVJHelper::AddTagPhysicalAddress(&parent, name, address)); }), 3U);
}

TEST(Allocations, ARangeTakesOneMoreForEachOfItsAttributes) {
    TiXmlElement parent("p");
    Name name("x");
    EXPECT_EQ(allocationsOf([&] {
                  EXPECT_TRUE(KVJHelper::AddTagMinMaxVal(&parent, name, Kavrin::_MinMaxVal{1, 9, 5}));
              }),
              4U);
    EXPECT_EQ(allocationsOf([&] {
                  EXPECT_TRUE(KVJHelper::AddTagMinMaxVal(&parent, name, Kavrin::_MinMaxValFloat{1, 9, 5}));
              }),
              4U);
}

TEST(Allocations, WritingNothingTakesNone) {
    TiXmlElement parent("p");
    EXPECT_EQ(allocationsOf([&] {
                  EXPECT_FALSE(KVJHelper::AddTagNumber(&parent, nullptr, 1));
                  EXPECT_FALSE(KVJHelper::AddTagString(&parent, nullptr, "text"));
              }),
              0U);
}

}  // namespace

}  // namespace allocations_test
