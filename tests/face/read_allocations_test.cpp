// Hosts that run out of memory while they read: each allocation fails in turn, alone and with all that come after it.
#include <gtest/gtest.h>

#include <cstddef>
#include <kvjxml_read.hpp>
#include <string>
#include <utility>
#include <vector>

#include "hostile/allocation_watch.h"
#include "hostile/samples.h"
#include "messages/message.h"
#include "support/readings.h"

namespace read_allocations_test {

namespace {

using namespace kvj;
using namespace kvj::tests;

/// Lets each allocation of a reading fail. It throws std::bad_alloc and nothing is lost, or, where the library could do
/// without that memory, it is what it is otherwise.
template <class Read>
void expectThrownOrRead(Read read) {
    const auto expected = read();
    std::size_t count = 0;
    {
        const AllocationWatch watch;
        static_cast<void>(read());
        count = watch.made();
    }
    ASSERT_GT(count, 0U);
    std::size_t thrown = 0;
    for (std::size_t allowed = 0; allowed < count; ++allowed) {
        for (const Failing failing : bothWays) {
            bool isThrown = false;
            bool isSame = false;
            std::size_t leaked = 0;
            {
                AllocationWatch watch;
                isThrown = throwsAfter(allowed, failing, watch, [&] {
                    const auto result = read();
                    watch.failNoMore();
                    isSame = result == expected;
                });
                leaked = watch.alive();
            }
            ASSERT_TRUE(isThrown || isSame) << allowed;
            ASSERT_EQ(leaked, 0U) << allowed;
            thrown += isThrown ? 1 : 0;
        }
    }
    EXPECT_GT(thrown, 0U);
    EXPECT_EQ(read(), expected);
}

/// What can be compared of a reading.
auto contentOf(const AnyReading& reading) {
    std::vector<std::vector<std::byte>> lists;
    for (const ReadList& list : reading.lists) lists.emplace_back(list.bytes().begin(), list.bytes().end());
    return std::make_tuple(reading.found, reading.whole, reading.record, reading.carried, lists,
                           toldOf(reading.findings), reading.omitted);
}

TEST(FaultsInReadings, OfEveryMessageAreThrown) {
    for (const kvj::Message& message : kvj::messages()) {
        SCOPED_TRACE(std::string(message.name));
        const std::string sample = sampleOf(std::string(message.root));
        expectThrownOrRead([&] { return contentOf(readAny(message, sample)); });
        // Findings take many allocations, and of a long sample the time would go with the square.
        const std::string part = sample.substr(0, 1500);
        expectThrownOrRead([&] { return contentOf(readAny(message, part, kvjxml::diagnose)); });
    }
}

TEST(FaultsInReadings, ThatFindNoMessageAreThrown) {
    expectThrownOrRead(
        [] { return contentOf(readAny(messageOf("nonce"), "<nonse>&x;</nonse>junk", kvjxml::diagnose)); });
}

TEST(FaultsInReadings, OfAHostAreThrown) {
    const std::string sample = sampleOf("get_job_list");
    expectThrownOrRead([&] {
        const auto reading = kvjxml::read<kvjxml::messages::job_list>(sample, kvjxml::diagnose);
        return std::make_pair(reading->jobs.size(), reading.findings().size());
    });
    expectThrownOrRead([] {
        const auto reading = kvjxml::read<kvjxml::messages::job_list>("<a_name_that_is_longer_than_a_short_string/>");
        return std::make_pair(reading.has_value(), reading.error().root);
    });
}

}  // namespace

}  // namespace read_allocations_test
