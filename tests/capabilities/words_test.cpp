// The capabilities' words: what a code alone does not tell, and where the two directions differ. What each word stands
// for is in tests/words.
#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <string>

#include "KVJCapsParser.h"
#include "KVJHelper.h"
#include "KVJSetCaps.h"

namespace words_test {

namespace {

using namespace Kavrin;

// ---- Codes to words ----

/// That a buffer gets the terminated word, and nothing after the 32 characters that there must be room for.
void expectWord(const std::function<bool(char*)>& write, const std::string& word, bool result) {
    std::string buffer(40, '#');
    EXPECT_EQ(write(buffer.data()), result);
    EXPECT_EQ(buffer.substr(0, word.size() + 1), word + '\0');
    EXPECT_EQ(buffer.substr(32), "########");
}

TEST(CodesToWords, WithoutABufferItIsFalse) {
    KVJSetCaps composer;
    for (const auto operation :
         {&KVJSetCaps::portTypeToString, &KVJSetCaps::protocolToString, &KVJSetCaps::transportToString,
          &KVJSetCaps::encAlgToString, &KVJSetCaps::graphicFormatToString, &KVJSetCaps::MagHeadTypeToString,
          &KVJSetCaps::magStripeLocationToString, &KVJSetCaps::printTypeToString, &KVJSetCaps::ribbonTypeToString,
          &KVJSetCaps::feederTypeToString, &KVJSetCaps::feederSmartToString}) {
        for (const int code : {-1, 0, 1, 2}) EXPECT_FALSE((composer.*operation)(nullptr, code)) << code;
    }
    for (const int code : {-1, 0, 1, 2}) {
        EXPECT_FALSE(composer.CommsChannelFromInt(code, nullptr, 0)) << code;
        EXPECT_FALSE(composer.ContactlessEncFromInt(code, nullptr, 0)) << code;
    }
    EXPECT_FALSE(composer.LamTypeToString(nullptr, laminatorOneSided));
    EXPECT_FALSE(composer.LaminatorToString(nullptr, 1));
    EXPECT_FALSE(composer.printSystemTypeToString(nullptr, 0));
}

TEST(CodesToWords, TheLastArgumentOfTheEncoderWordsDoesNotCount) {
    KVJSetCaps composer;
    for (const int ignored : {INT_MIN, -1, 0, 1, 32, INT_MAX}) {
        expectWord([&](char* buffer) { return composer.CommsChannelFromInt(2, buffer, ignored); }, "usb_2_0", true);
        expectWord([&](char* buffer) { return composer.ContactlessEncFromInt(1, buffer, ignored); }, "mifare", true);
    }
}

TEST(CodesToWords, ALaminatorTypeHasAWordForNoneAsWell) {
    KVJSetCaps composer;
    const auto expectType = [&](_laminatorType type, const char* word) {
        expectWord([&](char* buffer) { return composer.LamTypeToString(buffer, type); }, word, true);
    };
    expectType(laminatorNone, "none");
    expectType(laminatorOneSided, "1_side");
    expectType(laminatorTwoSided, "2_side");
}

TEST(CodesToWords, AnUnknownLaminatorTypeLeavesTheBufferAndIsTrue) {
    KVJSetCaps composer;
    for (const int type : {INT_MIN, -1, 3, 4, INT_MAX}) {
        std::string buffer = "as it was";
        EXPECT_TRUE(composer.LamTypeToString(buffer.data(), static_cast<_laminatorType>(type)));
        EXPECT_EQ(buffer, "as it was");
    }
}

TEST(CodesToWords, ALaminatorIsPresentForAnyFlagButZero) {
    KVJSetCaps composer;
    for (const char flag : {'\1', '\2', '\x7F', '\x80', '\xFF'}) {
        expectWord([&composer, flag](char* buffer) { return composer.LaminatorToString(buffer, flag); }, "present",
                   true);
    }
    expectWord([&](char* buffer) { return composer.LaminatorToString(buffer, 0); }, "notpresent", true);
}

TEST(CodesToWords, APrintSystemIsThatOfTheLastRequestWhateverTheCode) {
    KVJSetCaps composer;
    const auto expectPrintSystem = [&](const char* word) {
        for (const int code : {-1, 0, 1, 2}) {
            expectWord([&](char* buffer) { return composer.printSystemTypeToString(buffer, code); }, word, true);
        }
    };
    expectPrintSystem("retransfer");
    composer.SetCapabilities({}, nullptr, 0, 0, true);
    expectPrintSystem("direct_to_card");
    composer.SetCapabilities({}, nullptr, 0, 0, false);
    expectPrintSystem("retransfer");
}

// ---- Both directions ----

TEST(BothDirections, AWirelessPortAndAJisHeadAreReadButNotWritten) {
    KVJSetCaps composer;
    EXPECT_EQ(KVJCapsParser().portTypeToInt("wifi_enet_802_11g"), 4);
    expectWord([&](char* buffer) { return composer.portTypeToString(buffer, 4); }, "", false);
    EXPECT_EQ(KVJCapsParser().magHeadTypeToInt("jis"), 5);
    expectWord([&](char* buffer) { return composer.MagHeadTypeToString(buffer, 5); }, "", false);
}

TEST(BothDirections, WordsThatAreOnlyWrittenReadAsTheDefault) {
    KVJCapsParser parser;
    EXPECT_EQ(parser.printerTypeToInt("direct_to_card"), -1);
    EXPECT_EQ(parser.encAlgToInt("none"), -1);
    EXPECT_EQ(parser.laminationTypeToInt("none"), 0);
    std::string resin = "resin";
    EXPECT_EQ(KVJHelper::RibbonTypeToInt(resin.data()), -1);
    std::string usb = "usb_2_0";
    EXPECT_EQ(KVJHelper::CommsChannelToInt(usb.data()), 0);
}

}  // namespace

}  // namespace words_test
