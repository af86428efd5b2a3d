// Replies that are cut: a printer that is switched off stops wherever it is.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "hostile/outcome.h"
#include "hostile/samples.h"
#include "support/readers.h"

namespace prefixes_test {

namespace {

using namespace kvj::tests;

Outcome outcomeOfPrefix(const Reader& reader, const std::string& text, std::size_t length) {
    return outcomeOf(reader, std::string_view(text).substr(0, length));
}

using Prefixes = EachReader;
INSTANTIATE_TEST_SUITE_P(Of, Prefixes, testing::ValuesIn(readers()), EachReader::nameOf);

TEST_P(Prefixes, OfItsReplyAReaderReadsAsFarAsTheyGo) {
    const std::string sample = sampleOf(GetParam().root);
    const std::string begin = std::string("<").append(GetParam().root);
    const std::size_t named = sample.find(begin) + begin.size();
    const std::size_t complete = sample.rfind("</");
    const Outcome nothing = outcomeOf(GetParam(), "");
    const Outcome whole = outcomeOf(GetParam(), sample);
    ASSERT_TRUE(nothing.isSound);
    ASSERT_NE(whole, nothing);
    for (std::size_t length = 0; length <= sample.size(); ++length) {
        const Outcome cut = outcomeOfPrefix(GetParam(), sample, length);
        ASSERT_TRUE(cut.isSound) << length;
        // Without the name of the root there is no message, and the end tag of the root adds nothing.
        if (length < named) {
            ASSERT_EQ(cut, nothing) << length;
        }
        if (length >= complete) {
            ASSERT_EQ(cut, whole) << length;
        }
    }
}

TEST_P(Prefixes, OfAnotherReplyAReaderDoesNotRead) {
    // Each reader gets some of the others, so that all of them are used, but not in every combination.
    constexpr std::size_t oneIn = 6;
    std::size_t number = GetParam().name.size();
    const Outcome nothing = outcomeOf(GetParam(), "");
    for (const auto& [root, text] : samples()) {
        if (root == GetParam().root || ++number % oneIn != 0) continue;
        for (std::size_t length = 0; length <= text.size(); ++length) {
            ASSERT_EQ(outcomeOfPrefix(GetParam(), text, length), nothing) << root << ' ' << length;
        }
    }
}

}  // namespace

}  // namespace prefixes_test
