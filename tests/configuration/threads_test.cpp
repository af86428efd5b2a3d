// A host that reads configurations in one thread while others compose them and read statuses: each gets what it would
// get alone.
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <functional>
#include <latch>
#include <numeric>
#include <string>
#include <thread>
#include <vector>

#include "KVJConfigParser.h"
#include "KVJStatusParser.h"
#include "configuration/requests.h"

namespace threads_test {

namespace {

using namespace kvj::tests;

constexpr int rounds = 100;

/// Runs each of these in a thread of its own, all at once, and gives how often each was wrong.
std::vector<int> wrongOf(const std::vector<std::function<bool()>>& actions) {
    std::vector<int> wrong(actions.size());
    std::latch start(static_cast<std::ptrdiff_t>(actions.size()));
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < actions.size(); ++i) {
        threads.emplace_back([&, i] {
            start.arrive_and_wait();
            for (int round = 0; round < rounds; ++round) wrong[i] += actions[i]() ? 0 : 1;
        });
    }
    threads.clear();  // waits for all
    return wrong;
}

class ConfigurationThreads : public Requests {};

TEST_F(ConfigurationThreads, OneReadsWhileOthersComposeAndReadStatuses) {
    const std::string reply = replyText();
    _KVConfiguration asRead;
    fillAsRead(asRead);
    const std::string expectedRecord = bytesOf(asRead);
    const auto readsConfiguration = [&] {
        _KVConfiguration own;
        preset(own);
        KVJConfigParser().GetConfiguration(reply.c_str(), 0, own);
        return bytesOf(own) == expectedRecord;
    };

    const auto composes = [&](const Selection& selection) {
        const Composed alone = composed(cfg, selection);
        EXPECT_TRUE(alone.result);
        return [this, selection, alone] { return composed(cfg, selection) == alone; };
    };

    const std::wstring status = wide(
        "<get_general_status><printer_state>idle</printer_state><alarms>7</alarms>"
        "<error>-3</error></get_general_status>");
    const auto readsStatus = [&] {
        KVGeneralStatus own{};
        return KVJStatusParser().ParseStatus(*status.c_str(), static_cast<int>(status.size()), own) && own.error == -3;
    };
    ASSERT_TRUE(readsStatus());

    testing::internal::CaptureStderr();
    const std::vector<int> wrong = wrongOf({readsConfiguration, composes({}), composes({.directToCard = true}),
                                            composes({.mask = 0x4000, .card = 2}), readsStatus, readsStatus});
    const std::string printed = testing::internal::GetCapturedStderr();
    EXPECT_EQ(wrong, std::vector<int>(6, 0));

    std::string debugLines;
    for (int round = 0; round < rounds; ++round) {
        debugLines += "DEBUG:RIBBON NAME RED\nDEBUG:RIBBON NAME2 \nDEBUG:RIBBON NAME Clear\nDEBUG:RIBBON NAME2 \n";
    }
    EXPECT_EQ(printed, debugLines);
}

}  // namespace

}  // namespace threads_test
