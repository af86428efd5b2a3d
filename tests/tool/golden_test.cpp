// Every sample reply has the record that it fills, examples/replies/X.xml and tests/golden/X.json, and every sample
// request the document that it becomes, examples/requests/X.json and tests/golden/X.xml. Where there is more to it, the
// line X.options is what encoding is told, and X.changes what it says of a request that the printer gets otherwise than
// asked.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tool/tool.h"

namespace golden_test {

namespace {

using kvj::tests::contentOf;
using kvj::tests::runTool;
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

const fs::path requests = KVJXML_REQUESTS;

/// The content of a file that need not be there.
std::string contentIfAny(const fs::path& file) { return fs::exists(file) ? contentOf(file) : ""; }

class GoldenReply : public testing::TestWithParam<std::string> {};

TEST_P(GoldenReply, DecodesToItsRecord) {
    const auto outcome = runTool("decode " + (replies / (GetParam() + ".xml")).string());
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(outcome.out, contentOf(golden / (GetParam() + ".json")));
}

INSTANTIATE_TEST_SUITE_P(Replies, GoldenReply, testing::ValuesIn(namesIn(replies, ".xml")));

class GoldenRequest : public testing::TestWithParam<std::string> {};

TEST_P(GoldenRequest, EncodesToItsDocument) {
    const std::string options = contentIfAny(golden / (GetParam() + ".options"));
    const auto outcome = runTool("encode " + GetParam() + " " + options.substr(0, options.find('\n')),
                                 contentOf(requests / (GetParam() + ".json")));
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.error, contentIfAny(golden / (GetParam() + ".changes")));
    EXPECT_EQ(outcome.out, contentOf(golden / (GetParam() + ".xml")));
}

INSTANTIATE_TEST_SUITE_P(Requests, GoldenRequest, testing::ValuesIn(namesIn(requests, ".json")));

TEST(Golden, EverySampleHasItsPairAndEveryPairItsSample) {
    EXPECT_EQ(namesIn(replies, ".xml"), namesIn(golden, ".json"));
    EXPECT_EQ(namesIn(requests, ".json"), namesIn(golden, ".xml"));
    EXPECT_FALSE(namesIn(replies, ".xml").empty());
    EXPECT_FALSE(namesIn(requests, ".json").empty());
}

}  // namespace

}  // namespace golden_test
