// One card of the catalogue: its "information", its settings, and the card that is made of them.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <functional>
#include <ostream>
#include <string>
#include <tuple>
#include <utility>

#include "KVJMediaParser.h"
#include "media/records.h"
#include "support/xml.h"

namespace card_test {

namespace {

using namespace kvj::tests;

std::string without(const std::string& name) { return "<" + name + "/>"; }

/// What a test expects of a preset card: that these fields have changed, and no other.
using Change = std::function<void(_CardInfo&)>;
const Change nothing = [](_CardInfo&) {};

// ---- "information" ----

/// That an "information" with this content, read over a preset card, gives this result and this card.
void expectInformation(const std::string& content, bool result, const Change& change) {
    Xml information(element("information", content).c_str());
    _CardInfo card = presetCard();
    EXPECT_EQ(KVJMediaParser().getCardInformation(information.root(), card), result) << content;
    _CardInfo expected = presetCard();
    change(expected);
    EXPECT_EQ(fieldsOf(card), fieldsOf(expected)) << content;
}

TEST(CardInformation, FillsEveryFieldAndLeavesTheRestOfTheCard) {
    expectInformation(
        "<type>1</type><vessa_part_number>V-000417</vessa_part_number><description>PVC 30 mil</description>"
        "<thickness>0.76</thickness><coercivity>low</coercivity><mag_stripe>no</mag_stripe>"
        "<contact_encode>no</contact_encode><non_contact_encode>no</non_contact_encode>",
        true, [](_CardInfo& card) {
            card.type = 1;
            std::strcpy(card.partNumber, "V-000417");
            std::strcpy(card.description, "PVC 30 mil");
            card.thickness = 0.76F;
            card.coercivity = 1;
            card.magStripe = card.contactEncode = card.nonContactEncode = 0;
        });
}

TEST(CardInformation, NeedsAnElementThatItKnows) {
    _CardInfo card = presetCard();
    EXPECT_FALSE(KVJMediaParser().getCardInformation(nullptr, card));
    EXPECT_EQ(fieldsOf(card), fieldsOf(presetCard()));
    for (const char* content : {"", "text", "<!-- none -->", "<supplier>1</supplier>", "<Type>1</Type>",
                                "<part_number>1</part_number>", "<cal_table>1</cal_table>", "<a><type>1</type></a>"}) {
        expectInformation(content, false, nothing);
    }
}

TEST(CardInformation, ItsElementsMayComeInAnyOrderAmongOthersAndTheLastOfANameCounts) {
    expectInformation("<mag_stripe>no</mag_stripe><type>1</type><supplier>x</supplier><type>2</type>", true,
                      [](_CardInfo& card) {
                          card.magStripe = 0;
                          card.type = 2;
                      });
}

TEST(CardInformation, TheResultIsThatOfTheLastElementThatItKnows) {
    const Change typeIs1 = [](_CardInfo& card) { card.type = 1; };
    expectInformation("<type>1</type><description/>", false, typeIs1);
    expectInformation("<description/><type>1</type>", true, typeIs1);
    expectInformation("<type>1</type><supplier/>", true, typeIs1);
    expectInformation("<type>1</type><description/><supplier>x</supplier>", false, typeIs1);
}

TEST(CardInformation, AnElementWithoutTextKeepsItsFieldAndIsFalse) {
    for (const char* name : {"type", "vessa_part_number", "description", "thickness", "coercivity"}) {
        expectInformation(without(name), false, nothing);
        expectInformation(element(name, " "), false, nothing);
    }
}

TEST(CardInformation, TheTypeIsAnyInteger) {
    const std::pair<const char*, int> types[] = {{"0", 0},   {"2", 2},      {"-1", -1}, {"2147483647", 2147483647},
                                                 {"abc", 0}, {"12 mil", 12}};
    for (const auto& [text, type] : types) {
        expectInformation(element("type", text), true, [type = type](_CardInfo& card) { card.type = type; });
    }
}

TEST(CardInformation, TheThicknessHasADecimalPointInEveryLocale) {
    const std::pair<const char*, float> thicknesses[] = {{"0.76", 0.76F}, {"30", 30},     {"-0.5", -0.5F},
                                                         {"7.5e1", 75},   {"0,76", 0},    {"thin", 0},
                                                         {".25", 0.25F},  {"1.5mm", 1.5F}};
    for (const auto& [text, thickness] : thicknesses) {
        expectInformation(element("thickness", text), true,
                          [thickness = thickness](_CardInfo& card) { card.thickness = thickness; });
    }
}

TEST(CardInformation, TheCoercivityIsTheCodeOfItsWordAnd0ForAnyOther) {
    const std::pair<std::string, unsigned char> words[] = {{"none", 0}, {"low", 1},     {"high", 2}, {"Low", 0},
                                                           {"HIGH", 0}, {"highest", 0}, {"2", 0}};
    for (const auto& [word, code] : words) {
        expectInformation(element("coercivity", word), true,
                          [code = code](_CardInfo& card) { card.coercivity = code; });
    }
    expectInformation(element("coercivity", std::string(200, 'h')), true, [](_CardInfo& card) { card.coercivity = 0; });
}

TEST(CardInformation, ALongerTextIsCutToItsFieldAndFalse) {
    for (const std::size_t more : {1U, 2U, 1000U}) {
        expectInformation(element("vessa_part_number", std::string(15 + more, 'n')), false,
                          [](_CardInfo& card) { std::strcpy(card.partNumber, std::string(15, 'n').c_str()); });
        expectInformation(element("description", std::string(63 + more, 'd')), false,
                          [](_CardInfo& card) { std::strcpy(card.description, std::string(63, 'd').c_str()); });
    }
}

TEST(CardInformation, TextsAreUnescaped) {
    expectInformation("<description>R &amp; D &lt;30 mil&gt; &quot;x&quot;</description>", true,
                      [](_CardInfo& card) { std::strcpy(card.description, "R & D <30 mil> \"x\""); });
}

// ---- The bits of "information" ----

struct Bit {
    const char* name;
    unsigned char mask;

    friend void PrintTo(const Bit& self, std::ostream* out) { *out << self.name; }
};

class CardBit : public testing::TestWithParam<Bit> {
protected:
    static constexpr std::size_t place = offsetof(_CardInfo, coercivity) + 1;

    /// The byte with the bits after reading this element over a card in which it was `before`, and no other byte
    /// touched.
    static unsigned readOver(unsigned char before, const std::string& content, bool result) {
        Xml information(element("information", content).c_str());
        unsigned char bytes[sizeof(_CardInfo)];
        std::memset(bytes, '#', sizeof bytes);
        bytes[place] = before;
        _CardInfo card;
        std::memcpy(&card, bytes, sizeof card);
        EXPECT_EQ(KVJMediaParser().getCardInformation(information.root(), card), result) << content;
        unsigned char after[sizeof(_CardInfo)];
        std::memcpy(after, &card, sizeof card);
        bytes[place] = after[place];
        EXPECT_EQ(std::memcmp(bytes, after, sizeof bytes), 0) << content;
        return after[place];
    }
    static std::string bit(const std::string& text) { return element(GetParam().name, text); }
};

INSTANTIATE_TEST_SUITE_P(CardInformation, CardBit,
                         testing::Values(Bit{"mag_stripe", 1}, Bit{"contact_encode", 2}, Bit{"non_contact_encode", 4}),
                         [](const auto& bit) { return bit.param.name; });

TEST_P(CardBit, IsSetByExactlyYesAndEnabledAndTheOthersOfItsByteStay) {
    for (const char* word : {"yes", "enabled"}) {
        for (unsigned before = 0; before < 256; ++before) {
            EXPECT_EQ(readOver(static_cast<unsigned char>(before), bit(word), true), before | GetParam().mask);
        }
    }
}

TEST_P(CardBit, IsClearedByAnyOtherWordAndTheOthersOfItsByteStay) {
    for (const char* word : {"no", "disabled", "Yes", "ENABLED", "true", "1", "yes."}) {
        for (unsigned before = 0; before < 256; ++before) {
            EXPECT_EQ(readOver(static_cast<unsigned char>(before), bit(word), true), before & ~GetParam().mask);
        }
    }
}

TEST_P(CardBit, IsClearedWithoutTextWhichIsFalse) {
    for (const std::string& content : {without(GetParam().name), bit(" ")}) {
        EXPECT_EQ(readOver(0xFF, content, false), 0xFFU & ~GetParam().mask);
        EXPECT_EQ(readOver(0x00, content, false), 0x00U);
    }
}

// ---- Settings ----

struct Temperatures {
    static constexpr const char* name = "transfer_temps";
    static constexpr auto part = &_CardInfo::transferTemps;
    static constexpr auto reader = &KVJMediaParser::getTransferTemp;
    static constexpr std::tuple settings{
        std::pair("top_single", &_TransferTempInfo::topSingle), std::pair("bot_single", &_TransferTempInfo::botSingle),
        std::pair("top_double", &_TransferTempInfo::topDouble), std::pair("bot_double", &_TransferTempInfo::botDouble)};
};
struct Speeds {
    static constexpr const char* name = "transfer_speeds";
    static constexpr auto part = &_CardInfo::transferSpeeds;
    static constexpr auto reader = &KVJMediaParser::getTransferSpeed;
    static constexpr std::tuple settings{std::pair("input_single", &_TransferSpeedInfo::inputSingle),
                                         std::pair("output_single", &_TransferSpeedInfo::outputSingle),
                                         std::pair("input_double", &_TransferSpeedInfo::inputDouble),
                                         std::pair("output_double", &_TransferSpeedInfo::outputDouble)};
};
struct Adjustments {
    static constexpr const char* name = "laminator_adjustments";
    static constexpr auto part = &_CardInfo::laminationAdjustments;
    static constexpr auto reader = &KVJMediaParser::getLaminationAdjustments;
    static constexpr std::tuple settings{std::pair("top_temp_adjust", &_LaminationAdjustmentsNew::topTempAdjust),
                                         std::pair("bot_temp_adjust", &_LaminationAdjustmentsNew::botTempAdjust),
                                         std::pair("speed_adjust", &_LaminationAdjustmentsNew::speedAdjust)};
};

template <class Part>
class CardSettings : public testing::Test {
protected:
    /// Calls `visit` with the name of each setting and the setting of a card.
    template <class Visit>
    static void forEach(Visit visit) {
        std::apply(
            [&](const auto&... settings) {
                (visit(
                     std::string(settings.first),
                     [&](_CardInfo & card) -> auto& { return card.*Part::part.*settings.second; }),
                 ...);
            },
            Part::settings);
    }

    /// That a part with this content, read over a preset card, gives this result and this card, and that a card with
    /// that part does as well, over zeros.
    static void expectRead(const std::string& content, bool result, const Change& change) {
        Xml part(element("any", content).c_str());
        _CardInfo card = presetCard();
        EXPECT_EQ((KVJMediaParser().*Part::reader)(part.root(), card.*Part::part), result) << content;
        _CardInfo expected = presetCard();
        change(expected);
        EXPECT_EQ(fieldsOf(card), fieldsOf(expected)) << content;

        Xml entry(element("card", element(Part::name, content)).c_str());
        const KVMediaPointer media = MakeKVMedia();
        EXPECT_EQ(KVJMediaParser().getCardInfo(entry.root(), *media), result) << content;
        ASSERT_EQ(sizesOf(*media), (Sizes{1, 0, 0, 0}));
        expected = {};
        change(expected);
        EXPECT_EQ(fieldsOf(*media->cards->front()), fieldsOf(expected)) << content;
    }
};

struct NameOfPart {
    template <class Part>
    static std::string GetName(int /*index*/) {
        return Part::name;
    }
};
using Parts = testing::Types<Temperatures, Speeds, Adjustments>;
TYPED_TEST_SUITE(CardSettings, Parts, NameOfPart);

TYPED_TEST(CardSettings, EachFillsItsValueAndNoOther) {
    this->forEach([&](const std::string& name, auto setting) {
        this->expectRead(element(name, "57"), true, [&](_CardInfo& card) { setting(card).value = 57; });
    });
}

TYPED_TEST(CardSettings, AreReadWithoutTheirRanges) {
    this->forEach([&](const std::string& name, auto setting) {
        for (const int value : {-500, 65, 500}) {
            const std::string content =
                "<" + name + " min=\"60\" max=\"70\">" + std::to_string(value) + "</" + name + ">";
            this->expectRead(content, true, [&](_CardInfo& card) { setting(card).value = static_cast<short>(value); });
        }
    });
}

TYPED_TEST(CardSettings, ATextThatIsNoNumberIs0) {
    this->forEach([&](const std::string& name, auto setting) {
        this->expectRead(element(name, "warm"), true, [&](_CardInfo& card) { setting(card).value = 0; });
    });
}

TYPED_TEST(CardSettings, AllMayComeInAnyOrderAmongOthersAndTwice) {
    std::string content = "<unit>C</unit>";
    this->forEach([&](const std::string& name, auto) {
        content = element(name, std::to_string(name.size())) + element(name, "3") + content;
        content += element(name, std::to_string(name.size()));
    });
    this->expectRead(content + "<unit/>", true, [&](_CardInfo& card) {
        this->forEach(
            [&](const std::string& name, auto setting) { setting(card).value = static_cast<short>(name.size()); });
    });
}

TYPED_TEST(CardSettings, NeedAnElementThatTheyKnow) {
    _CardInfo card = presetCard();
    EXPECT_FALSE((KVJMediaParser().*TypeParam::reader)(nullptr, card.*TypeParam::part));
    EXPECT_EQ(fieldsOf(card), fieldsOf(presetCard()));
    for (const char* content : {"", "57", "<!-- none -->", "<unit>57</unit>", "<type>57</type>"}) {
        this->expectRead(content, false, nothing);
    }
    this->forEach([&](const std::string& name, auto) {
        const std::string misspelt = static_cast<char>(name[0] - 'a' + 'A') + name.substr(1);
        this->expectRead(element(misspelt, "57"), false, nothing);
        this->expectRead(element("unit", element(name, "57")), false, nothing);
    });
}

TYPED_TEST(CardSettings, TheResultIsThatOfTheLastElementThatIsKnown) {
    this->forEach([&](const std::string& name, auto setting) {
        const Change valueIs57 = [&](_CardInfo& card) { setting(card).value = 57; };
        this->expectRead(element(name, "57") + without(name), false, valueIs57);
        this->expectRead(without(name) + element(name, "57") + "<unit/>", true, valueIs57);
        this->expectRead(element(name, "57") + without(name) + "<unit>C</unit>", false, valueIs57);
    });
}

TEST(CardNumbers, SpeedsHaveADecimalPointInEveryLocaleAndTemperaturesNone) {
    _TransferSpeedInfo speeds{};
    Xml input("<any><input_single>2.25</input_single><output_double>-0,5</output_double></any>");
    EXPECT_TRUE(KVJMediaParser().getTransferSpeed(input.root(), speeds));
    EXPECT_EQ(speeds.inputSingle.value, 2.25F);
    EXPECT_EQ(speeds.outputDouble.value, 0);
    _TransferTempInfo temperatures{};
    Xml top("<any><top_single>175.9</top_single></any>");
    EXPECT_TRUE(KVJMediaParser().getTransferTemp(top.root(), temperatures));
    EXPECT_EQ(temperatures.topSingle.value, 175);
    _LaminationAdjustmentsNew adjustments{};
    Xml adjust("<any><speed_adjust>-0.125</speed_adjust><top_temp_adjust>-3.5</top_temp_adjust></any>");
    EXPECT_TRUE(KVJMediaParser().getLaminationAdjustments(adjust.root(), adjustments));
    EXPECT_EQ(adjustments.speedAdjust.value, -0.125F);
    EXPECT_EQ(adjustments.topTempAdjust.value, -3);
}

// ---- "card" ----

/// That a card with this content is appended, with this result and these fields, and zero in all others.
void expectCard(const std::string& content, bool result, const Change& change) {
    Xml entry(element("card", content).c_str());
    const KVMediaPointer media = MakeKVMedia();
    EXPECT_EQ(KVJMediaParser().getCardInfo(entry.root(), *media), result) << content;
    ASSERT_EQ(sizesOf(*media), (Sizes{1, 0, 0, 0})) << content;
    _CardInfo expected{};
    change(expected);
    EXPECT_EQ(fieldsOf(*media->cards->front()), fieldsOf(expected)) << content;
}

TEST(Card, AnEmptyOneIsAppendedAndZeroInEveryField) {
    for (const char* content : {"", "text", "<!-- none -->", "<information/>", "<transfer_temps/>",
                                "<transfer_speeds/>", "<laminator_adjustments/>", "<cal_table/>"}) {
        expectCard(content, false, nothing);
    }
}

TEST(Card, AnEmptyOneIsZeroInEveryByte) {
    // Where zeros are expected, there was something else before: the second card may well get the memory of the first.
    const KVMediaPointer media = MakeKVMedia();
    Xml full("<card><information><description>dddddddddddddddddddd</description></information></card>");
    KVJMediaParser().getCardInfo(full.root(), *media);
    delete media->cards->back();
    media->cards->pop_back();
    Xml empty("<card/>");
    KVJMediaParser().getCardInfo(empty.root(), *media);
    ASSERT_EQ(media->cards->size(), 1U);
    const std::string bytes(reinterpret_cast<const char*>(media->cards->front()), sizeof(_CardInfo));
    EXPECT_EQ(bytes, std::string(sizeof(_CardInfo), '\0'));
}

TEST(Card, HasItsCalibrationTable) {
    expectCard("<cal_table>-7</cal_table>", true, [](_CardInfo& card) { card.calTable = -7; });
    expectCard("<cal_table>none</cal_table>", true, nothing);
}

TEST(Card, HasWhatItsInformationSays) {
    expectCard("<information><type>2</type><contact_encode>yes</contact_encode></information>", true,
               [](_CardInfo& card) {
                   card.type = 2;
                   card.contactEncode = 1;
               });
}

TEST(Card, ALaterPartAddsToAnEarlierOneOfItsName) {
    expectCard(
        "<information><type>1</type><thickness>2</thickness></information><cal_table>5</cal_table>"
        "<information><type>2</type></information>",
        true, [](_CardInfo& card) {
            card.type = 2;
            card.thickness = 2;
            card.calTable = 5;
        });
}

TEST(Card, TheResultIsThatOfTheLastElementThatIsKnown) {
    const Change calTableIs3 = [](_CardInfo& card) { card.calTable = 3; };
    expectCard("<cal_table>3</cal_table><information/>", false, calTableIs3);
    expectCard("<information/><cal_table>3</cal_table>", true, calTableIs3);
    expectCard("<cal_table>3</cal_table><supplier/>", true, calTableIs3);
    expectCard("<cal_table>3</cal_table><transfer_temps><unit>C</unit></transfer_temps>", false, calTableIs3);
    expectCard("<cal_table>3</cal_table><information/><supplier>x</supplier>", false, calTableIs3);
}

TEST(Card, ATextThatIsCutMakesItFalseAndItIsAppendedAllTheSame) {
    expectCard("<information><vessa_part_number>0123456789abcdefg</vessa_part_number></information>", false,
               [](_CardInfo& card) { std::strcpy(card.partNumber, "0123456789abcde"); });
}

TEST(Card, NoElementAppendsNothingAndIsFalse) {
    const KVMediaPointer media = MakeKVMedia();
    EXPECT_FALSE(KVJMediaParser().getCardInfo(nullptr, *media));
    EXPECT_EQ(sizesOf(*media), Sizes());
}

}  // namespace

}  // namespace card_test
