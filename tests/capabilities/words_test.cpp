// The words of the capabilities and their codes. What is written is not in every place what is read.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <climits>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "KVJCapsParser.h"
#include "KVJHelper.h"
#include "KVJSetCaps.h"

namespace {

using namespace Kavrin;

using WordsAndCodes = std::vector<std::pair<const char*, int>>;

// ---- Words to codes ----

struct Reader {
    const char* name;
    int (KVJCapsParser::*read)(const char*);
    WordsAndCodes rows;
    int other;
};
const Reader readers[] = {
    {"port type",
     &KVJCapsParser::portTypeToInt,
     {{"usb_2_0", 0}, {"serial", 1}, {"ethernet_10_100", 2}, {"ethernet_10_100_1G", 3}, {"wifi_enet_802_11g", 4}},
     -1},
    {"protocol", &KVJCapsParser::protocolToInt, {{"snmp", 0}, {"snmp_trap", 1}, {"http", 2}, {"kavrin", 3}}, -1},
    {"transport", &KVJCapsParser::transportToInt, {{"udp", 0}, {"tcp", 1}, {"usb", 2}, {"usb_2_0", 3}}, -1},
    {"encryption algorithm", &KVJCapsParser::encAlgToInt, {{"aes", 1}, {"3des", 2}}, -1},
    {"graphic format",
     &KVJCapsParser::graphicsFormatToInt,
     {{"bmp", 1}, {"jpeg", 2}, {"tga", 8}, {"tiff", 9}, {"raw", 10}},
     -1},
    {"magnetic head type",
     &KVJCapsParser::magHeadTypeToInt,
     {{"none", 0}, {"iso", 1}, {"aamva", 2}, {"custom", 3}, {"binary", 4}, {"jis", 5}},
     -1},
    {"stripe location", &KVJCapsParser::magStripeLocationToInt, {{"back", 0}, {"front", 1}}, -1},
    {"print system", &KVJCapsParser::printerTypeToInt, {{"direct", 0}, {"retransfer", 1}}, -1},
    {"print type", &KVJCapsParser::laminationTypeToInt, {{"1_side", 1}, {"2_side", 2}}, 0},
};

TEST(WordsToCodes, EveryWordHasItsCode) {
    for (const Reader& reader : readers) {
        for (const auto& [word, code] : reader.rows) {
            EXPECT_EQ((KVJCapsParser().*reader.read)(word), code) << reader.name << ' ' << word;
        }
    }
}

TEST(WordsToCodes, AWordIsComparedWholeAndCaseCounts) {
    for (const Reader& reader : readers) {
        for (const auto& [row, code] : reader.rows) {
            const std::string word = row;
            std::string upper = word;
            std::ranges::transform(upper, upper.begin(), [](unsigned char c) { return std::toupper(c); });
            for (const std::string& text :
                 {upper, word + "x", word.substr(0, word.size() - 1), " " + word, word + " "}) {
                EXPECT_EQ((KVJCapsParser().*reader.read)(text.c_str()), reader.other)
                    << reader.name << " \"" << text << '"';
            }
        }
    }
}

TEST(WordsToCodes, AnyOtherTextAndNoneAtAllHaveTheDefault) {
    const std::string endless(100000, 'w');
    for (const Reader& reader : readers) {
        for (const char* text : {"", " ", "0", "1", "unknown", endless.c_str()}) {
            EXPECT_EQ((KVJCapsParser().*reader.read)(text), reader.other) << reader.name << " \"" << text << '"';
        }
        EXPECT_EQ((KVJCapsParser().*reader.read)(nullptr), reader.other) << reader.name;
    }
}

// ---- Codes to words ----

struct Written {
    int code;
    std::string word;
    bool result = true;
};

using Write = std::function<bool(KVJSetCaps&, char*, int)>;

struct WordOperation {
    const char* name;
    Write write;
    std::vector<Written> rows;
    std::string other;
    bool otherResult;
};
const WordOperation wordOperations[] = {
    {"port type",
     &KVJSetCaps::portTypeToString,
     {{0, "usb_2_0"}, {1, "serial"}, {2, "ethernet_10_100"}, {3, "ethernet_10_100_1G"}},
     "",
     false},
    {"protocol", &KVJSetCaps::protocolToString, {{0, "snmp"}, {1, "snmp_trap"}, {2, "http"}, {3, "kavrin"}}, "", false},
    {"transport", &KVJSetCaps::transportToString, {{0, "udp"}, {1, "tcp"}, {2, "usb"}, {3, "usb_2_0"}}, "", false},
    {"encryption algorithm", &KVJSetCaps::encAlgToString, {{1, "aes"}, {2, "3des"}}, "none", false},
    {"graphic format",
     &KVJSetCaps::graphicFormatToString,
     {{1, "bmp"}, {2, "jpeg"}, {8, "tga"}, {9, "tiff"}, {10, "raw"}},
     "",
     false},
    {"magnetic head type",
     &KVJSetCaps::MagHeadTypeToString,
     {{0, "none"}, {1, "iso"}, {2, "aamva"}, {3, "custom"}, {4, "binary"}},
     "",
     false},
    {"stripe location", &KVJSetCaps::magStripeLocationToString, {{0, "back"}, {1, "front"}}, "", false},
    {"print type", &KVJSetCaps::printTypeToString, {{1, "1_side", true}, {2, "2_side", false}}, "", false},
    {"communication channel",
     [](KVJSetCaps& caps, char* buffer, int code) { return caps.CommsChannelFromInt(code, buffer, 0); },
     {{1, "serial"}, {2, "usb_2_0"}},
     "",
     true},
    {"contactless encoder",
     [](KVJSetCaps& caps, char* buffer, int code) { return caps.ContactlessEncFromInt(code, buffer, 0); },
     {{1, "mifare"}},
     "",
     true},
    {"ribbon type", &KVJSetCaps::ribbonTypeToString, {{0, "dye_sub"}, {1, "resin"}}, "", false},
    {"card material", &KVJSetCaps::feederTypeToString, {{0, "composite"}, {1, "pvc"}}, "", false},
    {"feeder encoder",
     &KVJSetCaps::feederSmartToString,
     {{0, "contact"}, {1, "iclass"}, {2, "mifare"}, {3, "prox"}, {4, "uhf"}, {5, "legic"}},
     "",
     false},
};

/// That a buffer gets the terminated word, and nothing after the 32 characters that there must be room for.
void expectWord(const std::function<bool(char*)>& write, const std::string& word, bool result) {
    std::string buffer(40, '#');
    EXPECT_EQ(write(buffer.data()), result);
    EXPECT_EQ(buffer.substr(0, word.size() + 1), word + '\0');
    EXPECT_EQ(buffer.substr(32), "########");
}

void expectWord(const WordOperation& operation, int code, const std::string& word, bool result) {
    const testing::ScopedTrace trace(__FILE__, __LINE__, operation.name + (' ' + std::to_string(code)));
    KVJSetCaps composer;
    expectWord([&](char* buffer) { return operation.write(composer, buffer, code); }, word, result);
}

TEST(CodesToWords, EveryCodeHasItsWordAndResult) {
    for (const WordOperation& operation : wordOperations) {
        for (const auto& [code, word, result] : operation.rows) expectWord(operation, code, word, result);
    }
}

TEST(CodesToWords, AnyOtherCodeHasTheDefault) {
    for (const WordOperation& operation : wordOperations) {
        for (const int code : {INT_MIN, -2, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 256, 0x10001, INT_MAX}) {
            if (std::ranges::find(operation.rows, code, &Written::code) != operation.rows.end()) continue;
            expectWord(operation, code, operation.other, operation.otherResult);
        }
    }
}

TEST(CodesToWords, WithoutABufferItIsFalse) {
    KVJSetCaps composer;
    for (const WordOperation& operation : wordOperations) {
        for (const int code : {-1, 0, 1, 2}) EXPECT_FALSE(operation.write(composer, nullptr, code)) << operation.name;
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

/// What a word is read as that was written for a code.
int readBack(const Reader& reader, const WordOperation& operation, int code) {
    KVJSetCaps composer;
    std::string buffer(32, '\0');
    operation.write(composer, buffer.data(), code);
    return (KVJCapsParser().*reader.read)(buffer.c_str());
}

const auto& named(const auto& tables, const std::string& name) {
    return *std::ranges::find(tables, name, [](const auto& table) { return std::string(table.name); });
}

TEST(BothDirections, WhatIsWrittenReadsBack) {
    for (const char* name : {"port type", "protocol", "transport", "encryption algorithm", "graphic format",
                             "magnetic head type", "stripe location", "print type"}) {
        const WordOperation& operation = named(wordOperations, name);
        for (const Written& row : operation.rows) {
            EXPECT_EQ(readBack(named(readers, name), operation, row.code), row.code) << name;
        }
    }
}

TEST(BothDirections, AWirelessPortAndAJisHeadAreReadButNotWritten) {
    EXPECT_EQ(KVJCapsParser().portTypeToInt("wifi_enet_802_11g"), 4);
    EXPECT_EQ(readBack(named(readers, "port type"), named(wordOperations, "port type"), 4), -1);
    EXPECT_EQ(KVJCapsParser().magHeadTypeToInt("jis"), 5);
    EXPECT_EQ(readBack(named(readers, "magnetic head type"), named(wordOperations, "magnetic head type"), 5), -1);
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
