// Hosts that run out of memory: each allocation of each operation fails in turn, alone and with all that come after it.
#include <KVJConfigParser.h>
#include <KVJPrinterIDParser.h>
#include <gtest/gtest.h>
#include <tinyxml.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <new>
#include <string>

#include "hostile/allocation_watch.h"
#include "hostile/composers.h"
#include "hostile/outcome.h"
#include "hostile/samples.h"
#include "support/copy_scope.h"
#include "support/readers.h"

namespace allocation_faults_test {

namespace {

using namespace kvj::tests;

struct Fault {
    bool thrown;
    std::size_t leaked;  ///< blocks
};

/// What comes of an action that says whether it has thrown. It keeps nothing that it allocates: the watch would free
/// it.
template <class Action>
Fault faultOf(Action action) {
    AllocationWatch watch;
    const bool thrown = action(watch);
    return {thrown, watch.alive()};
}

template <class Action>
Fault faultAfter(std::size_t allowed, Failing failing, Action action) {
    return faultOf([&](AllocationWatch& watch) { return throwsAfter(allowed, failing, watch, action); });
}

template <class Action>
std::size_t allocationsOf(Action action) {
    const AllocationWatch watch;
    action();
    return watch.made();
}

TEST(AllocationWatch, SeesTinyXmlToo) {
    TiXmlElement element("x");
    EXPECT_EQ(allocationsOf([] { delete new TiXmlElement("y"); }), 1U);
    EXPECT_EQ(faultAfter(1, Failing::once, [] { new TiXmlElement("y"); }).leaked, 1U);
    EXPECT_TRUE(faultAfter(0, Failing::once, [&] { element.SetAttribute("a", "1"); }).thrown);
}

// ---- Readers ----

std::size_t allocationsOfReading(const Reader& reader, const ExactText& text) {
    FramedRecord record(reader.recordSize);
    return allocationsOf([&] { reader.read(text, record.first()); });
}

TEST(FaultsInReaders, AreThrownAndLeaveAValidRecordAndNothingBehind) {
    withEachReader([](const Reader& reader) {
        const std::string sample = sampleOf(reader.root);
        const ExactText text(sample);
        const Outcome whole = outcomeOf(reader, sample);
        const std::size_t count = allocationsOfReading(reader, text);
        ASSERT_GT(count, 0U);
        for (std::size_t allowed = 0; allowed < count; ++allowed) {
            for (const Failing failing : bothWays) {
                FramedRecord record(reader.recordSize);
                const Fault fault = faultAfter(allowed, failing, [&] { reader.read(text, record.first()); });
                ASSERT_TRUE(fault.thrown) << allowed;
                ASSERT_EQ(fault.leaked, 0U) << allowed;
                ASSERT_TRUE(reader.isValid(record.first()) && record.isFramed()) << allowed;
                ASSERT_EQ(outcomeOf(reader, sample), whole) << allowed;
            }
        }
    });
}

TEST(FaultsInReaders, DoNotComeWithoutCause) {
    withEachReader([](const Reader& reader) {
        const ExactText text(sampleOf(reader.root));
        const std::size_t enough = allocationsOfReading(reader, text);
        FramedRecord record(reader.recordSize);
        const Fault fault = faultAfter(enough, Failing::once, [&] { reader.read(text, record.first()); });
        EXPECT_FALSE(fault.thrown);
        EXPECT_EQ(fault.leaked, 0U);
        EXPECT_EQ(record.content(), outcomeOf(reader, sampleOf(reader.root)).record);
    });
}

// ---- Parsers that are documents themselves ----

template <class Parser, class Record>
void expectNextCallReads(bool (Parser::*operation)(const char*, int, Record&), const std::string& text) {
    const auto read = [&](Parser& parser, Record& record) {
        std::memset(&record, 0, sizeof record);
        (parser.*operation)(text.c_str(), 0, record);
    };
    Parser first;
    Record expected;
    const std::size_t count = allocationsOf([&] { read(first, expected); });
    for (std::size_t allowed = 0; allowed < count; ++allowed) {
        bool readsNext = false;
        const Fault fault = faultOf([&](AllocationWatch& watch) {
            Parser parser;
            Record record;
            const bool thrown = throwsAfter(allowed, Failing::once, watch, [&] { read(parser, record); });
            read(parser, record);
            readsNext = std::memcmp(&record, &expected, sizeof record) == 0 && parser.NoChildren();
            return thrown;
        });
        ASSERT_TRUE(fault.thrown) << allowed;
        ASSERT_TRUE(readsNext) << allowed;
    }
}

TEST(FaultsInParsers, LeaveAConfigurationParserThatReadsTheNext) {
    expectNextCallReads(&Kavrin::KVJConfigParser::GetConfiguration, sampleOf("configuration"));
}

TEST(FaultsInParsers, LeaveAPrinterIdParserThatReadsTheNext) {
    expectNextCallReads(&Kavrin::KVJPrinterIDParser::ParsePrinterInfo, sampleOf("printer_id"));
}

// ---- Composers ----

auto openFiles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), std::filesystem::directory_iterator());
}

/// The files beside a composer's copy that could become one: its name, a point and six characters.
auto unfinishedCopies(const Composer& composer) {
    if (composer.copy == nullptr) return std::ptrdiff_t{0};
    const std::filesystem::path copy = composer.copy;
    return std::ranges::count_if(std::filesystem::directory_iterator(copy.parent_path()), [&](const auto& entry) {
        const std::string name = entry.path().string();
        return name.starts_with(copy.string() + '.') && name.size() == copy.string().size() + 7;
    });
}

TEST(FaultsInComposers, AreThrownAndLeaveNothingBehindAndTheNextCallComposes) {
    withEachComposer([](const Composer& composer) {
        const std::string whole = textOf(composer);
        ASSERT_NE(whole, "");
        const auto filesBefore = openFiles();
        const auto unfinishedBefore = unfinishedCopies(composer);
        const std::size_t count = allocationsOf([&] { composer.begin()->compose(); }) - allocationsOf(composer.begin);
        ASSERT_GT(count, 1U);
        for (std::size_t allowed = 0; allowed <= count; ++allowed) {
            for (const Failing failing : bothWays) {
                bool composesNext = false;
                const Fault fault = faultOf([&](AllocationWatch& watch) {
                    const auto composing = composer.begin();
                    const bool thrown = throwsAfter(allowed, failing, watch, [&] { composing->compose(); });
                    composesNext = composing->compose() && composing->text() == whole;
                    return thrown;
                });
                ASSERT_EQ(fault.thrown, allowed < count) << allowed;
                ASSERT_EQ(fault.leaked, 0U) << allowed;
                ASSERT_TRUE(composesNext) << allowed;
            }
        }
        EXPECT_EQ(openFiles(), filesBefore);
        EXPECT_EQ(unfinishedCopies(composer), unfinishedBefore);
    });
}

}  // namespace

}  // namespace allocation_faults_test
