// Readings of any message, by what is known of it at run time.
#include <StatusRecords.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <kvjxml_read.hpp>
#include <string>

#include "messages/any_reading.h"
#include "support/files.h"

namespace any_reading_test {

namespace {

using namespace kvj;

const Message& messageOf(std::string_view name) { return *std::ranges::find(messages(), name, &Message::name); }
std::string sampleOf(std::string_view root) {
    return tests::contentOf(std::string(KVJXML_REPLIES) + "/" + std::string(root) + ".xml");
}

TEST(AnyReading, OfEverySampleIsFoundAndWhole) {
    for (const Message& message : messages()) {
        const AnyReading reading = readAny(message, sampleOf(message.root));
        EXPECT_TRUE(reading.found && reading.whole) << message.name;
        EXPECT_TRUE(reading.findings.empty()) << message.name;
    }
}

TEST(AnyReading, HasTheRecordThatHostsGet) {
    const std::string reply = sampleOf("get_general_status");
    const AnyReading reading = readAny(messageOf("general_status"), reply);
    const auto expected = kvjxml::read<kvjxml::messages::general_status>(reply);
    ASSERT_TRUE(expected);
    Kavrin::KVGeneralStatus record{};
    ASSERT_EQ(reading.record.size(), sizeof record);
    std::memcpy(&record, reading.record.data(), sizeof record);
    EXPECT_EQ(record.printerState, 5);
    EXPECT_EQ(record.alarms, 0x8002);
    EXPECT_EQ(record.jobsDoneOk, expected->jobsDoneOk);
}

TEST(AnyReading, TellsWhichFieldsTheReplyCarried) {
    const AnyReading reading =
        readAny(messageOf("general_status"), "<get_general_status><alarms>0</alarms></get_general_status>");
    using Record = Kavrin::KVGeneralStatus;
    EXPECT_TRUE(reading.has(offsetof(Record, alarms), sizeof Record::alarms));
    EXPECT_FALSE(reading.has(offsetof(Record, printerState), sizeof Record::printerState));
}

TEST(AnyReading, HasEveryEntryOfALongList) {
    std::string reply = "<get_job_list>";
    for (int id = 1; id <= 100; ++id) reply += "<job><action_id>" + std::to_string(id) + "</action_id></job>";
    const Message& message = messageOf("job_list");
    const AnyReading reading = readAny(message, reply + "</get_job_list>");
    ASSERT_EQ(reading.lists.size(), 1U);
    const ReadList& jobs = reading.lists.front();
    EXPECT_EQ(reading.list(jobs.field()), &jobs);
    EXPECT_EQ(reading.list(message.record), nullptr);
    ASSERT_EQ(jobs.count(), 100U);
    Kavrin::_KVJobInfo last{};
    ASSERT_EQ(jobs.entryField().size, sizeof last);
    std::memcpy(&last, jobs.entry(99), sizeof last);
    EXPECT_EQ(last.actionId, 100);
}

TEST(AnyReading, OfAnotherMessageNamesTheRoot) {
    const AnyReading reading = readAny(messageOf("job_status"), "<get_weather/>");
    EXPECT_FALSE(reading.found);
    EXPECT_TRUE(reading.whole);
    EXPECT_EQ(reading.root, "get_weather");
}

TEST(AnyReading, OfACutReplyIsNotWholeAndTellsWhereItEnds) {
    const std::string reply = "<get_job_status><action_id>7</act";
    const AnyReading reading = readAny(messageOf("job_status"), reply, kvjxml::diagnose);
    EXPECT_TRUE(reading.found);
    EXPECT_FALSE(reading.whole);
    ASSERT_EQ(reading.findings.size(), 1U);
    EXPECT_EQ(reading.findings[0].kind, kvjxml::finding_kind::malformed);
    EXPECT_EQ(reading.findings[0].path, "/get_job_status/action_id");
}

TEST(AnyReading, CountsTheFindingsThatAreTooMany) {
    std::string reply = "<get_job_status>";
    for (int i = 0; i < 10'005; ++i) reply += "<x/>";
    const AnyReading reading = readAny(messageOf("job_status"), reply + "</get_job_status>", kvjxml::diagnose);
    EXPECT_EQ(reading.findings.size(), 10'000U);
    EXPECT_EQ(reading.omitted, 5U);
}

}  // namespace

}  // namespace any_reading_test
