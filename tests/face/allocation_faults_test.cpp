// Memory that runs out while a request is composed: it is std::bad_alloc, nothing is lost, and the next one is
// composed.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "face/faces.h"
#include "face/random_records.h"
#include "hostile/allocation_watch.h"

namespace allocation_faults_test {

using kvj::Choices;
using kvj::Request;
using kvj::ZeroedRecord;
using kvj::tests::AllocationWatch;
using kvj::tests::Failing;

namespace {

/// Lets each allocation of `compose` fail in turn, in both ways.
/// @return how many there are
template <class Compose>
std::size_t failEach(Compose compose) {
    for (std::size_t allowed = 0;; ++allowed) {
        for (const Failing failing : kvj::tests::bothWays) {
            bool thrown = false;
            std::size_t alive = 0;
            {
                AllocationWatch watch;
                thrown = kvj::tests::throwsAfter(allowed, failing, watch, compose);
                alive = watch.alive();
            }
            EXPECT_EQ(alive, 0U) << allowed;
            if (!thrown) return allowed;
        }
    }
}

class AllocationFaults : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(Face, AllocationFaults, testing::Bool(),
                         [](const auto& test) { return test.param ? "WithChangesAccepted" : "WithChangesRefused"; });

TEST_P(AllocationFaults, AreThrownAndNothingIsLost) {
    for (const Request& request : kvj::requests()) {
        SCOPED_TRACE(std::string(request.name));
        kvj::tests::Kept kept;
        const ZeroedRecord record(request, request.record->size);
        const Choices choices = kvj::tests::readSample(request, record.get(), kept);
        const kvjxml::options options = kvj::tests::optionsOf(choices, GetParam());
        kvj::tests::withFace(request, record.get(), choices, [&](const auto&... arguments) {
            const auto accepted = kvjxml::compose(arguments..., kvjxml::accept_changes{options});
            const auto problems = kvjxml::compose(arguments..., options).problems().size();
            EXPECT_GT(failEach([&] { static_cast<void>(kvjxml::compose(arguments..., options)); }), 1U);
            char buffer[64];
            EXPECT_GT(failEach([&] { static_cast<void>(kvjxml::compose_to(buffer, arguments..., options)); }), 0U);
            const auto next = kvjxml::compose(arguments..., options);
            EXPECT_EQ(next.problems().size(), problems);
            const auto again = kvjxml::compose(arguments..., kvjxml::accept_changes{options});
            EXPECT_EQ(again.text(), accepted.text());
        });
    }
}

}  // namespace

}  // namespace allocation_faults_test
