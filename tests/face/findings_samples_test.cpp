// What is found in the samples, and around messages of any kind.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <kvjxml_read.hpp>
#include <string>
#include <vector>

#include "hostile/samples.h"
#include "messages/message.h"
#include "support/files.h"
#include "support/random_replies.h"
#include "support/readings.h"

namespace findings_samples_test {

namespace {

using namespace kvj;
using namespace kvj::tests;
using Found = kvjxml::finding_kind;

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find('\n', at);
        lines.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return lines;
}

/// Each message in its own sample: a line of the file for each finding, behind the message's name.
TEST(FindingsOfSamples, AreThoseOfTheList) {
    std::vector<std::string> found;
    for (const Message& message : messages()) {
        const AnyReading reading = readAny(message, sampleOf(std::string(message.root)), kvjxml::diagnose);
        EXPECT_TRUE(reading.found && reading.whole) << message.name;
        for (const std::string& line : toldOf(reading.findings)) {
            found.push_back(std::string(message.name) + ": " + line);
        }
    }
    std::vector<std::string> expected = linesOf(contentOf(FINDINGS_OF_SAMPLES));
    std::erase_if(expected, [](const std::string& line) { return line.starts_with("#") || line.empty(); });
    EXPECT_THAT(found, testing::ElementsAreArray(expected));
}

TEST(FindingsOfSamples, ReadAsAnotherMessageAreThatItIsNotThere) {
    for (const Sample& sample : samples()) {
        for (const Message& message : messages()) {
            if (message.root == sample.root || message.otherRoot == sample.root) continue;
            const AnyReading reading = readAny(message, sample.text, kvjxml::diagnose);
            ASSERT_EQ(reading.findings.size(), 1U) << message.name << " in " << sample.root;
            EXPECT_EQ(reading.findings[0].kind, Found::unknown_message);
            EXPECT_EQ(reading.findings[0].path, "/" + sample.root);
            EXPECT_EQ(reading.findings[0].text, sample.root);
        }
    }
}

/// Whether a finding says that the reply is not whole.
bool speaksAgainstWhole(const kvjxml::finding& finding) {
    const bool isBeside = finding.path == "/" || finding.detail == "an element beside the message";
    return finding.kind == Found::malformed || finding.kind == Found::encoding || isBeside;
}

/// Of right and broken replies: none is whole that is told to be broken, and none is broken that nothing is said of.
TEST(FindingsOfAnyReply, SayWhatTheReadingSays) {
    std::vector<std::string> samples;
    for (const Sample& sample : tests::samples()) samples.push_back(sample.text);
    const char* const number = std::getenv("KVJXML_REPLIES");
    const std::size_t replies = number == nullptr ? 5000 : std::strtoul(number, nullptr, 10);
    for (const Message& message : messages()) {
        for (std::size_t i = 0; i < replies / messages().size(); ++i) {
            Random random(i);
            const std::string root(message.root);
            const std::string text = random.oneIn(4) ? "<" + root + ">" + randomDocument(random) + "</" + root + ">"
                                                     : spoiltReply(random, message, samples);
            const AnyReading plain = readAny(message, text);
            const AnyReading reading = readAny(message, text, kvjxml::diagnose);
            ASSERT_EQ(plain.found, reading.found);
            ASSERT_EQ(plain.whole, reading.whole);
            ASSERT_EQ(plain.record, reading.record);
            ASSERT_EQ(plain.carried, reading.carried);
            const auto& findings = reading.findings;
            const auto told = testing::PrintToString(toldOf(findings));
            for (const auto& finding : findings) {
                ASSERT_FALSE(reading.whole && speaksAgainstWhole(finding)) << toldOf(finding) << '\n' << text;
                ASSERT_LE(finding.offset + finding.length, text.size()) << toldOf(finding) << '\n' << text;
                ASSERT_GE(finding.line, 1U);
                ASSERT_GE(finding.column, 1U);
            }
            if (reading.found && !reading.whole) {
                ASSERT_TRUE(std::ranges::any_of(findings, speaksAgainstWhole)) << told << '\n' << text;
            }
            ASSERT_EQ(
                std::ranges::any_of(findings, [](const auto& each) { return each.kind == Found::unknown_message; }),
                !reading.found);
            ASSERT_TRUE(std::ranges::is_sorted(findings, {}, &kvjxml::finding::offset)) << told << '\n' << text;
        }
    }
}

}  // namespace

}  // namespace findings_samples_test
