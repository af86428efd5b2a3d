// Ribbon, cards and laminates: what is particular to reading them.
#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <string>
#include <utility>

#include "KVJConfigParser.h"
#include "configuration/records.h"

namespace media_test {

namespace {

using namespace kvj::tests;

// ---- Ribbon ----

/// What reading a description gave: what was printed and what both places hold.
struct Ribbon {
    bool result;
    std::string description;
    std::string errorStream;
    bool operator==(const Ribbon&) const = default;
};

/// Reads the children of a ribbon. The record's description and the scratch space must agree, and be zero after the
/// text.
Ribbon readRibbon(const std::string& children) {
    _RibbonInfo ribbon;
    preset(ribbon);
    std::memset(szRibbonName, 1, sizeof szRibbonName);
    testing::internal::CaptureStderr();
    const bool result = read(&KVJConfigParser::getRibbonInfo, children, ribbon);
    const std::string printed = testing::internal::GetCapturedStderr();

    const std::string description(ribbon.description, strnlen(ribbon.description, sizeof ribbon.description));
    EXPECT_LT(description.size(), sizeof szRibbonName);
    EXPECT_EQ(std::string(ribbon.description, sizeof ribbon.description),
              description + std::string(sizeof ribbon.description - description.size(), '\0'));
    EXPECT_EQ(std::string(szRibbonName, sizeof szRibbonName),
              description + std::string(sizeof szRibbonName - description.size(), '\0'));
    EXPECT_EQ(ribbon.ribbonCode, 0x01010101);
    return {result, description, printed};
}

Ribbon described(const std::string& text) { return readRibbon(element("description", text)); }

std::string debugLines(const std::string& name) { return "DEBUG:RIBBON NAME " + name + "\nDEBUG:RIBBON NAME2 \n"; }

TEST(RibbonDescription, IsPrintedBeforeItIsStored) {
    EXPECT_EQ(described("YMCKO"), (Ribbon{true, "YMCKO", debugLines("YMCKO")}));
    EXPECT_EQ(described("100%s full"), (Ribbon{true, "100%s full", debugLines("100%s full")}));
}

TEST(RibbonDescription, OfMonoAndAColourIsTheColourAlone) {
    EXPECT_EQ(described("MONO RED"), (Ribbon{true, "RED", debugLines("RED")}));
    EXPECT_EQ(described("MONO 1/2 BLACK"), (Ribbon{true, "1/2 BLACK", debugLines("1/2 BLACK")}));
}

TEST(RibbonDescription, WithMonoAnywhereLosesItsFirstFiveCharacters) {
    for (const auto& [text, rest] :
         {std::pair("BLACK MONO", " MONO"), std::pair("A MONO RIBBON", "O RIBBON"), std::pair("MONOCHROME", "HROME"),
          std::pair("xMONO", ""), std::pair("MONO", ""), std::pair("MONO x", "x"), std::pair("MONO MONO", "MONO")}) {
        EXPECT_EQ(described(text), (Ribbon{true, rest, debugLines(rest)})) << text;
    }
}

TEST(RibbonDescription, WithMonoInAnotherCaseIsWhole) {
    for (const char* text : {"mono red", "Mono Red", "MON O", "MONo RED"}) {
        EXPECT_EQ(described(text), (Ribbon{true, text, debugLines(text)})) << text;
    }
}

TEST(RibbonDescription, Of31CharactersIsWhole) {
    const std::string text(31, 'r');
    EXPECT_EQ(described(text), (Ribbon{true, text, debugLines(text)}));
}

TEST(RibbonDescription, LongerThan31CharactersIsCutAndFalse) {
    const std::string cut(31, 'r');
    for (const std::size_t length : {std::size_t{32}, std::size_t{63}, std::size_t{64}, std::size_t{100000}}) {
        EXPECT_EQ(described(std::string(length, 'r')), (Ribbon{false, cut, debugLines(cut)})) << length;
    }
}

TEST(RibbonDescription, WithControlCharactersIsStoredAsItIsAndShownWithoutThem) {
    EXPECT_EQ(described("a\x1B[31mb\x07"), (Ribbon{true, "a\x1B[31mb\x07", debugLines("a?[31mb?")}));
    EXPECT_EQ(described("a&#10;DEBUG:b&#13;&#9;c"), (Ribbon{true, "a\nDEBUG:b\r\tc", debugLines("a?DEBUG:b??c")}));
    for (int code = 1; code < 0xA0; ++code) {
        const bool isControl = code < 0x20 || code >= 0x7F;
        const std::string byte(1, static_cast<char>(code));
        const std::string text = "<![CDATA[x" + byte + "x]]>";
        const std::string shown = "x" + (isControl ? "?" : byte) + "x";
        EXPECT_EQ(described(text), (Ribbon{true, "x" + byte + "x", debugLines(shown)})) << code;
        if (code < 0x80) continue;
        const std::string inUtf8 = "x\xC2" + byte + "x";
        EXPECT_EQ(described(inUtf8), (Ribbon{true, inUtf8, debugLines("x?x")})) << code;
    }
}

TEST(RibbonDescription, WithAnyOtherCharacterIsShownAsItIs) {
    for (int code = 0xA0; code <= 0xFF; ++code) {
        const std::string text = "x" + std::string(1, static_cast<char>(code)) + "x";
        EXPECT_EQ(described(text), (Ribbon{true, text, debugLines(text)})) << code;
    }
    // Each has a byte that alone would be a control character.
    for (const char* text : {"\xC3\x80", "\xC3\x9B", "\xC2\xA0", "\xE2\x80\x9C", "\xE0\xA0\x80", "\xEF\xAC\x80",
                             "\xEF\xBF\xBD", "\xF0\x9F\x96\xA8", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_EQ(described(text), (Ribbon{true, text, debugLines(text)})) << text;
    }
}

TEST(RibbonDescription, WithWhatIsNoCharacterInUtf8IsShownByteByByte) {
    // Longer forms than needed of ESC and of the C1 control CSI, and characters that are cut.
    for (const auto& [text, shown] :
         {std::pair("\xC0\x9B", "\xC0?"), std::pair("\xE0\x80\x9B", "\xE0??"), std::pair("\xE0\x82\x9B", "\xE0??"),
          std::pair("\xF0\x80\x82\x9B", "\xF0???"), std::pair("\xE2\x80", "\xE2?"), std::pair("\xC2x", "\xC2x"),
          std::pair("\xF4\x9B\x80\x80", "\xF4???"), std::pair("\xF9\x9B\x80\x80", "\xF9???")}) {
        EXPECT_EQ(described(text), (Ribbon{true, text, debugLines(shown)})) << text;
    }
}

TEST(RibbonDescription, WithMonoIsCutFirst) {
    const std::string rest = std::string(22, 'r') + "MONO";
    EXPECT_EQ(described(std::string(27, 'r') + "MONO and more"), (Ribbon{false, rest, debugLines(rest)}));
    const std::string whole = std::string(28, 'r') + "MON";
    EXPECT_EQ(described(std::string(28, 'r') + "MONO and more"), (Ribbon{false, whole, debugLines(whole)}));
    const std::string colour(26, 'r');
    EXPECT_EQ(described("MONO " + std::string(100, 'r')), (Ribbon{false, colour, debugLines(colour)}));
}

TEST(RibbonDescription, WithoutTextIsClearedAndPrintedAllTheSame) {
    EXPECT_EQ(described(""), (Ribbon{false, "", debugLines("")}));
    EXPECT_EQ(described("<![CDATA[]]>"), (Ribbon{true, "", debugLines("")}));
}

TEST(RibbonDescription, IsPrintedForEachElement) {
    EXPECT_EQ(readRibbon(element("description", "MONO RED") + element("description", "YMCKO")),
              (Ribbon{true, "YMCKO", debugLines("RED") + debugLines("YMCKO")}));
}

TEST(RibbonDescription, ThatIsNotThereIsNotPrinted) {
    _RibbonInfo ribbon;
    preset(ribbon);
    testing::internal::CaptureStderr();
    EXPECT_TRUE(read(&KVJConfigParser::getRibbonInfo, element("type", "2"), ribbon));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    _RibbonInfo expected;
    preset(expected);
    expected.type = 2;
    EXPECT_EQ(bytesOf(ribbon), bytesOf(expected));
}

TEST(RibbonDescription, OfRibbonAndFilmIsPrintedInTheOrderOfTheReply) {
    _KVConfiguration cfg;
    testing::internal::CaptureStderr();
    Xml reply(replyText().c_str());
    EXPECT_TRUE(KVJConfigParser().parseConfiguration(reply.root(), cfg));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), debugLines("RED") + debugLines("Clear"));
    EXPECT_STREQ(szRibbonName, "Clear");
}

TEST(MediaInfo, OfSeveralRibbonsTheLaterOverwritesWhatItHas) {
    _KVConfiguration cfg{};
    EXPECT_TRUE(read(&KVJConfigParser::getMediaInfo,
                     element("ribbon", element("type", "1") + element("initial_size", "2")) +
                         element("film", element("type", "3")) + element("ribbon", element("type", "4")),
                     cfg));
    EXPECT_EQ(cfg.ribbon.type, 4);
    EXPECT_EQ(cfg.ribbon.initialSize, 2);
    EXPECT_EQ(cfg.film.type, 3);
}

// ---- Card flags ----

struct CardFlag {
    const char* name;
    unsigned char bit;  ///< in the byte of the flags
};
constexpr CardFlag cardFlags[] = {{"mag_stripe", 1}, {"contact_encode", 2}, {"non_contact_encode", 4}};

unsigned flagsOf(const _CustomCardInfo& card) {
    return (card.magStripe ? 1U : 0U) | (card.contactEncode ? 2U : 0U) | (card.nonContactEncode ? 4U : 0U);
}

/// Reads one flag of a card that has all flags or none, and expects the others to stay.
void expectFlag(const CardFlag& flag, const char* word, bool result, bool value) {
    for (const unsigned before : {0U, 7U}) {
        _CustomCardInfo card{};
        card.magStripe = before & 1;
        card.contactEncode = before & 1;
        card.nonContactEncode = before & 1;
        EXPECT_EQ(read(&KVJConfigParser::getCardInformation, element(flag.name, word), card), result) << word;
        EXPECT_EQ(flagsOf(card), value ? before | flag.bit : before & ~unsigned{flag.bit}) << flag.name << word;
    }
}

TEST(CardFlags, EachSetsItsOwnBitAlone) {
    for (const CardFlag& flag : cardFlags) {
        for (const char* word : {"yes", "enabled"}) expectFlag(flag, word, true, true);
    }
}

TEST(CardFlags, EachClearsItsOwnBitAlone) {
    for (const CardFlag& flag : cardFlags) {
        for (const char* word : {"no", "disabled", "Yes", "1", "true"}) expectFlag(flag, word, true, false);
    }
}

TEST(CardFlags, EachWithoutTextClearsItsOwnBitAndIsFalse) {
    for (const CardFlag& flag : cardFlags) expectFlag(flag, "", false, false);
}

TEST(CardFlags, LeaveTheFieldsBesideThem) {
    for (const CardFlag& flag : cardFlags) {
        _CustomCardInfo card;
        preset(card);
        _CustomCardInfo expected;
        preset(expected);
        reinterpret_cast<unsigned char*>(&expected)[89] |= flag.bit;
        EXPECT_TRUE(read(&KVJConfigParser::getCardInformation, element(flag.name, "yes"), card));
        EXPECT_EQ(bytesOf(card), bytesOf(expected)) << flag.name;
    }
}

// ---- Cards ----

std::string card(const std::string& description, int type) {
    return element("card",
                   element("information", element("description", description) + element("type", std::to_string(type))));
}

/// The types of both custom cards after these were read into a record where they were -1 and -2.
std::pair<int, int> typesAfter(const std::string& cards, bool result = true) {
    _KVConfiguration cfg{};
    cfg.customCard1.type = -1;
    cfg.customCard2.type = -2;
    EXPECT_EQ(read(&KVJConfigParser::getCardsInfo, cards, cfg), result);
    return {cfg.customCard1.type, cfg.customCard2.type};
}

TEST(Cards, TheOneDescribedCustom1IsTheFirst) { EXPECT_EQ(typesAfter(card("Custom 1", 5)), std::pair(5, -2)); }

TEST(Cards, AnyOtherIsTheSecond) {
    for (const char* description : {"Custom 2", "custom 1", "CUSTOM 1", "Custom 10", "Custom", "Custom1", ""}) {
        EXPECT_EQ(typesAfter(card(description, 5)), std::pair(-1, 5)) << description;
    }
}

TEST(Cards, TheLastOfEachCounts) {
    EXPECT_EQ(typesAfter(card("Custom 1", 3) + card("a", 4) + card("Custom 1", 5) + card("b", 6)), std::pair(5, 6));
}

TEST(Cards, ThreeWithoutCustom1LeaveTheLastAsTheSecond) {
    _KVConfiguration cfg{};
    EXPECT_TRUE(read(&KVJConfigParser::getCardsInfo, card("a", 3) + card("b", 4) + card("c", 5), cfg));
    EXPECT_EQ(cfg.customCard2.type, 5);
    EXPECT_STREQ(cfg.customCard2.description, "c");
    const _CustomCardInfo zero{};
    EXPECT_EQ(bytesOf(cfg.customCard1), bytesOf(zero));
}

TEST(Cards, EachIsReadIntoAZeroedOne) {
    _KVConfiguration cfg{};
    fill(cfg);
    EXPECT_TRUE(read(&KVJConfigParser::getCardsInfo,
                     element("card", element("cal_table", "7")) +
                         element("card", element("information", element("description", "Custom 1"))),
                     cfg));
    _CustomCardInfo first{};
    std::strcpy(first.description, "Custom 1");
    EXPECT_EQ(bytesOf(cfg.customCard1), bytesOf(first));
    _CustomCardInfo second{};
    second.calTable = 7;
    EXPECT_EQ(bytesOf(cfg.customCard2), bytesOf(second));
}

TEST(Cards, AnEmptyOneIsAZeroedSecondAndFalse) {
    _KVConfiguration cfg{};
    fill(cfg);
    EXPECT_FALSE(read(&KVJConfigParser::getCardsInfo, "<card/>", cfg));
    const _CustomCardInfo zero{};
    EXPECT_EQ(bytesOf(cfg.customCard2), bytesOf(zero));
    EXPECT_EQ(cfg.customCard1.type, 1441);
}

TEST(Cards, TheResultIsThatOfTheLastCard) {
    EXPECT_EQ(typesAfter("<card/>" + card("Custom 1", 5)), std::pair(5, 0));
    EXPECT_EQ(typesAfter(card("Custom 1", 5) + "<card/>", false), std::pair(5, 0));
}

TEST(Cards, ElementsOfAnotherNameAreNoCards) {
    EXPECT_EQ(
        typesAfter("<Card><information><type>5</type></information></Card><information><type>5</type></information>",
                   false),
        std::pair(-1, -2));
}

// ---- Laminates ----

TEST(Laminate, WhetherItIsPresentIsNeverRead) {
    _LaminationIfo lamination{};
    EXPECT_TRUE(read(&KVJConfigParser::getLaminationInfo,
                     element("top_laminate",
                             "<laminate_present>yes</laminate_present><laminatePresent>1</laminatePresent>"
                             "<laminate_control><top_temp_adjust>1</top_temp_adjust></laminate_control>"),
                     lamination));
    EXPECT_FALSE(lamination.topLaminate.laminatePresent);
    lamination.topLaminate.laminatePresent = true;
    EXPECT_TRUE(read(&KVJConfigParser::getLaminationInfo,
                     element("top_laminate", "<laminate_installed><width>mag</width></laminate_installed>"),
                     lamination));
    EXPECT_TRUE(lamination.topLaminate.laminatePresent);
    EXPECT_EQ(lamination.topLaminate.laminateInstalled.width, 1);
}

TEST(Laminate, OfTheTopAndOfTheBottomHaveTheirOwnRecords) {
    _LaminationIfo lamination{};
    EXPECT_TRUE(read(&KVJConfigParser::getLaminationInfo,
                     element("top_laminate",
                             "<laminate_control><bot_temp_adjust max=\"9\">1</bot_temp_adjust>"
                             "</laminate_control>") +
                         element("bottom_laminate",
                                 "<laminate_control><top_temp_adjust max=\"8\">2</top_temp_adjust>"
                                 "</laminate_control>"),
                     lamination));
    EXPECT_EQ(bytesOf(lamination.topLaminate.laminateControl.temperatureAdjustment), bytesOf(_MinMaxVal{0, 9, 1}));
    EXPECT_EQ(bytesOf(lamination.bottomLaminate.laminateControl.temperatureAdjustment), bytesOf(_MinMaxVal{0, 8, 2}));
}

}  // namespace

}  // namespace media_test
