// What is shown of texts from outside, and what must not be shown.
#include "visible_text.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

#include "field_rows.h"
#include "messages/message.h"
#include "secrets.h"

namespace visible_text_test {

namespace {

using namespace kvj::tool;

TEST(VisibleText, OrdinaryTextStaysAsItIs) {
    EXPECT_EQ(visible("Caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80 ~"), "Caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80 ~");
    EXPECT_EQ(visible(""), "");
}

TEST(VisibleText, WhatATerminalWouldObeyIsANumber) {
    EXPECT_EQ(visible("a\x1B[2Jb"), "a\\x1B[2Jb");
    EXPECT_EQ(visible("\r\n\t\x7F"), "\\x0D\\x0A\\x09\\x7F");
    EXPECT_EQ(visible("\xC2\x9B"
                      "2J"),
              "\\u009B2J");
    EXPECT_EQ(visible(std::string_view("\0", 1)), "\\x00");
}

TEST(VisibleText, WhatWouldTurnTextAroundIsANumber) {
    EXPECT_EQ(visible("\xE2\x80\xAE"
                      "abc\xE2\x81\xA9\xD8\x9C"),
              "\\u202Eabc\\u2069\\u061C");
    EXPECT_EQ(visible("\xE2\x80\xA7\xE2\x80\xAF"), "\xE2\x80\xA7\xE2\x80\xAF") << "their neighbours";
}

TEST(VisibleText, BytesThatAreNoUtf8AreNumbers) {
    EXPECT_EQ(visible("\xE9t\xC3"), "\\xE9t\\xC3");
    EXPECT_EQ(visible("\xF0\x9F\x98"), "\\xF0\\x9F\\x98");
    EXPECT_EQ(visible("\xC0\x80"), "\\xC0\\x80");
}

// ---- Secrets ----

TEST(Secrets, AreKeysPasskeysAndTracks) {
    EXPECT_TRUE(isSecret("Kavrin::_WirelessParams", "key"));
    EXPECT_TRUE(isSecret("Kavrin::_tagSecKeys", "printer_lock_key"));
    EXPECT_TRUE(isSecret("Kavrin::_tagSecSetKeys", "current_passkey"));
    EXPECT_TRUE(isSecret("Kavrin::__GETTRACK", "track2"));
    EXPECT_FALSE(isSecret("Kavrin::_WirelessParams", "ssid"));
    EXPECT_FALSE(isSecret("Kavrin::KVGeneralStatus", "printerState"));
}

TEST(Secrets, HaveElements) {
    for (const char* name : {"key", "track1", "track2", "track3", "data_encryption_key", "new_passkey"}) {
        EXPECT_TRUE(isSecretElement(name)) << name;
    }
    EXPECT_FALSE(isSecretElement("ssid"));
    EXPECT_FALSE(isSecretElement("mag_track_1"));
}

// ---- Rows ----

TEST(FieldRows, KnowTheWordsOfACode) {
    ASSERT_NE(wordsRead("Kavrin::KVGeneralStatus", "printerState"), nullptr);
    EXPECT_EQ(kvj::codeOf(wordsRead("Kavrin::KVGeneralStatus", "printerState")->words, "printing"), 5);
    EXPECT_EQ(wordsRead("Kavrin::KVGeneralStatus", "alarms"), nullptr);
}

TEST(FieldRows, EachRowIsThereOnce) {
    const auto rows = rowsOfMessages();
    const std::set<const kvj::DescribedRow*> distinct(rows.begin(), rows.end());
    EXPECT_EQ(distinct.size(), rows.size());
    for (const auto& message : kvj::messages()) {
        for (const auto& row : message.table) EXPECT_TRUE(distinct.contains(&row)) << message.name << ' ' << row.name;
    }
}

}  // namespace

}  // namespace visible_text_test
