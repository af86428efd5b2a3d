// How tables of words are looked up, and where the two directions differ, on purpose. What each word stands for is in
// tests/words.
#include "foundation/words.h"

#include <gtest/gtest.h>

#include <climits>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

#include "FoundationRecords.h"
#include "KVJHelper.h"
#include "foundation/name.h"
#include "foundation/vocabulary.h"
#include "support/locale_scope.h"

namespace words_test {

using kvj::Match;
using kvj::Word;
using kvj::Words;
using kvj::WordTable;
using kvj::tests::LocaleScope;
using kvj::tests::Name;

namespace {

using WordsAndCodes = std::initializer_list<std::pair<const char*, int>>;
using Reader = int (*)(char*);

void expectCodes(Reader reader, WordsAndCodes cases) {
    for (const auto& [word, code] : cases) EXPECT_EQ(reader(Name(word)), code) << '"' << word << '"';
}

void expectWords(Words table, std::initializer_list<std::pair<int, const char*>> cases) {
    for (const auto& [code, word] : cases) EXPECT_STREQ(kvj::wordOf(table, code), word) << code;
}

void expectNoWords(Words table, std::initializer_list<int> codes) {
    for (const int code : codes) EXPECT_EQ(kvj::wordOf(table, code), nullptr) << code;
    EXPECT_EQ(kvj::wordOf(table, INT_MIN), nullptr);
    EXPECT_EQ(kvj::wordOf(table, INT_MAX), nullptr);
}

// ---- Tables ----

constexpr WordTable withOther{7, {{"off", 0}, {"on", 1}, {"working", 1}, {"low", -5}}};
constexpr WordTable withoutOther({{"off", 0}, {"on", 1}});
constexpr WordTable ignoringCase({{"Off", 0}, {"ON", 1}}, Match::wholeIgnoringCase);
constexpr WordTable parts{-1, {{"on", 1}, {"off", 0}, {"once", 2}}, Match::part};

TEST(WordTable, AWordHasTheCodeOfItsRow) {
    EXPECT_EQ(kvj::codeOf(withOther, "off"), 0);
    EXPECT_EQ(kvj::codeOf(withOther, "on"), 1);
    EXPECT_EQ(kvj::codeOf(withOther, "working"), 1);
    EXPECT_EQ(kvj::codeOf(withOther, "low"), -5);
}

TEST(WordTable, AnyOtherTextHasTheCodeOfOtherTexts) {
    for (const char* text : {"", " ", "On", "ON", "o", "onn", "on ", " on"}) {
        EXPECT_EQ(kvj::codeOf(withOther, text), 7) << '"' << text << '"';
    }
    EXPECT_EQ(kvj::codeOf(withOther, nullptr), 7);
}

TEST(WordTable, WithoutACodeOfOtherTextsTheyHaveNone) {
    EXPECT_EQ(kvj::codeOf(withoutOther, "on"), 1);
    EXPECT_EQ(kvj::codeOf(withoutOther, "On"), std::nullopt);
    EXPECT_EQ(kvj::codeOf(withoutOther, ""), std::nullopt);
    EXPECT_EQ(kvj::codeOf(withoutOther, nullptr), std::nullopt);
}

TEST(WordTable, AnyCodeIsThatOfTheTextOrOfOtherTexts) {
    EXPECT_EQ(kvj::anyCodeOf(withOther, "on"), 1);
    EXPECT_EQ(kvj::anyCodeOf(withOther, "On"), 7);
    EXPECT_EQ(kvj::anyCodeOf(withOther, nullptr), 7);
}

TEST(WordTable, CaseMayBeIgnored) {
    for (const char* text : {"Off", "off", "OFF", "oFF"}) EXPECT_EQ(kvj::codeOf(ignoringCase, text), 0) << text;
    EXPECT_EQ(kvj::codeOf(ignoringCase, "on"), 1);
    EXPECT_EQ(kvj::codeOf(ignoringCase, "offf"), std::nullopt);
}

TEST(WordTable, OfThePartsThatOccurTheFirstRowCounts) {
    EXPECT_EQ(kvj::codeOf(parts, "on"), 1);
    EXPECT_EQ(kvj::codeOf(parts, "turned off"), 0);
    EXPECT_EQ(kvj::codeOf(parts, "off and on"), 1);
    EXPECT_EQ(kvj::codeOf(parts, "once"), 1);
    EXPECT_EQ(kvj::codeOf(parts, "o"), -1);
    EXPECT_EQ(kvj::codeOf(parts, "Off"), -1);
    EXPECT_EQ(kvj::codeOf(parts, ""), -1);
}

TEST(WordTable, ACodeHasTheFirstWordThatCarriesIt) {
    expectWords(withOther, {{0, "off"}, {1, "on"}, {-5, "low"}});
    expectNoWords(withOther, {7, 2, -1, 5});
}

// ---- Ribbons ----

TEST(RibbonDescription, WithTwoOverlaysHasACodeThatNoNameStandsFor) {
    EXPECT_EQ(kvj::wordOf(kvj::ribbonNames, KVJHelper::RibbonDescriptionToInt(Name("ymckoo"))), nullptr);
}

TEST(RibbonDescription, WithAnInhibitorPanelIsWrittenAsThePeelOffRibbon) {
    for (const char* description : {"ymcoviko", "ymcpko"}) {
        EXPECT_STREQ(kvj::wordOf(kvj::ribbonNames, KVJHelper::RibbonDescriptionToInt(Name(description))), "YMCPKO");
    }
}

TEST(RibbonWords, CaseIsThatOfAsciiInEveryLocale) {
    const LocaleScope turkish("tr_TR.ISO-8859-9");
    EXPECT_EQ(KVJHelper::RibbonNameToInt(Name("WHITE")), 264);
    EXPECT_EQ(KVJHelper::RibbonNameToInt(Name("silver")), 268);
    EXPECT_EQ(KVJHelper::RibbonDescriptionToInt(Name("YMCOVIKO")), 260);
    EXPECT_EQ(KVJHelper::RibbonDescriptionToInt(Name("wh\xFDte")), 263);  // with a dotless i
}

// ---- Feeders and encoders ----

TEST(FeederSmart, EachOccursAnywhereInTheText) {
    expectCodes(KVJHelper::FeederSmartToInt, {{"contact", 0},
                                              {"iclass", 1},
                                              {"mifare", 2},
                                              {"prox", 3},
                                              {"uhf", 4},
                                              {"legic", 5},
                                              {"hid_iclass", 1},
                                              {"mifare_desfire", 2},
                                              {"hid prox card", 3}});
}

TEST(FeederSmart, TheFirstOfTheListCountsWhereverItStands) {
    expectCodes(KVJHelper::FeederSmartToInt, {{"contactless", 0},
                                              {"mifare_contactless", 0},
                                              {"legic contact", 0},
                                              {"mifare iclass", 1},
                                              {"prox mifare", 2},
                                              {"uhf prox", 3},
                                              {"legic uhf", 4}});
}

TEST(FeederType, EachOccursAnywhereInTheText) {
    expectCodes(KVJHelper::FeederTypeToInt,
                {{"pvc", 1}, {"composite", 0}, {"white pvc", 1}, {"pvc_30mil", 1}, {"a composite card", 0}});
}

TEST(FeederType, PvcCountsBeforeComposite) {
    expectCodes(KVJHelper::FeederTypeToInt, {{"pvc composite", 1}, {"composite pvc", 1}});
}

TEST(Coercivity, TheWordsAreWrittenByTheirCode) {
    EXPECT_STREQ(Kavrin::COERCIVITYTYPES[0], "none");
    EXPECT_STREQ(Kavrin::COERCIVITYTYPES[1], "low");
    EXPECT_STREQ(Kavrin::COERCIVITYTYPES[2], "high");
    EXPECT_EQ(std::size(Kavrin::COERCIVITYTYPES), 3U);
}

TEST(Coercivity, WhatIsWrittenReadsBack) {
    for (int code = 0; code < 3; ++code) {
        EXPECT_EQ(KVJHelper::CoercivityToInt(Name(Kavrin::COERCIVITYTYPES[code])), code);
    }
}

TEST(CommsChannel, TheCapabilitiesWriteAWordForUsbThatIsNotRead) {
    EXPECT_EQ(KVJHelper::CommsChannelToInt(Name(kvj::wordOf(kvj::commsChannelsInCapabilities, 2))), 0);
}

}  // namespace

}  // namespace words_test
