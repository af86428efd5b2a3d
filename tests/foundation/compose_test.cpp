// The loop through a request's table, when a row is written, and what each kind of row writes.
#include "foundation/compose.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>
#include <utility>

#include "FoundationRecords.h"
#include "foundation/write_rules.h"
#include "support/xml.h"

namespace compose_test {

using kvj::Selection;
using kvj::tests::written;
namespace put = kvj::put;

namespace {

struct Entry {
    int number;
};

struct Inner {
    int number = 3;
    bool spare = false;
};

struct Record {
    int integer = 1;
    unsigned int unsignedInteger = 2;
    float real = 1.5F;
    char uuid[4] = {'a', 'b', 'c', '\0'};
    bool ready = false;
    int state = 0;
    int levels = 0;
    unsigned char address[6] = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};
    Kavrin::_MinMaxVal speed{1, 9, 5};
    Kavrin::_MinMaxValFloat tension{1.0F, 9.5F, 4.25F};
    Inner inner;
    int entryCount = 0;
    const Entry* entries = nullptr;
};

constexpr kvj::WordTable states{-1, {{"idle", 0}, {"printing", 2}}};
constexpr kvj::WordTable levels({{"low", 0x8}, {"off", 0x1}});

/// A rule that adds nothing and says so.
constexpr kvj::WriteRule<Record> failing{
    {}, [](kvj::Parent, const char*, const Record&, const Selection&) { return false; }};
constexpr kvj::Condition<Record> whenReady{"when ready",
                                           [](const Record& record, const Selection&) { return record.ready; }};

/// What a table makes of a record, without white space, and its result.
template <class Table>
auto composed(const Table& table, const Record& record = {}, const Selection& selection = {}) {
    TiXmlElement parent("p");
    const bool result = kvj::compose(&parent, record, table, selection);
    return std::pair(written(parent), result);
}

std::pair<std::string, bool> wrote(const std::string& content) { return {"<p>" + content + "</p>", true}; }
const std::pair<std::string, bool> nothing{"<p />", false};

/// What a rule adds as "x".
std::pair<std::string, bool> added(const kvj::WriteRule<Record>& rule, const Record& record = {},
                                   const Selection& selection = {}) {
    return composed(kvj::Tag<Record>{"x", rule}, record, selection);
}

// ---- The loop ----

constexpr auto three = kvj::tags<Record>({
    {"integer", put::number<&Record::integer>},
    {"uuid", put::text<&Record::uuid>},
    {"unsigned", put::number<&Record::unsignedInteger>},
});

TEST(Compose, WritesEachRowInTheOrderOfTheTable) {
    EXPECT_EQ(composed(three), wrote("<integer>1</integer><uuid>abc</uuid><unsigned>2</unsigned>"));
}

TEST(Compose, AddsBehindWhatTheParentHolds) {
    TiXmlElement parent("p");
    parent.LinkEndChild(new TiXmlElement("before"));
    EXPECT_TRUE(kvj::compose(&parent, Record{}, three));
    EXPECT_TRUE(kvj::compose(&parent, Record{}, three));
    const std::string rows = "<integer>1</integer><uuid>abc</uuid><unsigned>2</unsigned>";
    EXPECT_EQ(written(parent), "<p><before />" + rows + rows + "</p>");
}

TEST(Compose, WithoutAParentItIsFalse) { EXPECT_FALSE(kvj::compose(nullptr, Record{}, three)); }

TEST(Compose, ARowMayRepeatAName) {
    constexpr auto twice = kvj::tags<Record>({
        {"name", put::text<&Record::uuid>},
        {"name", put::yesOrNo<&Record::ready>},
    });
    EXPECT_EQ(composed(twice), wrote("<name>abc</name><name>no</name>"));
}

TEST(Compose, TheResultIsThatOfTheLastRowWritten) {
    constexpr auto last = kvj::tags<Record>({
        {"integer", put::number<&Record::integer>},
        {"failing", failing},
    });
    EXPECT_EQ(composed(last), std::pair(std::string("<p><integer>1</integer></p>"), false));
    constexpr auto first = kvj::tags<Record>({
        {"failing", failing},
        {"integer", put::number<&Record::integer>},
    });
    EXPECT_EQ(composed(first), wrote("<integer>1</integer>"));
}

TEST(Compose, ARowThatIsNotWantedHasNoSayInTheResult) {
    constexpr auto table = kvj::tags<Record>({
        {"integer", put::number<&Record::integer>},
        {"failing", failing, whenReady},
    });
    EXPECT_EQ(composed(table), wrote("<integer>1</integer>"));
    constexpr auto other = kvj::tags<Record>({
        {"failing", failing},
        {"integer", put::number<&Record::integer>, whenReady},
    });
    EXPECT_EQ(composed(other), nothing);
}

TEST(Compose, WithoutAnyRowThatIsWantedItIsFalse) {
    constexpr auto table = kvj::tags<Record>({{"integer", put::number<&Record::integer>, whenReady}});
    EXPECT_EQ(composed(table), nothing);
}

TEST(Compose, WithoutAnyRowThatIsWantedItIsWhatTheCallerSays) {
    constexpr auto table = kvj::tags<Record>({{"failing", failing, whenReady}});
    TiXmlElement parent("p");
    Record record;
    EXPECT_TRUE(kvj::compose(&parent, record, table, {}, true));
    record.ready = true;
    EXPECT_FALSE(kvj::compose(&parent, record, table, {}, true));
}

// ---- Conditions ----

constexpr auto conditional = kvj::tags<Record>({
    {"always", put::number<&Record::integer>},
    {"ready", put::number<&Record::integer>, whenReady},
    {"transfer", put::number<&Record::integer>, kvj::withTransfer},
    {"direct", put::number<&Record::integer>, kvj::directToCard},
});

TEST(Condition, IsAskedOfTheRecordAndOfTheSelection) {
    Record ready;
    ready.ready = true;
    const std::string always = "<always>1</always>";
    const std::string whenItIs = "<ready>1</ready>";
    const std::string transfer = "<transfer>1</transfer>";
    const std::string direct = "<direct>1</direct>";
    EXPECT_EQ(composed(conditional, {}, {}), wrote(always + transfer));
    EXPECT_EQ(composed(conditional, ready, {}), wrote(always + whenItIs + transfer));
    EXPECT_EQ(composed(conditional, {}, {.directToCard = true}), wrote(always + direct));
    EXPECT_EQ(composed(conditional, ready, {.directToCard = true}), wrote(always + whenItIs + direct));
}

TEST(Condition, HoldsForOneRowAloneAsWell) {
    constexpr kvj::Tag<Record> row{"x", put::number<&Record::integer>, whenReady};
    Record record;
    EXPECT_EQ(composed(row, record), nothing);
    record.ready = true;
    EXPECT_EQ(composed(row, record), wrote("<x>1</x>"));
    EXPECT_FALSE(kvj::compose(nullptr, record, row));
}

// ---- Sections ----

constexpr auto sections = kvj::sections<Record>({
    {0x1, "one", put::number<&Record::integer>},
    {0x4, "four", put::number<&Record::integer>, kvj::always, true},
    {0x4, "four_too", put::number<&Record::integer>},
    {0x8, "eight", put::number<&Record::integer>, kvj::withTransfer},
    {0x100000000, "far", put::number<&Record::integer>},
});

TEST(Sections, AreWrittenForTheirBitInTheOrderOfTheTable) {
    EXPECT_EQ(composed(sections, {}, {.sections = 0x1}), wrote("<one>1</one>"));
    EXPECT_EQ(composed(sections, {}, {.sections = 0x9}), wrote("<one>1</one><eight>1</eight>"));
    EXPECT_EQ(composed(sections, {}, {.sections = 0x100000000}), wrote("<far>1</far>"));
    EXPECT_EQ(composed(sections, {}, {.sections = -1}),
              wrote("<one>1</one><four>1</four><four_too>1</four_too><eight>1</eight><far>1</far>"));
}

TEST(Sections, TwoMayShareABit) {
    EXPECT_EQ(composed(sections, {}, {.sections = 0x4}), wrote("<four>1</four><four_too>1</four_too>"));
}

TEST(Sections, WithoutABitOrWithOneOfNoSectionNothingIsWrittenAndItIsFalse) {
    EXPECT_EQ(composed(sections, {}, {.sections = 0}), nothing);
    EXPECT_EQ(composed(sections, {}, {.sections = 0x2}), nothing);
    EXPECT_EQ(composed(sections, {}, {.sections = 0x10}), nothing);
}

TEST(Sections, NeedTheirBitAndTheirCondition) {
    EXPECT_EQ(composed(sections, {}, {.directToCard = true, .sections = 0x8}), nothing);
    EXPECT_EQ(composed(sections, {}, {.directToCard = true, .sections = 0x9}), wrote("<one>1</one>"));
}

TEST(Sections, ForACardAloneOnlyThoseOfCardsAreWritten) {
    EXPECT_EQ(composed(sections, {}, {.sections = -1, .card = 1}), wrote("<four>1</four>"));
    EXPECT_EQ(composed(sections, {}, {.sections = -1, .card = 2}), wrote("<four>1</four>"));
    EXPECT_EQ(composed(sections, {}, {.sections = 0x1, .card = 1}), nothing);
}

// ---- What rows write ----

TEST(WriteRule, ANumberHasTheRangeOfItsField) {
    Record record;
    record.integer = INT_MIN;
    record.unsignedInteger = UINT_MAX;
    EXPECT_EQ(added(put::number<&Record::integer>, record), wrote("<x>-2147483648</x>"));
    EXPECT_EQ(added(put::number<&Record::unsignedInteger>, record), wrote("<x>4294967295</x>"));
}

TEST(WriteRule, ADecimalHasFourDecimalsBehindAPointInEveryLocale) {
    Record record;
    record.real = -0.03125F;
    EXPECT_EQ(added(put::decimal<&Record::real>), wrote("<x>1.5000</x>"));
    EXPECT_EQ(added(put::decimal<&Record::real>, record), wrote("<x>-0.0312</x>"));
}

TEST(WriteRule, ATextEndsWithItsTerminatorOrItsField) {
    Record record;
    EXPECT_EQ(added(put::text<&Record::uuid>, record), wrote("<x>abc</x>"));
    std::memcpy(record.uuid, "abcd", 4);
    record.ready = true;  // the byte after it
    EXPECT_EQ(added(put::text<&Record::uuid>, record), wrote("<x>abcd</x>"));
    std::memcpy(record.uuid, "a\0cd", 4);
    EXPECT_EQ(added(put::text<&Record::uuid>, record), wrote("<x>a</x>"));
    record.uuid[0] = '\0';
    EXPECT_EQ(added(put::text<&Record::uuid>, record), wrote("<x></x>"));
}

TEST(WriteRule, AFlagIsOneOfTwoWords) {
    Record record;
    EXPECT_EQ(added(put::either<&Record::ready, "on", "off">, record), wrote("<x>off</x>"));
    EXPECT_EQ(added(put::yesOrNo<&Record::ready>, record), wrote("<x>no</x>"));
    EXPECT_EQ(added(put::enabledOrNot<&Record::ready>, record), wrote("<x>disabled</x>"));
    record.ready = true;
    EXPECT_EQ(added(put::either<&Record::ready, "on", "off">, record), wrote("<x>on</x>"));
    EXPECT_EQ(added(put::yesOrNo<&Record::ready>, record), wrote("<x>yes</x>"));
    EXPECT_EQ(added(put::enabledOrNot<&Record::ready>, record), wrote("<x>enabled</x>"));
}

TEST(WriteRule, ACodeIsItsWordAndOneWithoutIsEmptyOrAnotherWord) {
    Record record;
    EXPECT_EQ(added(put::word<&Record::state, states>, record), wrote("<x>idle</x>"));
    record.state = 2;
    EXPECT_EQ(added(put::word<&Record::state, states>, record), wrote("<x>printing</x>"));
    for (const int code : {-1, 1, 3, INT_MIN, INT_MAX}) {
        record.state = code;
        EXPECT_EQ(added(put::word<&Record::state, states>, record), wrote("<x></x>")) << code;
        EXPECT_EQ(added(put::word<&Record::state, states, "none">, record), wrote("<x>none</x>")) << code;
    }
}

TEST(WriteRule, ASettingHasItsRangeAndOneWithAFractionItsMaximumForItsValue) {
    EXPECT_EQ(added(put::setting<&Record::speed>), wrote("<x min=\"1\" max=\"9\">5</x>"));
    EXPECT_EQ(added(put::setting<&Record::tension>), wrote("<x min=\"1.00\" max=\"9.50\">9.50</x>"));
}

TEST(WriteRule, AHardwareAddressIsInLowerCase) {
    EXPECT_EQ(added(put::hardwareAddress<&Record::address>), wrote("<x>00:1a:2b:3c:4d:5e</x>"));
}

TEST(WriteRule, AConstantIsAlwaysTheSame) { EXPECT_EQ(added(put::constant<Record, "auto">), wrote("<x>auto</x>")); }

TEST(WriteRule, BitsAreAnElementForEachThatHasAWordInTheOrderOfTheWords) {
    Record record;
    const auto& rule = put::bits<&Record::levels, levels>;
    EXPECT_EQ(added(rule, record), nothing);
    record.levels = 0x6;
    EXPECT_EQ(added(rule, record), nothing);
    record.levels = 0x1;
    EXPECT_EQ(added(rule, record), wrote("<x>off</x>"));
    record.levels = 0xF;
    EXPECT_EQ(added(rule, record), wrote("<x>low</x><x>off</x>"));
}

constexpr auto innerTags = kvj::tags<Inner>({
    {"number", put::number<&Inner::number>},
    {"direct", put::number<&Inner::number>, kvj::directToCard},
});
constexpr auto unwantedTags = kvj::tags<Record>({{"integer", put::number<&Record::integer>, whenReady}});

TEST(WriteRule, AGroupIsAnElementAroundItsRows) {
    EXPECT_EQ(added(put::group<three>), wrote("<x><integer>1</integer><uuid>abc</uuid><unsigned>2</unsigned></x>"));
}

TEST(WriteRule, APartIsAGroupOfARecordInsideTheRecord) {
    EXPECT_EQ((added(put::part<&Record::inner, innerTags>)), wrote("<x><number>3</number></x>"));
}

TEST(WriteRule, AGroupAndAPartAreAskedOfTheSameSelection) {
    const Selection direct{.directToCard = true};
    EXPECT_EQ((added(put::part<&Record::inner, innerTags>, {}, direct)),
              wrote("<x><number>3</number><direct>3</direct></x>"));
    EXPECT_EQ(added(put::group<conditional>, {}, direct), wrote("<x><always>1</always><direct>1</direct></x>"));
}

TEST(WriteRule, AGroupWithoutARowThatIsWantedIsAnEmptyElementAndFalse) {
    EXPECT_EQ(added(put::group<unwantedTags>), std::pair(std::string("<p><x /></p>"), false));
}

TEST(WriteRule, AGroupHasTheResultOfItsLastRow) {
    static constexpr auto table = kvj::tags<Record>({
        {"integer", put::number<&Record::integer>},
        {"failing", failing},
    });
    EXPECT_EQ(added(put::group<table>), std::pair(std::string("<p><x><integer>1</integer></x></p>"), false));
}

constexpr auto entryTags = kvj::tags<Entry>({{"number", put::number<&Entry::number>}});
constexpr const auto& entryRule = put::group<entryTags>;
constexpr const auto& listRule = put::list<&Record::entryCount, &Record::entries, "entry", entryRule>;

TEST(WriteRule, AListIsAnElementAroundItsEntries) {
    const Entry entries[] = {{7}, {8}, {9}};
    Record record;
    record.entries = entries;
    record.entryCount = 2;
    EXPECT_EQ(added(listRule, record),
              wrote("<x><entry><number>7</number></entry><entry><number>8</number></entry></x>"));
}

TEST(WriteRule, AListWithoutEntriesIsAnEmptyElementAndFalse) {
    const Entry entries[] = {{7}};
    for (const Entry* array : {static_cast<const Entry*>(nullptr), entries}) {
        for (const int count : {0, -1, INT_MIN}) {
            Record record;
            record.entries = array;
            record.entryCount = count;
            EXPECT_EQ(added(listRule, record), std::pair(std::string("<p><x /></p>"), false)) << count;
        }
    }
    Record record;
    record.entryCount = INT_MAX;
    EXPECT_EQ(added(listRule, record), std::pair(std::string("<p><x /></p>"), false));
}

TEST(WriteRule, EntriesAloneAreAddedToTheParentItself) {
    const Entry entries[] = {{7}, {8}};
    TiXmlElement parent("p");
    EXPECT_TRUE(kvj::addEntries(&parent, "e", entries, 2, entryRule));
    EXPECT_EQ(written(parent), "<p><e><number>7</number></e><e><number>8</number></e></p>");
    EXPECT_FALSE(kvj::addEntries(&parent, nullptr, entries, 2, entryRule));
    EXPECT_FALSE(kvj::addEntries(nullptr, "e", entries, 2, entryRule));
    EXPECT_EQ(written(parent), "<p><e><number>7</number></e><e><number>8</number></e></p>");
}

TEST(WriteRule, WithoutAParentEachIsFalse) {
    const Entry entries[] = {{7}};
    Record record;
    record.levels = 0xF;
    record.entries = entries;
    record.entryCount = 1;
    const auto addedToNothing = [&](const kvj::WriteRule<Record>& rule) {
        return rule.write(nullptr, "x", record, {});
    };
    EXPECT_FALSE(addedToNothing(put::number<&Record::integer>));
    EXPECT_FALSE(addedToNothing(put::decimal<&Record::real>));
    EXPECT_FALSE(addedToNothing(put::text<&Record::uuid>));
    EXPECT_FALSE(addedToNothing(put::yesOrNo<&Record::ready>));
    EXPECT_FALSE((addedToNothing(put::word<&Record::state, states>)));
    EXPECT_FALSE(addedToNothing(put::setting<&Record::speed>));
    EXPECT_FALSE(addedToNothing(put::setting<&Record::tension>));
    EXPECT_FALSE(addedToNothing(put::hardwareAddress<&Record::address>));
    EXPECT_FALSE((addedToNothing(put::constant<Record, "auto">)));
    EXPECT_FALSE((addedToNothing(put::bits<&Record::levels, levels>)));
    EXPECT_FALSE(addedToNothing(put::group<three>));
    EXPECT_FALSE((addedToNothing(put::part<&Record::inner, innerTags>)));
    EXPECT_FALSE(addedToNothing(listRule));
}

// ---- What rows say of themselves ----

TEST(DescribedRequest, HasItsRowsInOrderWithTheirConditions) {
    const auto& rows = kvj::described<conditional>;
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[0].name, "always");
    EXPECT_EQ(rows[0].description.field.name, "integer");
    EXPECT_EQ(rows[0].condition, "");
    EXPECT_EQ(rows[0].section, 0);
    EXPECT_EQ(rows[1].condition, "when ready");
    EXPECT_NE(rows[2].condition, "");
    EXPECT_NE(rows[2].condition, rows[3].condition);
}

TEST(DescribedRequest, ASectionSaysItsBitAndItsCondition) {
    const auto& rows = kvj::described<sections>;
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[1].section, 0x4);
    EXPECT_EQ(rows[2].section, 0x4);
    EXPECT_EQ(rows[4].section, 0x100000000);
    EXPECT_EQ(rows[1].condition, "");
    EXPECT_EQ(rows[3].condition, kvj::withTransfer.description);
}

TEST(DescribedRequest, AFlagSaysBothItsWords) {
    const kvj::Description description = put::either<&Record::ready, "on", "off">.description;
    EXPECT_EQ(description.kind, kvj::Kind::either);
    EXPECT_EQ(description.field.name, "ready");
    EXPECT_EQ(description.word, "on");
    EXPECT_EQ(description.otherWord, "off");
}

TEST(DescribedRequest, AWordSaysItsTableAndTheWordOfOtherCodes) {
    const kvj::Description description = put::word<&Record::state, states, "none">.description;
    EXPECT_EQ(description.kind, kvj::Kind::word);
    EXPECT_EQ(description.field.name, "state");
    EXPECT_EQ(description.otherWord, "none");
    EXPECT_TRUE(description.words.name.ends_with("states"));
    EXPECT_EQ(description.words.words.rows.data(), kvj::Words(states).rows.data());
}

TEST(DescribedRequest, GroupsPartsAndListsSayTheirRows) {
    EXPECT_TRUE(put::group<three>.description.field.empty());
    EXPECT_EQ(put::group<three>.description.group.size(), 3U);
    const kvj::Description part = put::part<&Record::inner, innerTags>.description;
    EXPECT_EQ(part.kind, kvj::Kind::part);
    EXPECT_EQ(part.field.name, "inner");
    ASSERT_EQ(part.group.size(), 2U);
    EXPECT_EQ(part.group[0].name, "number");
    EXPECT_EQ(listRule.description.field.name, "entries");
    EXPECT_EQ(listRule.description.word, "entry");
    ASSERT_EQ(listRule.description.group.size(), 1U);
    EXPECT_EQ(listRule.description.group[0].name, "number");
}

}  // namespace

}  // namespace compose_test
