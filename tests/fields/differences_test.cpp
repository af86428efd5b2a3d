// In which fields two records differ.
#include "fields/differences.h"

#include <ConfigurationRecords.h>
#include <StatusRecords.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "fields/configuration.h"
#include "fields/list.h"
#include "fields/status.h"

namespace differences_test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Each as "path: expected, actual".
template <class Record>
std::vector<std::string> differencesOf(const Record& expected, const Record& actual) {
    std::vector<std::string> told;
    for (const auto& [path, was, is] : kvj::differences(kvj::recordType<Record>, &expected, &actual)) {
        told.push_back(path + ": " + was + ", " + is);
    }
    return told;
}

TEST(Differences, HaveThePathAndBothValues) {
    Kavrin::KVJobStatus one{};
    Kavrin::KVJobStatus other{};
    EXPECT_THAT(differencesOf(one, other), IsEmpty());
    other.actionId = 7;
    std::strcpy(other.uuid, "a");
    other.readyForNextJob = true;
    EXPECT_THAT(differencesOf(one, other), testing::UnorderedElementsAre("/actionId: 0, 7", "/uuid: \"\", \"a\"",
                                                                         "/readyForNextJob: false, true"));
}

TEST(Differences, AreFoundInRecordsWithin) {
    Kavrin::_KVConfiguration one{};
    Kavrin::_KVConfiguration other{};
    one.ethernet.ipAddress = 0x0100007F;
    other.lcdContrast.max = -1;
    EXPECT_THAT(differencesOf(one, other),
                ElementsAre("/ethernet/ipAddress: 127.0.0.1, 0.0.0.0", "/lcdContrast/max: 0, -1"));
}

TEST(Differences, AreFoundInEntriesAndTheirNumber) {
    Kavrin::KVJobList one{};
    Kavrin::KVJobList other{};
    one.count = 2;
    other.count = 3;
    one.jobs[1].actionId = 1;
    other.jobs[1].actionId = 2;
    EXPECT_THAT(differencesOf(one, other), ElementsAre("/jobs count: 2, 3", "/jobs/1/actionId: 1, 2"));
}

}  // namespace

}  // namespace differences_test
