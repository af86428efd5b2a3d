// What messages, fields, elements, codes and words are said to be.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "field_comments.h"
#include "fields/records.h"
#include "messages/message.h"
#include "messages/request.h"
#include "places.h"
#include "tool/tool.h"

namespace explain_test {

namespace {

using kvj::tests::Outcome;
using kvj::tests::runTool;
using testing::ContainsRegex;
using testing::HasSubstr;

/// What `explain` says.
std::string said(const std::string& words) {
    const Outcome outcome = runTool("explain " + words);
    EXPECT_EQ(outcome.code, 0) << words;
    EXPECT_EQ(outcome.error, "") << words;
    return outcome.out;
}

// ---- Codes and words ----

TEST(ExplainValue, OfACodeIsItsWord) {
    EXPECT_EQ(said("printerState 5"), "Kavrin::KVGeneralStatus::printerState 5: printing\n");
    EXPECT_EQ(said("KVJobStatus::printState -- -1"), "Kavrin::KVJobStatus::printState -1: any other word\n");
    EXPECT_EQ(said("KVGeneralStatus::laminatorState 77"),
              "Kavrin::KVGeneralStatus::laminatorState 77: no word has this code\n");
}

TEST(ExplainValue, OfACodeThatSeveralWordsHaveIsAllOfThem) {
    EXPECT_EQ(said("printerState 3"),
              "Kavrin::KVGeneralStatus::printerState 3: xfer_rollers_heating or printing_heating\n");
}

TEST(ExplainValue, OfAWordIsItsCode) {
    EXPECT_EQ(said("printerState printing"), "Kavrin::KVGeneralStatus::printerState printing: 5\n");
    EXPECT_EQ(said("printer_state idle"), "printer_state idle: 2\n");
    EXPECT_EQ(said("/get_general_status/printer_state idle"), "/get_general_status/printer_state idle: 2\n");
    EXPECT_EQ(said("printerStates idle"), "status::printerStates idle: 2\n");
}

TEST(ExplainValue, OfAnUnknownWordIsTheCodeThatItBecomes) {
    EXPECT_THAT(said("printerState prinitng"),
                HasSubstr("there is no word \"prinitng\", and it becomes 38; did you mean \"printing\"?\n"));
    EXPECT_THAT(said("_WirelessParams::security wpa9"),
                HasSubstr("there is no word \"wpa9\", and it leaves the field alone; did you mean \"wpa\"?\n"));
}

TEST(ExplainValue, OfBitsIsAWordForEach) {
    EXPECT_EQ(said("imageSharpeningLevels 6"), "Kavrin::_Capabilities::imageSharpeningLevels 6: normal + high\n");
    EXPECT_EQ(said("imageSharpeningLevels 18"), "Kavrin::_Capabilities::imageSharpeningLevels 18: normal + 0x10\n");
}

TEST(ExplainValue, OfTheAlarmsIsTheirBitsAlone) {
    EXPECT_EQ(said("alarms 0x8002"), "Kavrin::KVGeneralStatus::alarms 0x8002: 32770 = 0x8002, the bits 0x8000 + 0x2\n");
}

TEST(ExplainValue, OfATruthWordIsItsTruth) {
    EXPECT_EQ(said("printerLock locked"), "Kavrin::KVGeneralStatus::printerLock locked: true\n");
    EXPECT_EQ(said("printerLock Locked"), "Kavrin::KVGeneralStatus::printerLock Locked: false\n");
    EXPECT_EQ(said("_SENSOR::doorOpen no"), "Kavrin::_SENSOR::doorOpen no: false\n");
}

// ---- Names ----

TEST(Explain, SaysOfAMessageWhatReadsItsElements) {
    const std::string text = said("get_job_status");
    EXPECT_THAT(text,
                HasSubstr("get_job_status: a message, job_status, read by ParseJobStatus into Kavrin::KVJobStatus\n"));
    EXPECT_THAT(text, HasSubstr("How far one job has come"));
    EXPECT_THAT(text, ContainsRegex("\n    status_printing/copies_done +copiesDone +number\n"));
    EXPECT_THAT(said("get_capabilities"), HasSubstr("capabilities or get_capabilities: a message"));
}

TEST(Explain, SaysOfAFieldWhatItHoldsAndItsCodes) {
    const std::string text = said("printerState");
    EXPECT_THAT(text, HasSubstr("printerState: a field of Kavrin::KVGeneralStatus, a number of 32 bits\n"));
    EXPECT_THAT(text, HasSubstr("38 for an unknown word."));
    EXPECT_THAT(text, HasSubstr("ParseStatus reads  /get_general_status/printer_state"));
    EXPECT_THAT(text, ContainsRegex("\n +5 +printing\n"));
    EXPECT_THAT(text, ContainsRegex("\n +38 +.any other word.\n"));
}

TEST(Explain, SaysOfANameWhatEverythingOfThatNameIs) {
    const std::string text = said("ribbon");
    EXPECT_THAT(text, HasSubstr("ribbon: a field of MediaStatus, a record, _MediaStatusInfo\n"));
    EXPECT_THAT(text, HasSubstr("ribbon: a field of Kavrin::_KVConfiguration"));
    EXPECT_THAT(text, HasSubstr("ribbon: an element\n"));
    EXPECT_THAT(text, HasSubstr("/get_media_status/ribbon"));
}

TEST(Explain, TakesThePathOfAFinding) {
    EXPECT_THAT(said("'/get_job_list/job[2]/uuid'"), HasSubstr("ParseJobList reads  /get_job_list/job/uuid"));
}

TEST(Explain, SaysOfAWordWhichCodesItHas) {
    EXPECT_THAT(said("printing"), ContainsRegex("5 +status::printerStates +KVGeneralStatus::printerState\n"));
}

TEST(Explain, AloneListsAllMessagesRequestsAndTables) {
    const std::string text = said("");
    for (const kvj::Message& message : kvj::messages()) EXPECT_THAT(text, HasSubstr(" " + std::string(message.name)));
    for (const kvj::Request& request : kvj::requests()) EXPECT_THAT(text, HasSubstr(" " + std::string(request.name)));
    EXPECT_THAT(text, HasSubstr("status::printerStates"));
}

TEST(Explain, KnowsEveryNameOfTheTables) {
    for (const kvj::Message& message : kvj::messages()) {
        EXPECT_THAT(said(std::string(message.root)), HasSubstr(": a message, ")) << message.root;
    }
    for (const kvj::Request& request : kvj::requests()) {
        EXPECT_THAT(said(std::string(request.name)), HasSubstr(": a request, ")) << request.name;
    }
}

TEST(Explain, OfAnUnknownNameIsWrongUseAndSaysWhichIsNear) {
    const Outcome outcome = runTool("explain printerSate");
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.error, "kvjxml: there is no name \"printerSate\"; did you mean \"printerState\"?\n");
    EXPECT_EQ(runTool("explain printerSate 5").error, outcome.error);
}

TEST(Explain, ShowsNoCharacterThatATerminalWouldObey) {
    EXPECT_THAT(said("printerState \"$(printf 'a\\033b')\""), HasSubstr("a\\x1Bb"));
    EXPECT_EQ(runTool("explain \"$(printf 'qqqqqq\\033qqqqqq')\"").error,
              "kvjxml: there is no name \"qqqqqq\\x1Bqqqqqq\"\n");
}

// ---- Comments ----

TEST(FieldComments, SayOfEveryRecordAndFieldWhatItIs) {
    for (const kvj::RecordType* const record : kvj::recordTypes()) {
        EXPECT_NE(kvj::tool::commentOf(record->name), "") << record->name;
        for (const kvj::Field& field : record->fields) {
            EXPECT_NE(kvj::tool::commentOf(record->name, field.name), "") << record->name << " " << field.name;
        }
    }
}

TEST(FieldComments, AreOnOneLineAsTheHeadersHaveThem) {
    EXPECT_EQ(kvj::tool::commentOf("Kavrin::KVGeneralStatus", "error"),
              "\"error\": the printer's error number, decimal.");
    EXPECT_EQ(kvj::tool::commentOf("Kavrin::_USBTimeout"), "\"usb_timeout\", in milliseconds.");
    EXPECT_EQ(kvj::tool::commentOf("Kavrin::KVGeneralStatus", "nothing"), "");
}

}  // namespace

}  // namespace explain_test
