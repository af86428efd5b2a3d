// At the limits of what is told of a request: values that are just sent as they are asked for.
#include <gtest/gtest.h>

#include <kvjxml_compose.hpp>

#include <string>
#include <string_view>

namespace problems_limits_test {

namespace {

using kvjxml::problem_kind;
using kvjxml::section;

Kavrin::_KVConfiguration withAddress(unsigned long address) {
    Kavrin::_KVConfiguration configuration = {};
    configuration.ethernet.ipAddress = address;
    return configuration;
}

TEST(AnIpAddress, IsSentAsItIsUpToTheLargest) {
    for (const unsigned long address : {0UL, 1UL, 0xFFFFFFFEUL, 0xFFFFFFFFUL}) {
        EXPECT_TRUE(kvjxml::compose(withAddress(address), section::ethernet)) << address;
    }
    const auto request = kvjxml::compose(withAddress(0xFFFFFFFFUL), section::ethernet);
    ASSERT_TRUE(request);
    EXPECT_NE(request.text().find("<ip_address>255.255.255.255</ip_address>"), std::string_view::npos);
}

TEST(AnIpAddress, LosesWhatIsBeyondThat) {
    const auto request = kvjxml::compose(withAddress(0x100000000UL), section::ethernet);
    ASSERT_EQ(request.problems().size(), 1U);
    EXPECT_EQ(request.problems().front().kind, problem_kind::digits_lost);
}

}  // namespace

}  // namespace problems_limits_test
