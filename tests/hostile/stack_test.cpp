// Readers run in threads with little stack: 64 KiB are enough for whatever a printer sends, however deep and wide.
#include <gtest/gtest.h>
#include <pthread.h>

#include <cstddef>
#include <string>

#include "hostile/outcome.h"
#include "hostile/samples.h"
#include "hostile/sanitizers.h"
#include "support/readers.h"

namespace stack_test {

namespace {

using namespace kvj::tests;

constexpr std::size_t stackSize = 64 << 10;

/// Runs an action in a thread with that stack, and waits for its end.
template <class Action>
void runWithSmallStack(Action action) {
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, stackSize), 0);
    pthread_t thread;
    const auto run = [](void* argument) -> void* {
        (*static_cast<Action*>(argument))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, run, &action), 0);
    ASSERT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
}

std::string times(std::size_t count, const std::string& text) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += text;
    return all;
}

/// This many elements inside each other, with `inside` in the innermost.
std::string nested(std::size_t levels, const std::string& inside = {}, const std::string& attributes = {}) {
    return times(levels, "<a" + attributes + ">") + inside + times(levels, "</a>");
}

std::string attributes(std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += " n" + std::to_string(i) + "=\"\"";
    return all;
}

/// Reads a reply with a shape after it, where the reader should not care about it.
void expectRead(const std::string& shape) {
    withEachReader([&](const Reader& reader) {
        const std::string sample = sampleOf(reader.root);
        Outcome outcome{};
        ASSERT_NO_FATAL_FAILURE(runWithSmallStack([&] { outcome = outcomeOf(reader, sample + shape); }));
        EXPECT_EQ(outcome, outcomeOf(reader, sample));
    });
}

class SmallStack : public testing::Test {
protected:
    void SetUp() override {
        if (hasAddressSanitizer) GTEST_SKIP() << "the sanitizer makes each call take more stack than in a host";
    }
};

TEST_F(SmallStack, IsEnoughForTheDeepestReplies) {
    expectRead(nested(64));
    expectRead(nested(100'000));
    expectRead(times(100'000, "<a>"));
    expectRead(nested(10'000, times(10'000, "<b/>")));
    expectRead(nested(10'000, times(10'000, "<b>text</b>")));
}

TEST_F(SmallStack, IsEnoughForTheWidestReplies) {
    expectRead(nested(1, {}, attributes(256)));
    expectRead(nested(1, {}, attributes(100'000)));
    expectRead(nested(64, {}, attributes(1000)));
}

}  // namespace

}  // namespace stack_test
