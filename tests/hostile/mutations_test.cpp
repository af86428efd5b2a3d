// Replies with one wrong byte, garbled by a line or a firmware.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "hostile/outcome.h"
#include "hostile/samples.h"
#include "support/readers.h"

namespace mutations_test {

namespace {

using namespace kvj::tests;

/// What is markup, and what begins a character of two, three and four bytes.
constexpr std::string_view wrongBytes = "<>/\"'=&;#x\xC3\xEF\xF0";

using Mutations = EachReader;
INSTANTIATE_TEST_SUITE_P(Of, Mutations, testing::ValuesIn(readers()), EachReader::nameOf);

TEST_P(Mutations, OfAnyByteLeaveTheRecordValid) {
    const std::string sample = sampleOf(GetParam().root);
    for (std::size_t at = 0; at < sample.size(); ++at) {
        for (const char wrong : wrongBytes) {
            std::string text = sample;
            text[at] = wrong;
            ASSERT_TRUE(outcomeOf(GetParam(), text).isSound) << text;
        }
    }
}

TEST_P(Mutations, ByANulEndTheReply) {
    const std::string sample = sampleOf(GetParam().root);
    for (std::size_t at = 0; at < sample.size(); ++at) {
        std::string text = sample;
        text[at] = '\0';
        ASSERT_EQ(outcomeOf(GetParam(), text), outcomeOf(GetParam(), sample.substr(0, at))) << at;
    }
}

}  // namespace

}  // namespace mutations_test
