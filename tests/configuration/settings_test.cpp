// Settings with their range: one by itself, and each of the sections that are lists of them.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <iterator>
#include <limits>
#include <string>

#include "KVJConfigParser.h"
#include "configuration/records.h"

namespace settings_test {

namespace {

using namespace kvj::tests;

// ---- A setting by itself ----

/// Reads an element as it is written.
template <class Setting>
bool readSetting(const std::string& text, Setting& value) {
    Xml xml(text.c_str());
    return KVJConfigParser().getMinMaxVal(xml.root(), value);
}

struct Whole {
    bool result;
    int min;
    int max;
    int value;
    bool operator==(const Whole&) const = default;
};
struct Fraction {
    bool result;
    float min;
    float max;
    float value;
    bool operator==(const Fraction&) const = default;
};

Whole whole(const std::string& text, _MinMaxVal before = {-1001, -1002, -1003}) {
    const bool result = readSetting(text, before);
    return {result, before.min, before.max, before.value};
}
Fraction fraction(const std::string& text, _MinMaxValFloat before = {-101, -102, -103}) {
    const bool result = readSetting(text, before);
    return {result, before.min, before.max, before.value};
}

TEST(Setting, IsItsRangeFromTheAttributesAndItsValueFromTheText) {
    EXPECT_EQ(whole("<a min=\"1\" max=\"9\">5</a>"), (Whole{true, 1, 9, 5}));
    EXPECT_EQ(whole("<a max=\"-1\" step=\"2\" min=\"-9\">-5</a>"), (Whole{true, -9, -1, -5}));
    EXPECT_EQ(fraction("<a min=\"1\" max=\"9.5\">4.25</a>"), (Fraction{true, 1, 9.5F, 4.25F}));
    EXPECT_EQ(fraction("<a min=\"-1e1\" max=\".5\">-0.125</a>"), (Fraction{true, -10, 0.5F, -0.125F}));
}

TEST(Setting, BelowItsMinimumIsBroughtUpToIt) {
    EXPECT_EQ(whole("<a min=\"10\" max=\"20\">5</a>"), (Whole{true, 10, 20, 10}));
    EXPECT_EQ(whole("<a min=\"10\" max=\"20\">9</a>"), (Whole{true, 10, 20, 10}));
    EXPECT_EQ(fraction("<a min=\"1.0\" max=\"20\">0.5</a>"), (Fraction{true, 1, 20, 1}));
}

TEST(Setting, AboveItsMaximumIsBroughtDownToIt) {
    EXPECT_EQ(whole("<a min=\"10\" max=\"20\">25</a>"), (Whole{true, 10, 20, 20}));
    EXPECT_EQ(whole("<a min=\"0\" max=\"100\">150</a>"), (Whole{true, 0, 100, 100}));
    EXPECT_EQ(fraction("<a min=\"0.25\" max=\"0.75\">0.875</a>"), (Fraction{true, 0.25F, 0.75F, 0.75F}));
}

TEST(Setting, OnAnEndOfItsRangeIsInIt) {
    EXPECT_EQ(whole("<a min=\"10\" max=\"20\">10</a>"), (Whole{true, 10, 20, 10}));
    EXPECT_EQ(whole("<a min=\"10\" max=\"20\">20</a>"), (Whole{true, 10, 20, 20}));
    EXPECT_EQ(fraction("<a min=\"0.25\" max=\"0.5\">0.25</a>"), (Fraction{true, 0.25F, 0.5F, 0.25F}));
    EXPECT_EQ(fraction("<a min=\"0.25\" max=\"0.5\">0.5</a>"), (Fraction{true, 0.25F, 0.5F, 0.5F}));
}

TEST(Setting, OfARangeTheWrongWayRoundIsItsMaximum) {
    EXPECT_EQ(whole("<a min=\"5\" max=\"3\">4</a>"), (Whole{true, 5, 3, 3}));
    EXPECT_EQ(whole("<a min=\"30\" max=\"20\">25</a>"), (Whole{true, 30, 20, 20}));
    EXPECT_EQ(whole("<a min=\"30\" max=\"20\">10</a>"), (Whole{true, 30, 20, 20}));
    EXPECT_EQ(whole("<a min=\"30\" max=\"20\">40</a>"), (Whole{true, 30, 20, 20}));
    EXPECT_EQ(fraction("<a min=\"5.5\" max=\"3.5\">4.5</a>"), (Fraction{true, 5.5F, 3.5F, 3.5F}));
}

TEST(Setting, WithoutAnAttributeKeepsThatEndOfItsRangeAndIsBroughtIntoIt) {
    EXPECT_EQ(whole("<a max=\"9\">5</a>", {6, 1, 0}), (Whole{true, 6, 9, 6}));
    EXPECT_EQ(whole("<a min=\"1\">5</a>", {0, 4, 0}), (Whole{true, 1, 4, 4}));
    EXPECT_EQ(whole("<a>5</a>", {1, 9, 0}), (Whole{true, 1, 9, 5}));
    EXPECT_EQ(whole("<a>5</a>", {6, 9, 0}), (Whole{true, 6, 9, 6}));
    EXPECT_EQ(fraction("<a>5.5</a>", {6.5F, 9, 0}), (Fraction{true, 6.5F, 9, 6.5F}));
    EXPECT_EQ(fraction("<a min=\"1.5\">5.5</a>", {0, 4.5F, 0}), (Fraction{true, 1.5F, 4.5F, 4.5F}));
}

TEST(Setting, WithAnAttributeThatIsNoNumberKeepsThatEndOfItsRange) {
    EXPECT_EQ(whole("<a min=\"low\" max=\"\">5</a>", {1, 9, 0}), (Whole{true, 1, 9, 5}));
    EXPECT_EQ(fraction("<a min=\"low\" max=\"\">5</a>", {1, 9, 0}), (Fraction{true, 1, 9, 5}));
}

TEST(Setting, AttributesInAnotherCaseAreOthers) {
    EXPECT_EQ(whole("<a MIN=\"7\" Max=\"8\">5</a>", {1, 9, 0}), (Whole{true, 1, 9, 5}));
    EXPECT_EQ(fraction("<a MIN=\"7\" Max=\"8\">5</a>", {1, 9, 0}), (Fraction{true, 1, 9, 5}));
}

TEST(Setting, WithoutTextIsFalseAndItsFormerValueIsBroughtIntoTheRange) {
    EXPECT_EQ(whole("<a min=\"1\" max=\"9\"/>", {0, 0, 12}), (Whole{false, 1, 9, 9}));
    EXPECT_EQ(whole("<a min=\"1\" max=\"9\"/>", {0, 0, -12}), (Whole{false, 1, 9, 1}));
    EXPECT_EQ(whole("<a min=\"1\" max=\"9\"/>", {0, 0, 5}), (Whole{false, 1, 9, 5}));
    EXPECT_EQ(fraction("<a min=\"1.5\" max=\"9\"/>", {0, 0, -12}), (Fraction{false, 1.5F, 9, 1.5F}));
}

TEST(Setting, WithATextThatIsNoNumberIs0BroughtIntoTheRange) {
    EXPECT_EQ(whole("<a min=\"-5\" max=\"9\">abc</a>"), (Whole{true, -5, 9, 0}));
    EXPECT_EQ(whole("<a min=\"1\" max=\"9\">abc</a>"), (Whole{true, 1, 9, 1}));
    EXPECT_EQ(fraction("<a min=\"-5\" max=\"9\">abc</a>"), (Fraction{true, -5, 9, 0}));
}

TEST(Setting, OfWholeNumbersEndsAtThePoint) {
    EXPECT_EQ(whole("<a min=\"1.9\" max=\"9.9\">5.9</a>"), (Whole{true, 1, 9, 5}));
}

TEST(Setting, HasTheWholeRangeOfAnInt) {
    EXPECT_EQ(whole("<a min=\"-2147483648\" max=\"2147483647\">-2147483648</a>"),
              (Whole{true, INT_MIN, INT_MAX, INT_MIN}));
}

TEST(Setting, NoElementIsFalse) {
    _MinMaxVal value{1, 9, 5};
    EXPECT_FALSE(KVJConfigParser().getMinMaxVal(nullptr, value));
    EXPECT_EQ(bytesOf(value), bytesOf(_MinMaxVal{1, 9, 5}));
    _MinMaxValFloat decimal{1, 9, 5};
    EXPECT_FALSE(KVJConfigParser().getMinMaxVal(nullptr, decimal));
    EXPECT_EQ(bytesOf(decimal), bytesOf(_MinMaxValFloat{1, 9, 5}));
}

TEST(SettingWithAFraction, ThatIsNanStaysNan) {
    EXPECT_TRUE(std::isnan(fraction("<a min=\"1\" max=\"9\">nan</a>").value));
    EXPECT_TRUE(std::isnan(fraction("<a min=\"1\" max=\"9\"/>", {0, 0, NAN}).value));
}

TEST(SettingWithAFraction, IsNotHeldByAnEndThatIsNan) {
    EXPECT_EQ(fraction("<a min=\"nan\" max=\"9\">-5.5</a>").value, -5.5F);
    EXPECT_EQ(fraction("<a min=\"1\" max=\"nan\">55.5</a>").value, 55.5F);
}

TEST(SettingWithAFraction, ThatIsInfiniteIsBroughtIntoTheRange) {
    EXPECT_EQ(fraction("<a min=\"1\" max=\"9\">inf</a>").value, 9.0F);
    EXPECT_EQ(fraction("<a min=\"1\" max=\"9\">-inf</a>").value, 1.0F);
    EXPECT_EQ(fraction("<a min=\"1\" max=\"inf\">1e30</a>"),
              (Fraction{true, 1, std::numeric_limits<float>::infinity(), 1e30F}));
}

TEST(SettingWithAFraction, HasAPointInEveryLocaleAndEndsAtAComma) {
    EXPECT_EQ(fraction("<a min=\"-0.5\" max=\"0.75\">0.25</a>"), (Fraction{true, -0.5F, 0.75F, 0.25F}));
    EXPECT_EQ(fraction("<a min=\"-1,5\" max=\"9,5\">4,25</a>"), (Fraction{true, -1, 9, 4}));
}

// ---- Sections that are lists of settings ----

template <class Record>
class SettingsOf : public testing::Test {
protected:
    static constexpr const auto& list = Settings<Record>::list;
    Record record;
    Record expected;

    SettingsOf() {
        preset(record);
        preset(expected);
    }
    bool readSection(const std::string& content) { return read(Settings<Record>::reader, content, record); }
    void expectRecord(const char* what) const { EXPECT_EQ(bytesOf(record), bytesOf(expected)) << what; }
};

struct NameOfSection {
    template <class Record>
    static std::string GetName(int /*index*/) {
        return Settings<Record>::name;
    }
};

using Sections = testing::Types<_USBTimeout, _PowerAdjustments, _RibbonMotorParams, _MechanicalAdjustments,
                                _TransferTempInfo, _TransferSpeedInfo, _LaminationAdjustmentsNew,
                                _ImageTransferTempInfo, _laminate_common, _laminateControl, _CleaningParams>;
TYPED_TEST_SUITE(SettingsOf, Sections, NameOfSection);

TYPED_TEST(SettingsOf, EachFillsItsOwnFieldAlone) {
    for (const auto& row : this->list) {
        preset(this->record);
        preset(this->expected);
        EXPECT_TRUE(this->readSection(setting(row.name, "-9", "9", "5"))) << row.name;
        row.set(this->expected, -9, 9, 5);
        this->expectRecord(row.name);
    }
}

TYPED_TEST(SettingsOf, EachIsBroughtIntoItsRange) {
    for (const auto& row : this->list) {
        EXPECT_TRUE(this->readSection(setting(row.name, "10", "20", "5"))) << row.name;
        row.set(this->expected, 10, 20, 10);
        this->expectRecord(row.name);
        EXPECT_TRUE(this->readSection(setting(row.name, "10", "20", "25"))) << row.name;
        row.set(this->expected, 10, 20, 20);
        this->expectRecord(row.name);
        EXPECT_TRUE(this->readSection(setting(row.name, "30", "20", "25"))) << row.name;
        row.set(this->expected, 30, 20, 20);
        this->expectRecord(row.name);
    }
}

TYPED_TEST(SettingsOf, EachWithoutTextIsFalseAndHasItsRangeAllTheSame) {
    for (const auto& row : this->list) {
        row.set(this->record, 0, 0, 15);
        EXPECT_FALSE(this->readSection(setting(row.name, "10", "20", ""))) << row.name;
        row.set(this->expected, 10, 20, 15);
        this->expectRecord(row.name);
    }
}

TYPED_TEST(SettingsOf, TheyAreReadInAnyOrder) {
    std::string content;
    int number = 0;
    for (const auto& row : this->list) {
        ++number;
        content.insert(0, setting(row.name, "0", "100", std::to_string(number)));
    }
    // From the last to the first, which counts where two of them fill one field.
    for (auto row = std::rbegin(this->list); row != std::rend(this->list); ++row) {
        row->set(this->expected, 0, 100, number--);
    }
    EXPECT_TRUE(this->readSection(content));
    this->expectRecord("all");
}

TYPED_TEST(SettingsOf, TheResultIsThatOfTheLastOne) {
    const std::string first = this->list[0].name;
    const std::string second = this->list[1].name;
    EXPECT_FALSE(this->readSection(element(first, "1") + element(second, "")));
    EXPECT_TRUE(this->readSection(element(first, "") + element(second, "1")));
    EXPECT_TRUE(this->readSection(element(first, "1") + element("serial", "")));
    EXPECT_FALSE(this->readSection(element(first, "") + element("serial", "1")));
}

// ---- What is particular to one of them ----

TEST(PowerAdjustments, AValueAboveTheMaximumReadsAsTheMaximum) {
    _PowerAdjustments power{};
    EXPECT_TRUE(read(&KVJConfigParser::getPowerAdjustments, setting("k-dye", "0", "100", "150"), power));
    EXPECT_EQ(power.kDye.value, 100);
}

TEST(TakeupMotor, ACoefficientBelowItsMinimumReadsAsTheMinimum) {
    _RibbonMotorParams motor{};
    EXPECT_TRUE(read(&KVJConfigParser::getTakeupMotor, setting("K0", "1.0", "2.5", "0.5"), motor));
    EXPECT_EQ(motor.K0.value, 1.0F);
}

TEST(TakeupMotor, CoefficientsAreToldApartByCase) {
    _RibbonMotorParams motor;
    preset(motor);
    _RibbonMotorParams expected;
    preset(expected);
    EXPECT_FALSE(read(&KVJConfigParser::getTakeupMotor,
                      element("s0", "1") + element("KB", "1") + element("kb", "1") + element("vtoi", "1"), motor));
    EXPECT_EQ(bytesOf(motor), bytesOf(expected));
}

TEST(MechAdjustments, TheCentreOfTheCardIsStoredBehindTheSmartCardOffsets) {
    _MechanicalAdjustments positions{};
    EXPECT_TRUE(read(&KVJConfigParser::getMechAdjustments,
                     setting("card_center_x_offset", "0", "9", "4") + setting("card_center_y_offset", "0", "9", "5"),
                     positions));
    const auto* settings = reinterpret_cast<const _MinMaxVal*>(&positions);
    EXPECT_EQ(settings[3].value, 4);
    EXPECT_EQ(settings[9].value, 5);
    EXPECT_EQ(settings[4].value, 0);
}

TEST(LaminateControl, OfTheNamesForOneFieldTheLaterElementCounts) {
    _laminateControl control{};
    EXPECT_TRUE(read(&KVJConfigParser::getLaminteControlInfo,
                     setting("top_x_adj_fine_offset", "0", "9", "1") + setting("bot_x_adj_fine_offset", "0", "8", "2") +
                         setting("bot_temp_adjust", "0", "7", "3") + setting("top_temp_adjust", "0", "6", "4"),
                     control));
    EXPECT_EQ(bytesOf(control.xFineAdjustment), bytesOf(_MinMaxVal{0, 8, 2}));
    EXPECT_EQ(bytesOf(control.temperatureAdjustment), bytesOf(_MinMaxVal{0, 6, 4}));
}

}  // namespace

}  // namespace settings_test
