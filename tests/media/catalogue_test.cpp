// The reply "media": the whole catalogue, from its text.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>
#include <tuple>
#include <vector>

#include "KVJMediaParser.h"
#include "media/records.h"
#include "support/files.h"

namespace catalogue_test {

namespace {

using namespace kvj::tests;

const std::string exampleReply = contentOf(EXAMPLES_DIR "/replies/media.xml");
constexpr Sizes exampleSizes = {4, 2, 0, 3};

class Catalogue : public testing::Test {
protected:
    const KVMediaPointer media = MakeKVMedia();

    /// Its result is the same whatever is read.
    void read(const std::string& reply) { EXPECT_FALSE(KVJMediaParser().GetMedia(*reply.c_str(), 0, *media)) << reply; }
};

std::string card(const std::string& description) {
    return element("card", element("information", element("description", description)));
}

// ---- The example ----

/// A setting whose range is not read.
_MinMaxVal value(int value) { return {0, 0, value}; }
_MinMaxValFloat value(float value) { return {0, 0, value}; }

TEST_F(Catalogue, FillsEveryCardOfTheExample) {
    read(exampleReply);
    const _CardInfo pvc{0,
                        "V-000417",
                        "PVC 30 mil",
                        0.76F,
                        2,
                        1,
                        0,
                        1,
                        {value(175), value(170), value(180), value(172)},
                        {value(2.25F), value(2.5F), value(1.75F), value(2.0F)},
                        {value(5), value(-3), value(-0.125F)},
                        3};
    const _CardInfo composite{1,
                              "V-000418",
                              "composite 30 mil",
                              0.75F,
                              0,
                              0,
                              1,
                              0,
                              {value(182), value(178), value(188), value(179)},
                              {value(2.0F), value(2.25F), value(1.5F), value(1.875F)},
                              {value(8), value(2), value(0.25F)},
                              4};
    const _CardInfo pet{2, "V-000533", "PET 20 mil, low coercivity",     0.5F, 1,  1,
                        0, 0,          {value(160), value(158), {}, {}}, {},   {}, 5};
    const _CardInfo custom{-1, "", "Custom 1", 0, 0, 0, 0, 0, {}, {}, {}, 0};
    ASSERT_EQ(media->cards->size(), 4U);
    EXPECT_EQ(fieldsOf(*(*media->cards)[0]), fieldsOf(pvc));
    EXPECT_EQ(fieldsOf(*(*media->cards)[1]), fieldsOf(composite));
    EXPECT_EQ(fieldsOf(*(*media->cards)[2]), fieldsOf(pet));
    EXPECT_EQ(fieldsOf(*(*media->cards)[3]), fieldsOf(custom));
}

TEST_F(Catalogue, FillsFilmsAndLaminatesOfTheExampleAndNoRibbons) {
    read(exampleReply);
    using Texts = std::vector<std::tuple<std::string, std::string>>;
    EXPECT_EQ(entriesOf(media->films),
              (Texts{{"F-000021", "clear retransfer film"}, {"F-000022", "hologram retransfer film \"globe\""}}));
    EXPECT_EQ(entriesOf(media->ribbons), Texts());
    EXPECT_EQ(entriesOf(media->laminates), (Texts{{"L-000088", "clear overlay 0.6 mil"},
                                                  {"L-000090", "clear patch 1.0 mil"},
                                                  {"L-000091", "hologram patch 1.0 mil"}}));
}

// ---- Growing ----

TEST_F(Catalogue, ReadingTwiceDoublesEveryList) {
    read(exampleReply);
    const auto once = entriesOf(*media);
    EXPECT_EQ(sizesOf(*media), exampleSizes);
    const _CardInfo* const first = media->cards->front();
    read(exampleReply);
    EXPECT_EQ(sizesOf(*media), times(2, exampleSizes));
    EXPECT_EQ(media->cards->front(), first);
    const auto cards = entriesOf(media->cards);
    EXPECT_EQ(decltype(cards)(cards.begin(), cards.begin() + 4), std::get<0>(once));
    EXPECT_EQ(decltype(cards)(cards.begin() + 4, cards.end()), std::get<0>(once));
}

TEST_F(Catalogue, ReadingClearsNothing) {
    read(exampleReply);
    const auto once = entriesOf(*media);
    read("<media/>");
    read("<media><cards/><films/><ribbons/><laminates/></media>");
    EXPECT_EQ(entriesOf(*media), once);
}

TEST_F(Catalogue, OneReaderFillsAnyNumberOfCatalogues) {
    KVJMediaParser parser;
    const KVMediaPointer other = MakeKVMedia();
    EXPECT_FALSE(parser.GetMedia(*exampleReply.c_str(), 0, *media));
    EXPECT_FALSE(parser.GetMedia(*exampleReply.c_str(), 0, *other));
    EXPECT_EQ(entriesOf(*media), entriesOf(*other));
    EXPECT_NE(media->cards->front(), other->cards->front());
}

TEST_F(Catalogue, IsReadWholeHoweverLongItIs) {
    constexpr int length = 20'000;
    std::string cards;
    for (int i = 0; i < length; ++i) cards += card(std::to_string(i));
    read(element("media", element("cards", cards)));
    ASSERT_EQ(sizesOf(*media), (Sizes{length, 0, 0, 0}));
    for (int i = 0; i < length; ++i) {
        ASSERT_EQ(media->cards->at(static_cast<std::size_t>(i))->description, std::to_string(i));
    }
}

// ---- The reply ----

TEST_F(Catalogue, WithoutItsRootNothingIsRead) {
    const std::string cards = "<cards><card/></cards>";
    for (const std::string& reply :
         {std::string(), std::string("media"), cards, element("Media", cards), element("get_media", cards),
          element("set_media", cards), element("reply", element("media", cards)),
          "<!--" + element("media", cards) + "-->"}) {
        read(reply);
        EXPECT_EQ(sizesOf(*media), Sizes()) << reply;
    }
}

TEST_F(Catalogue, IsTheFirstRootOfItsName) {
    read("<note/>" + element("media", element("cards", card("first"))) +
         element("media", element("cards", card("second"))));
    ASSERT_EQ(media->cards->size(), 1U);
    EXPECT_STREQ(media->cards->front()->description, "first");
}

TEST_F(Catalogue, WithoutSectionsAppendsNothing) {
    for (const char* reply : {"<media/>", "<media>text</media>", "<media><note/></media>"}) read(reply);
    EXPECT_EQ(sizesOf(*media), Sizes());
}

TEST_F(Catalogue, TheLengthOfTheReplyDoesNotCount) {
    for (const int length : {0, 1, -1, INT_MIN, INT_MAX}) {
        const KVMediaPointer catalogue = MakeKVMedia();
        EXPECT_FALSE(KVJMediaParser().GetMedia(*exampleReply.c_str(), length, *catalogue)) << length;
        EXPECT_EQ(sizesOf(*catalogue), exampleSizes) << length;
    }
}

TEST_F(Catalogue, TheReplyEndsAtItsNul) {
    const std::string start = "<media><cards>" + card("1");
    const std::string reply = start + '\0' + card("2") + "</cards></media>";
    EXPECT_FALSE(KVJMediaParser().GetMedia(*reply.c_str(), static_cast<int>(reply.size()), *media));
    ASSERT_EQ(media->cards->size(), 1U);
    EXPECT_STREQ(media->cards->front()->description, "1");
}

TEST_F(Catalogue, BytesBeyondAsciiAreReadAsTheyAreInEveryLocale) {
    const std::string cards = element("media", element("cards", card("caf\xC3\xA9")));
    read(cards);
    read("<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + cards);
    ASSERT_EQ(media->cards->size(), 2U);
    EXPECT_STREQ(media->cards->at(0)->description, "caf\xC3\xA9");
    EXPECT_STREQ(media->cards->at(1)->description, "caf\xC3\xA9");
}

TEST_F(Catalogue, OfAReplyThatIsNoXmlFromSomePointWhatStandsBeforeIsRead) {
    read("<media><cards>" + card("1") + "<card></cards></media>");
    ASSERT_GE(media->cards->size(), 1U);
    EXPECT_STREQ(media->cards->front()->description, "1");
}

TEST_F(Catalogue, AnyTextOfTheReplyMayBeMuchTooLong) {
    const std::string text(100'000, 'x');
    std::string information;
    for (const char* name : {"type", "vessa_part_number", "description", "thickness", "mag_stripe", "coercivity",
                             "contact_encode", "non_contact_encode"}) {
        information += element(name, text);
    }
    read(element(
        "media",
        element("cards", element("card", element("information", information) + element("cal_table", text))) +
            element("films", element("film", element("vessa_part_number", text) + element("description", text)))));
    ASSERT_EQ(sizesOf(*media), (Sizes{1, 1, 0, 0}));
    _CardInfo expected{};
    std::strcpy(expected.partNumber, std::string(15, 'x').c_str());
    std::strcpy(expected.description, std::string(63, 'x').c_str());
    EXPECT_EQ(fieldsOf(*media->cards->front()), fieldsOf(expected));
    EXPECT_EQ(fieldsOf(*media->films->front()), std::tuple(std::string(15, 'x'), std::string(63, 'x')));
}

TEST_F(Catalogue, WithoutListsIsNotFilled) {
    _KVMediaInfo unbuilt;
    EXPECT_FALSE(KVJMediaParser().GetMedia(*exampleReply.c_str(), 0, unbuilt));
    EXPECT_EQ(unbuilt.cards, nullptr);
    EXPECT_EQ(unbuilt.films, nullptr);
    EXPECT_EQ(unbuilt.ribbons, nullptr);
    EXPECT_EQ(unbuilt.laminates, nullptr);
}

}  // namespace

}  // namespace catalogue_test
