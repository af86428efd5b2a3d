#include "hostile/composers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "messages/request.h"

namespace composers_test {

namespace {

using namespace kvj::tests;

// Without an example a request would be composed under no hard condition at all.
TEST(ComposingExamples, AreThereForEveryRequestWithTheCopyThatItLeaves) {
    for (const kvj::Request& request : kvj::requests()) {
        SCOPED_TRACE(std::string(request.name));
        const auto example = std::ranges::find(composers(), request.name, &Composer::name);
        ASSERT_NE(example, composers().end()) << "has no example in tests/hostile/composers.cpp";
        EXPECT_STREQ(example->copy, request.copy);
    }
}

}  // namespace

}  // namespace composers_test
