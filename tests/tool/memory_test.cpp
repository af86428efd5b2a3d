// How much of a reply the tool takes, and how much memory it takes for it.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <ostream>

#include "hostile/sanitizers.h"
#include "tool/tool.h"

namespace memory_test {

namespace {

using kvj::tests::Outcome;
using kvj::tests::runShell;
using kvj::tests::runTool;
using kvj::tests::TemporaryFolder;

// ---- The largest input ----

const std::string wordOfRefusal = "kvjxml: standard input: is larger than ";

TEST(MaxSize, AnInputWithoutEndIsRefusedAt64MiB) {
    const Outcome file = runTool("decode /dev/zero");
    EXPECT_EQ(file.code, 1);
    EXPECT_EQ(file.out, "");
    EXPECT_EQ(file.error, "kvjxml: /dev/zero: is larger than 67108864 bytes; --max-size takes more\n");
}

TEST(MaxSize, APipeIsReadToTheLimitAndNoFurther) {
    for (const char* verb : {" decode", " encode nonce"}) {
        const Outcome outcome = runShell("yes | " KVJXML_TOOL + std::string(verb) + " --max-size 1M");
        EXPECT_EQ(outcome.code, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.error, wordOfRefusal + "1048576 bytes; --max-size takes more\n");
    }
}

TEST(MaxSize, AnInputOfJustThatSizeIsTaken) {
    const std::string json = R"({"nonce":"5F3A"})";
    ASSERT_EQ(json.size(), 16U);
    EXPECT_EQ(runTool("encode nonce --max-size 16", json).code, 0);
    EXPECT_EQ(runTool("encode nonce --max-size 15", json).code, 1);
}

TEST(MaxSize, IsBytesOrHasAUnit) {
    const struct {
        const char* size;
        const char* bytes;
    } cases[] = {{"1", "1"}, {"1K", "1024"}, {"1KiB", "1024"}, {"3M", "3145728"}, {"3MiB", "3145728"}};
    const std::string input(4 << 20, ' ');
    for (const auto& [size, bytes] : cases) {
        const Outcome outcome = runTool("decode --max-size '" + std::string(size) + "'", input);
        EXPECT_EQ(outcome.code, 1);
        EXPECT_EQ(outcome.error, wordOfRefusal + bytes + " bytes; --max-size takes more\n");
    }
    for (const char* size : {"1G", "1GiB"}) {
        EXPECT_EQ(runTool("decode --max-size " + std::string(size), input).code, 3) << "taken, but no XML";
    }
    for (const char* wrong :
         {"much", "-1", "1X", "1.5M", "1KB", "'1 K'", "99999999999999999999", "17179869184G", "''"}) {
        EXPECT_EQ(runTool("decode --max-size " + std::string(wrong)).code, 2) << wrong;
    }
}

// ---- Memory ----

/// The most memory that decoding takes at once, in bytes.
std::size_t peakOf(const std::string& replies, const char* format = "json", const char* separator = "nul") {
    const TemporaryFolder folder;
    const std::string file = (folder / "replies").string();
    kvj::tests::write(file, replies);
    const pid_t child = fork();
    if (child == 0) {
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
        execl(KVJXML_TOOL, KVJXML_TOOL, "decode", "--format", format, "--separator", separator, file.c_str(), nullptr);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    EXPECT_EQ(wait4(child, &status, 0, &usage), child);
    EXPECT_TRUE(WIFEXITED(status));
    return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

/// A reply of `size` bytes that is full of this element.
std::string replyOf(const std::string& before, const std::string& element, const std::string& behind,
                    std::size_t size) {
    std::string reply = before;
    while (reply.size() + element.size() + behind.size() <= size) reply += element;
    return reply + behind;
}

struct Shape {
    const char* name;
    const char* before;
    const char* element;
    const char* behind;
};
void PrintTo(const Shape& shape, std::ostream* out) { *out << shape.name; }

class Peak : public testing::TestWithParam<Shape> {};

TEST_P(Peak, GrowsByAFewBytesForEachByteOfTheReply) {
    if (kvj::tests::hasAddressSanitizer || kvj::tests::hasThreadSanitizer) {
        GTEST_SKIP() << "It keeps what was released.";
    }
    const auto& [name, before, element, behind] = GetParam();
    constexpr std::size_t small = 32 << 10;
    constexpr std::size_t large = 256 << 10;
    const std::size_t least = peakOf(replyOf(before, element, behind, small));
    const std::size_t most = peakOf(replyOf(before, element, behind, large));
    EXPECT_LE(most, least + 64 * (large - small));
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, Peak,
    testing::Values(Shape{"counted_templates", "<capabilities><templates>", "<a/>", "</templates></capabilities>"},
                    Shape{"templates", "<capabilities><templates>", "<template/>", "</templates></capabilities>"},
                    Shape{"fonts", "<capabilities><fonts>", "<font/>", "</fonts></capabilities>"},
                    Shape{"cards", "<media><cards>", "<card/>", "</cards></media>"},
                    Shape{"films", "<media><films>", "<film/>", "</films></media>"},
                    Shape{"counted_access_points", "<AccessPoints>", "<a/>", "</AccessPoints>"},
                    Shape{"access_points", "<AccessPoints>", "<AccessPoint/>", "</AccessPoints>"},
                    Shape{"services", "<get_log_service_history>", "<service/>", "</get_log_service_history>"},
                    Shape{"three_readers", "<get_sensor_status>", "<a/>", "</get_sensor_status>"},
                    Shape{"unknown_nodes", "<get_job_status>", "x<>", "</get_job_status>"}));

// ---- Streams ----

TEST(PeakOfAStream, DoesNotGrowWithItsLength) {
    if (kvj::tests::hasAddressSanitizer || kvj::tests::hasThreadSanitizer) {
        GTEST_SKIP() << "It keeps what was released.";
    }
    const auto stream = [](std::size_t count) {
        std::string text;
        // One in ten is cut, and one is of no message.
        for (std::size_t i = 0; i < count; ++i) {
            text += i % 10 == 3   ? "<get_job_status><action_id>7\n"
                    : i % 10 == 6 ? "<a/>\n"
                                  : "<get_job_status><action_id>7</action_id></get_job_status>\n";
        }
        return text;
    };
    for (const char* format : {"json", "jsonl"}) {
        const std::size_t few = peakOf(stream(2'000), format, "line");
        const std::size_t many = peakOf(stream(40'000), format, "line");
        EXPECT_LE(many, few + (std::size_t{512} << 10)) << format << ": the streams have 0.1 and 2 MB";
    }
}

TEST(PeakOfAStream, DoesNotGrowWithADocumentThatIsTooLarge) {
    if (kvj::tests::hasAddressSanitizer || kvj::tests::hasThreadSanitizer) {
        GTEST_SKIP() << "It keeps what was released.";
    }
    const Outcome outcome =
        runShell("{ head -c 64M /dev/zero; echo; echo '<nonce>5F</nonce>'; } | (ulimit -v 65536; " KVJXML_TOOL
                 " decode --separator line --max-size 1M)");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.out, "{\n    \"nonce\": \"5F\"\n}\n");
    EXPECT_EQ(outcome.error,
              "kvjxml: standard input, document 1: is larger than 1048576 bytes; --max-size takes more\n");
}

}  // namespace

}  // namespace memory_test
