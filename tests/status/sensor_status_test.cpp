// The switches and analogue readings of the reply "get_sensor_status": every one by itself, and their two groups.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "KVJStatusParser.h"
#include "fields/status.h"
#include "support/records.h"
#include "support/xml.h"

namespace sensor_status_test {

namespace {

using Kavrin::_SENSOR;
using Kavrin::KVJStatusParser;
using kvj::tests::expectEqual;
using kvj::tests::wide;
using kvj::tests::Xml;

/// A record with a value in every field that no test writes, but for the switches, which have only two.
_SENSOR preset(bool on = true) {
    return {"takeup", on, on, on, on, on,  on,  on,  on,  on,  "tricolor", on,  -1,  on,  -2.5F, -3, -4,
            -5,       -6, -7, -8, -9, -10, -11, -12, -13, -14, -15,        -16, -17, -18, -19,   -20};
}

bool read(const std::string& reply, _SENSOR& sensors) {
    const std::wstring text = wide(reply);
    return KVJStatusParser().ParseSensorStatus(*text.c_str(), static_cast<int>(text.size()), sensors);
}

std::string tag(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

/// Reads a reply with these children of its root.
bool readChildren(const std::string& children, _SENSOR& sensors) {
    return read(tag("get_sensor_status", children), sensors);
}

bool readStates(const std::string& states, _SENSOR& sensors) {
    return readChildren(tag("sensor_states", states), sensors);
}

bool readValues(const std::string& values, _SENSOR& sensors) {
    return readChildren(tag("sensor_values", values), sensors);
}

TEST(SensorStatus, FillsEveryFieldFromOneReply) {
    const char* reply =
        "<get_sensor_status>"
        "<sensor_states>"
        "<ribbon_takeup_encoder>moving</ribbon_takeup_encoder><door_open>no</door_open>"
        "<flipoptions_door_open>yes</flipoptions_door_open><flipper_card_blocked>no</flipper_card_blocked>"
        "<flipper_rotation_blocked>yes</flipper_rotation_blocked><cardout_sensor_set>no</cardout_sensor_set>"
        "<option_mag_blocked>yes</option_mag_blocked><option_cam_blocked>no</option_cam_blocked>"
        "<card_exit_blocked>yes</card_exit_blocked><card_edge_blocked>no</card_edge_blocked>"
        "<tricolor_state>magenta</tricolor_state><head_cam_blocked>yes</head_cam_blocked>"
        "<tricolor_error>101</tricolor_error><printhead_fan>off</printhead_fan>"
        "</sensor_states>"
        "<sensor_values>"
        "<voltage_24>24.35</voltage_24><voltage_raw>102</voltage_raw><mag_track_1>103</mag_track_1>"
        "<mag_track_2>104</mag_track_2><mag_track_3>105</mag_track_3><print_head_temp>106</print_head_temp>"
        "<mag_head_type>107</mag_head_type><ribbon_bemf>108</ribbon_bemf><tricolor_any>109</tricolor_any>"
        "<tricolor_red>110</tricolor_red><tricolor_green>111</tricolor_green><tricolor_blue>112</tricolor_blue>"
        "<platen_temp128>113</platen_temp128><RLEC>114</RLEC><RSEC>115</RSEC><RLDC>116</RLDC><RSDC>117</RSDC>"
        "<RGSU>118</RGSU><RGSD>119</RGSD>"
        "</sensor_values>"
        "</get_sensor_status>";
    constexpr bool yes = true;
    constexpr bool no = false;
    const _SENSOR expected = {"moving", no,  yes, no,     yes, no,  yes, no,  yes, no,  "magenta",
                              yes,      101, no,  24.35F, 102, 103, 104, 105, 106, 107, 108,
                              109,      110, 111, 112,    113, 114, 115, 116, 117, 118, 119};
    for (const bool before : {false, true}) {
        _SENSOR sensors = preset(before);
        EXPECT_TRUE(read(reply, sensors));
        expectEqual(sensors, expected);
    }
}

// ---- Switches ----

struct Switch {
    const char* element;
    bool _SENSOR::*flag;
    std::string offWord = "no";
};

const Switch switches[] = {
    {"door_open", &_SENSOR::doorOpen},
    {"flipoptions_door_open", &_SENSOR::flipOptionsDoorOpen},
    {"flipper_card_blocked", &_SENSOR::flipperCardBlocked},
    {"flipper_rotation_blocked", &_SENSOR::flipperRotationBlocked},
    {"cardout_sensor_set", &_SENSOR::cardOutSensorSet},
    {"option_mag_blocked", &_SENSOR::optionMagBlocked},
    {"option_cam_blocked", &_SENSOR::optionCamBlocked},
    {"card_exit_blocked", &_SENSOR::cardExitBlocked},
    {"card_edge_blocked", &_SENSOR::cardEdgeBlocked},
    {"head_cam_blocked", &_SENSOR::headCamBlocked},
    {"printhead_fan", &_SENSOR::printheadFan, "off"},
};

class SensorSwitch : public testing::TestWithParam<Switch> {};

INSTANTIATE_TEST_SUITE_P(SensorStatus, SensorSwitch, testing::ValuesIn(switches),
                         [](const auto& row) { return row.param.element; });

TEST_P(SensorSwitch, IsFalseForItsOffWord) {
    _SENSOR sensors = preset(true);
    EXPECT_TRUE(readStates(tag(GetParam().element, GetParam().offWord), sensors));
    _SENSOR expected = preset(true);
    expected.*GetParam().flag = false;
    expectEqual(sensors, expected);
}

TEST_P(SensorSwitch, IsTrueForAnyOtherWord) {
    for (const std::string word : {"yes", "No", "NO", "nO", "open", "blocked", "on", "Off", "OFF", "n", "of", "none",
                                   "office", "false", "0", "disabled", "off", "no"}) {
        if (word == GetParam().offWord) continue;
        _SENSOR sensors = preset(false);
        EXPECT_TRUE(readStates(tag(GetParam().element, word), sensors)) << word;
        _SENSOR expected = preset(false);
        expected.*GetParam().flag = true;
        expectEqual(sensors, expected);
    }
}

TEST_P(SensorSwitch, IsTrueForAWordLongerThanAny) {
    _SENSOR sensors = preset(false);
    EXPECT_TRUE(readStates(tag(GetParam().element, GetParam().offWord + std::string(100000, 'x')), sensors));
    EXPECT_TRUE(sensors.*GetParam().flag);
}

TEST_P(SensorSwitch, IsReadInItsGroupOnly) {
    _SENSOR sensors = preset();
    EXPECT_FALSE(readChildren(tag(GetParam().element, GetParam().offWord), sensors));
    EXPECT_FALSE(readValues(tag(GetParam().element, GetParam().offWord), sensors));
    expectEqual(sensors, preset());
}

// ---- Numbers ----

struct Number {
    const char* group;
    const char* element;
    int _SENSOR::*field;
};

const Number numbers[] = {
    {"sensor_states", "tricolor_error", &_SENSOR::tricolorError},
    {"sensor_values", "voltage_raw", &_SENSOR::voltageRaw},
    {"sensor_values", "mag_track_1", &_SENSOR::magTrack1},
    {"sensor_values", "mag_track_2", &_SENSOR::magTrack2},
    {"sensor_values", "mag_track_3", &_SENSOR::magTrack3},
    {"sensor_values", "print_head_temp", &_SENSOR::printHeadTemp},
    {"sensor_values", "mag_head_type", &_SENSOR::magHeadType},
    {"sensor_values", "ribbon_bemf", &_SENSOR::ribbonBemf},
    {"sensor_values", "tricolor_any", &_SENSOR::tricolorAny},
    {"sensor_values", "tricolor_red", &_SENSOR::tricolorRed},
    {"sensor_values", "tricolor_green", &_SENSOR::tricolorGreen},
    {"sensor_values", "tricolor_blue", &_SENSOR::tricolorBlue},
    {"sensor_values", "platen_temp128", &_SENSOR::platenTemp128},
    {"sensor_values", "RLEC", &_SENSOR::rlec},
    {"sensor_values", "RSEC", &_SENSOR::rsec},
    {"sensor_values", "RLDC", &_SENSOR::rldc},
    {"sensor_values", "RSDC", &_SENSOR::rsdc},
    {"sensor_values", "RGSU", &_SENSOR::rgsu},
    {"sensor_values", "RGSD", &_SENSOR::rgsd},
};

class SensorNumber : public testing::TestWithParam<Number> {
protected:
    static bool readInGroup(const std::string& group, const std::string& content, _SENSOR& sensors) {
        return readChildren(tag(group, tag(GetParam().element, content)), sensors);
    }
};

INSTANTIATE_TEST_SUITE_P(SensorStatus, SensorNumber, testing::ValuesIn(numbers),
                         [](const auto& row) { return row.param.element; });

TEST_P(SensorNumber, IsDecimal) {
    const std::pair<const char*, int> texts[] = {{"4711", 4711}, {"-40", -40}, {"+5", 5},
                                                 {"010", 10},    {"0x1f", 0},  {"24.35", 24},
                                                 {"24,35", 24},  {"12 V", 12}, {"2147483647", 2147483647},
                                                 {"many", 0}};
    for (const auto& [text, value] : texts) {
        _SENSOR sensors = preset();
        EXPECT_TRUE(readInGroup(GetParam().group, text, sensors)) << text;
        _SENSOR expected = preset();
        expected.*GetParam().field = value;
        expectEqual(sensors, expected);
    }
}

TEST_P(SensorNumber, IsReadInItsGroupOnly) {
    const bool isState = std::string_view(GetParam().group) == "sensor_states";
    _SENSOR sensors = preset();
    EXPECT_FALSE(readInGroup(isState ? "sensor_values" : "sensor_states", "4711", sensors));
    EXPECT_FALSE(readChildren(tag(GetParam().element, "4711"), sensors));
    expectEqual(sensors, preset());
}

TEST(SensorStatus, TheSupplyVoltageHasDecimals) {
    const std::pair<const char*, float> texts[] = {{"24.35", 24.35F},   {"-0.5", -0.5F}, {"24", 24.0F},
                                                   {".25", 0.25F},      {"1e1", 10.0F},  {"24,35", 24.0F},
                                                   {"24.35 V", 24.35F}, {"high", 0.0F}};
    for (const auto& [text, value] : texts) {
        _SENSOR sensors = preset();
        EXPECT_TRUE(readValues(tag("voltage_24", text), sensors)) << text;
        _SENSOR expected = preset();
        expected.voltage24 = value;
        expectEqual(sensors, expected);
    }
}

TEST(SensorStatus, ARawVoltageOf24Point35Is24) {
    _SENSOR sensors = preset();
    EXPECT_TRUE(readValues("<voltage_24>24.35</voltage_24><voltage_raw>24.35</voltage_raw>", sensors));
    EXPECT_EQ(sensors.voltage24, 24.35F);
    EXPECT_EQ(sensors.voltageRaw, 24);
}

TEST(SensorStatus, TheCalibrationNamesAreUpperCase) {
    for (const char* name : {"rlec", "rsec", "rldc", "rsdc", "rgsu", "rgsd", "Rlec", "RLeC"}) {
        _SENSOR sensors = preset();
        EXPECT_FALSE(readValues(tag(name, "5"), sensors)) << name;
        expectEqual(sensors, preset());
    }
}

// ---- Texts ----

struct Text {
    const char* element;
    char (_SENSOR::*field)[32];
};

class SensorText : public testing::TestWithParam<Text> {};

INSTANTIATE_TEST_SUITE_P(SensorStatus, SensorText,
                         testing::Values(Text{"ribbon_takeup_encoder", &_SENSOR::ribbonTakeupEncoder},
                                         Text{"tricolor_state", &_SENSOR::tricolorState}),
                         [](const auto& row) { return row.param.element; });

TEST_P(SensorText, IsKeptAsItIs) {
    for (const char* text : {"no", "Magenta panel", "0x1f", "abcdefghijklmnopqrstuvwxyz01234"}) {
        _SENSOR sensors = preset();
        EXPECT_TRUE(readStates(tag(GetParam().element, text), sensors)) << text;
        _SENSOR expected = preset();
        std::strcpy(expected.*GetParam().field, text);
        expectEqual(sensors, expected);
    }
}

TEST_P(SensorText, IsReadInItsGroupOnly) {
    _SENSOR sensors = preset();
    EXPECT_FALSE(readChildren(tag(GetParam().element, "cyan"), sensors));
    EXPECT_FALSE(readValues(tag(GetParam().element, "cyan"), sensors));
    expectEqual(sensors, preset());
}

// ---- Groups ----

TEST(SensorStatus, GroupNamesAreComparedWithCase) {
    _SENSOR sensors = preset();
    EXPECT_FALSE(
        readChildren("<Sensor_states><tricolor_error>1</tricolor_error></Sensor_states>"
                     "<SENSOR_VALUES><voltage_raw>2</voltage_raw></SENSOR_VALUES>",
                     sensors));
    expectEqual(sensors, preset());
}

TEST(SensorStatus, ValuesBeforeStatesFillBothAndTheResultIsThatOfTheStates) {
    const std::string values = "<sensor_values><voltage_raw>7</voltage_raw></sensor_values>";
    _SENSOR expected = preset();
    expected.voltageRaw = 7;
    expected.doorOpen = false;
    _SENSOR sensors = preset();
    EXPECT_TRUE(readChildren(values + "<sensor_states><door_open>no</door_open></sensor_states>", sensors));
    expectEqual(sensors, expected);
    sensors = preset();
    EXPECT_FALSE(
        readChildren(values + "<sensor_states><door_open>no</door_open><tricolor_error/></sensor_states>", sensors));
    expectEqual(sensors, expected);
    EXPECT_TRUE(
        readChildren("<sensor_values><voltage_raw/></sensor_values>"
                     "<sensor_states><door_open>no</door_open></sensor_states>",
                     sensors));
}

TEST(SensorStatus, AnEmptyStatesGroupAtTheEndIsFalseAndTheValuesReadStay) {
    _SENSOR sensors = preset();
    EXPECT_FALSE(readChildren("<sensor_values><voltage_raw>7</voltage_raw></sensor_values><sensor_states/>", sensors));
    _SENSOR expected = preset();
    expected.voltageRaw = 7;
    expectEqual(sensors, expected);
}

TEST(SensorStatus, ElementsOfAGroupMayComeInAnyOrder) {
    _SENSOR sensors = preset();
    EXPECT_TRUE(readValues("<RGSD>1</RGSD><voltage_24>2</voltage_24><mag_track_1>3</mag_track_1>", sensors));
    _SENSOR expected = preset();
    expected.rgsd = 1;
    expected.voltage24 = 2;
    expected.magTrack1 = 3;
    expectEqual(sensors, expected);
}

TEST(SensorStatus, OfARepeatedElementOrGroupTheLaterValueWins) {
    _SENSOR sensors = preset();
    EXPECT_TRUE(
        readChildren("<sensor_states><door_open>no</door_open><door_open>yes</door_open>"
                     "<tricolor_error>1</tricolor_error></sensor_states>"
                     "<sensor_states><tricolor_error>2</tricolor_error></sensor_states>",
                     sensors));
    _SENSOR expected = preset();
    expected.doorOpen = true;
    expected.tricolorError = 2;
    expectEqual(sensors, expected);
}

TEST(SensorStatus, TheResultIsThatOfTheLastKnownElement) {
    _SENSOR sensors = preset();
    EXPECT_FALSE(readValues("<voltage_raw>1</voltage_raw><RLEC/>", sensors));
    EXPECT_EQ(sensors.voltageRaw, 1);
    EXPECT_TRUE(readValues("<RLEC/><voltage_raw>2</voltage_raw>", sensors));
    EXPECT_EQ(sensors.voltageRaw, 2);
    EXPECT_TRUE(readValues("<voltage_raw>3</voltage_raw><humidity/>", sensors));
    EXPECT_FALSE(readValues("<RLEC/><humidity>41</humidity>", sensors));
    EXPECT_TRUE(readChildren("<sensor_values><voltage_raw>4</voltage_raw></sensor_values><doors/>", sensors));
}

TEST(SensorStatus, ALengthOfZeroOrLessIsFalseAndLeavesTheRecord) {
    const std::wstring text =
        wide("<get_sensor_status><sensor_values><RLEC>1</RLEC></sensor_values></get_sensor_status>");
    _SENSOR sensors = preset();
    EXPECT_FALSE(KVJStatusParser().ParseSensorStatus(*text.c_str(), 0, sensors));
    EXPECT_FALSE(KVJStatusParser().ParseSensorStatus(*text.c_str(), -1, sensors));
    expectEqual(sensors, preset());
}

TEST(SensorStatus, TheWalkersReadElementsThatTheHostHolds) {
    KVJStatusParser parser;
    _SENSOR sensors = preset();
    Xml status("<any><sensor_values><RLEC>1</RLEC></sensor_values></any>");
    EXPECT_TRUE(parser.parseSensorStatus(status.root(), sensors));
    Xml states("<any><tricolor_state>red</tricolor_state></any>");
    EXPECT_TRUE(parser.parseSensorState(states.root(), sensors));
    Xml values("<any><RSEC>2</RSEC></any>");
    EXPECT_TRUE(parser.parseSensorValue(values.root(), sensors));
    _SENSOR expected = preset();
    expected.rlec = 1;
    std::strcpy(expected.tricolorState, "red");
    expected.rsec = 2;
    expectEqual(sensors, expected);
}

TEST(SensorStatus, TheWalkersAreFalseForNoElementAndForOneWithoutChildren) {
    KVJStatusParser parser;
    _SENSOR sensors = preset();
    Xml empty("<any>text</any>");
    for (TiXmlElement* element : {static_cast<TiXmlElement*>(nullptr), empty.root()}) {
        EXPECT_FALSE(parser.parseSensorStatus(element, sensors));
        EXPECT_FALSE(parser.parseSensorState(element, sensors));
        EXPECT_FALSE(parser.parseSensorValue(element, sensors));
    }
    expectEqual(sensors, preset());
}

}  // namespace

}  // namespace sensor_status_test
