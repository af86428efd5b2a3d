// The reply "get_general_status": every field, and what happens to a field when its element is odd or missing.
#include <gtest/gtest.h>

#include <string>

#include "KVJStatusParser.h"
#include "fields/status.h"
#include "support/records.h"
#include "support/xml.h"

namespace general_status_test {

namespace {

using Kavrin::KVGeneralStatus;
using Kavrin::KVJStatusParser;
using kvj::tests::expectEqual;
using kvj::tests::wide;
using kvj::tests::Xml;

/// A record with a value in every field that no test writes.
KVGeneralStatus preset() { return {-1, 101, -2, true, -3, -4, -5, -6, -7, -8, -9, -10, 102}; }

bool read(const std::string& reply, KVGeneralStatus& status) {
    const std::wstring text = wide(reply);
    return KVJStatusParser().ParseStatus(*text.c_str(), static_cast<int>(text.size()), status);
}

/// Reads a reply with these children of its root.
bool readChildren(const std::string& children, KVGeneralStatus& status) {
    return read("<get_general_status>" + children + "</get_general_status>", status);
}

TEST(GeneralStatus, FillsEveryFieldFromOneReply) {
    KVGeneralStatus status = preset();
    EXPECT_TRUE(
        readChildren("<printer_state>printing</printer_state><alarms>0x1f</alarms><error>12</error>"
                     "<printer_lock>locked</printer_lock>"
                     "<num_jobs_receiving_or_pending>1</num_jobs_receiving_or_pending>"
                     "<num_jobs_inprogress>2</num_jobs_inprogress><num_jobs_done_ok>3</num_jobs_done_ok>"
                     "<num_jobs_done_error>4</num_jobs_done_error><num_jobs_total>5</num_jobs_total>"
                     "<action_id_next>6</action_id_next><warning>7</warning>"
                     "<laminator_state>standby</laminator_state><param_chg_counter>8</param_chg_counter>",
                     status));
    expectEqual(status, {5, 31, 12, true, 1, 2, 3, 4, 5, 6, 7, 4, 8});
}

TEST(GeneralStatus, ReadsTheChildrenInAnyOrder) {
    KVGeneralStatus status{};
    EXPECT_TRUE(readChildren("<warning>7</warning><error>12</error><printer_state>idle</printer_state>", status));
    EXPECT_EQ(status.warning, 7);
    EXPECT_EQ(status.error, 12);
    EXPECT_EQ(status.printerState, 2);
}

TEST(GeneralStatus, AMessageAfterADeclarationCommentsAndBlanksIsFound) {
    KVGeneralStatus status{};
    EXPECT_TRUE(
        read("\n<?xml version=\"1.0\"?>\n<!-- a reply -->\n<get_general_status>\n <error> 7 </error>\n"
             "</get_general_status>\n\n",
             status));
    EXPECT_EQ(status.error, 7);
}

TEST(GeneralStatus, ALengthShorterThanTheReplyCutsIt) {
    const std::wstring text = wide("<get_general_status><error>12</error><warning>34</warning></get_general_status>");
    KVGeneralStatus status = preset();
    EXPECT_FALSE(KVJStatusParser().ParseStatus(*text.c_str(), 10, status));
    expectEqual(status, preset());
    // Cut after the error, what came before the cut is read.
    EXPECT_TRUE(KVJStatusParser().ParseStatus(*text.c_str(), 37, status));
    EXPECT_EQ(status.error, 12);
    EXPECT_EQ(status.warning, -9);
}

TEST(GeneralStatus, ALengthOfZeroOrLessIsFalseAndDoesNotTouchTheReply) {
    KVGeneralStatus status = preset();
    const std::wstring text = wide("<get_general_status><error>12</error></get_general_status>");
    EXPECT_FALSE(KVJStatusParser().ParseStatus(*text.c_str(), 0, status));
    EXPECT_FALSE(KVJStatusParser().ParseStatus(*text.c_str(), -1, status));
    EXPECT_FALSE(KVJStatusParser().ParseStatus(*text.c_str(), -2147483647 - 1, status));
    expectEqual(status, preset());
}

TEST(GeneralStatus, OneParserServesManyCalls) {
    KVJStatusParser parser;
    for (int i = 0; i < 3; ++i) {
        const std::wstring text =
            wide("<get_general_status><error>" + std::to_string(i) + "</error></get_general_status>");
        KVGeneralStatus status{};
        EXPECT_TRUE(parser.ParseStatus(*text.c_str(), static_cast<int>(text.size()), status));
        EXPECT_EQ(status.error, i);
    }
}

TEST(GeneralStatus, TheResultIsThatOfTheLastKnownElement) {
    KVGeneralStatus status = preset();
    EXPECT_FALSE(readChildren("<error>1</error><warning/>", status));
    EXPECT_EQ(status.error, 1);
    EXPECT_EQ(status.warning, -9);
    EXPECT_TRUE(readChildren("<warning/><error>2</error>", status));
    EXPECT_EQ(status.error, 2);
}

TEST(GeneralStatus, PrinterStateIdleIs2AndWithACapitalUnknown) {
    KVGeneralStatus status{};
    EXPECT_TRUE(readChildren("<printer_state>idle</printer_state>", status));
    EXPECT_EQ(status.printerState, 2);
    EXPECT_TRUE(readChildren("<printer_state>Idle</printer_state>", status));
    EXPECT_EQ(status.printerState, 38);
}

TEST(GeneralStatus, PrinterStateCleaningIs26AndCardReady35) {
    KVGeneralStatus status{};
    EXPECT_TRUE(readChildren("<printer_state>cleaning</printer_state>", status));
    EXPECT_EQ(status.printerState, 26);
    EXPECT_TRUE(readChildren("<printer_state>card_ready</printer_state>", status));
    EXPECT_EQ(status.printerState, 35);
}

TEST(GeneralStatus, LaminatorStateDoorOpenIs11AndAnUnknownWord0) {
    KVGeneralStatus status = preset();
    EXPECT_TRUE(readChildren("<laminator_state>door_open</laminator_state>", status));
    EXPECT_EQ(status.laminatorState, 11);
    EXPECT_TRUE(readChildren("<laminator_state>melting</laminator_state>", status));
    EXPECT_EQ(status.laminatorState, 0);
}

TEST(GeneralStatus, AWordLongerThanAnyIsAnUnknownWord) {
    KVGeneralStatus status{};
    EXPECT_TRUE(readChildren("<printer_state>" + std::string(100000, 'i') + "</printer_state>", status));
    EXPECT_EQ(status.printerState, 38);
}

TEST(GeneralStatus, AlarmsAreHexadecimalBehindTheirPrefix) {
    KVGeneralStatus status{};
    EXPECT_TRUE(readChildren("<alarms>0x8000</alarms>", status));
    EXPECT_EQ(status.alarms, 32768U);
    EXPECT_TRUE(readChildren("<alarms>0xFFFFffff</alarms>", status));
    EXPECT_EQ(status.alarms, 4294967295U);
}

TEST(GeneralStatus, AlarmsWithoutTheirPrefixKeepTheirValueAndAreTrue) {
    for (const char* text : {"32768", "8000", "0X8000", "x8000", "0x", "none"}) {
        KVGeneralStatus status = preset();
        EXPECT_TRUE(readChildren("<alarms>" + std::string(text) + "</alarms>", status)) << text;
        EXPECT_EQ(status.alarms, 101U) << text;
    }
}

TEST(GeneralStatus, AlarmsWithoutTextAreFalse) {
    KVGeneralStatus status = preset();
    EXPECT_FALSE(readChildren("<alarms/>", status));
    EXPECT_EQ(status.alarms, 101U);
}

TEST(GeneralStatus, ErrorAndWarningAreDecimal) {
    KVGeneralStatus status{};
    EXPECT_TRUE(readChildren("<error>0x1f</error><warning>010</warning>", status));
    EXPECT_EQ(status.error, 0);
    EXPECT_EQ(status.warning, 10);
}

TEST(GeneralStatus, ANumberThatIsNoneReadsAs0) {
    KVGeneralStatus status = preset();
    EXPECT_TRUE(readChildren("<num_jobs_total>many</num_jobs_total>", status));
    EXPECT_EQ(status.jobsTotal, 0);
}

TEST(GeneralStatus, TheParameterChangeCounterHas16Bits) {
    KVGeneralStatus status{};
    EXPECT_TRUE(readChildren("<param_chg_counter>65537</param_chg_counter>", status));
    EXPECT_EQ(status.paramChangeCounter, 1U);
    EXPECT_TRUE(readChildren("<param_chg_counter>-1</param_chg_counter>", status));
    EXPECT_EQ(status.paramChangeCounter, 65535U);
}

TEST(GeneralStatus, PrinterLockIsTrueForExactlyLocked) {
    for (const char* text : {"unlocked", "LOCKED", "Locked", "locked!", "yes", "enabled", "1"}) {
        KVGeneralStatus status = preset();
        EXPECT_TRUE(readChildren("<printer_lock>" + std::string(text) + "</printer_lock>", status)) << text;
        EXPECT_FALSE(status.printerLock) << text;
    }
    KVGeneralStatus status{};
    EXPECT_TRUE(readChildren("<printer_lock>locked</printer_lock>", status));
    EXPECT_TRUE(status.printerLock);
}

TEST(GeneralStatus, PrinterLockWithoutTextIsStoredAsFalseAndIsFalse) {
    KVGeneralStatus status = preset();
    EXPECT_FALSE(readChildren("<printer_lock></printer_lock>", status));
    EXPECT_FALSE(status.printerLock);
}

TEST(GeneralStatus, PrinterLockWithoutTextBeforeAnotherElementIsStoredAsFalseAndTheResultIsTheOthers) {
    KVGeneralStatus status = preset();
    EXPECT_TRUE(readChildren("<printer_lock/><error>1</error>", status));
    EXPECT_FALSE(status.printerLock);
    EXPECT_EQ(status.error, 1);
}

TEST(GeneralStatus, TheWalkerReadsAnElementThatTheHostHolds) {
    Xml reply("<anything><error>3</error></anything>");
    KVGeneralStatus status{};
    EXPECT_TRUE(KVJStatusParser().parseStatus(reply.root(), status));
    EXPECT_EQ(status.error, 3);
}

TEST(GeneralStatus, TheWalkerIsFalseForNoElement) {
    KVGeneralStatus status = preset();
    EXPECT_FALSE(KVJStatusParser().parseStatus(nullptr, status));
    expectEqual(status, preset());
}

}  // namespace

}  // namespace general_status_test
