// Documents that show every element of a message.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "foundation/document.h"
#include "foundation/reply.h"
#include "messages/any_reading.h"
#include "messages/message.h"
#include "sample.h"
#include "tool/tool.h"

namespace sample_test {

namespace {

using namespace kvj;
using namespace kvj::tool;
using kvj::tests::Outcome;
using kvj::tests::runTool;
using testing::HasSubstr;

std::string sampleOf(std::string_view root) {
    std::ostringstream out;
    writeSample(out, root);
    return out.str();
}

std::set<std::string_view> allRoots() {
    std::set<std::string_view> roots;
    for (const Message& message : messages()) {
        roots.insert(message.root);
        if (!message.otherRoot.empty()) roots.insert(message.otherRoot);
    }
    return roots;
}

TEST(SampleOfEveryMessage, HasNothingThatIsIgnoredOrChanged) {
    for (const Message& message : messages()) {
        for (const std::string_view root : {message.root, message.otherRoot}) {
            if (root.empty()) continue;
            const AnyReading reading = readAny(message, sampleOf(root), kvjxml::diagnose);
            EXPECT_TRUE(reading.found && reading.whole) << message.name;
            for (const auto& finding : reading.findings) {
                ADD_FAILURE() << message.name << ": " << to_string(finding.kind) << ' ' << finding.path << " \""
                              << finding.text << "\" " << finding.detail;
            }
        }
    }
}

/// How often each path stands in a document.
// Documents are as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void countPaths(Element element, const std::string& around, std::map<std::string, int>& paths) {
    for (const Element child : element.children()) {
        const std::string path = around + "/" + std::string(child.name());
        ++paths[path];
        countPaths(child, path, paths);
    }
}

// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void expectRows(std::span<const DescribedRow> rows, const std::string& around,
                const std::map<std::string, int>& paths) {
    for (const DescribedRow& row : rows) {
        const std::string path = around + "/" + std::string(row.name);
        EXPECT_TRUE(paths.contains(path)) << path;
        expectRows(row.description.group, path, paths);
    }
}

TEST(SampleOfEveryMessage, HasAnElementForEveryRow) {
    for (const Message& message : messages()) {
        const std::string text = sampleOf(message.root);
        const Reply reply(text.c_str());
        std::map<std::string, int> paths;
        countPaths(reply.root(message.root.data(), message.otherRoot.data()), "", paths);
        expectRows(message.table, "", paths);
    }
}

/// The texts and attributes of a document that are numbers, or names with a number.
// NOLINTNEXTLINE(misc-no-recursion): likewise
void collectNumbers(Element element, std::multiset<std::string>& numbers) {
    const auto add = [&](const char* text) {
        if (text != nullptr && std::string(text).find_first_of("0123456789") != std::string::npos) numbers.insert(text);
    };
    for (const char* const name : {"min", "max", "reading", "count", "adc_value", "model", "serial", "nonce"}) {
        add(element.attribute(name));
    }
    bool hasElements = false;
    for (const Element child : element.children()) {
        hasElements = true;
        collectNumbers(child, numbers);
    }
    if (!hasElements) add(element.text());
}

TEST(SampleOfEveryMessage, HasEachNumberOnce) {
    const std::set<std::string> words{"1/2 YMCKO", "1/2 YMCKOKO", "1/2 ymcko", "1/2 ymckoko", "1_side", "2_side"};
    for (const std::string_view root : allRoots()) {
        const std::string text = sampleOf(root);
        const Reply reply(text.c_str());
        std::multiset<std::string> numbers;
        collectNumbers(reply.root(root.data()), numbers);
        for (const std::string& number : numbers) {
            if (words.contains(number)) continue;
            EXPECT_EQ(numbers.count(number), 1U) << root << ": " << number;
        }
    }
}

TEST(Sample, HasTwoEntriesOfAList) {
    const std::string text = sampleOf("get_job_list");
    EXPECT_EQ(readAny(*std::ranges::find(messages(), "job_list", &Message::name), text).lists.front().count(), 2U);
}

TEST(Sample, HasBothCustomCards) {
    EXPECT_THAT(sampleOf("configuration"), HasSubstr("<description>Custom 1</description>"));
}

TEST(Sample, HasARangeAroundTheValueOfASetting) {
    EXPECT_THAT(sampleOf("configuration"),
                testing::ContainsRegex("<lcd_contrast min=\"[0-9]+\" max=\"[0-9]+\">[0-9]+<"));
}

TEST(Sample, IsPrintedForAKnownMessage) {
    const Outcome outcome = runTool("sample get_job_status");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.out, sampleOf("get_job_status"));
    const Outcome wrong = runTool("sample get_jb_status");
    EXPECT_EQ(wrong.code, 2);
    EXPECT_THAT(wrong.error, HasSubstr("there is no message \"get_jb_status\"; did you mean \"get_job_status\"?"));
    EXPECT_EQ(runTool("sample").code, 2);
    EXPECT_EQ(runTool("sample media >/dev/full").code, 1);
}

TEST(Sample, DecodesWithoutAComplaint) {
    for (const std::string_view root : allRoots()) {
        const Outcome outcome = runTool("sample " + std::string(root) + " | " + KVJXML_TOOL + " decode");
        EXPECT_EQ(outcome.code, 0) << root;
    }
}

}  // namespace

}  // namespace sample_test
