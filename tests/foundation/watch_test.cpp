// Which fields of a record are marked as read.
#include "foundation/watch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace watch_test {

namespace {

using testing::ElementsAre;

struct Record {
    int first = 0;
    int second = 0;
};

TEST(Watch, MarksTheFirstByteOfAField) {
    const Record record;
    unsigned char carried[2] = {};
    kvj::Watch watch(&record, sizeof record, carried, nullptr);
    watch.mark(&record.second);
    EXPECT_THAT(carried, ElementsAre(1U << sizeof(int), 0));
    watch.mark(&record.first);
    EXPECT_THAT(carried, ElementsAre(1U | 1U << sizeof(int), 0));
}

// A list can lie anywhere, also next to the record: its entries are none of the record's fields.
TEST(Watch, MarksNothingBesideTheRecord) {
    const Record records[3];
    unsigned char carried[2] = {};
    kvj::Watch watch(&records[1], sizeof records[1], carried, nullptr);
    watch.mark(&records[0].first);
    watch.mark(&records[0].second);
    watch.mark(&records[2].first);
    watch.mark(&records[2].second);
    EXPECT_THAT(carried, ElementsAre(0, 0));
}

}  // namespace

}  // namespace watch_test
