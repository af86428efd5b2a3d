// Several threads read at the same time.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <kvjxml_read.hpp>
#include <latch>
#include <string>
#include <thread>
#include <vector>

#include "fields/configuration.h"
#include "fields/differences.h"
#include "hostile/samples.h"
#include "support/readings.h"

namespace read_threads_test {

namespace {

using namespace kvj::tests;

TEST(ReadingThreads, ReadConfigurationsAsOneDoes) {
    constexpr std::size_t count = 8;
    const std::string sample = sampleOf("configuration");
    const auto expected = kvjxml::read<kvjxml::messages::configuration>(sample, kvjxml::diagnose);
    ASSERT_TRUE(expected);
    std::array<std::size_t, count> wrong{};
    std::latch start(count);
    std::vector<std::jthread> threads;
    for (std::size_t& wrongHere : wrong) {
        threads.emplace_back([&] {
            start.arrive_and_wait();
            for (int round = 0; round < 10; ++round) {
                const auto reading = kvjxml::read<kvjxml::messages::configuration>(sample, kvjxml::diagnose);
                const auto& record = kvj::recordType<Kavrin::_KVConfiguration>;
                if (!kvj::differences(record, &*reading, &*expected).empty()) ++wrongHere;
                if (toldOf(reading.findings()) != toldOf(expected.findings())) ++wrongHere;
            }
        });
    }
    threads.clear();  // waits for all
    EXPECT_THAT(wrong, testing::Each(0U));
}

}  // namespace

}  // namespace read_threads_test
