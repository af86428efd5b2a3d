// The reply "get_log_service_history": the call for its size, the call that fills as many entries as the host has, and
// one entry.
#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <new>
#include <string>
#include <vector>

#include "KVJLogParser.h"
#include "fields/identity.h"
#include "support/records.h"
#include "support/xml.h"

namespace service_log_test {

namespace {

using Kavrin::_tagLogServiceValues;
using Kavrin::_tagLogServiceXML;
using Kavrin::KVJLogParser;
using kvj::tests::expectEqual;
using kvj::tests::wide;
using kvj::tests::Xml;

/// An entry with a value in every field that no test writes.
constexpr _tagLogServiceValues preset = {-1, -2, -3, -4, -5, -6};

bool read(const std::string& reply, _tagLogServiceXML& log) {
    const std::wstring text = wide(reply);
    return KVJLogParser().ParseLogServiceXML(*text.c_str(), text.size(), log);
}

/// Reads a reply with these children of its root.
bool readChildren(const std::string& children, _tagLogServiceXML& log) {
    return read("<get_log_service_history>" + children + "</get_log_service_history>", log);
}

/// An entry with nothing but its number.
std::string service(int number) { return "<service><number>" + std::to_string(number) + "</number></service>"; }

/// The preset entry after service(number) was read into it.
_tagLogServiceValues presetWith(int number) {
    _tagLogServiceValues entry = preset;
    entry.number = number;
    return entry;
}

/// Eight preset entries, of which a test uses the first ones; the others show a write past them.
class ServiceLog : public testing::Test {
protected:
    std::vector<_tagLogServiceValues> entries = std::vector<_tagLogServiceValues>(8, preset);

    _tagLogServiceXML logFor(int count) { return {count, entries.data()}; }

    /// The first entries have these numbers, and nothing else was written.
    void expectNumbers(const std::vector<int>& numbers) const {
        for (std::size_t i = 0; i < entries.size(); ++i) {
            expectEqual(entries[i], i < numbers.size() ? presetWith(numbers[i]) : preset);
        }
    }
};

// ---- One entry ----

TEST_F(ServiceLog, FillsEveryFieldOfAnEntryButTheReservedOne) {
    _tagLogServiceXML log = logFor(1);
    EXPECT_TRUE(
        readChildren("<service><number>3</number><code>17</code><year>2031</year><month>11</month>"
                     "<card_count>48211</card_count></service>",
                     log));
    expectEqual(entries[0], {3, 17, 2031, 11, -5, 48211});
}

TEST_F(ServiceLog, AnEntryWithoutKnownElementsKeepsEveryFieldAndIsFalse) {
    _tagLogServiceXML log = logFor(1);
    EXPECT_FALSE(
        readChildren("<service><technician>1</technician><reserved>2</reserved><Number>3</Number></service>", log));
    expectNumbers({});
}

TEST_F(ServiceLog, TheElementsOfAnEntryMayBeUnorderedAndRepeated) {
    _tagLogServiceXML log = logFor(1);
    EXPECT_TRUE(
        readChildren("<service><card_count>1</card_count><month>2</month><note>x</note><year>3</year><code>4</code>"
                     "<number>5</number><month>6</month></service>",
                     log));
    expectEqual(entries[0], {5, 4, 3, 6, -5, 1});
}

TEST_F(ServiceLog, NumbersAreDecimalAndOneThatIsNoneIs0) {
    _tagLogServiceXML log = logFor(1);
    EXPECT_TRUE(
        readChildren("<service><number>010</number><code>0x1f</code><year>-7</year><month>May</month>"
                     "<card_count>12.9</card_count></service>",
                     log));
    expectEqual(entries[0], {10, 0, -7, 0, -5, 12});
}

TEST_F(ServiceLog, ANumberWithoutTextKeepsItsFieldAndIsFalse) {
    for (const char* name : {"number", "code", "year", "month", "card_count"}) {
        _tagLogServiceXML log = logFor(1);
        EXPECT_FALSE(readChildren("<service><" + std::string(name) + "/></service>", log)) << name;
        expectNumbers({});
    }
}

TEST_F(ServiceLog, OnlyChildrenOfTheEntryAreItsFields) {
    _tagLogServiceXML log = logFor(1);
    EXPECT_FALSE(readChildren("<service><date><year>2031</year></date></service>", log));
    expectNumbers({});
}

// ---- The call for the size ----

TEST_F(ServiceLog, TheCallForTheSizeCountsEveryChildOfWhateverName) {
    _tagLogServiceXML log{-1, nullptr};
    EXPECT_TRUE(readChildren("<header/>" + service(1) + service(2) + "<page>1</page>" + service(3), log));
    EXPECT_EQ(log.count, 5);
    EXPECT_EQ(log.entries, nullptr);
}

TEST_F(ServiceLog, TheCallForTheSizeCountsChildrenThatAreNoServiceAtAll) {
    _tagLogServiceXML log{-1, nullptr};
    EXPECT_TRUE(readChildren("<header/>", log));
    EXPECT_EQ(log.count, 1);
}

TEST_F(ServiceLog, TheCallForTheSizeCountsElementsOnlyAndOnlyTheRootsOwn) {
    _tagLogServiceXML log{-1, nullptr};
    EXPECT_TRUE(readChildren("text<!-- <service/> -->" + service(1) + "more text", log));
    EXPECT_EQ(log.count, 1);
}

TEST_F(ServiceLog, TheCallForTheSizeIgnoresTheCountBefore) {
    for (const int before : {INT_MIN, 0, 3, INT_MAX}) {
        _tagLogServiceXML log{before, nullptr};
        EXPECT_TRUE(readChildren(service(1) + service(2), log));
        EXPECT_EQ(log.count, 2);
    }
}

TEST_F(ServiceLog, TheSizeThatOneCallSaysIsEnoughForTheOther) {
    const std::string children = service(1) + "<page>1</page>" + service(2);
    _tagLogServiceXML log{0, nullptr};
    EXPECT_TRUE(readChildren(children, log));
    EXPECT_EQ(log.count, 3);
    std::vector<_tagLogServiceValues> exact(3, preset);
    log.entries = exact.data();
    EXPECT_TRUE(readChildren(children, log));
    EXPECT_EQ(log.count, 3);
    expectEqual(exact[0], presetWith(1));
    expectEqual(exact[1], presetWith(2));
    expectEqual(exact[2], preset);
}

// ---- The call that fills ----

TEST_F(ServiceLog, OfThreeServicesAmongFiveChildrenACountOf2FillsTheFirstTwo) {
    const std::string children = "<header/>" + service(1) + "<page>1</page>" + service(2) + service(3);
    _tagLogServiceXML log{0, nullptr};
    EXPECT_TRUE(readChildren(children, log));
    EXPECT_EQ(log.count, 5);
    log = logFor(2);
    EXPECT_TRUE(readChildren(children, log));
    EXPECT_EQ(log.count, 2);
    EXPECT_EQ(log.entries, entries.data());
    expectNumbers({1, 2});
}

TEST_F(ServiceLog, ACountAboveTheServicesFillsThemAllAndStays) {
    _tagLogServiceXML log = logFor(8);
    EXPECT_TRUE(readChildren(service(1) + service(2) + service(3), log));
    EXPECT_EQ(log.count, 8);
    expectNumbers({1, 2, 3});
}

TEST_F(ServiceLog, ACountOfExactlyTheServicesFillsThemAll) {
    _tagLogServiceXML log = logFor(3);
    EXPECT_TRUE(readChildren(service(1) + service(2) + service(3), log));
    EXPECT_EQ(log.count, 3);
    expectNumbers({1, 2, 3});
}

TEST_F(ServiceLog, AHistoryOfAnyLengthIsReadWhole) {
    constexpr int length = 500;
    std::string children;
    for (int number = 1; number <= length; ++number) children += service(number);
    std::vector<_tagLogServiceValues> all(length, preset);
    _tagLogServiceXML log{length, all.data()};
    EXPECT_TRUE(readChildren(children, log));
    for (int i = 0; i < length; ++i) expectEqual(all[static_cast<std::size_t>(i)], presetWith(i + 1));
}

TEST_F(ServiceLog, ACountOfZeroOrLessFillsNothingAndIsFalse) {
    for (const int count : {0, -1, INT_MIN}) {
        _tagLogServiceXML log = logFor(count);
        EXPECT_FALSE(readChildren(service(1) + service(2), log)) << count;
        EXPECT_EQ(log.count, count);
        expectNumbers({});
    }
}

TEST_F(ServiceLog, TheResultIsThatOfTheLastEntryFilled) {
    const std::string broken = "<service><code/></service>";
    _tagLogServiceXML log = logFor(2);
    EXPECT_TRUE(readChildren(broken + service(2), log));
    EXPECT_FALSE(readChildren(service(1) + broken, log));
}

TEST_F(ServiceLog, AServiceForWhichThereIsNoEntryHasNoSayInTheResult) {
    const std::string broken = "<service><code/></service>";
    _tagLogServiceXML log = logFor(2);
    EXPECT_TRUE(readChildren(service(1) + service(2) + broken, log));
    expectNumbers({1, 2});
    EXPECT_FALSE(readChildren(service(3) + broken + service(4), log));
    expectNumbers({3, 2});
}

TEST_F(ServiceLog, AnUnknownElementBehindTheLastServiceHasNoSayInTheResult) {
    _tagLogServiceXML log = logFor(2);
    EXPECT_TRUE(readChildren(service(1) + "<page/>", log));
    EXPECT_FALSE(readChildren("<service/><page>1</page>", log));
}

TEST_F(ServiceLog, AnEmptyServiceUsesUpItsEntry) {
    _tagLogServiceXML log = logFor(3);
    EXPECT_TRUE(readChildren("<service/>" + service(2), log));
    expectEqual(entries[0], preset);
    expectEqual(entries[1], presetWith(2));
    expectEqual(entries[2], preset);
}

TEST_F(ServiceLog, ChildrenThatAreNoServicesAreFalseAndFillNothing) {
    _tagLogServiceXML log = logFor(8);
    EXPECT_FALSE(readChildren("<header/><Service><number>1</number></Service><number>2</number>", log));
    EXPECT_EQ(log.count, 8);
    expectNumbers({});
}

// ---- The reply ----

TEST_F(ServiceLog, AHistoryWithoutChildrenIsFalseAndUntouchedInBothCalls) {
    for (const char* children : {"", "text", "<!-- none -->"}) {
        _tagLogServiceXML size{-1, nullptr};
        EXPECT_FALSE(readChildren(children, size));
        EXPECT_EQ(size.count, -1);
        EXPECT_EQ(size.entries, nullptr);
        _tagLogServiceXML log = logFor(8);
        EXPECT_FALSE(readChildren(children, log));
        EXPECT_EQ(log.count, 8);
        EXPECT_EQ(log.entries, entries.data());
        expectNumbers({});
    }
}

TEST_F(ServiceLog, TheRootOfAnotherMessageIsFalseAndUntouchedInBothCalls) {
    const std::string other = "<get_log_cleaning_history>" + service(1) + "</get_log_cleaning_history>";
    const std::string otherCase = "<Get_log_service_history>" + service(1) + "</Get_log_service_history>";
    const std::string nested = "<reply><get_log_service_history>" + service(1) + "</get_log_service_history></reply>";
    for (const std::string& reply : {std::string(), std::string("service"), service(1), other, otherCase, nested}) {
        _tagLogServiceXML size{-1, nullptr};
        EXPECT_FALSE(read(reply, size)) << reply;
        EXPECT_EQ(size.count, -1) << reply;
        _tagLogServiceXML log = logFor(8);
        EXPECT_FALSE(read(reply, log)) << reply;
        EXPECT_EQ(log.count, 8) << reply;
        expectNumbers({});
    }
}

TEST_F(ServiceLog, ALengthShorterThanTheReplyCutsIt) {
    const std::string start = "<get_log_service_history>" + service(1);
    const std::wstring text = wide(start + service(2) + "</get_log_service_history>");
    _tagLogServiceXML log = logFor(8);
    EXPECT_TRUE(KVJLogParser().ParseLogServiceXML(*text.c_str(), start.size(), log));
    expectNumbers({1});
}

TEST_F(ServiceLog, ALengthOfZeroOrOneThatIsNegativeAsASignedNumberIsFalse) {
    const std::wstring text = wide("<get_log_service_history>" + service(1) + "</get_log_service_history>");
    for (const unsigned long length : {0UL, ULONG_MAX, static_cast<unsigned long>(LONG_MAX) + 1}) {
        _tagLogServiceXML log = logFor(8);
        EXPECT_FALSE(KVJLogParser().ParseLogServiceXML(*text.c_str(), length, log)) << length;
        expectNumbers({});
        _tagLogServiceXML size{-1, nullptr};
        EXPECT_FALSE(KVJLogParser().ParseLogServiceXML(*text.c_str(), length, size)) << length;
        EXPECT_EQ(size.count, -1);
    }
}

TEST_F(ServiceLog, ALengthForWhichThereIsNoMemoryThrowsAndLeavesTheRecord) {
    const std::wstring text = wide("<get_log_service_history>" + service(1) + "</get_log_service_history>");
    _tagLogServiceXML log = logFor(8);
    EXPECT_THROW(KVJLogParser().ParseLogServiceXML(*text.c_str(), LONG_MAX, log), std::bad_alloc);
    EXPECT_EQ(log.count, 8);
    expectNumbers({});
}

// ---- Walkers ----

TEST_F(ServiceLog, TheWalkersReadElementsThatTheHostHolds) {
    KVJLogParser parser;
    Xml history(("<any>" + service(1) + service(2) + "<page/></any>").c_str());
    _tagLogServiceXML size{-1, nullptr};
    EXPECT_TRUE(parser.parseServiceHistoryValues(history.root(), size));
    EXPECT_EQ(size.count, 3);
    _tagLogServiceXML log = logFor(1);
    EXPECT_TRUE(parser.parseServiceHistoryValues(history.root(), log));
    expectNumbers({1});
    Xml element("<any><code>9</code></any>");
    _tagLogServiceValues entry = preset;
    EXPECT_TRUE(parser.getServiceValues(element.root(), entry));
    expectEqual(entry, {-1, 9, -3, -4, -5, -6});
}

TEST_F(ServiceLog, TheWalkersAreFalseForNoElementAndForOneWithoutChildren) {
    KVJLogParser parser;
    Xml empty("<any>text</any>");
    for (TiXmlElement* element : {static_cast<TiXmlElement*>(nullptr), empty.root()}) {
        _tagLogServiceXML size{-1, nullptr};
        EXPECT_FALSE(parser.parseServiceHistoryValues(element, size));
        EXPECT_EQ(size.count, -1);
        _tagLogServiceXML log = logFor(8);
        EXPECT_FALSE(parser.parseServiceHistoryValues(element, log));
        EXPECT_EQ(log.count, 8);
        _tagLogServiceValues entry = preset;
        EXPECT_FALSE(parser.getServiceValues(element, entry));
        expectEqual(entry, preset);
    }
    expectNumbers({});
}

}  // namespace

}  // namespace service_log_test
