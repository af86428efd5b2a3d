// The reply "get_job_list": the jobs, how many of them the host's record takes, and what it holds afterwards.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <string>

#include "KVJStatusParser.h"
#include "fields/status.h"
#include "support/records.h"
#include "support/xml.h"

namespace job_list_test {

namespace {

using Kavrin::_KVJobInfo;
using Kavrin::KVJobList;
using Kavrin::KVJOBLIST_CAPACITY;
using Kavrin::KVJStatusParser;
using kvj::tests::expectEqual;
using kvj::tests::wide;
using kvj::tests::Xml;

/// A list with room for `count` jobs and values in every entry that no test writes.
KVJobList preset(int count) {
    KVJobList list{};
    list.count = count;
    for (_KVJobInfo& job : list.jobs) job = {101, "preset", -2};
    return list;
}

/// The preset list after `count` jobs were filled as `numberedJobs` makes them.
KVJobList filled(int count) {
    KVJobList list = preset(count);
    for (int i = 0; i < count; ++i) {
        list.jobs[i].actionId = static_cast<unsigned long>(i) + 1;
        list.jobs[i].printState = 7;
    }
    return list;
}

/// Compares the entries behind the count too.
void expectAllEqual(const KVJobList& actual, const KVJobList& expected) {
    EXPECT_EQ(actual.count, expected.count);
    for (int i = 0; i < KVJOBLIST_CAPACITY; ++i) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, i);
        expectEqual(actual.jobs[i], expected.jobs[i]);
    }
}

bool read(const std::string& reply, KVJobList& list) {
    const std::wstring text = wide(reply);
    return KVJStatusParser().ParseJobList(*text.c_str(), static_cast<int>(text.size()), list);
}

/// Reads a reply with these children of its root.
bool readChildren(const std::string& children, KVJobList& list) {
    return read("<get_job_list>" + children + "</get_job_list>", list);
}

/// Reads one job with these children into the first entry of a list.
bool readJob(const std::string& children, KVJobList& list) { return readChildren("<job>" + children + "</job>", list); }

/// Jobs that are done, with the action ids from 1 on.
std::string numberedJobs(int count) {
    std::string jobs;
    for (int i = 1; i <= count; ++i) {
        jobs += "<job><action_id>" + std::to_string(i) + "</action_id><print_state>done_ok</print_state></job>";
    }
    return jobs;
}

TEST(JobList, FillsEveryFieldOfEveryJobFromOneReply) {
    KVJobList list = preset(2);
    EXPECT_TRUE(
        readChildren("<job><action_id>11</action_id><uuid>6a1f</uuid><print_state>in_progress</print_state></job>"
                     "<job><action_id>12</action_id><uuid>77b0</uuid><print_state>receiving</print_state></job>",
                     list));
    KVJobList expected = preset(2);
    expected.jobs[0] = {11, "6a1f", 6};
    expected.jobs[1] = {12, "77b0", 1};
    expectAllEqual(list, expected);
}

TEST(JobList, ReadsTheElementsOfAJobInAnyOrder) {
    KVJobList list = preset(1);
    EXPECT_TRUE(readJob("<print_state>done_error</print_state><uuid>6a1f</uuid><action_id>11</action_id>", list));
    expectEqual(list.jobs[0], {11, "6a1f", 8});
}

// ---- How many jobs ----

TEST(JobList, WithRoomForMoreJobsTheCountIsThatOfTheJobs) {
    KVJobList list = preset(5);
    EXPECT_TRUE(readChildren(numberedJobs(3), list));
    expectAllEqual(list, filled(3));
}

TEST(JobList, WithRoomForExactlyTheJobsAllAreFilled) {
    KVJobList list = preset(3);
    EXPECT_TRUE(readChildren(numberedJobs(3), list));
    expectAllEqual(list, filled(3));
}

TEST(JobList, OfFiveJobsThreeAreFilledWhenThereIsRoomForThree) {
    KVJobList list = preset(3);
    EXPECT_TRUE(readChildren(numberedJobs(5), list));
    expectAllEqual(list, filled(3));
}

TEST(JobList, JobsWithoutRoomDoNotCountForTheResult) {
    KVJobList list = preset(3);
    EXPECT_TRUE(readChildren(numberedJobs(3) + "<job/><job><uuid/></job>", list));
    expectAllEqual(list, filled(3));
    list = preset(3);
    EXPECT_FALSE(readChildren(numberedJobs(2) + "<job><action_id/></job>" + numberedJobs(2), list));
    KVJobList expected = filled(2);
    expected.count = 3;
    expectAllEqual(list, expected);
}

TEST(JobList, ACountOfZeroFillsNothingAndIsFalse) {
    KVJobList list = preset(0);
    EXPECT_FALSE(readChildren(numberedJobs(3), list));
    expectAllEqual(list, preset(0));
}

TEST(JobList, ANegativeCountFillsNothingBecomesZeroAndIsFalse) {
    for (const int count : {-1, -64, std::numeric_limits<int>::min()}) {
        KVJobList list = preset(count);
        EXPECT_FALSE(readChildren(numberedJobs(3), list)) << count;
        expectAllEqual(list, preset(0));
    }
}

TEST(JobList, ACountAboveTheCapacityCountsAsTheCapacity) {
    for (const int count : {64, 65, 1000, std::numeric_limits<int>::max()}) {
        struct {
            KVJobList list;
            char behind[sizeof(_KVJobInfo)];
        } memory = {preset(count), {}};
        std::memset(memory.behind, 'x', sizeof memory.behind);
        EXPECT_TRUE(readChildren(numberedJobs(70), memory.list)) << count;
        expectAllEqual(memory.list, filled(64));
        EXPECT_EQ(std::string(memory.behind, sizeof memory.behind), std::string(sizeof memory.behind, 'x'));
    }
}

TEST(JobList, ACountAboveTheCapacityBecomesThatOfFewerJobs) {
    KVJobList list = preset(1000);
    EXPECT_TRUE(readChildren(numberedJobs(2), list));
    expectAllEqual(list, filled(2));
}

TEST(JobList, OtherElementsBetweenTheJobsUseUpNoEntry) {
    KVJobList list = preset(3);
    EXPECT_TRUE(readChildren("<total>3</total>" + numberedJobs(1) +
                                 "<Job><action_id>9</action_id></Job><job><print_state>done_ok</print_state>"
                                 "<serial>1</serial><action_id>2</action_id></job><action_id>9</action_id><end/>",
                             list));
    expectAllEqual(list, filled(2));
}

TEST(JobList, WithoutAJobTheCountIsZeroAndTheResultFalse) {
    for (const char* reply : {"<get_job_list/>", "<get_job_list></get_job_list>", "<get_job_list>text</get_job_list>",
                              "<get_job_list><total>3</total></get_job_list>",
                              "<get_job_list><JOB><action_id>1</action_id></JOB></get_job_list>",
                              "<get_job_list><jobs><job><action_id>1</action_id></job></jobs></get_job_list>"}) {
        KVJobList list = preset(3);
        EXPECT_FALSE(read(reply, list)) << reply;
        expectAllEqual(list, preset(0));
    }
}

TEST(JobList, WithoutTheRootTheCountIsKeptAndTheResultFalse) {
    for (const char* reply :
         {"", "text", "<get_job_status><job><action_id>1</action_id></job></get_job_status>",
          "<Get_Job_List><job><action_id>1</action_id></job></Get_Job_List>", "<job><action_id>1</action_id></job>",
          "<reply><get_job_list><job><action_id>1</action_id></job></get_job_list></reply>"}) {
        KVJobList list = preset(3);
        EXPECT_FALSE(read(reply, list)) << reply;
        expectAllEqual(list, preset(3));
    }
}

TEST(JobList, ASecondReplyIsReadFromTheFirstEntryOn) {
    KVJobList list = preset(3);
    EXPECT_TRUE(readChildren(numberedJobs(3), list));
    list.count = 3;
    EXPECT_TRUE(readChildren("<job><action_id>9</action_id></job>", list));
    KVJobList expected = filled(3);
    expected.count = 1;
    expected.jobs[0].actionId = 9;
    expectAllEqual(list, expected);
}

// ---- The result ----

TEST(JobList, TheResultIsThatOfTheLastJob) {
    KVJobList list = preset(5);
    EXPECT_FALSE(readChildren(numberedJobs(2) + "<job><uuid/></job>", list));
    EXPECT_EQ(list.count, 3);
    list = preset(5);
    EXPECT_TRUE(readChildren("<job><uuid/></job>" + numberedJobs(2), list));
    EXPECT_EQ(list.count, 3);
    list = preset(5);
    EXPECT_TRUE(readChildren(numberedJobs(2) + "<total/>", list));
    EXPECT_EQ(list.count, 2);
}

TEST(JobList, AJobWithoutKnownElementsTakesAnEntryAndLeavesIt) {
    for (const char* job : {"<job/>", "<job>text</job>", "<job><serial>1</serial></job>"}) {
        KVJobList list = preset(5);
        EXPECT_FALSE(readChildren(job, list)) << job;
        expectAllEqual(list, preset(1));
        list = preset(5);
        EXPECT_TRUE(readChildren(job + numberedJobs(1), list)) << job;
        KVJobList expected = preset(2);
        expected.jobs[1] = {1, "preset", 7};
        expectAllEqual(list, expected);
    }
}

TEST(JobList, TheResultOfAJobIsThatOfItsLastKnownElement) {
    KVJobList list = preset(1);
    EXPECT_FALSE(readJob("<action_id>1</action_id><uuid/>", list));
    EXPECT_EQ(list.jobs[0].actionId, 1U);
    EXPECT_TRUE(readJob("<uuid/><action_id>2</action_id><serial/>", list));
    EXPECT_EQ(list.jobs[0].actionId, 2U);
}

// ---- The fields of a job ----

TEST(JobList, TheActionIdHas16Bits) {
    KVJobList list = preset(1);
    EXPECT_TRUE(readJob("<action_id>65535</action_id>", list));
    EXPECT_EQ(list.jobs[0].actionId, 65535U);
    EXPECT_TRUE(readJob("<action_id>65536</action_id>", list));
    EXPECT_EQ(list.jobs[0].actionId, 0U);
    EXPECT_TRUE(readJob("<action_id>70000</action_id>", list));
    EXPECT_EQ(list.jobs[0].actionId, 4464U);
    EXPECT_TRUE(readJob("<action_id>-1</action_id>", list));
    EXPECT_EQ(list.jobs[0].actionId, 65535U);
}

TEST(JobList, AnUnknownPrintStateIsMinus1) {
    for (const std::string& word : {std::string("melting"), std::string("Held"), std::string(100000, 'h')}) {
        KVJobList list = preset(1);
        EXPECT_TRUE(readJob("<print_state>" + word + "</print_state>", list));
        expectEqual(list.jobs[0], {101, "preset", -1});
    }
}

TEST(JobList, PrintStateLaminateInsertIs40) {
    KVJobList list = preset(1);
    EXPECT_TRUE(readJob("<print_state>laminate_insert</print_state>", list));
    expectEqual(list.jobs[0], {101, "preset", 40});
}

// ---- Walkers ----

TEST(JobList, TheWalkersReadElementsThatTheHostHolds) {
    KVJStatusParser parser;
    KVJobList list = preset(2);
    Xml jobs("<any><job><action_id>1</action_id></job><job><action_id>2</action_id></job><job/></any>");
    EXPECT_TRUE(parser.parseJobList(jobs.root(), list));
    KVJobList expected = preset(2);
    expected.jobs[0].actionId = 1;
    expected.jobs[1].actionId = 2;
    expectAllEqual(list, expected);
    _KVJobInfo job{};
    Xml element("<any><action_id>4</action_id><uuid>u</uuid><print_state>held</print_state></any>");
    EXPECT_TRUE(parser.parseJobInfo(element.root(), job));
    expectEqual(job, {4, "u", 36});
}

TEST(JobList, TheWalkersAreFalseForNoElement) {
    KVJStatusParser parser;
    KVJobList list = preset(3);
    EXPECT_FALSE(parser.parseJobList(nullptr, list));
    EXPECT_FALSE(parser.parseJobInfo(nullptr, list.jobs[0]));
    expectAllEqual(list, preset(3));
}

TEST(JobList, TheWalkersAreFalseForAnElementWithoutChildren) {
    KVJStatusParser parser;
    KVJobList list = preset(3);
    Xml empty("<any>text</any>");
    EXPECT_FALSE(parser.parseJobInfo(empty.root(), list.jobs[0]));
    expectAllEqual(list, preset(3));
    EXPECT_FALSE(parser.parseJobList(empty.root(), list));
    expectAllEqual(list, preset(0));
}

}  // namespace

}  // namespace job_list_test
