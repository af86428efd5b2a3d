// Replies that mean harm, read with findings: nothing is read outside them, and time and findings have bounds.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <kvjxml_read.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "hostile/samples.h"
#include "messages/message.h"
#include "support/guarded_memory.h"
#include "support/readings.h"

namespace read_hostile_test {

namespace {

using namespace kvj;
using namespace kvj::tests;
using Found = kvjxml::finding_kind;

/// Reads bytes behind which, or in front of which, nothing can be read.
class GuardedReading {
public:
    explicit GuardedReading(std::size_t most) : memory_(most) {}

    AnyReading read(const Message& message, std::string_view bytes) const {
        for (const End end : {End::front, End::back}) {
            char* const copy = memory_.at(end, bytes.size());
            std::ranges::copy(bytes, copy);
            AnyReading reading = readAny(message, {copy, bytes.size()}, kvjxml::diagnose);
            if (end == End::back) return reading;
        }
        return {};
    }

private:
    GuardedMemory memory_;
};

/// Each message, and its sample.
template <class Action>
void withEachSample(Action action) {
    for (const Message& message : messages()) {
        SCOPED_TRACE(std::string(message.name));
        action(message, sampleOf(std::string(message.root)));
    }
}

/// So many places of a text that a test of all takes no longer than a few of a short one.
std::size_t stepOf(const std::string& text) { return 1 + text.size() / 150; }

TEST(HostileReadings, OfEveryPrefixReadNothingOutsideIt) {
    withEachSample([](const Message& message, const std::string& sample) {
        const GuardedReading guarded(sample.size());
        for (std::size_t length = 0; length < sample.size(); length += stepOf(sample)) {
            const AnyReading reading = guarded.read(message, std::string_view(sample).substr(0, length));
            ASSERT_EQ(reading.whole, length > sample.rfind('>')) << length;
        }
    });
}

TEST(HostileReadings, OfAnyWrongByteReadNothingOutsideTheReply) {
    constexpr std::string_view wrong("<>/\"'=&;#x!?\xC3\xEF\xF0\xFF\0", 17);
    std::size_t number = 0;
    withEachSample([&](const Message& message, const std::string& sample) {
        const GuardedReading guarded(sample.size());
        for (std::size_t at = 0; at < sample.size(); at += stepOf(sample)) {
            std::string text = sample;
            text[at] = wrong[number++ % wrong.size()];
            const AnyReading reading = guarded.read(message, text);
            for (const auto& finding : reading.findings)
                ASSERT_LE(finding.offset + finding.length, text.size()) << text;
        }
    });
}

// ---- Findings have a bound ----

std::string times(std::size_t count, std::string_view part) {
    std::string text;
    for (; count > 0; --count) text += part;
    return text;
}
std::string within(std::string_view element, const std::string& content) {
    return "<" + std::string(element) + ">" + content + "</" + std::string(element) + ">";
}

void expectBounded(std::string_view message, const std::string& reply, std::size_t findings) {
    const AnyReading reading = readAny(messageOf(message), reply, kvjxml::diagnose);
    EXPECT_EQ(reading.findings.size(), 10'000U);
    EXPECT_EQ(reading.omitted, findings - 10'000);
}

TEST(HostileFindings, AreTenThousandAndACount) {
    expectBounded("job_list", within("get_job_list", times(30'000, "<x/>")), 30'000);
    expectBounded("job_list", within("get_job_list", times(30'000, "<job/>")), 30'000 - 64);
    expectBounded("job_list", within("get_job_list", times(10'100, "<job><x/></job>")), 10'100 + 10'100 - 64);
    expectBounded("job_list", within("get_job_list", times(30'000, "x<job/>")), 30'000 + 30'000 - 64);
    expectBounded("nonce", within("nonce", "1" + times(30'000, "<b/>")), 30'000);
    expectBounded("general_status", within("get_general_status", times(30'001, "<error>1</error>")), 30'000);
    expectBounded("general_status", within("get_general_status", times(15'000, "<error>x</error>")), 15'000 + 14'999);
    // The text is cut as well.
    expectBounded("nonce", within("nonce", times(30'000, "&x")), 30'001);
    expectBounded("nonce", within("nonce", times(30'000, "\xFFx")), 30'001);
}

TEST(HostileFindings, AreTheFirst) {
    const auto reading =
        readAny(messageOf("job_list"), within("get_job_list", times(20'000, "\n<x/>")), kvjxml::diagnose);
    ASSERT_EQ(reading.findings.size(), 10'000U);
    EXPECT_EQ(reading.findings.front().line, 2U);
    EXPECT_EQ(reading.findings.back().line, 10'001U);
}

TEST(HostileFindings, HaveExcerpts) {
    const std::string name(1 << 16, 'a');
    const auto reading = readAny(messageOf("nonce"), "<nonce>1<" + name + "/></nonce>", kvjxml::diagnose);
    ASSERT_EQ(reading.findings.size(), 1U);
    EXPECT_LE(reading.findings[0].text.size(), 60U);
}

// ---- Memory ----

/// How many entries a list of the host's has memory for, beside those that the reply has.
template <class Entry>
std::size_t spareOf(const std::vector<Entry>& list) {
    return list.capacity() - list.size();
}

TEST(HostileReadings, OfElementsThatNobodyKnowsTakeNoRoomInAList) {
    namespace messages = kvjxml::messages;
    const std::string unknown = times(1000, "<x/>");
    const auto jobs = kvjxml::read<messages::job_list>(within("get_job_list", unknown + "<job/>" + unknown));
    ASSERT_EQ(jobs->jobs.size(), 1U);
    EXPECT_EQ(spareOf(jobs->jobs), 0U);
    const auto points = kvjxml::read<messages::access_points>(within("AccessPoints", unknown));
    EXPECT_EQ(spareOf(points->accessPoints), 0U);
    const auto services = kvjxml::read<messages::service_history>(within("get_log_service_history", unknown));
    EXPECT_EQ(spareOf(services->entries), 0U);
    const auto cleanings = kvjxml::read<messages::cleaning_history>(within("get_log_cleaning_history", unknown));
    EXPECT_EQ(spareOf(cleanings->entries), 0U);
    const auto printer = kvjxml::read<messages::capabilities>(
        within("capabilities", within("fonts", unknown) + within("host_ports", unknown)));
    EXPECT_EQ(spareOf(printer->fonts), 0U);
    EXPECT_EQ(spareOf(printer->hostPorts), 0U);
}

// ---- Time ----

/// A shape whose time grows with the square of its size would take minutes here, and longer than any test may with the
/// size that a test of the long ones sets.
TEST(HostileReadings, OfAnyShapeTakeTimeInProportion) {
    const char* const number = std::getenv("KVJXML_REPLY_SIZE");
    const std::size_t size = number == nullptr ? 1 << 17 : std::strtoul(number, nullptr, 10);
    for (const std::string_view part : {"<",
                                        "&",
                                        "&#",
                                        "&#1;",
                                        "&#;",
                                        "<a>",
                                        "<a/>",
                                        "<a></a>",
                                        "<job>",
                                        "<job/>",
                                        "<job><x/></job>",
                                        "\xFF",
                                        "\xFF ",
                                        "\xFF<",
                                        "<!--",
                                        "<!---->",
                                        "<![CDATA[",
                                        "<![CDATA[x]]>",
                                        "<?",
                                        "<?x?>",
                                        "</",
                                        "</a>",
                                        "</a",
                                        "<>",
                                        "a=\"1\" ",
                                        "a",
                                        " ",
                                        "\n",
                                        "\xEF\xBB\xBF",
                                        "<get_job_list>",
                                        "<get_job_list/>",
                                        "<uuid>",
                                        "<uuid>x</uuid>",
                                        "<a b=\"&#\">",
                                        "\xF0",
                                        "<a\xFF"}) {
        const std::string many = times(size / part.size(), part);
        for (const std::string& reply :
             {many, "<get_job_list>" + many, within("get_job_list", many), within("get_job_list", within("job", many)),
              within("get_job_list", "<job><uuid>" + many), "<get_job_list " + many + "/>",
              "<get_job_list a=\"" + many}) {
            const AnyReading reading = readAny(messageOf("job_list"), reply, kvjxml::diagnose);
            ASSERT_LE(reading.findings.size(), 10'000U);
        }
    }
}

TEST(HostileReadings, OfManyAttributesTakeTimeInProportion) {
    std::string reply = "<get_job_list";
    for (int i = 0; i < 50'000; ++i) reply += " a" + std::to_string(i) + "=\"&x\"";
    const AnyReading reading = readAny(messageOf("job_list"), reply + "/>", kvjxml::diagnose);
    EXPECT_TRUE(reading.whole);
    EXPECT_EQ(reading.findings.size(), 10'000U);
}

}  // namespace

}  // namespace read_hostile_test
