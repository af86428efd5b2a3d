// Hosts that serve several printers: eight threads read and compose, and each gets what it would get alone.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <latch>
#include <memory>
#include <mutex>
#include <numeric>
#include <string>
#include <thread>
#include <vector>

#include "hostile/composers.h"
#include "hostile/outcome.h"
#include "hostile/samples.h"
#include "hostile/sanitizers.h"
#include "support/copy_scope.h"
#include "support/readers.h"

namespace threads_test {

namespace {

using namespace kvj::tests;

constexpr std::size_t threadCount = 8;
constexpr std::size_t rounds = hasThreadSanitizer ? 5 : 20;

/// Runs an action with the number of its thread in each of the threads at once; the sum of what they return.
template <class Action>
std::size_t sumOfThreads(Action action) {
    std::array<std::size_t, threadCount> results{};
    std::latch start(threadCount);
    std::vector<std::jthread> threads;
    for (std::size_t number = 0; number < threadCount; ++number) {
        threads.emplace_back([&, number] {
            start.arrive_and_wait();
            results[number] = action(number);
        });
    }
    threads.clear();  // waits for all
    return std::accumulate(results.begin(), results.end(), std::size_t{0});
}

struct Reading {
    const Reader* reader;
    std::string text;
    Outcome expected;
};

/// Each reader with each reply.
std::vector<Reading> allReadings() {
    std::vector<Reading> all;
    for (const Sample& sample : samples()) {
        for (const Reader& reader : readers()) all.push_back({&reader, sample.text, outcomeOf(reader, sample.text)});
    }
    return all;
}

TEST(Threads, ReadAsOneDoes) {
    const std::vector<Reading> readings = allReadings();
    std::mutex alone;
    const auto isWrong = [&](const Reading& reading) {
        std::unique_lock lock(alone, std::defer_lock);
        if (reading.reader->isAlone) lock.lock();
        return outcomeOf(*reading.reader, reading.text) != reading.expected;
    };
    EXPECT_EQ(sumOfThreads([&](std::size_t number) {
                  // Each thread begins at another reading, and all of them come to every one.
                  const auto first = readings.begin() + std::ptrdiff_t(readings.size() * number / threadCount);
                  std::size_t wrong = 0;
                  for (std::size_t round = 0; round < rounds; ++round) {
                      wrong += std::size_t(std::count_if(first, readings.end(), isWrong));
                      wrong += std::size_t(std::count_if(readings.begin(), first, isWrong));
                  }
                  return wrong;
              }),
              0U);
}

TEST(Threads, ReadOneTextTogether) {
    const Reader& reader = readers().front();
    const ExactText text(sampleOf(reader.root));
    const Outcome expected = outcomeOf(reader, sampleOf(reader.root));
    EXPECT_EQ(sumOfThreads([&](std::size_t /*number*/) {
                  std::size_t wrong = 0;
                  for (std::size_t round = 0; round < 1000; ++round) {
                      FramedRecord record(reader.recordSize);
                      const bool result = reader.read(text, record.first());
                      if (result != expected.result || record.content() != expected.record) ++wrong;
                  }
                  return wrong;
              }),
              0U);
}

TEST(Threads, ComposeAsOneDoes) {
    const CopyScope scope;
    std::vector<std::string> expected;
    for (const Composer& composer : composers()) expected.push_back(textOf(composer));
    ASSERT_THAT(expected, testing::Each(testing::StartsWith("<?xml")));
    EXPECT_EQ(sumOfThreads([&](std::size_t number) {
                  std::vector<std::unique_ptr<Composing>> own;
                  for (const Composer& composer : composers()) own.push_back(composer.begin());
                  std::size_t wrong = 0;
                  for (std::size_t i = 0; i < rounds * own.size(); ++i) {
                      const std::size_t which = (i + number) % own.size();
                      if (!own[which]->compose() || own[which]->text() != expected[which]) ++wrong;
                  }
                  return wrong;
              }),
              0U);
}

}  // namespace

}  // namespace threads_test
