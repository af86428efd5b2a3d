// Several threads compose the same record at the same time.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <thread>
#include <vector>

#include "face/faces.h"
#include "face/random_records.h"

namespace compose_threads_test {

namespace {

using kvj::Choices;
using kvj::Request;
using kvj::ZeroedRecord;
using kvj::tests::composed;
using kvj::tests::Kept;

/// What the face composes; empty when there is nothing to send.
std::string textOf(const Request& request, const void* record, const Choices& choices) {
    const auto result = composed(request, record, choices, true);
    return result ? result.text() : "";
}

TEST(ComposingThreads, ShareARecord) {
    for (const Request& request : kvj::requests()) {
        Kept kept;
        const ZeroedRecord record(request, request.record->size);
        const Choices choices = kvj::tests::readSample(request, record.get(), kept);
        const std::string expected = textOf(request, record.get(), choices);
        const std::size_t problems = composed(request, record.get(), choices, false).problems().size();
        std::array<int, 4> wrong{};
        {
            std::vector<std::jthread> threads;
            for (int& mine : wrong) {
                threads.emplace_back([&] {
                    for (int i = 0; i < 50; ++i) {
                        if (textOf(request, record.get(), choices) != expected) ++mine;
                        if (composed(request, record.get(), choices, false).problems().size() != problems) ++mine;
                    }
                });
            }
        }
        EXPECT_EQ(wrong, (std::array<int, 4>{})) << request.name;
    }
}

}  // namespace

}  // namespace compose_threads_test
