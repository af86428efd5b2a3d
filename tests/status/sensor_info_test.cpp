// The raw readings of the reply "get_sensor_status": every sensor by itself, and the groups that they sit in.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "KVJSensorParser.h"
#include "fields/status.h"
#include "support/records.h"
#include "support/xml.h"

namespace sensor_info_test {

namespace {

using Kavrin::KVJSensorParser;
using Kavrin::KVSensorInfo;
using kvj::tests::expectEqual;
using kvj::tests::wide;
using kvj::tests::Xml;

/// A record with a value in every field that no test writes.
KVSensorInfo preset() {
    return {-1, -2, -3, -4, -5, -6, -7, -8, -9, -10, -11, -12, -13, -14, -15, -16, -17, -18, -19, -20, -21, -22};
}

bool read(const std::string& reply, KVSensorInfo& sensors) {
    const std::wstring text = wide(reply);
    return KVJSensorParser().ParseSensorInfo(*text.c_str(), static_cast<int>(text.size()), sensors);
}

std::string tag(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

/// Reads a reply with these children of its root.
bool readChildren(const std::string& children, KVSensorInfo& sensors) {
    return read(tag("get_sensor_status", children), sensors);
}

TEST(SensorInfo, FillsEveryFieldFromOneReply) {
    KVSensorInfo sensors = preset();
    EXPECT_TRUE(
        readChildren("<input_output><atm_card_present reading=\"1\"/><input_feeder reading=\"2\"/>"
                     "<output_hopper reading=\"3\"/></input_output>"
                     "<card_path><synchro_card reading=\"4\"/><synchro_mag reading=\"5\"/>"
                     "<synchro_contact reading=\"6\"/><synchro_contactless reading=\"7\"/>"
                     "<flipper_card_present reading=\"8\"/></card_path>"
                     "<doors><head_open reading=\"9\"/><input_media_open reading=\"10\"/>"
                     "<output_media_open reading=\"11\"/></doors>"
                     "<positioning><head_down reading=\"12\"/><flipper_ready_in reading=\"13\"/>"
                     "<flipper_ready_out reading=\"14\"/></positioning>"
                     "<web_media><ribbon><encoder reading=\"15\"/><ribbon_sync_detection adc_value=\"16\"/>"
                     "<color><led_1 reading=\"17\"/><led_2 reading=\"18\"/><led_3 reading=\"19\"/></color></ribbon>"
                     "<intm><film_sensor reading=\"20\"/><supply_motor_pulses count=\"21\"/>"
                     "<takeup_encoder_pulses count=\"22\"/></intm></web_media>",
                     sensors));
    expectEqual(sensors, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22});
}

// ---- Every sensor by itself ----

/// The names of the elements around one, from the root's child inwards.
using Path = std::vector<std::string>;

const Path inputOutput = {"input_output"};
const Path cardPath = {"card_path"};
const Path doors = {"doors"};
const Path positioning = {"positioning"};
const Path webMedia = {"web_media"};
const Path ribbon = {"web_media", "ribbon"};
const Path color = {"web_media", "ribbon", "color"};
const Path film = {"web_media", "intm"};

std::string inside(const Path& path, std::string content) {
    std::for_each(path.rbegin(), path.rend(), [&](const auto& name) { content = tag(name, content); });
    return content;
}

struct Sensor {
    Path group;
    std::string element;
    std::string attribute;
    int KVSensorInfo::*field;

    [[nodiscard]] std::string with(const std::string& attributeName, const std::string& value) const {
        return "<" + element + " " + attributeName + "=\"" + value + "\"/>";
    }
    [[nodiscard]] std::string with(const std::string& value) const { return with(attribute, value); }
};

const Sensor sensorTable[] = {
    {inputOutput, "atm_card_present", "reading", &KVSensorInfo::atmCardPresent},
    {inputOutput, "input_feeder", "reading", &KVSensorInfo::inputFeeder},
    {inputOutput, "output_hopper", "reading", &KVSensorInfo::outputHopper},
    {cardPath, "synchro_card", "reading", &KVSensorInfo::synchroCard},
    {cardPath, "synchro_mag", "reading", &KVSensorInfo::synchroMag},
    {cardPath, "synchro_contact", "reading", &KVSensorInfo::synchroContact},
    {cardPath, "synchro_contactless", "reading", &KVSensorInfo::synchroContactless},
    {cardPath, "flipper_card_present", "reading", &KVSensorInfo::flipperCardPresent},
    {doors, "head_open", "reading", &KVSensorInfo::headOpen},
    {doors, "input_media_open", "reading", &KVSensorInfo::inputMediaOpen},
    {doors, "output_media_open", "reading", &KVSensorInfo::outputMediaOpen},
    {positioning, "head_down", "reading", &KVSensorInfo::headDown},
    {positioning, "flipper_ready_in", "reading", &KVSensorInfo::flipperReadyIn},
    {positioning, "flipper_ready_out", "reading", &KVSensorInfo::flipperReadyOut},
    {ribbon, "encoder", "reading", &KVSensorInfo::ribbonEncoder},
    {ribbon, "ribbon_sync_detection", "adc_value", &KVSensorInfo::ribbonSyncDetection},
    {color, "led_1", "reading", &KVSensorInfo::ribbonColorLed1},
    {color, "led_2", "reading", &KVSensorInfo::ribbonColorLed2},
    {color, "led_3", "reading", &KVSensorInfo::ribbonColorLed3},
    {film, "film_sensor", "reading", &KVSensorInfo::filmSensor},
    {film, "supply_motor_pulses", "count", &KVSensorInfo::supplyMotorPulses},
    {film, "takeup_encoder_pulses", "count", &KVSensorInfo::takeupEncoderPulses},
};

class SensorReading : public testing::TestWithParam<Sensor> {
protected:
    /// Reads a reply with this content in the sensor's group.
    static bool readGroup(const std::string& content, KVSensorInfo& sensors) {
        return readChildren(inside(GetParam().group, content), sensors);
    }
};

INSTANTIATE_TEST_SUITE_P(SensorInfo, SensorReading, testing::ValuesIn(sensorTable),
                         [](const auto& sensor) { return sensor.param.element; });

TEST_P(SensorReading, IsTheNumberInItsAttribute) {
    const std::pair<const char*, int> values[] = {
        {"0", 0}, {"1", 1}, {"-40", -40}, {"1023", 1023}, {"2147483647", 2147483647}};
    for (const auto& [text, value] : values) {
        KVSensorInfo sensors = preset();
        EXPECT_TRUE(readGroup(GetParam().with(text), sensors)) << text;
        KVSensorInfo expected = preset();
        expected.*GetParam().field = value;
        expectEqual(sensors, expected);
    }
}

TEST_P(SensorReading, CountsInItsOwnGroupOnly) {
    for (const Path& group : {Path{}, inputOutput, cardPath, doors, positioning, webMedia, ribbon, color, film}) {
        if (group == GetParam().group) continue;
        KVSensorInfo sensors = preset();
        EXPECT_FALSE(readChildren(inside(group, GetParam().with("1")), sensors)) << inside(group, "");
        expectEqual(sensors, preset());
    }
}

// ---- What a printer may send ----

TEST(SensorInfo, AnOpenHeadIs1AndItsValueAsTextIsFalse) {
    KVSensorInfo sensors = preset();
    EXPECT_TRUE(readChildren("<doors><head_open reading=\"1\"/></doors>", sensors));
    EXPECT_EQ(sensors.headOpen, 1);
    sensors = preset();
    EXPECT_FALSE(readChildren("<doors><head_open>1</head_open></doors>", sensors));
    expectEqual(sensors, preset());
}

TEST(SensorInfo, SupplyMotorPulsesAreACountAndNoReading) {
    KVSensorInfo sensors = preset();
    EXPECT_TRUE(readChildren("<web_media><intm><supply_motor_pulses reading=\"1\" count=\"260\"/></intm></web_media>",
                             sensors));
    KVSensorInfo expected = preset();
    expected.supplyMotorPulses = 260;
    expectEqual(sensors, expected);
}

TEST(SensorInfo, ALedOutsideTheColorGroupIsIgnored) {
    KVSensorInfo sensors = preset();
    EXPECT_TRUE(readChildren("<web_media><ribbon><encoder reading=\"1\"/><led_2 reading=\"9\"/></ribbon></web_media>",
                             sensors));
    KVSensorInfo expected = preset();
    expected.ribbonEncoder = 1;
    expectEqual(sensors, expected);
}

TEST(SensorInfo, AReadingIsTheNumberThatItsAttributeBeginsWith) {
    const std::pair<const char*, int> values[] = {{"12mV", 12}, {" 7", 7},   {"1.9", 1},
                                                  {"1,9", 1},   {"010", 10}, {"0x10", 0}};
    for (const auto& [text, value] : values) {
        KVSensorInfo sensors = preset();
        EXPECT_TRUE(readChildren("<doors><head_open reading=\"" + std::string(text) + "\"/></doors>", sensors)) << text;
        EXPECT_EQ(sensors.headOpen, value) << text;
    }
}

TEST(SensorInfo, AnEmptyGroupAtTheEndIsFalseAndTheReadingsBeforeItStay) {
    for (const Path& group : {inputOutput, cardPath, positioning, webMedia, ribbon, color, film}) {
        KVSensorInfo sensors = preset();
        EXPECT_FALSE(readChildren("<doors><head_open reading=\"1\"/></doors>" + inside(group, ""), sensors));
        KVSensorInfo expected = preset();
        expected.headOpen = 1;
        expectEqual(sensors, expected);
    }
}

TEST(SensorInfo, NamesAreComparedWithCase) {
    KVSensorInfo sensors = preset();
    EXPECT_FALSE(
        readChildren("<Doors><head_open reading=\"1\"/></Doors><doors><HEAD_OPEN reading=\"1\"/></doors>", sensors));
    EXPECT_FALSE(readChildren("<web_media><InTM><film_sensor reading=\"1\"/></InTM></web_media>", sensors));
    expectEqual(sensors, preset());
}

TEST(SensorInfo, GroupsAndSensorsMayComeInAnyOrder) {
    KVSensorInfo sensors = preset();
    EXPECT_TRUE(
        readChildren("<web_media><intm><takeup_encoder_pulses count=\"1\"/><film_sensor reading=\"2\"/></intm>"
                     "<ribbon><color><led_3 reading=\"3\"/></color><encoder reading=\"4\"/></ribbon></web_media>"
                     "<input_output><output_hopper reading=\"5\"/><input_feeder reading=\"6\"/></input_output>",
                     sensors));
    KVSensorInfo expected = preset();
    expected.takeupEncoderPulses = 1;
    expected.filmSensor = 2;
    expected.ribbonColorLed3 = 3;
    expected.ribbonEncoder = 4;
    expected.outputHopper = 5;
    expected.inputFeeder = 6;
    expectEqual(sensors, expected);
}

TEST(SensorInfo, ARepeatedGroupIsReadAgain) {
    KVSensorInfo sensors = preset();
    EXPECT_TRUE(
        readChildren("<doors><head_open reading=\"1\"/><input_media_open reading=\"2\"/></doors>"
                     "<doors><head_open reading=\"3\"/></doors>",
                     sensors));
    KVSensorInfo expected = preset();
    expected.headOpen = 3;
    expected.inputMediaOpen = 2;
    expectEqual(sensors, expected);
}

TEST(SensorInfo, TheResultIsThatOfTheLastKnownElement) {
    KVSensorInfo sensors = preset();
    EXPECT_FALSE(readChildren("<doors><head_open reading=\"1\"/><input_media_open/></doors>", sensors));
    EXPECT_EQ(sensors.headOpen, 1);
    EXPECT_TRUE(readChildren("<doors><input_media_open/><head_open reading=\"2\"/></doors>", sensors));
    EXPECT_EQ(sensors.headOpen, 2);
    EXPECT_TRUE(readChildren("<doors><head_open reading=\"3\"/><lid_open/></doors><serial/>", sensors));
    EXPECT_FALSE(readChildren("<doors><head_open/><lid_open reading=\"1\"/></doors>", sensors));
    EXPECT_FALSE(
        readChildren("<doors><head_open reading=\"4\"/></doors><positioning><head_down/></positioning>", sensors));
    EXPECT_TRUE(
        readChildren("<positioning><head_down/></positioning><doors><head_open reading=\"5\"/></doors>", sensors));
    EXPECT_EQ(sensors.headOpen, 5);
}

TEST(SensorInfo, ALengthOfZeroOrLessIsFalseAndLeavesTheRecord) {
    const std::wstring text = wide("<get_sensor_status><doors><head_open reading=\"1\"/></doors></get_sensor_status>");
    KVSensorInfo sensors = preset();
    EXPECT_FALSE(KVJSensorParser().ParseSensorInfo(*text.c_str(), 0, sensors));
    EXPECT_FALSE(KVJSensorParser().ParseSensorInfo(*text.c_str(), -1, sensors));
    expectEqual(sensors, preset());
}

// ---- Walkers ----

using Walker = bool (KVJSensorParser::*)(TiXmlElement*, KVSensorInfo&);

const std::pair<Walker, Path> groupWalkers[] = {
    {&KVJSensorParser::getInputOutputSensorInfo, inputOutput},
    {&KVJSensorParser::getCardPathSensorInfo, cardPath},
    {&KVJSensorParser::getDoorSensorInfo, doors},
    {&KVJSensorParser::getPositioningSensorInfo, positioning},
    {&KVJSensorParser::getRibbonSensorInfo, ribbon},
    {&KVJSensorParser::getRibbonColorSensorInfo, color},
    {&KVJSensorParser::getInTMSensorInfo, film},
};

TEST(SensorInfo, AGroupsWalkerReadsTheSensorsOfThatGroupFromAnElementThatTheHostHolds) {
    for (const auto& [walker, group] : groupWalkers) {
        std::string all;
        KVSensorInfo expected = preset();
        for (const Sensor& sensor : sensorTable) {
            all += sensor.with("77");
            if (sensor.group == group) expected.*sensor.field = 77;
        }
        Xml element(tag("any", all).c_str());
        KVSensorInfo sensors = preset();
        EXPECT_TRUE((KVJSensorParser().*walker)(element.root(), sensors)) << inside(group, "");
        expectEqual(sensors, expected);
    }
}

TEST(SensorInfo, TheWalkersOfGroupsOfGroupsReadThem) {
    KVJSensorParser parser;
    KVSensorInfo sensors = preset();
    Xml root("<any><doors><head_open reading=\"1\"/></doors></any>");
    EXPECT_TRUE(parser.parseSensorInfo(root.root(), sensors));
    Xml media("<any><ribbon><encoder reading=\"2\"/></ribbon><intm><film_sensor reading=\"3\"/></intm></any>");
    EXPECT_TRUE(parser.getWebMediaSensorInfo(media.root(), sensors));
    Xml ribbonGroup("<any><color><led_1 reading=\"4\"/></color></any>");
    EXPECT_TRUE(parser.getRibbonSensorInfo(ribbonGroup.root(), sensors));
    KVSensorInfo expected = preset();
    expected.headOpen = 1;
    expected.ribbonEncoder = 2;
    expected.filmSensor = 3;
    expected.ribbonColorLed1 = 4;
    expectEqual(sensors, expected);
}

TEST(SensorInfo, TheWalkersAreFalseForNoElementAndForOneWithoutChildren) {
    const Walker walkers[] = {&KVJSensorParser::parseSensorInfo,          &KVJSensorParser::getInputOutputSensorInfo,
                              &KVJSensorParser::getCardPathSensorInfo,    &KVJSensorParser::getDoorSensorInfo,
                              &KVJSensorParser::getPositioningSensorInfo, &KVJSensorParser::getWebMediaSensorInfo,
                              &KVJSensorParser::getRibbonSensorInfo,      &KVJSensorParser::getRibbonColorSensorInfo,
                              &KVJSensorParser::getInTMSensorInfo};
    KVSensorInfo sensors = preset();
    Xml empty("<any reading=\"1\" count=\"1\" adc_value=\"1\">text</any>");
    for (const Walker walker : walkers) {
        EXPECT_FALSE((KVJSensorParser().*walker)(nullptr, sensors));
        EXPECT_FALSE((KVJSensorParser().*walker)(empty.root(), sensors));
    }
    expectEqual(sensors, preset());
}

}  // namespace

}  // namespace sensor_info_test
