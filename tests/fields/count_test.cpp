// How many entries of a list say something.
#include <IdentityRecords.h>
#include <StatusRecords.h>
#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <cstdint>

#include "fields/identity.h"
#include "fields/list.h"
#include "fields/status.h"

namespace count_test {

namespace {

using Kavrin::_tagCleaningLogEntry;

struct Counted {
    Kavrin::KVJobList list{};
    [[nodiscard]] std::size_t entries() const {
        for (const kvj::Field& field : kvj::recordType<Kavrin::KVJobList>.fields) {
            if (field.name == "jobs") return countOf(*field.entries, &list);
        }
        return SIZE_MAX;
    }
};

TEST(CountOf, IsTheListsOwnCount) {
    for (const int count : {0, 1, 2, 63, 64}) {
        Counted counted;
        counted.list.count = count;
        EXPECT_EQ(counted.entries(), static_cast<std::size_t>(count));
    }
}

TEST(CountOf, IsNoneWhileMoreIsAskedForThanThereIsRoomFor) {
    for (const int count : {65, 1000, INT_MAX}) {
        Counted counted;
        counted.list.count = count;
        EXPECT_EQ(counted.entries(), 0U) << count;
    }
}

TEST(CountOf, OfAnArrayWithoutACountEndsWithTheLastThatIsNotZero) {
    _tagCleaningLogEntry entries[32] = {};
    const auto count = [&] { return countOf(kvj::arrayOf<_tagCleaningLogEntry, 32>, entries); };
    EXPECT_EQ(count(), 0U);
    entries[0].number = 1;
    EXPECT_EQ(count(), 1U);
    entries[4].number = 5;
    EXPECT_EQ(count(), 5U);
    entries[31].number = 32;
    EXPECT_EQ(count(), 32U);
}

}  // namespace

}  // namespace count_test
