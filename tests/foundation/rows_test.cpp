// The walk through a table of rows, and what each kind of row makes of its element.
#include "foundation/rows.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>

#include "foundation/read_rules.h"
#include "support/xml.h"

using kvj::tests::Xml;

// Tables of the same name in different places.
namespace kvj::here {
constexpr WordTable levels({{"low", 1}});
}
namespace kvj::there {
constexpr WordTable levels({{"low", 2}});
}
namespace kvj {
constexpr WordTable levels({{"low", 3}});
}

namespace rows_test {

namespace {

enum Colour { red = 1, blue = 2 };

struct Record {
    int integer = 77;
    unsigned int unsignedInteger = 77;
    unsigned short shortInteger = 77;
    unsigned long counter = 77;
    long large = 77;
    float real = 77;
    char uuid[8] = {'#', '#', '#', '#', '#', '#', '#', '#'};
    char next = '#';
    int state = 77;
    Colour colour = blue;
    bool ready = false;
    unsigned int alarms = 77;
};

constexpr kvj::WordTable states{-1, {{"idle", 1}, {"printing", 2}}};
constexpr kvj::WordTable colours({{"red", red}, {"blue", blue}});

constexpr auto inner = kvj::rows<Record>({
    {"real", kvj::number<&Record::real>},
    {"alarms", kvj::prefixedHex<&Record::alarms>},
});
constexpr auto table = kvj::rows<Record>({
    {"integer", kvj::number<&Record::integer>},
    {"unsigned", kvj::number<&Record::unsignedInteger>},
    {"short", kvj::number<&Record::shortInteger>},
    {"counter", kvj::number<&Record::counter>},
    {"large", kvj::number<&Record::large>},
    {"uuid", kvj::text<&Record::uuid>},
    {"state", kvj::word<&Record::state, states>},
    {"colour", kvj::word<&Record::colour, colours>},
    {"ready", kvj::is<&Record::ready, "yes">},
    {"alarms", kvj::prefixedHex<&Record::alarms>},
    {"group", kvj::group<inner>},
});

/// What the table makes of the root of a document.
struct Walked : Record {
    bool result;
    explicit Walked(const std::string& xml) : Walked(Xml(xml.c_str())) {}
    explicit Walked(Xml document) : result(kvj::walk(document.root(), static_cast<Record&>(*this), table)) {}
};

// ---- The walk ----

TEST(Walk, WithoutAnElementItIsFalse) {
    Record record;
    EXPECT_FALSE(kvj::walk(nullptr, record, table));
    EXPECT_EQ(record.integer, 77);
}

TEST(Walk, WithoutChildElementsItIsFalse) {
    for (const char* xml :
         {"<r/>", "<r></r>", "<r>12</r>", "<r integer=\"12\"/>", "<r><!--<integer>12</integer>--></r>",
          "<r><![CDATA[<integer>12</integer>]]></r>", "<integer>12</integer>"}) {
        const Walked walked(xml);
        EXPECT_FALSE(walked.result) << xml;
        EXPECT_EQ(walked.integer, 77) << xml;
    }
}

TEST(Walk, ReadsEachChildIntoItsField) {
    const Walked walked("<r><integer>1</integer><large>2</large><uuid>a</uuid></r>");
    EXPECT_TRUE(walked.result);
    EXPECT_EQ(walked.integer, 1);
    EXPECT_EQ(walked.large, 2);
    EXPECT_STREQ(walked.uuid, "a");
}

TEST(Walk, AnAbsentElementLeavesItsFieldAlone) {
    const Walked walked("<r><large>2</large></r>");
    EXPECT_EQ(walked.integer, 77);
    EXPECT_EQ(walked.state, 77);
    EXPECT_EQ(walked.uuid[0], '#');
}

TEST(Walk, TheOrderOfTheDocumentNeedNotBeThatOfTheTable) {
    const Walked walked("<r><ready>yes</ready><large>2</large><integer>1</integer></r>");
    EXPECT_TRUE(walked.result);
    EXPECT_EQ(walked.integer, 1);
    EXPECT_EQ(walked.large, 2);
    EXPECT_TRUE(walked.ready);
}

TEST(Walk, SkipsNamesWithoutARow) {
    const Walked walked("<r><new>5</new><integer>1</integer><newer><large>2</large></newer></r>");
    EXPECT_TRUE(walked.result);
    EXPECT_EQ(walked.integer, 1);
    EXPECT_EQ(walked.large, 77);
}

TEST(Walk, WithoutAnyNameThatHasARowItIsFalse) { EXPECT_FALSE(Walked("<r><new>5</new><newer>yes</newer></r>").result); }

TEST(Walk, TheResultIsThatOfTheLastChildWithARow) {
    EXPECT_TRUE(Walked("<r><large/><integer>1</integer></r>").result);
    EXPECT_FALSE(Walked("<r><integer>1</integer><large/></r>").result);
    EXPECT_TRUE(Walked("<r><large/><integer>1</integer><new/></r>").result);
    EXPECT_FALSE(Walked("<r><integer>1</integer><large/><new>5</new></r>").result);
    EXPECT_FALSE(Walked("<r><integer>1</integer><uuid>too long</uuid></r>").result);
}

TEST(Walk, GoesOnBehindAChildThatCouldNotBeRead) {
    const Walked walked("<r><large/><uuid>much too long</uuid><integer>1</integer></r>");
    EXPECT_TRUE(walked.result);
    EXPECT_EQ(walked.large, 77);
    EXPECT_EQ(walked.integer, 1);
}

TEST(Walk, ARepeatedElementIsReadAgain) {
    EXPECT_EQ(Walked("<r><integer>1</integer><large>5</large><integer>2</integer></r>").integer, 2);

    const Walked emptied("<r><integer>1</integer><integer/></r>");
    EXPECT_FALSE(emptied.result);
    EXPECT_EQ(emptied.integer, 1);
}

TEST(Walk, NamesAreComparedExactly) {
    for (const char* name : {"Integer", "INTEGER", "intege", "integerx", "integer_", "_integer", "x:integer"}) {
        const std::string child = name;
        const Walked walked("<r><" + child + ">1</" + child + "></r>");
        EXPECT_FALSE(walked.result) << name;
        EXPECT_EQ(walked.integer, 77) << name;
    }
}

TEST(Walk, CommentsAndTextBetweenTheChildrenAreSkipped) {
    const Walked walked("<r>text<!-- c --><integer>1</integer>text<![CDATA[t]]><large>2</large><!-- c -->text</r>");
    EXPECT_TRUE(walked.result);
    EXPECT_EQ(walked.integer, 1);
    EXPECT_EQ(walked.large, 2);
}

TEST(Walk, TheNameOfTheElementItselfDoesNotMatter) {
    EXPECT_EQ(Walked("<anything><integer>1</integer></anything>").integer, 1);
}

// ---- Rows ----

TEST(NumberRow, ReadsANumberOfTheTypeOfItsField) {
    const Walked walked(
        "<r><integer>4294967295</integer><unsigned>4294967295</unsigned><short>70000</short><counter>70000</counter>"
        "<large>4294967296</large><group><real>1.5</real></group></r>");
    EXPECT_TRUE(walked.result);
    EXPECT_EQ(walked.integer, -1);
    EXPECT_EQ(walked.unsignedInteger, 4294967295U);
    EXPECT_EQ(walked.shortInteger, 4464);
    EXPECT_EQ(walked.counter, 4464UL);
    EXPECT_EQ(walked.large, 4294967296L);
    EXPECT_EQ(walked.real, 1.5F);
}

TEST(NumberRow, WithoutTextItIsFalseAndLeavesTheFieldAlone) {
    for (const char* name : {"integer", "unsigned", "short", "counter", "large"}) {
        EXPECT_FALSE(Walked("<r><" + std::string(name) + "/></r>").result) << name;
    }
    const Walked walked("<r><integer/><unsigned/><short/><counter/><large/><group><real/></group></r>");
    EXPECT_FALSE(walked.result);
    EXPECT_EQ(walked.integer, 77);
    EXPECT_EQ(walked.unsignedInteger, 77U);
    EXPECT_EQ(walked.shortInteger, 77);
    EXPECT_EQ(walked.counter, 77UL);
    EXPECT_EQ(walked.large, 77L);
    EXPECT_EQ(walked.real, 77.0F);
}

TEST(TextRow, CopiesWhatFitsIntoItsField) {
    const Walked walked("<r><uuid>1234567</uuid></r>");
    EXPECT_TRUE(walked.result);
    EXPECT_STREQ(walked.uuid, "1234567");
}

TEST(TextRow, ATextTooLongIsCutAndReportedFalse) {
    const Walked walked("<r><uuid>12345678</uuid></r>");
    EXPECT_FALSE(walked.result);
    EXPECT_STREQ(walked.uuid, "1234567");
    EXPECT_EQ(walked.next, '#');
}

TEST(TextRow, WithoutTextItIsFalseAndLeavesTheFieldAlone) {
    const Walked walked("<r><uuid/></r>");
    EXPECT_FALSE(walked.result);
    EXPECT_EQ(std::string(walked.uuid, sizeof(walked.uuid)), "########");
}

TEST(WordRow, ReadsAWordAsItsCode) {
    const Walked walked("<r><state>printing</state><colour>red</colour></r>");
    EXPECT_TRUE(walked.result);
    EXPECT_EQ(walked.state, 2);
    EXPECT_EQ(walked.colour, red);
}

TEST(WordRow, AnUnknownWordIsThatOfOtherTextsAndCountsAsRead) {
    for (const char* word : {"Idle", "<![CDATA[]]>", "<b/>"}) {
        const Walked walked("<r><state>" + std::string(word) + "</state></r>");
        EXPECT_TRUE(walked.result) << word;
        EXPECT_EQ(walked.state, -1) << word;
    }
}

TEST(WordRow, AVeryLongWordIsAnUnknownWord) {
    const Walked walked("<r><state>idle" + std::string(1024 * 1024, 'e') + "</state></r>");
    EXPECT_TRUE(walked.result);
    EXPECT_EQ(walked.state, -1);
}

TEST(WordRow, AnUnknownWordLeavesTheFieldAloneWhereOtherTextsHaveNoCode) {
    const Walked walked("<r><colour>green</colour></r>");
    EXPECT_TRUE(walked.result);
    EXPECT_EQ(walked.colour, blue);
}

TEST(WordRow, WithoutTextItIsFalseAndLeavesTheFieldAlone) {
    const Walked state("<r><state/></r>");
    EXPECT_FALSE(state.result);
    EXPECT_EQ(state.state, 77);
    EXPECT_FALSE(Walked("<r><colour></colour></r>").result);
}

TEST(FlagRow, ExactlyOneWordIsTrue) {
    EXPECT_TRUE(Walked("<r><ready>yes</ready></r>").ready);
    for (const char* word : {"no", "Yes", "enabled", "yess", "ye", "1", "<![CDATA[]]>"}) {
        const Walked walked("<r><ready>yes</ready><ready>" + std::string(word) + "</ready></r>");
        EXPECT_TRUE(walked.result) << word;
        EXPECT_FALSE(walked.ready) << word;
    }
}

TEST(FlagRow, WithoutTextItIsFalseAndStoresFalse) {
    const Walked walked("<r><ready>yes</ready><ready/></r>");
    EXPECT_FALSE(walked.result);
    EXPECT_FALSE(walked.ready);
}

TEST(HexRow, ReadsDigitsBehindThePrefix) {
    const Walked walked("<r><alarms>0x80000001</alarms></r>");
    EXPECT_TRUE(walked.result);
    EXPECT_EQ(walked.alarms, 0x80000001U);
}

TEST(HexRow, AnyOtherTextLeavesTheFieldAloneAndCountsAsRead) {
    for (const char* text : {"12", "0X12", "0x", "none", "<![CDATA[ 0x12]]>", "<![CDATA[]]>"}) {
        const Walked walked("<r><alarms>" + std::string(text) + "</alarms></r>");
        EXPECT_TRUE(walked.result) << text;
        EXPECT_EQ(walked.alarms, 77U) << text;
    }
}

TEST(HexRow, WithoutTextItIsFalseAndLeavesTheFieldAlone) {
    const Walked walked("<r><alarms/></r>");
    EXPECT_FALSE(walked.result);
    EXPECT_EQ(walked.alarms, 77U);
}

TEST(GroupRow, IsWalkedWithItsOwnTableIntoTheSameRecord) {
    const Walked walked("<r><integer>1</integer><group><real>1.5</real><integer>5</integer></group></r>");
    EXPECT_TRUE(walked.result);
    EXPECT_EQ(walked.integer, 1);  // the group has no row of that name
    EXPECT_EQ(walked.real, 1.5F);
}

TEST(GroupRow, ARowOfTheGroupIsNoneOfTheTableAround) {
    const Walked walked("<r><real>1.5</real></r>");
    EXPECT_FALSE(walked.result);
    EXPECT_EQ(walked.real, 77.0F);
}

TEST(GroupRow, ItsResultIsThatOfItsLastChildWithARow) {
    EXPECT_TRUE(Walked("<r><integer/><group><alarms/><real>1.5</real></group></r>").result);
    EXPECT_FALSE(Walked("<r><integer>1</integer><group><real>1.5</real><alarms/></group></r>").result);
}

TEST(GroupRow, WithoutChildElementsItIsFalse) {
    EXPECT_FALSE(Walked("<r><integer>1</integer><group/></r>").result);
    EXPECT_FALSE(Walked("<r><integer>1</integer><group>1.5</group></r>").result);
    EXPECT_FALSE(Walked("<r><integer>1</integer><group><new>1</new></group></r>").result);
}

TEST(GroupRow, ARepeatedGroupIsReadAgain) {
    const Walked walked("<r><group><real>1.5</real></group><group><alarms>0x1</alarms></group></r>");
    EXPECT_EQ(walked.real, 1.5F);
    EXPECT_EQ(walked.alarms, 1U);
}

// ---- What rows say of themselves ----

using kvj::Kind;

TEST(Description, NamesTheRecordAndTheFieldOfEachKindOfRow) {
    const auto named = [](const auto& rule) {
        return std::string(rule.description.field.record) + "::" + std::string(rule.description.field.name);
    };
    EXPECT_EQ(named(kvj::number<&Record::integer>), "Record::integer");
    EXPECT_EQ(named(kvj::text<&Record::uuid>), "Record::uuid");
    EXPECT_EQ((named(kvj::word<&Record::state, states>)), "Record::state");
    EXPECT_EQ((named(kvj::is<&Record::ready, "yes">)), "Record::ready");
    EXPECT_EQ(named(kvj::prefixedHex<&Record::alarms>), "Record::alarms");
    EXPECT_TRUE(kvj::group<inner>.description.field.empty());
}

TEST(Description, SaysTheKindOfEachRow) {
    const auto kind = [](const auto& rule) { return rule.description.kind; };
    EXPECT_EQ(kind(kvj::number<&Record::integer>), Kind::number);
    EXPECT_EQ(kind(kvj::number<&Record::real>), Kind::decimal);
    EXPECT_EQ(kind(kvj::prefixedHex<&Record::alarms>), Kind::number);
    EXPECT_EQ(kind(kvj::text<&Record::uuid>), Kind::text);
    EXPECT_EQ((kind(kvj::word<&Record::state, states>)), Kind::word);
    EXPECT_EQ(kind(kvj::flag<&Record::ready>), Kind::flag);
    EXPECT_EQ((kind(kvj::is<&Record::ready, "yes">)), Kind::isWord);
    EXPECT_EQ((kind(kvj::isNot<&Record::ready, "no">)), Kind::isNotWord);
    EXPECT_EQ((kind(kvj::attribute<&Record::integer, "count">)), Kind::attribute);
    EXPECT_EQ(kind(kvj::group<inner>), Kind::group);
}

TEST(Description, SaysTheSizeOfATextField) { EXPECT_EQ(kvj::text<&Record::uuid>.description.capacity, 8U); }

TEST(Description, SaysTheWordOfAFlag) { EXPECT_EQ((kvj::is<&Record::ready, "yes">.description.word), "yes"); }

TEST(Description, SaysTheTableOfAWord) {
    const kvj::NamedWords words = kvj::word<&Record::state, states>.description.words;
    EXPECT_TRUE(words.name.ends_with("::states")) << words.name;
    EXPECT_EQ(words.words.rows.data(), kvj::Words(states).rows.data());
    ASSERT_EQ(words.words.rows.size(), 2U);
    EXPECT_STREQ(words.words.rows[1].word, "printing");
    EXPECT_EQ(words.words.rows[1].code, 2);
    EXPECT_EQ(words.words.other, -1);
    EXPECT_EQ((kvj::word<&Record::colour, colours>.description.words.words.other), std::nullopt);
}

TEST(Description, ATableOfWordsIsKnownByItsPlace) {
    EXPECT_EQ((kvj::word<&Record::state, kvj::here::levels>.description.words.name), "here::levels");
    EXPECT_EQ((kvj::word<&Record::state, kvj::there::levels>.description.words.name), "there::levels");
    EXPECT_EQ((kvj::word<&Record::state, kvj::levels>.description.words.name), "levels");
}

TEST(Description, SaysHowManyBitsOfANumberAreStored) {
    const auto bits = [](const auto& rule) {
        const kvj::Number number = rule.description.number;
        return std::pair(number.bits, number.isSigned);
    };
    EXPECT_EQ(bits(kvj::number<&Record::integer>), std::pair(32, true));
    EXPECT_EQ(bits(kvj::number<&Record::unsignedInteger>), std::pair(32, false));
    EXPECT_EQ(bits(kvj::number<&Record::shortInteger>), std::pair(16, false));
    EXPECT_EQ(bits(kvj::number<&Record::counter>), std::pair(16, false));
    EXPECT_EQ(bits(kvj::number<&Record::large>), std::pair(64, true));
    EXPECT_EQ(bits(kvj::prefixedHex<&Record::alarms>), std::pair(32, false));
}

TEST(Description, TellsHexadecimalNumbersFromDecimalOnes) {
    const kvj::Number decimal = kvj::number<&Record::integer>.description.number;
    EXPECT_EQ(decimal.base, kvj::Base::decimal);
    EXPECT_FALSE(decimal.onlyNumbers);
    const kvj::Number hexadecimal = kvj::prefixedHex<&Record::alarms>.description.number;
    EXPECT_EQ(hexadecimal.base, kvj::Base::hexadecimal);
    EXPECT_TRUE(hexadecimal.onlyNumbers);
}

TEST(Description, SaysWhatBecomesOfAFieldWithoutText) {
    using kvj::WithoutText;
    EXPECT_EQ(kvj::number<&Record::integer>.description.withoutText, WithoutText::isKept);
    EXPECT_EQ(kvj::flag<&Record::ready>.description.withoutText, WithoutText::isFalse);
    EXPECT_EQ((kvj::is<&Record::ready, "yes">.description.withoutText), WithoutText::isFalse);
    EXPECT_EQ((kvj::is<&Record::ready, "yes", WithoutText::isKept>.description.withoutText), WithoutText::isKept);
    EXPECT_EQ((kvj::isNot<&Record::ready, "no">.description.withoutText), WithoutText::isKept);
}

TEST(Description, OfATableHasItsRowsInOrderWithThoseOfItsGroups) {
    const auto& rows = kvj::described<table>;
    ASSERT_EQ(rows.size(), 11U);
    EXPECT_EQ(rows.front().name, "integer");
    EXPECT_EQ(rows[1].name, "unsigned");
    EXPECT_EQ(rows[1].description.field.name, "unsignedInteger");
    EXPECT_EQ(rows.back().name, "group");
    ASSERT_EQ(rows.back().description.group.size(), 2U);
    EXPECT_EQ(rows.back().description.group[0].name, "real");
    EXPECT_EQ(rows.back().description.group[1].description.field.name, "alarms");
}

}  // namespace

}  // namespace rows_test
