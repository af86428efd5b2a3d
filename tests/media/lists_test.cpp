// The lists of the catalogue: its sections, and the entries that they append.
#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "KVJMediaParser.h"
#include "media/records.h"
#include "support/xml.h"

namespace lists_test {

namespace {

using namespace kvj::tests;

using Reader = bool (KVJMediaParser::*)(TiXmlElement*, _KVMediaInfo&);

// Contents of an entry: one that is read, and one whose last element has no text.
const std::string read = "<description>A</description><cal_table>1</cal_table>";
const std::string unread = "<description/><cal_table/>";

// ---- Entries ----

struct Entry {
    const char* name;
    Reader reader;
    Sizes appended;

    friend void PrintTo(const Entry& self, std::ostream* out) { *out << self.name; }
};

class MediaEntry : public testing::TestWithParam<Entry> {
protected:
    const KVMediaPointer media = MakeKVMedia();

    bool readEntry(const std::string& content) {
        Xml entry(element(GetParam().name, content).c_str());
        return (KVJMediaParser().*GetParam().reader)(entry.root(), *media);
    }
};

const auto nameOfParameter = [](const auto& parameter) { return std::string(parameter.param.name); };

INSTANTIATE_TEST_SUITE_P(Media, MediaEntry,
                         testing::Values(Entry{"card", &KVJMediaParser::getCardInfo, {1, 0, 0, 0}},
                                         Entry{"film", &KVJMediaParser::getFilmInfo, {0, 1, 0, 0}},
                                         Entry{"ribbon", &KVJMediaParser::getRibbonInfo, {0, 0, 1, 0}},
                                         Entry{"laminate", &KVJMediaParser::getLaminateInfo, {0, 0, 0, 1}}),
                         nameOfParameter);

TEST_P(MediaEntry, IsAppendedToItsListAlone) {
    EXPECT_TRUE(readEntry(read));
    EXPECT_EQ(sizesOf(*media), GetParam().appended);
    EXPECT_TRUE(readEntry(read));
    EXPECT_TRUE(readEntry(read));
    EXPECT_EQ(sizesOf(*media), times(3, GetParam().appended));
}

TEST_P(MediaEntry, IsAppendedWhenThereIsNothingInItWhichIsFalse) {
    for (const char* content :
         {"", "text", "<!-- none -->", "<supplier>1</supplier>", "<Description>A</Description>"}) {
        EXPECT_FALSE(readEntry(content)) << content;
    }
    EXPECT_FALSE(readEntry(unread));
    EXPECT_EQ(sizesOf(*media), times(6, GetParam().appended));
}

TEST_P(MediaEntry, ThatIsNullAppendsNothingAndIsFalse) {
    EXPECT_FALSE((KVJMediaParser().*GetParam().reader)(nullptr, *media));
    EXPECT_EQ(sizesOf(*media), Sizes());
}

TEST_P(MediaEntry, IsNotReadWithoutAList) {
    _KVMediaInfo unbuilt;
    Xml entry(element("any", read).c_str());
    EXPECT_FALSE((KVJMediaParser().*GetParam().reader)(entry.root(), unbuilt));
    EXPECT_FALSE((KVJMediaParser().*GetParam().reader)(nullptr, unbuilt));
    EXPECT_EQ(unbuilt.cards, nullptr);
    EXPECT_EQ(unbuilt.films, nullptr);
    EXPECT_EQ(unbuilt.ribbons, nullptr);
    EXPECT_EQ(unbuilt.laminates, nullptr);
}

// ---- Films, ribbons and laminates, which have the same record ----

struct Medium {
    const char* name;
    Reader reader;
    std::vector<_MediaRibbonInfo*>* _KVMediaInfo::*list;

    friend void PrintTo(const Medium& self, std::ostream* out) { *out << self.name; }
};

class MediaMedium : public testing::TestWithParam<Medium> {
protected:
    /// That an entry with this content has this result and these texts.
    static void expectRead(const std::string& content, bool result, const _MediaRibbonInfo& expected) {
        const KVMediaPointer media = MakeKVMedia();
        Xml entry(element(GetParam().name, content).c_str());
        EXPECT_EQ((KVJMediaParser().*GetParam().reader)(entry.root(), *media), result) << content;
        const auto& list = *((*media).*GetParam().list);
        ASSERT_EQ(list.size(), 1U) << content;
        EXPECT_EQ(fieldsOf(*list.front()), fieldsOf(expected)) << content;
    }
    static _MediaRibbonInfo medium(const std::string& partNumber, const std::string& description) {
        _MediaRibbonInfo medium{};
        partNumber.copy(medium.partNumber, sizeof medium.partNumber);
        description.copy(medium.description, sizeof medium.description);
        return medium;
    }
    static std::string partNumber(const std::string& text) { return element("vessa_part_number", text); }
    static std::string description(const std::string& text) { return element("description", text); }
};

INSTANTIATE_TEST_SUITE_P(Media, MediaMedium,
                         testing::Values(Medium{"film", &KVJMediaParser::getFilmInfo, &_KVMediaInfo::films},
                                         Medium{"ribbon", &KVJMediaParser::getRibbonInfo, &_KVMediaInfo::ribbons},
                                         Medium{"laminate", &KVJMediaParser::getLaminateInfo,
                                                &_KVMediaInfo::laminates}),
                         nameOfParameter);

TEST_P(MediaMedium, HasItsPartNumberAndItsDescription) {
    expectRead(partNumber("F-000021") + description("clear film"), true, medium("F-000021", "clear film"));
    expectRead(description("clear film") + "<supplier>x</supplier>" + partNumber("F-000021"), true,
               medium("F-000021", "clear film"));
}

TEST_P(MediaMedium, AMissingTextIsEmpty) {
    expectRead(description("clear film"), true, medium("", "clear film"));
    expectRead(partNumber("F-000021"), true, medium("F-000021", ""));
    expectRead(partNumber("") + description("clear film"), true, medium("", "clear film"));
    expectRead("", false, medium("", ""));
}

TEST_P(MediaMedium, ALongerTextIsCutToItsFieldAndTheEntryKept) {
    for (const std::size_t more : {1U, 2U, 1000U}) {
        expectRead(partNumber(std::string(15 + more, 'n')), false, medium(std::string(15, 'n'), ""));
        expectRead(description(std::string(63 + more, 'd')), false, medium("", std::string(63, 'd')));
    }
    expectRead(partNumber(std::string(300, 'n')) + description("clear film"), true,
               medium(std::string(15, 'n'), "clear film"));
}

TEST_P(MediaMedium, ALaterTextCountsAndOneThatIsEmptyTakesNothingBack) {
    expectRead(description("clear film") + description("matt"), true, medium("", "matt"));
    expectRead(description("clear film") + description(""), false, medium("", "clear film"));
}

TEST_P(MediaMedium, HasNoOtherElements) {
    expectRead("<type>1</type><part_number>2</part_number><information>" + description("x") + "</information>", false,
               medium("", ""));
}

// ---- Sections ----

struct Section {
    const char* name;
    const char* entry;
    Reader reader;
    Sizes appended;  ///< by one entry

    friend void PrintTo(const Section& self, std::ostream* out) { *out << self.name; }
};

class MediaSection : public testing::TestWithParam<Section> {
protected:
    const KVMediaPointer media = MakeKVMedia();

    static std::string entry(const std::string& content) { return element(GetParam().entry, content); }

    /// That a section with this content has this result and appends so many entries: read by itself, and in a whole
    /// catalogue.
    void expectRead(const std::string& content, bool result, std::size_t entries) {
        const std::string section = element(GetParam().name, content);
        expectRead(GetParam().reader, section, result, entries);
        expectRead(&KVJMediaParser::parseMedia, element("any", section), result, entries);
    }

    void expectRead(Reader reader, const std::string& text, bool result, std::size_t entries) {
        const KVMediaPointer catalogue = MakeKVMedia();
        Xml xml(text.c_str());
        EXPECT_EQ((KVJMediaParser().*reader)(xml.root(), *catalogue), result) << text;
        EXPECT_EQ(sizesOf(*catalogue), times(entries, GetParam().appended)) << text;
    }
};

INSTANTIATE_TEST_SUITE_P(Media, MediaSection,
                         testing::Values(Section{"cards", "card", &KVJMediaParser::getCardsInfo, {1, 0, 0, 0}},
                                         Section{"films", "film", &KVJMediaParser::getFilmsInfo, {0, 1, 0, 0}},
                                         Section{"ribbons", "laminate", &KVJMediaParser::getRibbonsInfo, {0, 0, 0, 1}},
                                         Section{
                                             "laminates", "laminate", &KVJMediaParser::getLaminatesInfo, {0, 0, 0, 1}}),
                         nameOfParameter);

TEST_P(MediaSection, AppendsAnEntryForEachElementThatItKnows) {
    expectRead(entry(read), true, 1);
    expectRead(entry(read) + "<note/>" + entry(read) + "<!-- -->" + entry(read), true, 3);
}

TEST_P(MediaSection, AnEmptyElementIsAnEntryAsWell) {
    expectRead(entry(""), false, 1);
    expectRead(entry(read) + entry("") + entry(""), false, 3);
}

TEST_P(MediaSection, WithoutAnElementThatItKnowsIsFalseAndAppendsNothing) {
    for (const char* content : {"", "text", "<!-- none -->", "<note/>", "<media/>"}) expectRead(content, false, 0);
    const std::string name = GetParam().entry;
    expectRead(element(static_cast<char>(name[0] - 'a' + 'A') + name.substr(1), read), false, 0);
    expectRead(element(name + "s", read) + element("note", entry(read)), false, 0);
}

TEST_P(MediaSection, TakesTheEntriesOfNoOtherSection) {
    for (const std::string name : {"card", "film", "ribbon", "laminate"}) {
        if (name != GetParam().entry) expectRead(element(name, read), false, 0);
    }
}

TEST_P(MediaSection, TheResultIsThatOfTheLastEntry) {
    expectRead(entry(read) + entry(unread), false, 2);
    expectRead(entry(unread) + entry(read), true, 2);
    expectRead(entry(read) + "<note/>", true, 1);
    expectRead(entry(unread) + "<note>x</note>", false, 1);
}

TEST_P(MediaSection, AppendsBehindWhatIsThere) {
    Xml section(element("any", entry("<description>1</description><information><description>1</description>"
                                     "</information>") +
                                   entry(read))
                    .c_str());
    (KVJMediaParser().*GetParam().reader)(section.root(), *media);
    const auto once = entriesOf(*media);
    (KVJMediaParser().*GetParam().reader)(section.root(), *media);
    EXPECT_EQ(sizesOf(*media), times(4, GetParam().appended));
    const auto twice = [](auto entries) {
        const auto copy = entries;
        entries.insert(entries.end(), copy.begin(), copy.end());
        return entries;
    };
    EXPECT_EQ(entriesOf(*media), std::tuple(twice(std::get<0>(once)), twice(std::get<1>(once)),
                                            twice(std::get<2>(once)), twice(std::get<3>(once))));
}

TEST_P(MediaSection, ThatIsNullAppendsNothingAndIsFalse) {
    EXPECT_FALSE((KVJMediaParser().*GetParam().reader)(nullptr, *media));
    EXPECT_EQ(sizesOf(*media), Sizes());
}

TEST_P(MediaSection, IsNotReadWithoutAList) {
    _KVMediaInfo unbuilt;
    Xml section(element("any", entry(read)).c_str());
    EXPECT_FALSE((KVJMediaParser().*GetParam().reader)(section.root(), unbuilt));
    Xml catalogue(element("media", element(GetParam().name, entry(read))).c_str());
    EXPECT_FALSE(KVJMediaParser().parseMedia(catalogue.root(), unbuilt));
    EXPECT_EQ(unbuilt.cards, nullptr);
    EXPECT_EQ(unbuilt.films, nullptr);
    EXPECT_EQ(unbuilt.ribbons, nullptr);
    EXPECT_EQ(unbuilt.laminates, nullptr);
}

// ---- Which section fills which list ----

/// What a "media" element with this content appends.
Sizes appendedBy(const std::string& content) {
    const KVMediaPointer media = MakeKVMedia();
    Xml root(element("media", content).c_str());
    KVJMediaParser().parseMedia(root.root(), *media);
    return sizesOf(*media);
}

TEST(MediaLists, TwoRibbonsAndALaminateUnderRibbonsAreNoRibbonsAndOneLaminate) {
    const std::string ribbon = element("ribbon", read);
    const KVMediaPointer media = MakeKVMedia();
    Xml root(element("media", element("ribbons", ribbon + element("laminate", "<description>L</description>") + ribbon))
                 .c_str());
    EXPECT_TRUE(KVJMediaParser().parseMedia(root.root(), *media));
    ASSERT_EQ(sizesOf(*media), (Sizes{0, 0, 0, 1}));
    EXPECT_STREQ(media->laminates->front()->description, "L");
}

TEST(MediaLists, LaminatesComeFromRibbonsAndLaminatesInTheOrderOfTheReply) {
    const auto laminate = [](const std::string& text) { return element("laminate", element("description", text)); };
    const KVMediaPointer media = MakeKVMedia();
    Xml root(element("media", element("laminates", laminate("1") + laminate("2")) + element("ribbons", laminate("3")) +
                                  element("laminates", laminate("4")))
                 .c_str());
    EXPECT_TRUE(KVJMediaParser().parseMedia(root.root(), *media));
    std::string order;
    for (const _MediaRibbonInfo* entry : *media->laminates) order += entry->description;
    EXPECT_EQ(order, "1234");
}

TEST(MediaLists, ASectionThatComesAgainAppends) {
    const std::string cards = element("cards", element("card", read));
    EXPECT_EQ(appendedBy(cards + "<note/>" + cards), (Sizes{2, 0, 0, 0}));
}

TEST(MediaLists, EntriesOutsideTheirSectionAreSkipped) {
    EXPECT_EQ(appendedBy("<card/><film/><ribbon/><laminate/>"), Sizes());
    EXPECT_EQ(appendedBy("<Cards><card/></Cards><film><film/></film><note><cards><card/></cards></note>"), Sizes());
    EXPECT_EQ(appendedBy("<cards><cards><card/></cards><film/><laminate/></cards>"), Sizes());
}

TEST(MediaLists, TheResultIsThatOfTheLastSection) {
    const std::string cards = element("cards", element("card", read));
    const std::string films = element("films", element("film", read));
    const auto resultOf = [](const std::string& content) {
        const KVMediaPointer media = MakeKVMedia();
        Xml root(element("media", content).c_str());
        return KVJMediaParser().parseMedia(root.root(), *media);
    };
    EXPECT_TRUE(resultOf(cards + films));
    EXPECT_FALSE(resultOf(cards + "<films/>"));
    EXPECT_FALSE(resultOf(cards + "<ribbons><ribbon>" + read + "</ribbon></ribbons>"));
    EXPECT_FALSE(resultOf(films + element("cards", element("card", unread))));
    EXPECT_TRUE(resultOf("<cards/>" + films));
    EXPECT_TRUE(resultOf(cards + "<revision>12</revision>"));
    EXPECT_FALSE(resultOf("<cards/><revision>12</revision>"));
}

TEST(MediaLists, ACatalogueThatIsNullOrHasNoSectionAppendsNothingAndIsFalse) {
    const KVMediaPointer media = MakeKVMedia();
    EXPECT_FALSE(KVJMediaParser().parseMedia(nullptr, *media));
    for (const char* text :
         {"<media/>", "<media>text</media>", "<media><!-- none --></media>", "<media><note/></media>"}) {
        Xml root(text);
        EXPECT_FALSE(KVJMediaParser().parseMedia(root.root(), *media)) << text;
    }
    EXPECT_EQ(sizesOf(*media), Sizes());
}

TEST(MediaLists, AListThatIsThereIsFilledWhereAnotherIsNot) {
    const KVMediaPointer media = MakeKVMedia();
    delete media->films;
    media->films = nullptr;
    Xml root(
        element("media", element("films", element("film", read)) + element("cards", element("card", read))).c_str());
    EXPECT_TRUE(KVJMediaParser().parseMedia(root.root(), *media));
    EXPECT_EQ(media->films, nullptr);
    EXPECT_EQ(media->cards->size(), 1U);
}

}  // namespace

}  // namespace lists_test
