// Every sample reply has the record that it fills beside it: examples/replies/X.xml and tests/golden/X.json.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tool/tool.h"

namespace {

using kvjxml::tests::contentOf;
using kvjxml::tests::runTool;
namespace fs = std::filesystem;

std::set<std::string> namesIn(const fs::path& folder, const std::string& extension) {
    std::set<std::string> names;
    for (const auto& file : fs::directory_iterator(folder)) {
        if (file.path().extension() == extension) names.insert(file.path().stem().string());
    }
    return names;
}

const fs::path replies = KVJXML_REPLIES;
const fs::path golden = KVJXML_GOLDEN;

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, ASampleReplyDecodesToItsRecord) {
    const auto outcome = runTool("decode " + (replies / (GetParam() + ".xml")).string());
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(outcome.out, contentOf(golden / (GetParam() + ".json")));
}

INSTANTIATE_TEST_SUITE_P(Replies, Golden, testing::ValuesIn(namesIn(replies, ".xml")),
                         [](const auto& sample) { return sample.param; });

TEST(Golden, EverySampleHasItsRecordAndEveryRecordItsSample) {
    EXPECT_EQ(namesIn(replies, ".xml"), namesIn(golden, ".json"));
    EXPECT_FALSE(namesIn(replies, ".xml").empty());
}

}  // namespace
