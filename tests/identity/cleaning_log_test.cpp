// The reply "get_log_cleaning_history": its 32 entries, and one of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <new>
#include <string>

#include "KVJLogParser.h"
#include "fields/identity.h"
#include "support/records.h"
#include "support/xml.h"

namespace cleaning_log_test {

namespace {

using Kavrin::_tagCleaningLogEntry;
using Kavrin::KVJLogParser;
using kvj::tests::expectEqual;
using kvj::tests::wide;
using kvj::tests::Xml;

using Entries = _tagCleaningLogEntry[32];

/// An entry with a value in every field that no test writes.
constexpr _tagCleaningLogEntry preset = {-1, -2, -3};

bool read(const std::string& reply, Entries& entries) {
    const std::wstring text = wide(reply);
    return KVJLogParser().ParseCleaningLog(*text.c_str(), text.size(), entries);
}

/// Reads a reply with these children of its root.
bool readChildren(const std::string& children, Entries& entries) {
    return read("<get_log_cleaning_history>" + children + "</get_log_cleaning_history>", entries);
}

/// An entry with nothing but its number.
std::string cleaning(int number) { return "<cleaning><number>" + std::to_string(number) + "</number></cleaning>"; }

/// `count` entries, numbered from 1 on.
std::string cleanings(int count) {
    std::string text;
    for (int number = 1; number <= count; ++number) text += cleaning(number);
    return text;
}

/// Preset entries with others after them that show a write past the end.
class CleaningLog : public testing::Test {
protected:
    CleaningLog() {
        std::ranges::fill(log.entries, preset);
        std::ranges::fill(log.guard, preset);
    }
    ~CleaningLog() override {
        for (const auto& entry : log.guard) expectEqual(entry, preset);
    }

    /// The first `count` entries have the numbers from 1 on, and nothing else was written.
    void expectNumbered(int count) const {
        for (int i = 0; i < 32; ++i) expectEqual(log.entries[i], {i < count ? i + 1 : -1, -2, -3});
    }

    struct {
        Entries entries;
        _tagCleaningLogEntry guard[8];
    } log;
};

// ---- One entry ----

TEST_F(CleaningLog, FillsEveryFieldOfAnEntry) {
    EXPECT_TRUE(readChildren("<cleaning><number>4</number><cards>1500</cards><type>2</type></cleaning>", log.entries));
    expectEqual(log.entries[0], {4, 1500, 2});
    expectEqual(log.entries[1], preset);
}

TEST_F(CleaningLog, AnEntryWithoutKnownElementsKeepsEveryFieldAndIsFalse) {
    EXPECT_FALSE(readChildren("<cleaning><operator>1</operator><Cards>2</Cards></cleaning>", log.entries));
    expectNumbered(0);
}

TEST_F(CleaningLog, TheElementsOfAnEntryMayBeUnorderedAndRepeated) {
    EXPECT_TRUE(readChildren(
        "<cleaning><type>1</type><cards>2</cards><note>x</note><number>3</number><type>4</type></cleaning>",
        log.entries));
    expectEqual(log.entries[0], {3, 2, 4});
}

TEST_F(CleaningLog, NumbersAreDecimalAndOneThatIsNoneIs0) {
    EXPECT_TRUE(
        readChildren("<cleaning><number>010</number><cards>-12.9</cards><type>long</type></cleaning>", log.entries));
    expectEqual(log.entries[0], {10, -12, 0});
}

TEST_F(CleaningLog, ANumberWithoutTextKeepsItsFieldAndIsFalse) {
    for (const char* name : {"number", "cards", "type"}) {
        EXPECT_FALSE(readChildren("<cleaning><" + std::string(name) + "/></cleaning>", log.entries)) << name;
        expectNumbered(0);
    }
}

// ---- The entries ----

TEST_F(CleaningLog, FillsTheEntriesInTheOrderOfTheReply) {
    EXPECT_TRUE(readChildren(cleanings(3), log.entries));
    expectNumbered(3);
}

TEST_F(CleaningLog, OtherChildrenUseUpNoEntry) {
    EXPECT_TRUE(readChildren("<header/>" + cleaning(1) + "<page>1</page><Cleaning><number>9</number></Cleaning>" +
                                 cleaning(2) + "<number>9</number>",
                             log.entries));
    expectNumbered(2);
}

TEST_F(CleaningLog, AnEmptyCleaningUsesUpItsEntry) {
    EXPECT_TRUE(readChildren("<cleaning/>" + cleaning(2), log.entries));
    expectEqual(log.entries[0], preset);
    expectEqual(log.entries[1], {2, -2, -3});
    expectEqual(log.entries[2], preset);
}

TEST_F(CleaningLog, ThirtyTwoEntriesAreAllRead) {
    EXPECT_TRUE(readChildren(cleanings(32), log.entries));
    expectNumbered(32);
}

TEST_F(CleaningLog, OfFortyEntriesTheFirst32AreRead) {
    EXPECT_TRUE(readChildren(cleanings(40), log.entries));
    expectNumbered(32);
}

TEST_F(CleaningLog, OfFortyEntriesThe32ndIsTheResult) {
    const std::string broken = "<cleaning><type/></cleaning>";
    EXPECT_TRUE(readChildren(cleanings(32) + broken, log.entries));
    expectNumbered(32);
    EXPECT_FALSE(readChildren(cleanings(31) + broken + cleanings(8), log.entries));
    expectNumbered(32);
}

TEST_F(CleaningLog, TheResultIsThatOfTheLastEntry) {
    EXPECT_FALSE(readChildren(cleaning(1) + "<cleaning><number>2</number><cards/></cleaning>", log.entries));
    expectNumbered(2);
    EXPECT_TRUE(readChildren("<cleaning><cards/></cleaning>" + cleaning(2), log.entries));
    EXPECT_TRUE(readChildren(cleaning(1) + "<page/>", log.entries));
    EXPECT_FALSE(readChildren("<cleaning/><page>1</page>", log.entries));
}

TEST_F(CleaningLog, ChildrenThatAreNoCleaningsAreFalseAndFillNothing) {
    EXPECT_FALSE(readChildren("<header/><service><number>1</number></service>", log.entries));
    expectNumbered(0);
}

// ---- The reply ----

TEST_F(CleaningLog, ALengthShorterThanTheReplyCutsIt) {
    const std::string start = "<get_log_cleaning_history>" + cleaning(1);
    const std::wstring text = wide(start + cleaning(2) + "</get_log_cleaning_history>");
    EXPECT_TRUE(KVJLogParser().ParseCleaningLog(*text.c_str(), start.size(), log.entries));
    expectNumbered(1);
}

TEST_F(CleaningLog, ALengthOfZeroOrOneThatIsNegativeAsASignedNumberIsFalse) {
    const std::wstring text = wide("<get_log_cleaning_history>" + cleaning(1) + "</get_log_cleaning_history>");
    for (const unsigned long length : {0UL, ULONG_MAX, static_cast<unsigned long>(LONG_MAX) + 1}) {
        EXPECT_FALSE(KVJLogParser().ParseCleaningLog(*text.c_str(), length, log.entries)) << length;
        expectNumbered(0);
    }
}

TEST_F(CleaningLog, ALengthForWhichThereIsNoMemoryThrowsAndLeavesTheEntries) {
    const std::wstring text = wide("<get_log_cleaning_history>" + cleaning(1) + "</get_log_cleaning_history>");
    EXPECT_THROW(KVJLogParser().ParseCleaningLog(*text.c_str(), LONG_MAX, log.entries), std::bad_alloc);
    expectNumbered(0);
}

// ---- Walkers ----

TEST_F(CleaningLog, TheWalkersReadElementsThatTheHostHolds) {
    KVJLogParser parser;
    Xml history(("<any>" + cleanings(33) + "</any>").c_str());
    EXPECT_TRUE(parser.getCleaningLogValues(history.root(), log.entries));
    expectNumbered(32);
    Xml element("<any><cards>9</cards></any>");
    _tagCleaningLogEntry entry = preset;
    EXPECT_TRUE(parser.getCleaningLogEntry(element.root(), entry));
    expectEqual(entry, {-1, 9, -3});
}

TEST_F(CleaningLog, TheWalkersAreFalseForNoElementAndForOneWithoutChildren) {
    KVJLogParser parser;
    Xml empty("<any>text</any>");
    for (TiXmlElement* element : {static_cast<TiXmlElement*>(nullptr), empty.root()}) {
        EXPECT_FALSE(parser.getCleaningLogValues(element, log.entries));
        _tagCleaningLogEntry entry = preset;
        EXPECT_FALSE(parser.getCleaningLogEntry(element, entry));
        expectEqual(entry, preset);
    }
    expectNumbered(0);
}

}  // namespace

}  // namespace cleaning_log_test
