// The small replies with a counter, a size or a state: card counters, up-times, free memory and the cleaning.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "KVJStatusParser.h"
#include "fields/status.h"
#include "support/records.h"
#include "support/xml.h"

namespace counters_test {

namespace {

using Kavrin::__MEMORY;
using Kavrin::KVCardCount;
using Kavrin::KVCleaningStatus;
using Kavrin::KVJStatusParser;
using Kavrin::KVUpTimes;
using kvj::tests::expectEqual;
using kvj::tests::wide;
using kvj::tests::Xml;

template <class Record>
using Reader = bool (KVJStatusParser::*)(const wchar_t&, int, Record&);

template <class Record>
bool read(Reader<Record> reader, const std::string& reply, Record& record) {
    const std::wstring text = wide(reply);
    return (KVJStatusParser().*reader)(*text.c_str(), static_cast<int>(text.size()), record);
}

std::string element(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

// ---- Card counters and up-times: two messages of three 16-bit counters each ----

template <class Record_>
struct Counter {
    const char* name;
    unsigned long Record_::*field;
};

struct CardCountMessage {
    using Record = KVCardCount;
    static constexpr auto reader = &KVJStatusParser::ParseCardCount;
    static constexpr auto walker = &KVJStatusParser::parseCardCount;
    static constexpr auto root = "get_count";
    static constexpr Counter<Record> counters[] = {{"total_cards_done", &Record::totalCardsDone},
                                                   {"laminator_cards_laminated", &Record::laminatorCardsLaminated},
                                                   {"laminator_cards_processed", &Record::laminatorCardsProcessed}};
};

struct UpTimesMessage {
    using Record = KVUpTimes;
    static constexpr auto reader = &KVJStatusParser::ParseUpTime;
    static constexpr auto walker = &KVJStatusParser::parseUpTime;
    static constexpr auto root = "get_laminator_up_times";
    static constexpr Counter<Record> counters[] = {
        {"laminator_total_up_time", &Record::laminatorTotalUpTime},
        {"laminator_top_bulb_on_time", &Record::laminatorTopBulbOnTime},
        {"laminator_bottom_bulb_on_time", &Record::laminatorBottomBulbOnTime}};
};

template <class Message>
class Counters : public testing::Test {
protected:
    using Record = typename Message::Record;

    static Record preset() { return {101, 102, 103}; }

    static bool readChildren(const std::string& children, Record& record) {
        return read(Message::reader, element(Message::root, children), record);
    }

    /// The names of the three counters.
    static std::vector<std::string> names() {
        std::vector<std::string> list;
        for (const auto& counter : Message::counters) list.emplace_back(counter.name);
        return list;
    }
};

struct MessageName {
    template <class Message>
    static std::string GetName(int /*index*/) {
        return Message::root;
    }
};

using Messages = testing::Types<CardCountMessage, UpTimesMessage>;
TYPED_TEST_SUITE(Counters, Messages, MessageName);

TYPED_TEST(Counters, FillEveryFieldFromOneReply) {
    const auto names = this->names();
    auto record = this->preset();
    EXPECT_TRUE(
        this->readChildren(element(names[0], "12345") + element(names[1], "2") + element(names[2], "65535"), record));
    expectEqual(record, {12345, 2, 65535});
}

TYPED_TEST(Counters, AreReadInAnyOrderEachIntoItsField) {
    const auto names = this->names();
    auto record = this->preset();
    EXPECT_TRUE(this->readChildren(element(names[2], "3") + element(names[0], "1"), record));
    expectEqual(record, {1, 102, 3});
    EXPECT_TRUE(this->readChildren(element(names[1], "2"), record));
    expectEqual(record, {1, 2, 3});
}

TYPED_TEST(Counters, Have16Bits) {
    const std::pair<const char*, unsigned long> texts[] = {{"12345", 12345}, {"65535", 65535}, {"65536", 0},
                                                           {"70000", 4464},  {"-1", 65535},    {"0", 0}};
    for (const auto& [name, field] : TypeParam::counters) {
        for (const auto& [text, value] : texts) {
            auto record = this->preset();
            auto expected = record;
            expected.*field = value;
            EXPECT_TRUE(this->readChildren(element(name, text), record)) << name << ' ' << text;
            expectEqual(record, expected);
        }
    }
}

TYPED_TEST(Counters, AreDecimalAndWhatIsNoNumberReadsAs0) {
    for (const auto& [name, field] : TypeParam::counters) {
        auto record = this->preset();
        EXPECT_TRUE(this->readChildren(element(name, "010"), record));
        EXPECT_EQ(record.*field, 10U) << name;
        EXPECT_TRUE(this->readChildren(element(name, "0x1f"), record));
        EXPECT_EQ(record.*field, 0U) << name;
        EXPECT_TRUE(this->readChildren(element(name, "many"), record));
        EXPECT_EQ(record.*field, 0U) << name;
    }
}

TYPED_TEST(Counters, TheResultIsThatOfTheLastKnownElement) {
    const auto names = this->names();
    auto record = this->preset();
    EXPECT_FALSE(this->readChildren(element(names[0], "1") + element(names[1], ""), record));
    expectEqual(record, {1, 102, 103});
    EXPECT_TRUE(this->readChildren(element(names[1], "") + element(names[0], "2"), record));
    EXPECT_TRUE(this->readChildren(element(names[0], "3") + "<serial/>", record));
    EXPECT_FALSE(this->readChildren(element(names[0], "") + "<serial>1</serial>", record));
    expectEqual(record, {3, 102, 103});
}

TYPED_TEST(Counters, TheWalkerReadsAnElementThatTheHostHolds) {
    KVJStatusParser parser;
    auto record = this->preset();
    Xml reply(element("any", element(this->names()[2], "7")).c_str());
    EXPECT_TRUE((parser.*TypeParam::walker)(reply.root(), record));
    expectEqual(record, {101, 102, 7});
}

TYPED_TEST(Counters, TheWalkerIsFalseForNoElementAndForOneWithoutChildren) {
    KVJStatusParser parser;
    auto record = this->preset();
    Xml empty("<any>text</any>");
    EXPECT_FALSE((parser.*TypeParam::walker)(nullptr, record));
    EXPECT_FALSE((parser.*TypeParam::walker)(empty.root(), record));
    expectEqual(record, this->preset());
}

// ---- Cards until the next cleaning ----

bool readCleanLogCount(const std::string& children, int& cards) {
    return read(&KVJStatusParser::ParseCleanLogCount, element("get_count", children), cards);
}

TEST(CleanLogCount, IsDecimalWithAllItsBits) {
    const std::pair<const char*, int> texts[] = {
        {"250", 250}, {"0", 0}, {"-5", -5}, {"70000", 70000}, {"2147483647", 2147483647}, {"010", 10}, {"soon", 0}};
    for (const auto& [text, value] : texts) {
        int cards = -1;
        EXPECT_TRUE(readCleanLogCount(element("total_cards_until_next_cleaning", text), cards)) << text;
        EXPECT_EQ(cards, value);
    }
}

TEST(CleanLogCount, OneReplyServesItAndTheCardCounters) {
    const std::string children =
        "<total_cards_done>812</total_cards_done>"
        "<total_cards_until_next_cleaning>188</total_cards_until_next_cleaning>";
    int cards = -1;
    EXPECT_TRUE(readCleanLogCount(children, cards));
    EXPECT_EQ(cards, 188);
    KVCardCount counts{101, 102, 103};
    EXPECT_TRUE(read(&KVJStatusParser::ParseCardCount, element("get_count", children), counts));
    EXPECT_EQ(counts.totalCardsDone, 812U);
    EXPECT_EQ(counts.laminatorCardsLaminated, 102U);
    EXPECT_EQ(counts.laminatorCardsProcessed, 103U);
}

TEST(CleanLogCount, NeitherReaderTakesTheElementOfTheOther) {
    int cards = -1;
    EXPECT_FALSE(readCleanLogCount("<total_cards_done>812</total_cards_done>", cards));
    EXPECT_EQ(cards, -1);
    KVCardCount counts{101, 102, 103};
    EXPECT_FALSE(read(&KVJStatusParser::ParseCardCount,
                      "<get_count><total_cards_until_next_cleaning>1</total_cards_until_next_cleaning></get_count>",
                      counts));
    EXPECT_EQ(counts.totalCardsDone, 101U);
}

TEST(CleanLogCount, TheWalkerReadsAnElementThatTheHostHolds) {
    KVJStatusParser parser;
    int cards = -1;
    Xml empty("<any>text</any>");
    EXPECT_FALSE(parser.parseCleanLog(nullptr, cards));
    EXPECT_FALSE(parser.parseCleanLog(empty.root(), cards));
    EXPECT_EQ(cards, -1);
    Xml reply("<any><total_cards_until_next_cleaning>9</total_cards_until_next_cleaning></any>");
    EXPECT_TRUE(parser.parseCleanLog(reply.root(), cards));
    EXPECT_EQ(cards, 9);
}

// ---- Free memory: two messages, one field ----

struct MemoryMessage {
    const char* root;
    Reader<__MEMORY> reader;
};
constexpr MemoryMessage memoryMessages[] = {{"get_free_ram", &KVJStatusParser::GetPrinterFreeSpace},
                                            {"get_free_flash", &KVJStatusParser::GetFlashFreeSpace}};

TEST(FreeMemory, IsDecimalWithAllIts32Bits) {
    const std::pair<const char*, unsigned int> texts[] = {{"1048576", 1048576},
                                                          {"0", 0},
                                                          {"70000", 70000},
                                                          {"2147483648", 2147483648U},
                                                          {"4294967295", 4294967295U},
                                                          {"-1", 4294967295U},
                                                          {"010", 10},
                                                          {"0x1f", 0},
                                                          {"plenty", 0}};
    for (const auto& [root, reader] : memoryMessages) {
        for (const auto& [text, value] : texts) {
            __MEMORY memory{101};
            EXPECT_TRUE(read(reader, element(root, element("bytes_free", text)), memory)) << root << ' ' << text;
            EXPECT_EQ(memory.bytesFree, value) << root << ' ' << text;
        }
    }
}

TEST(FreeMemory, EachReaderTakesItsOwnMessageOnly) {
    for (const auto& message : memoryMessages) {
        for (const auto& other : memoryMessages) {
            __MEMORY memory{101};
            const bool own = &message == &other;
            EXPECT_EQ(read(message.reader, element(other.root, "<bytes_free>5</bytes_free>"), memory), own);
            EXPECT_EQ(memory.bytesFree, own ? 5U : 101U);
        }
    }
}

TEST(FreeMemory, TheWalkerReadsAnElementThatTheHostHolds) {
    KVJStatusParser parser;
    __MEMORY memory{101};
    Xml empty("<any>text</any>");
    EXPECT_FALSE(parser.getFreeSpace(nullptr, memory));
    EXPECT_FALSE(parser.getFreeSpace(empty.root(), memory));
    EXPECT_EQ(memory.bytesFree, 101U);
    Xml reply("<any><bytes_free>9</bytes_free></any>");
    EXPECT_TRUE(parser.getFreeSpace(reply.root(), memory));
    EXPECT_EQ(memory.bytesFree, 9U);
}

// ---- Cleaning ----

bool readCleaning(const std::string& children, KVCleaningStatus& status) {
    return read(&KVJStatusParser::ParseCleaningStatus, element("get_cleaning_status", children), status);
}

TEST(CleaningStatus, RemoveCardsIs3CleaningIs0AndAnUnknownWord10) {
    const std::pair<std::string, int> words[] = {
        {"remove_cards", 3}, {"cleaning", 0}, {"polishing", 10}, {"Cleaning", 10}, {std::string(100000, 'c'), 10}};
    for (const auto& [word, code] : words) {
        KVCleaningStatus status{-1};
        EXPECT_TRUE(readCleaning(element("cleaning_status", word), status));
        EXPECT_EQ(status.cleaningState, code);
    }
}

}  // namespace

}  // namespace counters_test
