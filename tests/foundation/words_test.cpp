// The printer's words and the codes that hosts know them by. The two directions differ in places, on purpose.
#include "foundation/words.h"

#include <gtest/gtest.h>

#include <climits>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

#include "FoundationRecords.h"
#include "KVJHelper.h"
#include "foundation/locale_scope.h"
#include "foundation/name.h"
#include "foundation/vocabulary.h"

using kvjxml::Match;
using kvjxml::Word;
using kvjxml::Words;
using kvjxml::WordTable;
using kvjxml::tests::LocaleScope;
using kvjxml::tests::Name;

namespace {

using WordsAndCodes = std::initializer_list<std::pair<const char*, int>>;
using Reader = int (*)(char*);

void expectCodes(Reader reader, WordsAndCodes cases) {
    for (const auto& [word, code] : cases) EXPECT_EQ(reader(Name(word)), code) << '"' << word << '"';
}

/// That each of these texts, the empty one and none at all read as `code`.
void expectOther(Reader reader, int code, std::initializer_list<const char*> texts) {
    for (const char* text : texts) EXPECT_EQ(reader(Name(text)), code) << '"' << text << '"';
    EXPECT_EQ(reader(Name("")), code);
    EXPECT_EQ(reader(nullptr), code);
}

void expectWords(Words table, std::initializer_list<std::pair<int, const char*>> cases) {
    for (const auto& [code, word] : cases) EXPECT_STREQ(kvjxml::wordOf(table, code), word) << code;
}

void expectNoWords(Words table, std::initializer_list<int> codes) {
    for (const int code : codes) EXPECT_EQ(kvjxml::wordOf(table, code), nullptr) << code;
    EXPECT_EQ(kvjxml::wordOf(table, INT_MIN), nullptr);
    EXPECT_EQ(kvjxml::wordOf(table, INT_MAX), nullptr);
}

// ---- Tables ----

constexpr WordTable withOther{7, {{"off", 0}, {"on", 1}, {"working", 1}, {"low", -5}}};
constexpr WordTable withoutOther({{"off", 0}, {"on", 1}});
constexpr WordTable ignoringCase({{"Off", 0}, {"ON", 1}}, Match::wholeIgnoringCase);
constexpr WordTable parts{-1, {{"on", 1}, {"off", 0}, {"once", 2}}, Match::part};

TEST(WordTable, AWordHasTheCodeOfItsRow) {
    EXPECT_EQ(kvjxml::codeOf(withOther, "off"), 0);
    EXPECT_EQ(kvjxml::codeOf(withOther, "on"), 1);
    EXPECT_EQ(kvjxml::codeOf(withOther, "working"), 1);
    EXPECT_EQ(kvjxml::codeOf(withOther, "low"), -5);
}

TEST(WordTable, AnyOtherTextHasTheCodeOfOtherTexts) {
    for (const char* text : {"", " ", "On", "ON", "o", "onn", "on ", " on"}) {
        EXPECT_EQ(kvjxml::codeOf(withOther, text), 7) << '"' << text << '"';
    }
    EXPECT_EQ(kvjxml::codeOf(withOther, nullptr), 7);
}

TEST(WordTable, WithoutACodeOfOtherTextsTheyHaveNone) {
    EXPECT_EQ(kvjxml::codeOf(withoutOther, "on"), 1);
    EXPECT_EQ(kvjxml::codeOf(withoutOther, "On"), std::nullopt);
    EXPECT_EQ(kvjxml::codeOf(withoutOther, ""), std::nullopt);
    EXPECT_EQ(kvjxml::codeOf(withoutOther, nullptr), std::nullopt);
}

TEST(WordTable, AnyCodeIsThatOfTheTextOrOfOtherTexts) {
    EXPECT_EQ(kvjxml::anyCodeOf(withOther, "on"), 1);
    EXPECT_EQ(kvjxml::anyCodeOf(withOther, "On"), 7);
    EXPECT_EQ(kvjxml::anyCodeOf(withOther, nullptr), 7);
}

TEST(WordTable, CaseMayBeIgnored) {
    for (const char* text : {"Off", "off", "OFF", "oFF"}) EXPECT_EQ(kvjxml::codeOf(ignoringCase, text), 0) << text;
    EXPECT_EQ(kvjxml::codeOf(ignoringCase, "on"), 1);
    EXPECT_EQ(kvjxml::codeOf(ignoringCase, "offf"), std::nullopt);
}

TEST(WordTable, OfThePartsThatOccurTheFirstRowCounts) {
    EXPECT_EQ(kvjxml::codeOf(parts, "on"), 1);
    EXPECT_EQ(kvjxml::codeOf(parts, "turned off"), 0);
    EXPECT_EQ(kvjxml::codeOf(parts, "off and on"), 1);
    EXPECT_EQ(kvjxml::codeOf(parts, "once"), 1);
    EXPECT_EQ(kvjxml::codeOf(parts, "o"), -1);
    EXPECT_EQ(kvjxml::codeOf(parts, "Off"), -1);
    EXPECT_EQ(kvjxml::codeOf(parts, ""), -1);
}

TEST(WordTable, ACodeHasTheFirstWordThatCarriesIt) {
    expectWords(withOther, {{0, "off"}, {1, "on"}, {-5, "low"}});
    expectNoWords(withOther, {7, 2, -1, 5});
}

// ---- Ribbons ----

TEST(RibbonName, EachReadsAsItsCode) {
    expectCodes(KVJHelper::RibbonNameToInt, {{"YMCKO", 256},
                                             {"YMCKOK", 257},
                                             {"1/2 YMCKO", 258},
                                             {"1/2 YMCKOKO", 259},
                                             {"YMCPKO", 260},
                                             {"KdO", 261},
                                             {"KrO", 262},
                                             {"Black", 263},
                                             {"White", 264},
                                             {"Red", 265},
                                             {"Blue", 266},
                                             {"Gold", 267},
                                             {"Silver", 268},
                                             {"YMCKLL", 269},
                                             {"SrDYMCKO", 270},
                                             {"Hologram", 271}});
}

TEST(RibbonName, CaseDoesNotCount) {
    expectCodes(KVJHelper::RibbonNameToInt, {{"ymcko", 256},
                                             {"YmCkO", 256},
                                             {"1/2 ymckoko", 259},
                                             {"KDO", 261},
                                             {"kro", 262},
                                             {"WHITE", 264},
                                             {"srdymcko", 270},
                                             {"hOLOGRAM", 271}});
}

TEST(RibbonName, AnyOtherIsBlack) {
    expectOther(KVJHelper::RibbonNameToInt, 263,
                {"KO", "O", "holo overlay", "black mono", "ymckoo", "YMCKO ", " YMCKO", "YMCK", "1/2YMCKO", "Green"});
}

TEST(RibbonName, IsWrittenInOneSpelling) {
    expectWords(kvjxml::ribbonNames, {{256, "YMCKO"},
                                      {257, "YMCKOK"},
                                      {258, "1/2 YMCKO"},
                                      {259, "1/2 YMCKOKO"},
                                      {260, "YMCPKO"},
                                      {261, "KdO"},
                                      {262, "KrO"},
                                      {263, "Black"},
                                      {264, "White"},
                                      {265, "Red"},
                                      {266, "Blue"},
                                      {267, "Gold"},
                                      {268, "Silver"},
                                      {269, "YMCKLL"},
                                      {270, "SrDYMCKO"},
                                      {271, "Hologram"}});
    expectNoWords(kvjxml::ribbonNames, {255, 272, 0, -1});
}

TEST(RibbonDescription, EachReadsAsItsCode) {
    expectCodes(KVJHelper::RibbonDescriptionToInt,
                {{"black mono", 263}, {"black", 263},       {"white", 264},  {"red", 265},      {"blue", 266},
                 {"gold", 267},       {"silver", 268},      {"ymcko", 256},  {"ymckok", 257},   {"1/2 ymcko", 258},
                 {"kdo", 261},        {"kro", 262},         {"ko", 262},     {"Hologram", 271}, {"holo overlay", 271},
                 {"o", 271},          {"1/2 ymckoko", 259}, {"ymckoo", 272}, {"ymcoviko", 260}, {"ymcpko", 260},
                 {"sdymcko", 270},    {"ymckll", 269}});
}

TEST(RibbonDescription, CaseDoesNotCount) {
    expectCodes(KVJHelper::RibbonDescriptionToInt, {{"YMCKO", 256},
                                                    {"YmCkO", 256},
                                                    {"KO", 262},
                                                    {"O", 271},
                                                    {"hologram", 271},
                                                    {"Holo Overlay", 271},
                                                    {"YMCKOO", 272},
                                                    {"SdYMCKO", 270},
                                                    {"WHITE", 264}});
}

TEST(RibbonDescription, AnyOtherIsBlack) {
    expectOther(KVJHelper::RibbonDescriptionToInt, 263,
                {"SrDYMCKO", "mono", "blackmono", "white ", "ymck", "ymckooo", "holo", "oo", "green"});
}

TEST(RibbonDescription, WithTwoOverlaysHasACodeThatNoNameStandsFor) {
    EXPECT_EQ(kvjxml::wordOf(kvjxml::ribbonNames, KVJHelper::RibbonDescriptionToInt(Name("ymckoo"))), nullptr);
}

TEST(RibbonDescription, WithAnInhibitorPanelIsWrittenAsThePeelOffRibbon) {
    for (const char* description : {"ymcoviko", "ymcpko"}) {
        EXPECT_STREQ(kvjxml::wordOf(kvjxml::ribbonNames, KVJHelper::RibbonDescriptionToInt(Name(description))),
                     "YMCPKO");
    }
}

TEST(RibbonWords, CaseIsThatOfAsciiInEveryLocale) {
    const LocaleScope turkish("tr_TR.ISO-8859-9");
    EXPECT_EQ(KVJHelper::RibbonNameToInt(Name("WHITE")), 264);
    EXPECT_EQ(KVJHelper::RibbonNameToInt(Name("silver")), 268);
    EXPECT_EQ(KVJHelper::RibbonDescriptionToInt(Name("YMCOVIKO")), 260);
    EXPECT_EQ(KVJHelper::RibbonDescriptionToInt(Name("wh\xFDte")), 263);  // with a dotless i
}

TEST(RibbonType, OnlyDyeSublimationIsRead) {
    expectCodes(KVJHelper::RibbonTypeToInt, {{"dye_sub", 0}});
    expectOther(KVJHelper::RibbonTypeToInt, -1, {"resin", "Dye_Sub", "DYE_SUB", "dye_sub ", "dye", "dye sub"});
}

TEST(RibbonType, ResinIsWrittenAllTheSame) {
    expectWords(kvjxml::ribbonTypesWritten, {{0, "dye_sub"}, {1, "resin"}});
    expectNoWords(kvjxml::ribbonTypesWritten, {2, -1});
}

TEST(Panel, EachReadsAsItsCode) {
    expectCodes(KVJHelper::PanelToInt, {{"yellow_panel", 0}, {"magenta_panel", 1}, {"cyan_panel", 2}});
    expectOther(KVJHelper::PanelToInt, -1, {"yellow", "Yellow_panel", "YELLOW_PANEL", "black_panel", "cyan_panel "});
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

TEST(FeederSmart, CaseCounts) {
    expectOther(KVJHelper::FeederSmartToInt, -1, {"ICLASS", "iClass", "Contact", "MIFARE", "contac", "uh f", "none"});
}

TEST(FeederSmart, TheSameWordsAreWritten) {
    expectWords(kvjxml::smartEncoders,
                {{0, "contact"}, {1, "iclass"}, {2, "mifare"}, {3, "prox"}, {4, "uhf"}, {5, "legic"}});
    expectNoWords(kvjxml::smartEncoders, {6, -1});
}

TEST(FeederType, EachOccursAnywhereInTheText) {
    expectCodes(KVJHelper::FeederTypeToInt,
                {{"pvc", 1}, {"composite", 0}, {"white pvc", 1}, {"pvc_30mil", 1}, {"a composite card", 0}});
}

TEST(FeederType, PvcCountsBeforeComposite) {
    expectCodes(KVJHelper::FeederTypeToInt, {{"pvc composite", 1}, {"composite pvc", 1}});
}

TEST(FeederType, CaseCounts) {
    expectOther(KVJHelper::FeederTypeToInt, -1, {"PVC", "Pvc", "Composite", "pet", "pv c"});
}

TEST(FeederType, TheSameWordsAreWritten) {
    expectWords(kvjxml::cardMaterials, {{0, "composite"}, {1, "pvc"}});
    expectNoWords(kvjxml::cardMaterials, {2, -1});
}

TEST(FeederMode, EachReadsAsItsCodeAndAnyOtherAsTheHopper) {
    for (const auto& [word, code] : WordsAndCodes{{"manual", 0},
                                                  {"hopper", 1},
                                                  {"alreadyinprinter", 2},
                                                  {"auto", 3},
                                                  {"", 1},
                                                  {"Manual", 1},
                                                  {"automatic", 1},
                                                  {"already_in_printer", 1}}) {
        EXPECT_EQ(kvjxml::anyCodeOf(kvjxml::feederModes, word), code) << '"' << word << '"';
    }
    EXPECT_EQ(kvjxml::anyCodeOf(kvjxml::feederModes, nullptr), 1);
}

TEST(FeederMode, EachIsWrittenAsItsWord) {
    expectWords(kvjxml::feederModes, {{0, "manual"}, {1, "hopper"}, {2, "alreadyinprinter"}, {3, "auto"}});
    expectNoWords(kvjxml::feederModes, {4, -1});
}

TEST(Coercivity, EachReadsAsItsCode) {
    expectCodes(KVJHelper::CoercivityToInt, {{"low", 1}, {"high", 2}});
    expectOther(KVJHelper::CoercivityToInt, 0, {"none", "Low", "HIGH", "lo", "high ", "highest"});
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

TEST(CommsChannel, EachReadsAsItsCode) {
    expectCodes(KVJHelper::CommsChannelToInt, {{"serial", 1}, {"usb", 2}});
    expectOther(KVJHelper::CommsChannelToInt, 0, {"usb_2_0", "USB", "Serial", "usb ", "ethernet"});
}

TEST(CommsChannel, TheConfigurationWritesTheWordsThatAreRead) {
    expectWords(kvjxml::commsChannels, {{1, "serial"}, {2, "usb"}});
    expectNoWords(kvjxml::commsChannels, {0, 3, -1});
}

TEST(CommsChannel, TheCapabilitiesWriteAWordForUsbThatIsNotRead) {
    expectWords(kvjxml::commsChannelsInCapabilities, {{1, "serial"}, {2, "usb_2_0"}});
    expectNoWords(kvjxml::commsChannelsInCapabilities, {0, 3, -1});
    EXPECT_EQ(KVJHelper::CommsChannelToInt(Name(kvjxml::wordOf(kvjxml::commsChannelsInCapabilities, 2))), 0);
}

TEST(ContactlessEncoder, EachReadsAsItsCode) {
    expectCodes(KVJHelper::ContactlessEncToInt, {{"mifare", 1}, {"felica", 2}, {"uhf", 3}, {"hf", 4}, {"lf", 5}});
    expectOther(KVJHelper::ContactlessEncToInt, 0,
                {"none", "Mifare", "MIFARE", "mifare ", "f", "hid_mifare", "iclass"});
}

TEST(ContactlessEncoder, OnlyOneIsWritten) {
    expectWords(kvjxml::contactlessEncodersWritten, {{1, "mifare"}});
    expectNoWords(kvjxml::contactlessEncodersWritten, {0, 2, 3, 4, 5, 6, -1});
}

// ---- Laminator ----

TEST(LaminationType, EachReadsAsItsCode) {
    expectCodes(KVJHelper::LaminationTypeToInt, {{"2_side", 2}, {"1_side", 1}});
    expectOther(KVJHelper::LaminationTypeToInt, 0, {"none", "1_Side", "2_SIDE", "2_sides", "2", "side"});
}

TEST(LaminatorWidth, EachReadsAsItsCode) {
    expectCodes(KVJHelper::LaminatorWidthToInt, {{"full", 0}, {"mag", 1}, {"signature", 2}});
    expectOther(KVJHelper::LaminatorWidthToInt, -1, {"Full", "MAG", "magnetic", "none", "signature "});
}

TEST(LaminatorRegistration, EachReadsAsItsCode) {
    expectCodes(KVJHelper::LaminatorRegistrationToInt, {{"none", 0}, {"hologram", 1}, {"contact", 2}});
    expectOther(KVJHelper::LaminatorRegistrationToInt, -1, {"None", "Hologram", "CONTACT", "contactless", "holo"});
}

}  // namespace
