// The verb "decode": where a reply comes from, which message it is, and what the shell is told.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tool/tool.h"

namespace decode_test {

namespace {

using kvj::tests::contentOf;
using kvj::tests::Outcome;
using kvj::tests::runTool;
using kvj::tests::TemporaryFolder;
using nlohmann::json;
using testing::HasSubstr;

const std::string sample = std::string(KVJXML_REPLIES) + "/get_job_status.xml";

json recordOf(const Outcome& outcome) { return json::parse(outcome.out); }

TEST(Decode, ReadsStandardInputForADashAndWithoutAName) {
    const std::string reply = contentOf(sample);
    const Outcome fromFile = runTool("decode " + sample);
    EXPECT_EQ(runTool("decode -", reply).out, fromFile.out);
    EXPECT_EQ(runTool("decode", reply).out, fromFile.out);
    EXPECT_EQ(recordOf(fromFile).at("actionId"), 1042);
}

TEST(Decode, AFileThatIsNotThereIsCode1AndSaysWhich) {
    const Outcome outcome = runTool("decode /nowhere/reply.xml");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.error, "kvjxml: /nowhere/reply.xml: cannot be read: No such file or directory\n");
}

TEST(Decode, AFolderIsCode1) {
    const Outcome outcome = runTool("decode /");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.error, "kvjxml: /: cannot be read: Is a directory\n");
}

TEST(Decode, WrongUseIsCode2) {
    EXPECT_EQ(runTool("").code, 2);
    EXPECT_EQ(runTool("decipher").code, 2);
    EXPECT_EQ(runTool("decode --loud").code, 2);
    EXPECT_EQ(runTool("decode --separator semicolon").code, 2);
    EXPECT_EQ(runTool("decode --encoding ebcdic").code, 2);
    EXPECT_EQ(runTool("decode --format yaml").code, 2);
}

TEST(Decode, AnUnknownMessageNameIsCode2AndNamesTheKnownOnes) {
    const Outcome outcome = runTool("decode --message get_weather", "<get_weather/>");
    EXPECT_EQ(outcome.code, 2);
    EXPECT_THAT(outcome.error, HasSubstr("there is no message \"get_weather\"; there are AccessPoints,"));
    EXPECT_THAT(outcome.error, HasSubstr("get_general_status"));
}

TEST(Decode, SaysWhatStandsBehindTheMessage) {
    Outcome outcome = runTool("decode", "<get_count>\n</get_count>junk");
    EXPECT_EQ(outcome.code, 4);
    EXPECT_EQ(outcome.error,
              "kvjxml: standard input: read as far as it goes: line 2, column 13: a text beside elements\n");
    outcome = runTool("decode", "<get_count/>\n<get_count/>");
    EXPECT_EQ(outcome.code, 4);
    EXPECT_EQ(outcome.error,
              "kvjxml: standard input: read as far as it goes: line 2, column 1: an element beside the message\n");
}

TEST(Decode, AsksWhichMessageWasMeantByANameThatIsNear) {
    const Outcome outcome = runTool("decode", "<get_general_staus/>");
    EXPECT_EQ(outcome.code, 3);
    EXPECT_EQ(outcome.error,
              "kvjxml: standard input: the root element \"get_general_staus\" is not that of a known message; did you "
              "mean \"get_general_status\"?\n");
}

TEST(Decode, AnUnknownRootIsCode3AndSaysWhich) {
    const Outcome outcome = runTool("decode", "<get_weather><rain>yes</rain></get_weather>");
    EXPECT_EQ(outcome.code, 3);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.error,
              "kvjxml: standard input: the root element \"get_weather\" is not that of a known message\n");
}

TEST(Decode, ARootInOtherLetterCaseIsCode3) { EXPECT_EQ(runTool("decode", "<Get_Job_Status/>").code, 3); }

TEST(Decode, WhatIsNoXmlIsCode3AndSaysWhy) {
    EXPECT_EQ(runTool("decode", "").error, "kvjxml: standard input: is empty\n");
    const Outcome outcome = runTool("decode", "ready");
    EXPECT_EQ(outcome.code, 3);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.error, HasSubstr("standard input"));
    EXPECT_EQ(runTool("decode", "<!-- nothing -->").error, "kvjxml: standard input: there is no XML element in it\n");
}

TEST(Decode, NoReplyIsTooDeepOrTooWide) {
    std::string deep = "<get_job_status><action_id>7</action_id>";
    for (int level = 0; level < 10'000; ++level) deep += "<a>";
    for (int level = 0; level < 10'000; ++level) deep += "</a>";
    deep += "</get_job_status>";
    std::string wide = "<get_job_status";
    for (int number = 0; number < 10'000; ++number) wide += " a" + std::to_string(number) + "='1'";
    wide += "><action_id>7</action_id></get_job_status>";
    for (const std::string& reply : {deep, wide}) {
        const Outcome outcome = runTool("decode", reply);
        EXPECT_EQ(outcome.code, 0);
        EXPECT_EQ(recordOf(outcome).at("actionId"), 7);
    }
}

TEST(Decode, BytesThatAreNotUtf8AreDamageAndItSaysWhere) {
    const Outcome outcome =
        runTool("decode", "<get_job_status>\n<uuid>\u00E9 \x80</uuid><action_id>7</action_id></get_job_status>");
    EXPECT_EQ(outcome.code, 4);
    EXPECT_EQ(recordOf(outcome).at("damaged"), true);
    EXPECT_EQ(recordOf(outcome).at("uuid"), "\u00E9 \uFFFD");
    EXPECT_EQ(recordOf(outcome).at("actionId"), 7);
    EXPECT_EQ(outcome.error, "kvjxml: standard input: read as far as it goes: line 2, column 9: not UTF-8\n");
}

TEST(Decode, AKnownRootBehindAnUnknownOneIsFound) {
    const Outcome outcome =
        runTool("decode", "<header/><get_job_status><action_id>7</action_id></get_job_status><get_general_status/>");
    EXPECT_EQ(outcome.code, 4);
    EXPECT_EQ(recordOf(outcome).at("actionId"), 7);
}

TEST(Decode, AWholeReplyWhoseLastElementIsEmptyIsAnAnswer) {
    const Outcome outcome = runTool("decode", "<get_job_status><action_id>7</action_id><uuid/></get_job_status>");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(recordOf(outcome).at("actionId"), 7);
    EXPECT_EQ(outcome.error, "");
}

TEST(Decode, AGivenMessageOverridesTheRoot) {
    const std::string both =
        "<get_job_status><action_id>7</action_id></get_job_status>"
        "<get_general_status><error>8</error></get_general_status>";
    EXPECT_EQ(recordOf(runTool("decode --message get_general_status", both)).at("error"), 8);
    EXPECT_EQ(recordOf(runTool("decode --message get_job_status", both)).at("actionId"), 7);
}

TEST(Decode, AGivenMessageThatIsNotInTheReplyIsCode3AndNothingIsPrinted) {
    const Outcome outcome = runTool("decode --message get_general_status " + sample);
    EXPECT_EQ(outcome.code, 3);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.error, HasSubstr("there is no \"get_general_status\" in it"));
}

TEST(Decode, ACutReplyIsReadAsFarAsItGoesAndSaysSo) {
    const Outcome outcome = runTool("decode", "<get_job_status>\n<action_id>7</action_id>\n<uuid>6a1");
    EXPECT_EQ(outcome.code, 4);
    EXPECT_EQ(recordOf(outcome).at("actionId"), 7);
    EXPECT_EQ(recordOf(outcome).at("uuid"), "6a1");
    EXPECT_EQ(outcome.error,
              "kvjxml: standard input: read as far as it goes: line 3, column 10: the reply ends here, while "
              "\"uuid\" is open\n");
}

TEST(Decode, AMalformedReplySaysInWhichLine) {
    const Outcome outcome =
        runTool("decode", "<get_job_status>\n<action_id>7</action_id>\n  </other></get_job_status>");
    EXPECT_EQ(recordOf(outcome).at("actionId"), 7);
    EXPECT_EQ(outcome.error,
              "kvjxml: standard input: read as far as it goes: line 3, column 3: the end of \"other\", while "
              "\"get_job_status\" is open\n");
}

TEST(Decode, TextBeyondAsciiIsKeptAndCostsNothingOfTheReply) {
    const Outcome outcome = runTool(
        "decode", "<get_job_status><uuid>Zo\xC3\xAB \xE2\x82\xAC</uuid><action_id>7</action_id></get_job_status>");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(recordOf(outcome).at("uuid"), "Zo\xC3\xAB \xE2\x82\xAC");
    EXPECT_EQ(recordOf(outcome).at("actionId"), 7);
}

TEST(Decode, ATextCutInsideACharacterStillPrintsAsJson) {
    // 38 letters and a two-byte character: the field holds 39 bytes, so half of the character is left.
    const Outcome outcome =
        runTool("decode", "<get_job_status><uuid>" + std::string(38, 'x') + "\xC3\xAB</uuid></get_job_status>");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(recordOf(outcome).at("uuid"), std::string(38, 'x') + "\xEF\xBF\xBD");
}

// ---- Replies that several readers take their part of ----

const std::string voltageOnly =
    "<get_sensor_status><sensor_values><voltage_24>24.35</voltage_24></sensor_values></get_sensor_status>";

TEST(Decode, EveryReaderOfAReplyHasItsRecordUnderItsName) {
    const Outcome outcome =
        runTool("decode",
                "<get_count><total_cards_done>31544</total_cards_done>"
                "<total_cards_until_next_cleaning>456</total_cards_until_next_cleaning></get_count>");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(recordOf(outcome),
              (json{{"ParseCardCount",
                     {{"totalCardsDone", 31544}, {"laminatorCardsLaminated", 0}, {"laminatorCardsProcessed", 0}}},
                    {"ParseCleanLogCount", 456}}));
}

TEST(Decode, AReaderWithoutAPartInTheReplyHasARecordOfZeros) {
    const Outcome outcome = runTool("decode", voltageOnly);
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.error, "");
    const json records = recordOf(outcome);
    EXPECT_EQ(records.size(), 3U);
    EXPECT_EQ(records.at("ParseSensorInfo").at("headOpen"), 0);
    EXPECT_EQ(records.at("ParseSensorStates").at("doorOpen"), "");
}

// ---- Values ----

TEST(Decode, ANumberWithADecimalPointHasTheDigitsOfTheReply) {
    EXPECT_THAT(runTool("decode", voltageOnly).out, HasSubstr("\"voltage24\": 24.35,\n"));
}

TEST(Decode, AHardwareAddressIsText) {
    const Outcome outcome =
        runTool("decode", "<AccessPoints><AccessPoint><BSSID>00:1A:2b:3C:4d:5E</BSSID></AccessPoint></AccessPoints>");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(recordOf(outcome).at("accessPoints").at(0).at("BSSID"), "00:1a:2b:3c:4d:5e");
}

}  // namespace

}  // namespace decode_test
