// The cards of the catalogue as a request: which of them, and each to the byte.
#include <gtest/gtest.h>
#include <tinyxml.h>

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cstring>
#include <iterator>
#include <string>
#include <utility>

#include "KVJMediaParser.h"
#include "KVJSetMedia.h"
#include "media/records.h"
#include "support/files.h"
#include "support/xml.h"

namespace set_media_test {

namespace {

using namespace kvj::tests;

const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n";
const std::string noCards = declaration + "<media>\n    <cards />\n</media>\n";

std::string document(const std::string& name) { return contentOf(DOCUMENTS_DIR "/" + name + ".xml"); }

/// Calls `print` with a buffer that has room for everything, and gives the text that it leaves there.
template <class Print>
std::string printed(Print print) {
    std::wstring out(50'000, L'\0');
    EXPECT_TRUE(print(out.data(), static_cast<int>(out.size())));
    std::string text;
    for (const wchar_t c : std::wstring(out.c_str())) text += static_cast<char>(c);
    return text;
}

std::string composed(_KVMediaInfo& media, int allCards, bool omitTransfer, KVJSetMedia&& composer = {}) {
    return printed([&](wchar_t* out, int length) {
        return composer.SetMedia(media, out, length, static_cast<char>(allCards), omitTransfer);
    });
}

std::string printedAgain(KVJSetMedia& composer) {
    return printed([&](wchar_t* out, int length) { return composer.saveJob(out, length); });
}

/// A card with a value in every field.
_CardInfo pvcCard() {
    return {0,
            "V-000417",
            "PVC 30 mil",
            0.76F,
            2,
            1,
            1,
            1,
            {{140, 200, 175}, {141, 201, 170}, {142, 202, 180}, {INT_MIN, INT_MAX, 172}},
            {{0.5F, 4, 2.25F}, {0.25F, 3.5F, 2.5F}, {1, 2.75F, 1.75F}, {-1.5F, -0.5F, -1}},
            {{-20, 20, 5}, {-10, 10, -3}, {-1, 1.25F, 0.125F}},
            3};
}

/// A card as it is read: without ranges.
_CardInfo compositeCard() {
    return {1,
            "V-000418",
            "R & D <30 mil>",
            30,
            1,
            0,
            1,
            0,
            {{0, 0, 182}, {0, 0, 178}, {0, 0, 188}, {0, 0, 179}},
            {{0, 0, 2}, {0, 0, 2.25F}, {0, 0, 1.5F}, {0, 0, 1.875F}},
            {{0, 0, 8}, {0, 0, 2}, {0, 0, 0.25F}},
            4};
}

_CardInfo cardOfType(int type) {
    _CardInfo card{};
    card.type = type;
    return card;
}

_CardInfo customCard() {
    _CardInfo card = cardOfType(-1);
    std::strcpy(card.description, "Custom 1");
    card.calTable = -7;
    return card;
}

class SetMedia : public testing::Test {
protected:
    const KVMediaPointer media = MakeKVMedia();

    void add(const _CardInfo& card) { media->cards->push_back(new _CardInfo(card)); }
    void addFour() {
        for (const _CardInfo& card : {pvcCard(), compositeCard(), cardOfType(2), customCard()}) add(card);
    }
};

// ---- Which cards ----

TEST_F(SetMedia, WritesEveryCardWhenAllAreAskedFor) {
    addFour();
    EXPECT_EQ(composed(*media, 1, false), document("all_cards"));
}

TEST_F(SetMedia, WritesTypes0And1AloneWhenNotAllAreAskedFor) {
    addFour();
    for (const int allCards : {0, 2, 3, -1, 127, -128}) {
        EXPECT_EQ(composed(*media, allCards, false), document("basic_cards")) << allCards;
    }
}

TEST_F(SetMedia, TypesAreToldApartAsUnsignedNumbers) {
    for (const int type : {2, 3, INT_MAX, INT_MIN, -1, -2}) add(cardOfType(type));
    EXPECT_EQ(composed(*media, 0, false), noCards);
}

TEST_F(SetMedia, LeavesTransferOutWhenItIsToldTo) {
    addFour();
    EXPECT_EQ(composed(*media, 0, true), document("direct_to_card"));
}

TEST_F(SetMedia, WritesTheCardsInTheOrderOfTheList) {
    for (const int type : {1, 2, 0, 1}) add(cardOfType(type));
    const std::string text = composed(*media, 1, true);
    std::string order;
    for (std::size_t at = 0; (at = text.find("<type>", at)) != std::string::npos; ++at) order += text[at + 6];
    EXPECT_EQ(order, "1201");
}

TEST_F(SetMedia, WritesAnEmptyListOfCardsAndIsTrueAllTheSame) {
    EXPECT_EQ(composed(*media, 1, false), noCards);
    _KVMediaInfo unbuilt;
    EXPECT_EQ(composed(unbuilt, 1, false), noCards);
}

TEST_F(SetMedia, LeavesANullEntryOut) {
    add(pvcCard());
    media->cards->push_back(nullptr);
    add(compositeCard());
    for (const int allCards : {0, 1}) EXPECT_EQ(composed(*media, allCards, false), document("basic_cards"));
}

TEST_F(SetMedia, NeverWritesFilmsRibbonsAndLaminates) {
    for (auto* list : {media->films, media->ribbons, media->laminates}) {
        list->push_back(new _MediaRibbonInfo{"F-000021", "clear film"});
    }
    EXPECT_EQ(composed(*media, 1, false), noCards);
}

TEST_F(SetMedia, LeavesTheCatalogueAsItIs) {
    addFour();
    const auto before = entriesOf(*media);
    composed(*media, 1, false);
    EXPECT_EQ(entriesOf(*media), before);
}

// ---- Fields ----

/// The "information" of a card, without white space.
std::string information(const _CardInfo& card) {
    TiXmlElement parent("card");
    EXPECT_TRUE(KVJSetMedia().addCardInformation(&parent, card));
    return written(*parent.FirstChild());
}

/// That the information of this card has this element.
void expectWritten(const _CardInfo& card, const std::string& name, const std::string& text) {
    EXPECT_NE(information(card).find(element(name, text)), std::string::npos) << information(card);
}

TEST(CardTags, ACoercivityIsItsWordAndEmptyWhenItHasNone) {
    const std::pair<unsigned char, std::string> words[] = {{0, "none"}, {1, "low"}, {2, "high"}, {3, ""}, {255, ""}};
    for (const auto& [code, word] : words) {
        _CardInfo card{};
        card.coercivity = code;
        expectWritten(card, "coercivity", word);
    }
}

TEST(CardTags, EachBitIsYesOrNo) {
    const auto word = [](bool bit) { return bit ? "yes" : "no"; };
    for (int bits = 0; bits < 8; ++bits) {
        const bool mag = (bits & 1) != 0;
        const bool contact = (bits & 2) != 0;
        const bool nonContact = (bits & 4) != 0;
        _CardInfo card{};
        card.magStripe = mag;
        card.contactEncode = contact;
        card.nonContactEncode = nonContact;
        EXPECT_TRUE(information(card).ends_with(
            "<mag_stripe>" + std::string(word(mag)) + "</mag_stripe><contact_encode>" + word(contact) +
            "</contact_encode><non_contact_encode>" + word(nonContact) + "</non_contact_encode></information>"))
            << information(card);
    }
}

TEST(CardTags, TheThicknessHasFourDecimalsAndAPointInEveryLocale) {
    const std::pair<float, std::string> thicknesses[] = {
        {0.0F, "0.0000"},
        {-0.5F, "-0.5000"},
        {0.76F, "0.7600"},
        {30.0F, "30.0000"},
        {0.00004F, "0.0000"},
        {1234567.0F, "1234567.0000"},
        {0.00006F, "0.0001"},
        {0.03125F, "0.0312"},                                        // halfway: to the even digit
        {FLT_MAX, "340282346638528859811704183484516925440.0000"}};  // 2^128 - 2^104
    for (const auto& [thickness, text] : thicknesses) {
        _CardInfo card{};
        card.thickness = thickness;
        expectWritten(card, "thickness", text);
    }
}

TEST(CardTags, TheTypeIsAnyInteger) {
    expectWritten(cardOfType(INT_MIN), "type", "-2147483648");
    expectWritten(cardOfType(INT_MAX), "type", "2147483647");
}

TEST(CardTags, TextsWithoutATerminatorAreNotReadBeyondTheirFields) {
    _CardInfo card{};
    std::fill(std::begin(card.partNumber), std::end(card.partNumber), 'n');
    std::fill(std::begin(card.description), std::end(card.description), 'd');
    card.thickness = FLT_MAX;  // no zero byte follows
    expectWritten(card, "vessa_part_number", std::string(16, 'n'));
    expectWritten(card, "description", std::string(64, 'd'));
}

TEST(CardTags, TextsAreEscaped) {
    _CardInfo card{};
    std::strcpy(card.partNumber, "<&>\"'");
    expectWritten(card, "vessa_part_number", "&lt;&amp;&gt;&quot;&apos;");
}

// ---- Parts of a card, each by itself ----

TEST(CardTags, InformationIsAnElementOfItsOwn) {
    EXPECT_EQ(information(pvcCard()),
              "<information><type>0</type><vessa_part_number>V-000417</vessa_part_number>"
              "<description>PVC 30 mil</description><thickness>0.7600</thickness><coercivity>high</coercivity>"
              "<mag_stripe>yes</mag_stripe><contact_encode>yes</contact_encode>"
              "<non_contact_encode>yes</non_contact_encode></information>");
}

TEST(CardTags, TemperaturesHaveTheirRangesAndValues) {
    TiXmlElement parent("p");
    EXPECT_TRUE(KVJSetMedia().addTransferTemps(&parent, pvcCard().transferTemps));
    EXPECT_EQ(written(parent),
              "<p><transfer_temps><top_single min=\"140\" max=\"200\">175</top_single>"
              "<bot_single min=\"141\" max=\"201\">170</bot_single><top_double min=\"142\" max=\"202\">180</top_double>"
              "<bot_double min=\"-2147483648\" max=\"2147483647\">172</bot_double></transfer_temps></p>");
}

TEST(CardTags, SpeedsHaveTheirRangesAndTheMaximumOnceMore) {
    TiXmlElement parent("p");
    EXPECT_TRUE(KVJSetMedia().addTransferSpeeds(&parent, pvcCard().transferSpeeds));
    EXPECT_EQ(written(parent),
              "<p><transfer_speeds><input_single min=\"0.50\" max=\"4.00\">4.00</input_single>"
              "<output_single min=\"0.25\" max=\"3.50\">3.50</output_single>"
              "<input_double min=\"1.00\" max=\"2.75\">2.75</input_double>"
              "<output_double min=\"-1.50\" max=\"-0.50\">-0.50</output_double></transfer_speeds></p>");
}

TEST(CardTags, AdjustmentsHaveBothForms) {
    TiXmlElement parent("p");
    EXPECT_TRUE(KVJSetMedia().addLaminationAdjustments(&parent, pvcCard().laminationAdjustments));
    EXPECT_EQ(written(parent),
              "<p><laminator_adjustments><top_temp_adjust min=\"-20\" max=\"20\">5</top_temp_adjust>"
              "<bot_temp_adjust min=\"-10\" max=\"10\">-3</bot_temp_adjust>"
              "<speed_adjust min=\"-1.00\" max=\"1.25\">1.25</speed_adjust></laminator_adjustments></p>");
}

TEST(CardTags, ACardHasItsPartsInOrder) {
    TiXmlElement parent("cards");
    EXPECT_TRUE(KVJSetMedia().addCardInfo(&parent, pvcCard()));
    EXPECT_TRUE(KVJSetMedia().addCardInfo(&parent, cardOfType(1)));
    std::string names;
    for (const auto* card = parent.FirstChildElement(); card != nullptr; card = card->NextSiblingElement()) {
        names += card->ValueStr();
        for (const auto* part = card->FirstChildElement(); part != nullptr; part = part->NextSiblingElement()) {
            names += " " + part->ValueStr();
        }
        names += ";";
    }
    const std::string one = "card information transfer_temps transfer_speeds laminator_adjustments cal_table;";
    EXPECT_EQ(names, one + one);
}

TEST_F(SetMedia, ACardAloneFollowsTheLastRequest) {
    KVJSetMedia composer;
    const auto hasTransfer = [&] {
        TiXmlElement cards("cards");
        EXPECT_TRUE(composer.addCardInfo(&cards, pvcCard()));
        const TiXmlElement* card = cards.FirstChildElement();
        EXPECT_EQ(card->FirstChild("transfer_temps") != nullptr, card->FirstChild("transfer_speeds") != nullptr);
        return card->FirstChild("transfer_temps") != nullptr;
    };
    EXPECT_TRUE(hasTransfer());
    composer.SetMedia(*media, nullptr, 0, 1, true);
    EXPECT_FALSE(hasTransfer());
    composer.SetMedia(*media, nullptr, 0, 1, false);
    EXPECT_TRUE(hasTransfer());
}

TEST(CardTags, UnderNoElementNothingIsAddedAndEachIsFalse) {
    KVJSetMedia composer;
    EXPECT_FALSE(composer.addCardInfo(nullptr, pvcCard()));
    EXPECT_FALSE(composer.addCardInformation(nullptr, pvcCard()));
    EXPECT_FALSE(composer.addTransferTemps(nullptr, pvcCard().transferTemps));
    EXPECT_FALSE(composer.addTransferSpeeds(nullptr, pvcCard().transferSpeeds));
    EXPECT_FALSE(composer.addLaminationAdjustments(nullptr, pvcCard().laminationAdjustments));
    EXPECT_TRUE(composer.NoChildren());
}

// ---- Adding to a request ----

TEST_F(SetMedia, AddingBeforeThereIsARequestIsFalse) {
    addFour();
    KVJSetMedia composer;
    EXPECT_FALSE(composer.addMedia(*media, 1));
    EXPECT_TRUE(composer.NoChildren());
}

TEST_F(SetMedia, AddingToARequestAddsFurtherCards) {
    addFour();
    const KVMediaPointer none = MakeKVMedia();
    KVJSetMedia composer;
    EXPECT_EQ(printed([&](wchar_t* out, int length) { return composer.SetMedia(*none, out, length, 1, true); }),
              noCards);
    EXPECT_TRUE(composer.addMedia(*media, 0));
    std::string expected = document("direct_to_card");
    expected.insert(expected.find("    <cards>"), "    <cards />\n");
    EXPECT_EQ(printedAgain(composer), expected);
}

TEST_F(SetMedia, AddingNoCardIsFalseAndAddsAnEmptyList) {
    const std::string empty = declaration + "<media>\n    <cards />\n    <cards />\n</media>\n";
    const auto expectNothingAdded = [&](_KVMediaInfo& catalogue, char allCards) {
        const KVMediaPointer none = MakeKVMedia();
        KVJSetMedia composer;
        composer.SetMedia(*none, nullptr, 0, 1, false);
        EXPECT_FALSE(composer.addMedia(catalogue, allCards));
        EXPECT_EQ(printedAgain(composer), empty);
    };
    expectNothingAdded(*media, 1);
    _KVMediaInfo unbuilt;
    expectNothingAdded(unbuilt, 1);
    media->cards->push_back(nullptr);
    expectNothingAdded(*media, 1);
    add(cardOfType(2));
    expectNothingAdded(*media, 0);
}

TEST_F(SetMedia, AddingToAnObjectWithTwoRequestsAddsToTheLast) {
    KVJSetMedia composer;
    composer.SetMedia(*media, nullptr, 0, 1, true);
    composer.SetMedia(*media, nullptr, 0, 1, true);
    add(cardOfType(0));
    EXPECT_TRUE(composer.addMedia(*media, 1));
    const TiXmlElement* first = composer.RootElement();
    EXPECT_EQ(written(*first), "<media><cards /></media>");
    const TiXmlElement* second = first->NextSiblingElement();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->NextSiblingElement(), nullptr);
    EXPECT_NE(second->FirstChild("cards")->NextSibling("cards"), nullptr);
}

TEST_F(SetMedia, ASecondRequestWithOneObjectGivesADocumentWithTwoRoots) {
    addFour();
    KVJSetMedia composer;
    const auto compose = [&](char allCards, bool omitTransfer) {
        return printed(
            [&](wchar_t* out, int length) { return composer.SetMedia(*media, out, length, allCards, omitTransfer); });
    };
    EXPECT_EQ(compose(1, false), document("all_cards"));
    EXPECT_EQ(compose(0, true), document("all_cards") + document("direct_to_card"));
}

// ---- Delivery ----

TEST_F(SetMedia, WithoutABufferItIsFalseAndComposedAllTheSame) {
    addFour();
    KVJSetMedia composer;
    EXPECT_FALSE(composer.SetMedia(*media, nullptr, 50'000, 1, false));
    EXPECT_EQ(printedAgain(composer), document("all_cards"));
    EXPECT_FALSE(composer.saveJob(static_cast<wchar_t*>(nullptr), 50'000));
}

TEST_F(SetMedia, IsCutAtTheCapacityAndTerminatedWhenThereIsRoom) {
    addFour();
    const std::wstring text = wide(document("all_cards"));
    const int length = static_cast<int>(text.size());
    for (const int capacity : {0, 1, 5, length - 1, length, length + 1}) {
        std::wstring out(text.size() + 2, L'#');
        EXPECT_TRUE(KVJSetMedia().SetMedia(*media, out.data(), capacity, 1, false)) << capacity;
        std::wstring expected = text.substr(0, static_cast<std::size_t>(capacity));
        if (capacity > length) expected += L'\0';
        expected.resize(text.size() + 2, L'#');
        EXPECT_EQ(out, expected) << capacity;
    }
}

TEST_F(SetMedia, ANegativeCapacityIsFalseAndWritesNothing) {
    wchar_t out[4] = L"###";
    EXPECT_FALSE(KVJSetMedia().SetMedia(*media, out, -1, 1, false));
    EXPECT_STREQ(out, L"###");
}

TEST_F(SetMedia, CanBeSavedToAFileOfTheHosts) {
    addFour();
    const TemporaryFolder folder;
    std::string path = (folder / "media.xml").string();
    KVJSetMedia composer;
    composer.SetMedia(*media, nullptr, 0, 1, false);
    EXPECT_TRUE(composer.saveJob(path.data()));
    EXPECT_EQ(contentOf(path), document("all_cards"));
    EXPECT_FALSE(composer.saveJob(static_cast<char*>(nullptr)));
    std::string nowhere = (folder / "no folder/media.xml").string();
    EXPECT_FALSE(composer.saveJob(nowhere.data()));
}

// ---- And back ----

/// What a card is after it was written and read: of the settings the values of those without a fraction; of those with
/// one the maximum, which is what is written.
_CardInfo readBack(const _CardInfo& card) {
    _CardInfo back = card;
    const auto& temperatures = card.transferTemps;
    const auto& speeds = card.transferSpeeds;
    const auto& adjustments = card.laminationAdjustments;
    back.transferTemps = {{0, 0, temperatures.topSingle.value},
                          {0, 0, temperatures.botSingle.value},
                          {0, 0, temperatures.topDouble.value},
                          {0, 0, temperatures.botDouble.value}};
    back.transferSpeeds = {{0, 0, speeds.inputSingle.max},
                           {0, 0, speeds.outputSingle.max},
                           {0, 0, speeds.inputDouble.max},
                           {0, 0, speeds.outputDouble.max}};
    back.laminationAdjustments = {{0, 0, adjustments.topTempAdjust.value},
                                  {0, 0, adjustments.botTempAdjust.value},
                                  {0, 0, adjustments.speedAdjust.max}};
    return back;
}

void read(const std::string& reply, _KVMediaInfo& media) { KVJMediaParser().GetMedia(*reply.c_str(), 0, media); }

TEST_F(SetMedia, ReadBackKeepsAllOfACardButItsRangesAndTheValuesOfSettingsWithAFraction) {
    addFour();
    const KVMediaPointer back = MakeKVMedia();
    read(composed(*media, 1, false), *back);
    ASSERT_EQ(sizesOf(*back), (Sizes{4, 0, 0, 0}));
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(fieldsOf(*back->cards->at(i)), fieldsOf(readBack(*media->cards->at(i)))) << i;
    }
}

TEST_F(SetMedia, ReadBackHasNoTransferWhereItWasLeftOut) {
    add(pvcCard());
    const KVMediaPointer back = MakeKVMedia();
    read(composed(*media, 1, true), *back);
    _CardInfo expected = readBack(pvcCard());
    expected.transferTemps = {};
    expected.transferSpeeds = {};
    ASSERT_EQ(back->cards->size(), 1U);
    EXPECT_EQ(fieldsOf(*back->cards->front()), fieldsOf(expected));
}

TEST_F(SetMedia, TheExampleWrittenAndReadLosesItsListsItsOtherTypesAndItsSpeeds) {
    read(contentOf(EXAMPLES_DIR "/replies/media.xml"), *media);
    const KVMediaPointer back = MakeKVMedia();
    read(composed(*media, 0, false), *back);
    ASSERT_EQ(sizesOf(*back), (Sizes{2, 0, 0, 0}));
    for (std::size_t i = 0; i < 2; ++i) {
        _CardInfo expected = *media->cards->at(i);
        expected.transferSpeeds = {};
        expected.laminationAdjustments.speedAdjust = {};
        EXPECT_EQ(fieldsOf(*back->cards->at(i)), fieldsOf(expected)) << i;
    }
}

}  // namespace

}  // namespace set_media_test
