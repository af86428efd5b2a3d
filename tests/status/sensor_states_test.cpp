// The state words of the reply "get_sensor_status": every one by itself, cut to its field, and the groups that hold
// them.
#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <cstring>
#include <string>

#include "KVJSensorParser.h"
#include "fields/status.h"
#include "support/records.h"
#include "support/xml.h"

namespace sensor_states_test {

namespace {

using Kavrin::_KVPrinterSensorInfo;
using Kavrin::KVJSensorParser;
using kvj::tests::expectEqual;
using kvj::tests::Xml;

/// A record with a value in every byte that no test writes.
_KVPrinterSensorInfo preset() {
    _KVPrinterSensorInfo states;
    std::memset(&states, '#', sizeof states);
    return states;
}

/// The whole record, which consists of characters only.
std::string bytesOf(const _KVPrinterSensorInfo& states) {
    return {reinterpret_cast<const char*>(&states), sizeof states};
}

bool read(const std::string& reply, _KVPrinterSensorInfo& states) {
    return KVJSensorParser().ParseSensorStates(reply.c_str(), 0, states);
}

std::string tag(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

/// Reads a reply with these children of its root.
bool readChildren(const std::string& children, _KVPrinterSensorInfo& states) {
    return read(tag("get_sensor_status", children), states);
}

/// Reads a reply with these states in one group.
bool readStates(const std::string& children, _KVPrinterSensorInfo& states) {
    return readChildren(tag("sensor_states", children), states);
}

TEST(SensorStates, FillsEveryFieldFromOneReply) {
    _KVPrinterSensorInfo states = preset();
    EXPECT_TRUE(readStates(
        "<ribbon_takeup_encoder>moving</ribbon_takeup_encoder><ribbon_payout_encoder>stopped</ribbon_payout_encoder>"
        "<door_open>a</door_open><feeder_door_open>b</feeder_door_open>"
        "<flipper_sensor_blocked>c</flipper_sensor_blocked><card_in_flipper>d</card_in_flipper>"
        "<out_of_cards>e</out_of_cards><option_cam_state>parked</option_cam_state>"
        "<option_card_motion>f</option_card_motion><option_mag_blocked>g</option_mag_blocked>"
        "<internal_encoder_present>h</internal_encoder_present>"
        "<external_encoder_present>i</external_encoder_present><uhf_encoder_present>j</uhf_encoder_present>"
        "<pusher_plate_blocked>k</pusher_plate_blocked><feeder_mode>hopper</feeder_mode>"
        "<option_cam_blocked>l</option_cam_blocked><card_edge_blocked>m</card_edge_blocked>"
        "<tricolor_state>magenta panel</tricolor_state><head_cam_blocked>n</head_cam_blocked>"
        "<printhead_fan>off</printhead_fan>",
        states));
    EXPECT_STREQ(states.ribbonTakeupEncoder, "moving");
    EXPECT_STREQ(states.ribbonPayoutEncoder, "stopped");
    EXPECT_STREQ(states.doorOpen, "a");
    EXPECT_STREQ(states.feederDoorOpen, "b");
    EXPECT_STREQ(states.flipperSensorBlocked, "c");
    EXPECT_STREQ(states.cardInFlipper, "d");
    EXPECT_STREQ(states.outOfCards, "e");
    EXPECT_STREQ(states.optionCamState, "parked");
    EXPECT_STREQ(states.optionCardMotion, "f");
    EXPECT_STREQ(states.optionMagBlocked, "g");
    EXPECT_STREQ(states.internalEncoderPresent, "h");
    EXPECT_STREQ(states.externalEncoderPresent, "i");
    EXPECT_STREQ(states.uhfEncoderPresent, "j");
    EXPECT_STREQ(states.pusherPlateBlocked, "k");
    EXPECT_STREQ(states.feederMode, "hopper");
    EXPECT_STREQ(states.optionCamBlocked, "l");
    EXPECT_STREQ(states.cardEdgeBlocked, "m");
    EXPECT_STREQ(states.tricolorState, "magenta panel");
    EXPECT_STREQ(states.headCamBlocked, "n");
    EXPECT_STREQ(states.printheadFan, "off");
}

// ---- Every state by itself ----

struct State {
    const char* element;
    std::size_t offset;
    std::size_t capacity;  ///< written out, not asked of the field, so that a field of another size fails
};

const State stateTable[] = {
    {"ribbon_takeup_encoder", offsetof(_KVPrinterSensorInfo, ribbonTakeupEncoder), 8},
    {"ribbon_payout_encoder", offsetof(_KVPrinterSensorInfo, ribbonPayoutEncoder), 8},
    {"door_open", offsetof(_KVPrinterSensorInfo, doorOpen), 4},
    {"feeder_door_open", offsetof(_KVPrinterSensorInfo, feederDoorOpen), 4},
    {"flipper_sensor_blocked", offsetof(_KVPrinterSensorInfo, flipperSensorBlocked), 4},
    {"card_in_flipper", offsetof(_KVPrinterSensorInfo, cardInFlipper), 4},
    {"out_of_cards", offsetof(_KVPrinterSensorInfo, outOfCards), 4},
    {"option_cam_state", offsetof(_KVPrinterSensorInfo, optionCamState), 8},
    {"option_card_motion", offsetof(_KVPrinterSensorInfo, optionCardMotion), 4},
    {"option_mag_blocked", offsetof(_KVPrinterSensorInfo, optionMagBlocked), 4},
    {"internal_encoder_present", offsetof(_KVPrinterSensorInfo, internalEncoderPresent), 4},
    {"external_encoder_present", offsetof(_KVPrinterSensorInfo, externalEncoderPresent), 4},
    {"uhf_encoder_present", offsetof(_KVPrinterSensorInfo, uhfEncoderPresent), 4},
    {"pusher_plate_blocked", offsetof(_KVPrinterSensorInfo, pusherPlateBlocked), 4},
    {"feeder_mode", offsetof(_KVPrinterSensorInfo, feederMode), 8},
    {"option_cam_blocked", offsetof(_KVPrinterSensorInfo, optionCamBlocked), 4},
    {"card_edge_blocked", offsetof(_KVPrinterSensorInfo, cardEdgeBlocked), 4},
    {"tricolor_state", offsetof(_KVPrinterSensorInfo, tricolorState), 16},
    {"head_cam_blocked", offsetof(_KVPrinterSensorInfo, headCamBlocked), 4},
    {"printhead_fan", offsetof(_KVPrinterSensorInfo, printheadFan), 4},
};

class SensorStateWord : public testing::TestWithParam<State> {
protected:
    static bool readWord(const std::string& word, _KVPrinterSensorInfo& states) {
        return readStates(tag(GetParam().element, word), states);
    }
    /// The preset record with this word and its terminator in the field, and nothing else changed.
    static std::string presetWith(const std::string& word) {
        return bytesOf(preset()).replace(GetParam().offset, word.size() + 1, word + '\0');
    }
};

INSTANTIATE_TEST_SUITE_P(SensorStates, SensorStateWord, testing::ValuesIn(stateTable),
                         [](const auto& row) { return row.param.element; });

TEST_P(SensorStateWord, IsKeptAsItIs) {
    for (const char* word : {"no", "yes", "No", "0", "?"}) {
        _KVPrinterSensorInfo states = preset();
        EXPECT_TRUE(readWord(word, states)) << word;
        EXPECT_EQ(bytesOf(states), presetWith(word));
    }
}

TEST_P(SensorStateWord, OutsideItsGroupIsIgnored) {
    _KVPrinterSensorInfo states = preset();
    EXPECT_FALSE(readChildren(tag(GetParam().element, "yes"), states));
    EXPECT_FALSE(readChildren(tag("sensor_values", tag(GetParam().element, "yes")), states));
    EXPECT_FALSE(readStates(tag("group", tag(GetParam().element, "yes")), states));
    expectEqual(states, preset());
}

// ---- Groups ----

TEST(SensorStates, AClosedDoorIsTheWordNo) {
    _KVPrinterSensorInfo states{};
    EXPECT_TRUE(readStates("<door_open>no</door_open>", states));
    EXPECT_STREQ(states.doorOpen, "no");
}

TEST(SensorStates, OfTwoGroupsBothAreReadAndTheLaterValuesWin) {
    _KVPrinterSensorInfo states{};
    EXPECT_TRUE(
        readChildren("<sensor_states><door_open>no</door_open><out_of_cards>no</out_of_cards></sensor_states>"
                     "<sensor_values><voltage_raw>3</voltage_raw></sensor_values>"
                     "<sensor_states><door_open>yes</door_open><printhead_fan>on</printhead_fan></sensor_states>",
                     states));
    _KVPrinterSensorInfo expected{};
    std::strcpy(expected.doorOpen, "yes");
    std::strcpy(expected.outOfCards, "no");
    std::strcpy(expected.printheadFan, "on");
    expectEqual(states, expected);
}

TEST(SensorStates, StatesMayComeInAnyOrder) {
    _KVPrinterSensorInfo states{};
    EXPECT_TRUE(
        readStates("<printhead_fan>on</printhead_fan><option_mag_blocked>no</option_mag_blocked>"
                   "<ribbon_takeup_encoder>slow</ribbon_takeup_encoder>",
                   states));
    _KVPrinterSensorInfo expected{};
    std::strcpy(expected.printheadFan, "on");
    std::strcpy(expected.optionMagBlocked, "no");
    std::strcpy(expected.ribbonTakeupEncoder, "slow");
    expectEqual(states, expected);
}

TEST(SensorStates, TheResultIsThatOfTheLastKnownElementOfTheLastGroup) {
    _KVPrinterSensorInfo states{};
    EXPECT_FALSE(readStates("<door_open>no</door_open><out_of_cards/>", states));
    EXPECT_STREQ(states.doorOpen, "no");
    EXPECT_TRUE(readStates("<out_of_cards/><door_open>yes</door_open>", states));
    EXPECT_STREQ(states.doorOpen, "yes");
    EXPECT_TRUE(readStates("<door_open>no</door_open><lid_open/>", states));
    EXPECT_FALSE(readStates("<door_open/><lid_open>no</lid_open>", states));
    const std::string group = "<sensor_states><door_open>no</door_open></sensor_states>";
    EXPECT_FALSE(readChildren(group + "<sensor_states/>", states));
    EXPECT_TRUE(readChildren("<sensor_states/>" + group, states));
    EXPECT_TRUE(readChildren(group + "<sensor_values/>", states));
}

// ---- The reply ----

TEST(SensorStates, TheLengthOfTheReplyIsIgnored) {
    const char* reply =
        "<get_sensor_status><sensor_states><door_open>no</door_open></sensor_states></get_sensor_status>";
    for (const int length : {0, 1, -1, INT_MIN, INT_MAX}) {
        _KVPrinterSensorInfo states{};
        EXPECT_TRUE(KVJSensorParser().ParseSensorStates(reply, length, states)) << length;
        EXPECT_STREQ(states.doorOpen, "no") << length;
    }
}

TEST(SensorStates, NoReplyAtAllIsFalseAndLeavesTheRecord) {
    for (const int length : {0, 100, INT_MAX}) {
        _KVPrinterSensorInfo states = preset();
        EXPECT_FALSE(KVJSensorParser().ParseSensorStates(nullptr, length, states));
        expectEqual(states, preset());
    }
}

TEST(SensorStates, OneParserServesManyCalls) {
    KVJSensorParser parser;
    for (const std::string word : {"no", "yes", "off"}) {
        _KVPrinterSensorInfo states{};
        const std::string reply = tag("get_sensor_status", tag("sensor_states", tag("card_in_flipper", word)));
        EXPECT_TRUE(parser.ParseSensorStates(reply.c_str(), 0, states));
        EXPECT_EQ(states.cardInFlipper, word);
    }
}

// ---- Walkers ----

TEST(SensorStates, TheWalkersReadElementsThatTheHostHolds) {
    KVJSensorParser parser;
    _KVPrinterSensorInfo states{};
    Xml root(
        "<any><sensor_states><door_open>no</door_open></sensor_states>"
        "<sensor_states><door_open>yes</door_open></sensor_states></any>");
    EXPECT_TRUE(parser.getSensorStates(root.root(), states));
    Xml group("<any><feeder_mode>manual</feeder_mode></any>");
    EXPECT_TRUE(parser.getSensorState(group.root(), states));
    _KVPrinterSensorInfo expected{};
    std::strcpy(expected.doorOpen, "yes");
    std::strcpy(expected.feederMode, "manual");
    expectEqual(states, expected);
}

TEST(SensorStates, TheWalkersAreFalseForNoElementAndForOneWithoutChildren) {
    KVJSensorParser parser;
    _KVPrinterSensorInfo states = preset();
    Xml empty("<any>text</any>");
    for (TiXmlElement* element : {static_cast<TiXmlElement*>(nullptr), empty.root()}) {
        EXPECT_FALSE(parser.getSensorStates(element, states));
        EXPECT_FALSE(parser.getSensorState(element, states));
    }
    expectEqual(states, preset());
}

}  // namespace

}  // namespace sensor_states_test
