// The example that hosts copy from the header, compiled as it stands there: whatever the printer answers, the count is
// never larger than the array when the example is through.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "KVJCapsParser.h"
#include "support/xml.h"

namespace header_example_test {

namespace {

using namespace kvj::tests;

/// A "fonts" section for each number, with fonts of the names "1", "2" and so on.
std::string replyWith(const std::vector<int>& sections) {
    std::string reply = "<capabilities>";
    for (const int fonts : sections) {
        reply += "<fonts>";
        for (int i = 1; i <= fonts; ++i) reply += "<font><name>" + std::to_string(i) + "</name></font>";
        reply += "</fonts>";
    }
    return reply + "</capabilities>";
}

/// A printer that is asked anew for each reading; it repeats its last answer.
class Printer {
public:
    explicit Printer(std::vector<std::string> replies) : replies_(std::move(replies)) {}

    bool GetCapabilities(const wchar_t& /*text*/, int /*length*/, Kavrin::_Capabilities& caps) {
        const std::wstring reply = wide(replies_.at(std::min(asked_++, replies_.size() - 1)));
        return Kavrin::KVJCapsParser().GetCapabilities(reply[0], static_cast<int>(reply.size()), caps);
    }

private:
    std::vector<std::string> replies_;
    std::size_t asked_ = 0;
};

/// What a host has that copied the example.
std::vector<std::string> fontsOf(Printer parser) {
    using namespace Kavrin;
    const wchar_t text[] = L"";
    const int length = 0;
#include "header_example.inc"
    std::vector<std::string> names;
    for (int i = 0; i < caps.fontCount; ++i) names.emplace_back(fonts.at(static_cast<std::size_t>(i)).name);
    return names;
}

using Names = std::vector<std::string>;

TEST(HeaderExample, ReadsAListOfAnyLength) {
    EXPECT_EQ(fontsOf(Printer({replyWith({0})})), (Names{}));
    EXPECT_EQ(fontsOf(Printer({replyWith({3})})), (Names{"1", "2", "3"}));
}

TEST(HeaderExample, ReadsAListThatStandsTwice) {
    EXPECT_EQ(fontsOf(Printer({replyWith({5, 3})})), (Names{"1", "2", "3", "4", "5"}));
    EXPECT_EQ(fontsOf(Printer({replyWith({3, 5})})), (Names{"1", "2", "3", "4", "5"}));
}

TEST(HeaderExample, ReadsAListThatGrowsOrShrinksWhileItIsRead) {
    EXPECT_EQ(fontsOf(Printer({replyWith({1}), replyWith({2}), replyWith({4})})), (Names{"1", "2", "3", "4"}));
    EXPECT_EQ(fontsOf(Printer({replyWith({3}), replyWith({1})})), (Names{"1", "", ""}));
    EXPECT_EQ(fontsOf(Printer({replyWith({3}), "no reply"})), (Names{"", "", ""}));
}

}  // namespace

}  // namespace header_example_test
