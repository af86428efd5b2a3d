// The configuration's words: elements without one, words that the two directions do not share, and buffers. What each
// word stands for is in tests/words.
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "KVJConfigParser.h"
#include "KVJHelper.h"
#include "KVJSetConfig.h"
#include "configuration/records.h"
#include "foundation/name.h"

namespace words_test {

namespace {

using namespace kvj::tests;

// ---- Words of an element ----

/// An element of one word, and the value that a host has there before.
template <class Code>
struct WordElement {
    ReaderOf<Code> reader;
    Code before;

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

TEST(SecurityWord, WithoutTextIsFalseAndLeavesTheCode) { security.expectFalseWithoutText(); }

TEST(SecurityWord, WithAnEmptyTextIsFalseAndLeavesTheCode) { security.expectFalseWithAnEmptyText(); }

TEST(CryptoWord, WithoutTextIsFalseAndLeavesTheCode) { crypto.expectFalseWithoutText(); }

TEST(CryptoWord, WithAnEmptyTextIsFalseAndLeavesTheCode) { crypto.expectFalseWithAnEmptyText(); }

TEST(UsbSpeedWord, WithoutTextIsFalseAndLeavesTheCode) { usbSpeed.expectFalseWithoutText(); }

TEST(FeederModeElement, WithoutTextIsFalseAndLeavesTheCode) { feederMode.expectFalseWithoutText(); }

TEST(WirelessWords, AMixedNetworkReadAs5IsWrittenWithTheOlderOneFirst) {
    WirelessSecurity value = wirelessOpen;
    EXPECT_TRUE(read(&KVJConfigParser::GetSecurity, "WPA2_WPA", value));
    EXPECT_EQ(value, 5);
    EXPECT_STREQ(KVJSetConfig().GetSecurity(value), "wpa_wpa2");
}

// ---- Words in a buffer of the host's ----

TEST(RibbonNameWord, OfADescriptionWithTwoOverlaysIsRefused) {
    std::string buffer = "before";
    EXPECT_FALSE(KVJSetConfig().RibbonNameToString(buffer.data(), KVJHelper::RibbonDescriptionToInt(Name("ymckoo"))));
    EXPECT_STREQ(buffer.c_str(), "");
}

TEST(RibbonTypeWord, ResinIsWrittenButDoesNotReadBack) {
    std::string buffer(32, '\0');
    EXPECT_TRUE(KVJSetConfig().ribbonTypeToString(buffer.data(), 1));
    EXPECT_STREQ(buffer.c_str(), "resin");
    EXPECT_EQ(KVJHelper::RibbonTypeToInt(buffer.data()), -1);
}

TEST(WordsInABuffer, WithoutABufferTheResultIsFalse) {
    KVJSetConfig composer;
    for (const auto operation : {&KVJSetConfig::RibbonNameToString, &KVJSetConfig::ribbonTypeToString,
                                 &KVJSetConfig::feederSmartToString, &KVJSetConfig::feederTypeToString}) {
        for (const int code : {-1, 0, 1, 256}) EXPECT_FALSE((composer.*operation)(nullptr, code)) << code;
    }
    for (const auto operation : {&KVJSetConfig::CommsChannelFromInt, &KVJSetConfig::ContactlessEncFromInt}) {
        for (const int code : {-1, 0, 1, 2}) EXPECT_FALSE((composer.*operation)(code, nullptr, 32)) << code;
    }
}

TEST(EncoderWords, DoNotDependOnTheLastArgument) {
    for (const int ignored : {32, 0, 1, -1}) {
        std::string buffer(32, '#');
        EXPECT_TRUE(KVJSetConfig().CommsChannelFromInt(2, buffer.data(), ignored));
        EXPECT_STREQ(buffer.c_str(), "usb");
        EXPECT_TRUE(KVJSetConfig().ContactlessEncFromInt(1, buffer.data(), ignored));
        EXPECT_STREQ(buffer.c_str(), "mifare");
    }
}

}  // namespace

}  // namespace words_test
