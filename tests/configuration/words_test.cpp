// The configuration's words and the codes that hosts know them by. The two directions differ in places, on purpose.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <initializer_list>
#include <string>
#include <utility>

#include "KVJConfigParser.h"
#include "KVJHelper.h"
#include "KVJSetConfig.h"
#include "configuration/records.h"
#include "foundation/name.h"

namespace {

using namespace kvjxml::tests;

using WordsAndCodes = std::initializer_list<std::pair<const char*, int>>;
using CodesAndWords = std::initializer_list<std::pair<int, const char*>>;

// ---- Words of a text ----

TEST(ErrorControlWord, NoneAndMedHaveCodesAndAnyOtherIsHigh) {
    for (const auto& [word, code] : WordsAndCodes{{"none", 0}, {"med", 1}, {"high", 2}}) {
        EXPECT_EQ(KVJConfigParser().stringToErrorControl(Name(word)), code) << word;
    }
    for (const char* word : {"", "None", "MED", "medium", "med ", "low", "0"}) {
        EXPECT_EQ(KVJConfigParser().stringToErrorControl(Name(word)), 2) << word;
    }
    EXPECT_EQ(KVJConfigParser().stringToErrorControl(nullptr), 2);
}

TEST(FeederModeWord, EachHasItsCodeAndAnyOtherIsTheHopper) {
    for (const auto& [word, code] : WordsAndCodes{{"manual", 0}, {"hopper", 1}, {"alreadyinprinter", 2}, {"auto", 3}}) {
        EXPECT_EQ(KVJConfigParser().stringToFeederMode(Name(word)), code) << word;
    }
    for (const char* word : {"", "Manual", "AUTO", "automatic", "already_in_printer", "alreadyInPrinter", "3"}) {
        EXPECT_EQ(KVJConfigParser().stringToFeederMode(Name(word)), 1) << word;
    }
    EXPECT_EQ(KVJConfigParser().stringToFeederMode(nullptr), 1);
}

// ---- Words of an element ----

/// An element of one word, and the value that a host has there before.
template <class Code>
struct WordElement {
    ReaderOf<Code> reader;
    Code before;

    void expectCode(const std::string& content, int code) const {
        Code value = before;
        EXPECT_TRUE(read(reader, content, value)) << content;
        EXPECT_EQ(static_cast<int>(value), code) << content;
    }
    void expectCodes(WordsAndCodes cases) const {
        for (const auto& [word, code] : cases) expectCode(word, code);
    }
    void expectUntouched(std::initializer_list<const char*> contents) const {
        for (const char* content : contents) expectCode(content, before);
        expectCode(std::string(100000, 'w'), before);
    }
    void expectFalseWithoutText() const {
        Code value = before;
        EXPECT_FALSE(read(reader, "", value));
        EXPECT_FALSE((KVJConfigParser().*reader)(nullptr, value));
        EXPECT_EQ(value, before);
    }
    /// A text that is there but empty is none. A reference to NUL ends a text.
    void expectFalseWithAnEmptyText() const {
        for (const char* content : {"<![CDATA[]]>", "&#0;", "&#x0;", "&#0;none", "<!---->", "<![CDATA[]]>none"}) {
            Code value = before;
            EXPECT_FALSE(read(reader, content, value)) << content;
            EXPECT_EQ(value, before) << content;
        }
    }
};

const WordElement<WirelessSecurity> security{&KVJConfigParser::GetSecurity, static_cast<WirelessSecurity>(-7)};
const WordElement<WirelessCrypto> crypto{&KVJConfigParser::GetCrypto, static_cast<WirelessCrypto>(-7)};
const WordElement<USB_Speed> usbSpeed{&KVJConfigParser::getUSBSpeed, static_cast<USB_Speed>(-7)};
const WordElement<_eFeedMode> feederMode{&KVJConfigParser::getFeederMode, static_cast<_eFeedMode>(-7)};

TEST(SecurityWord, EachHasItsCodeInLowerAndUpperCase) {
    security.expectCodes({{"open", 0},
                          {"none", 0},
                          {"wep40", 1},
                          {"WEP40", 1},
                          {"wep104", 2},
                          {"WEP104", 2},
                          {"wpa", 3},
                          {"WPA", 3},
                          {"wpa2", 4},
                          {"WPA2", 4},
                          {"wpa_wpa2", 5},
                          {"wpa2_wpa", 5},
                          {"WPA_WPA2", 5},
                          {"WPA2_WPA", 5}});
}

TEST(SecurityWord, AnyOtherLeavesTheCodeAndIsTrue) {
    security.expectUntouched(
        {"OPEN", "Open", "None", "Wep40", "wep", "WEP128", "Wpa", "wpa3", "WPA_wpa2", "wpa-wpa2", "wpa2_", "0"});
}

TEST(SecurityWord, WithoutTextIsFalseAndLeavesTheCode) { security.expectFalseWithoutText(); }

TEST(SecurityWord, WithAnEmptyTextIsFalseAndLeavesTheCode) { security.expectFalseWithAnEmptyText(); }

TEST(CryptoWord, EachHasItsCodeAndTheMixedOnesAreTheStronger) {
    crypto.expectCodes({{"none", 0},
                        {"RC4", 1},
                        {"rc4", 1},
                        {"TKIP", 2},
                        {"tkip", 2},
                        {"CCMP", 3},
                        {"ccmp", 3},
                        {"CCMP_TKIP", 3},
                        {"TKIP_CCMP", 3},
                        {"ccmp_tkip", 3},
                        {"tkip_ccmp", 3}});
}

TEST(CryptoWord, AnyOtherLeavesTheCodeAndIsTrue) {
    crypto.expectUntouched({"None", "NONE", "Rc4", "Tkip", "Ccmp", "ccmp_TKIP", "TKIP-CCMP", "aes", "CCMP_", "1"});
}

TEST(CryptoWord, WithoutTextIsFalseAndLeavesTheCode) { crypto.expectFalseWithoutText(); }

TEST(CryptoWord, WithAnEmptyTextIsFalseAndLeavesTheCode) { crypto.expectFalseWithAnEmptyText(); }

TEST(UsbSpeedWord, FullAndHighHaveCodes) { usbSpeed.expectCodes({{"full", 1}, {"high", 0}}); }

TEST(UsbSpeedWord, AnyOtherLeavesTheCodeAndIsTrue) {
    usbSpeed.expectUntouched({"Full", "HIGH", "low", "super", "fullhigh", "1"});
}

TEST(UsbSpeedWord, WithoutTextIsFalseAndLeavesTheCode) { usbSpeed.expectFalseWithoutText(); }

TEST(FeederModeElement, HasTheCodeOfItsWordAndAnyOtherIsTheHopper) {
    feederMode.expectCodes({{"manual", 0},
                            {"hopper", 1},
                            {"alreadyinprinter", 2},
                            {"auto", 3},
                            {"Hopper", 1},
                            {"Manual", 1},
                            {"tray", 1}});
    feederMode.expectCode(std::string(100000, 'w'), 1);
}

TEST(FeederModeElement, WithoutTextIsFalseAndLeavesTheCode) { feederMode.expectFalseWithoutText(); }

// ---- Codes to constant words ----

template <class Code>
void expectWords(const char* (KVJSetConfig::*operation)(Code), CodesAndWords cases) {
    for (const auto& [code, word] : cases) {
        EXPECT_STREQ((KVJSetConfig().*operation)(static_cast<Code>(code)), word) << code;
    }
}

TEST(SecurityWord, IsWrittenInOneSpellingAndNeverAsOpen) {
    expectWords(&KVJSetConfig::GetSecurity,
                {{0, "none"}, {1, "wep40"}, {2, "wep104"}, {3, "wpa"}, {4, "wpa2"}, {5, "wpa_wpa2"}});
}

TEST(SecurityWord, OfAnyOtherCodeIsEmpty) {
    expectWords(&KVJSetConfig::GetSecurity, {{6, ""}, {-1, ""}, {256, ""}, {INT_MAX, ""}, {INT_MIN, ""}});
}

TEST(CryptoWord, IsWrittenInOneSpelling) {
    expectWords(&KVJSetConfig::GetCrypto, {{0, "none"}, {1, "RC4"}, {2, "TKIP"}, {3, "CCMP"}});
}

TEST(CryptoWord, OfAnyOtherCodeIsEmpty) {
    expectWords(&KVJSetConfig::GetCrypto, {{4, ""}, {-1, ""}, {256, ""}, {INT_MAX, ""}, {INT_MIN, ""}});
}

TEST(FeederModeWord, OfACodeIsTheOneThatReadsAsIt) {
    expectWords(&KVJSetConfig::FeederModeToString,
                {{0, "manual"}, {1, "hopper"}, {2, "alreadyinprinter"}, {3, "auto"}});
}

TEST(FeederModeWord, OfAnyOtherCodeIsTheHopper) {
    expectWords(&KVJSetConfig::FeederModeToString,
                {{4, "hopper"}, {-1, "hopper"}, {256, "hopper"}, {INT_MAX, "hopper"}, {INT_MIN, "hopper"}});
}

TEST(WirelessWords, WrittenOnesReadBack) {
    for (int code = 0; code <= 5; ++code) {
        security.expectCode(KVJSetConfig().GetSecurity(static_cast<WirelessSecurity>(code)), code);
    }
    for (int code = 0; code <= 3; ++code) {
        crypto.expectCode(KVJSetConfig().GetCrypto(static_cast<WirelessCrypto>(code)), code);
    }
}

TEST(WirelessWords, AMixedNetworkReadAs5IsWrittenWithTheOlderOneFirst) {
    WirelessSecurity value = wirelessOpen;
    EXPECT_TRUE(read(&KVJConfigParser::GetSecurity, "WPA2_WPA", value));
    EXPECT_EQ(value, 5);
    EXPECT_STREQ(KVJSetConfig().GetSecurity(value), "wpa_wpa2");
}

// ---- Codes to words in a buffer of the host's ----

/// What an operation makes of a buffer of '#', from its beginning to just after the word's terminator, and its result.
struct Written {
    bool result;
    std::string word;
    bool operator==(const Written&) const = default;
};

template <class Call>
Written writtenBy(Call call) {
    char buffer[32];
    std::memset(buffer, '#', sizeof buffer);
    const bool result = call(buffer);
    const std::size_t length = strnlen(buffer, sizeof buffer);
    for (std::size_t i = length + 1; i < sizeof buffer; ++i) EXPECT_EQ(buffer[i], '#') << i;
    return {result, std::string(buffer, length)};
}

using WordOperation = bool (KVJSetConfig::*)(char*, int);

Written writtenBy(WordOperation operation, int code) {
    return writtenBy([&](char* buffer) { return (KVJSetConfig().*operation)(buffer, code); });
}

void expectWords(WordOperation operation, CodesAndWords cases) {
    for (const auto& [code, word] : cases) EXPECT_EQ(writtenBy(operation, code), (Written{true, word})) << code;
}

/// That none of these codes has a word, nor any far outside.
void expectNoWords(WordOperation operation, std::initializer_list<int> codes) {
    for (const int code : codes) EXPECT_EQ(writtenBy(operation, code), (Written{false, ""})) << code;
    for (const int code : {-1, INT_MAX, INT_MIN}) EXPECT_EQ(writtenBy(operation, code), (Written{false, ""})) << code;
    EXPECT_FALSE((KVJSetConfig().*operation)(nullptr, 0));
}

TEST(RibbonNameWord, OfEachCodeIsWrittenInOneSpelling) {
    expectWords(&KVJSetConfig::RibbonNameToString, {{256, "YMCKO"},
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
}

TEST(RibbonNameWord, OfAnyOtherCodeIsEmptyAndFalse) {
    expectNoWords(&KVJSetConfig::RibbonNameToString, {0, 1, 255, 272, 512});
}

TEST(RibbonNameWord, OfADescriptionWithTwoOverlaysIsRefused) {
    EXPECT_EQ(writtenBy(&KVJSetConfig::RibbonNameToString, KVJHelper::RibbonDescriptionToInt(Name("ymckoo"))),
              (Written{false, ""}));
}

TEST(RibbonNameWord, ReadsBackAsItsCode) {
    for (int code = 256; code <= 271; ++code) {
        EXPECT_EQ(KVJHelper::RibbonNameToInt(Name(writtenBy(&KVJSetConfig::RibbonNameToString, code).word)), code);
    }
}

TEST(RibbonTypeWord, ResinIsWrittenButDoesNotReadBack) {
    expectWords(&KVJSetConfig::ribbonTypeToString, {{0, "dye_sub"}, {1, "resin"}});
    expectNoWords(&KVJSetConfig::ribbonTypeToString, {2, 256});
    EXPECT_EQ(KVJHelper::RibbonTypeToInt(Name("dye_sub")), 0);
    EXPECT_EQ(KVJHelper::RibbonTypeToInt(Name("resin")), -1);
}

TEST(FeederSmartWord, OfEachCodeReadsBack) {
    const CodesAndWords words = {{0, "contact"}, {1, "iclass"}, {2, "mifare"}, {3, "prox"}, {4, "uhf"}, {5, "legic"}};
    expectWords(&KVJSetConfig::feederSmartToString, words);
    expectNoWords(&KVJSetConfig::feederSmartToString, {6, 256});
    for (const auto& [code, word] : words) EXPECT_EQ(KVJHelper::FeederSmartToInt(Name(word)), code) << word;
}

TEST(FeederTypeWord, OfEachCodeReadsBack) {
    const CodesAndWords words = {{0, "composite"}, {1, "pvc"}};
    expectWords(&KVJSetConfig::feederTypeToString, words);
    expectNoWords(&KVJSetConfig::feederTypeToString, {2, 256});
    for (const auto& [code, word] : words) EXPECT_EQ(KVJHelper::FeederTypeToInt(Name(word)), code) << word;
}

using EncoderWordOperation = bool (KVJSetConfig::*)(int, char*, int);

/// That each code has this word and is true; the last argument is ignored.
void expectEncoderWords(EncoderWordOperation operation, CodesAndWords cases) {
    for (const auto& [code, word] : cases) {
        for (const int ignored : {32, 0, 1, -1}) {
            const auto call = [&, code = code](char* buffer) {
                return (KVJSetConfig().*operation)(code, buffer, ignored);
            };
            EXPECT_EQ(writtenBy(call), (Written{true, word})) << code;
        }
    }
    EXPECT_FALSE((KVJSetConfig().*operation)(1, nullptr, 32));
}

TEST(CommsChannelWord, IsAlwaysTrueAndEmptyForAnyOtherCode) {
    expectEncoderWords(
        &KVJSetConfig::CommsChannelFromInt,
        {{1, "serial"}, {2, "usb"}, {0, ""}, {3, ""}, {-1, ""}, {256, ""}, {INT_MAX, ""}, {INT_MIN, ""}});
    EXPECT_EQ(KVJHelper::CommsChannelToInt(Name("serial")), 1);
    EXPECT_EQ(KVJHelper::CommsChannelToInt(Name("usb")), 2);
}

TEST(ContactlessEncoderWord, IsThatOfOneCodeAndAlwaysTrue) {
    expectEncoderWords(
        &KVJSetConfig::ContactlessEncFromInt,
        {{1, "mifare"}, {0, ""}, {2, ""}, {3, ""}, {4, ""}, {5, ""}, {6, ""}, {-1, ""}, {INT_MAX, ""}, {INT_MIN, ""}});
    EXPECT_EQ(KVJHelper::ContactlessEncToInt(Name("mifare")), 1);
    EXPECT_EQ(KVJHelper::ContactlessEncToInt(Name("felica")), 2);
}

}  // namespace
