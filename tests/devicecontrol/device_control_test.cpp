// The service commands, byte for byte, and the copy of them that the service engineer finds.
#include "KVJDeviceControl.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cfloat>
#include <climits>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "support/copy_scope.h"
#include "support/files.h"

namespace device_control_test {

using kvj::tests::contentOf;
using kvj::tests::CopyScope;
using kvj::tests::TemporaryFolder;

namespace {

const std::filesystem::path copyPath = "/tmp/composedXML";

/// A whole command with `element` for its device.
std::string command(const std::string& element) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
           "<device_control>\n"
           "    " +
           element +
           "\n"
           "</device_control>\n";
}

/// A text for operations that take it as `char*`, though they change none; null as well.
class Text {
public:
    Text(std::nullptr_t) {}
    Text(std::string text) : text_(std::move(text)) {}
    Text(const char* text) : text_(text) {}
    operator char*() { return text_ ? text_->data() : nullptr; }

private:
    std::optional<std::string> text_;
};

/// Calls `print` with a buffer that has room for everything, and gives the text that it leaves there; after its
/// terminator there must be nothing.
template <class Print>
std::string printed(Print print) {
    std::string buffer(20'000, '#');
    EXPECT_TRUE(print(buffer.data()));
    const std::size_t length = buffer.find('\0');
    EXPECT_NE(length, std::string::npos);
    if (length == std::string::npos) return {};
    EXPECT_EQ(buffer.find_first_not_of('#', length + 1), std::string::npos);
    return buffer.substr(0, length);
}

constexpr int someCapacity = 20'000;

class DeviceControl : public testing::Test {
protected:
    CopyScope scope;
    KVJDeviceControl control;

    std::string motor(int state, int direction, int speed, int number) {
        return printed(
            [&](char* out) { return control.RunMotorCommand(state, direction, speed, number, out, someCapacity); });
    }
    std::string motorByMode(int mode, int period, float rpm, int speed, bool forward, Text name = "card_feed") {
        return printed([&](char* out) {
            return control.RunMotorCommand(name, mode, period, rpm, speed, forward, out, someCapacity);
        });
    }
    std::string cam(Text name, Text state) {
        return printed([&](char* out) { return control.RunCamCommand(name, state, out, someCapacity); });
    }
    std::string calibrate(int calibration, float torque, float rpm, Text name = "ribbon") {
        return printed(
            [&](char* out) { return control.RunCalibrateCommand(name, calibration, torque, rpm, out, someCapacity); });
    }
    std::string other(Text device, Text text, Text panel, bool on) {
        return printed([&](char* out) { return control.RunOtherCommands(device, text, panel, on, out, someCapacity); });
    }
    std::string rfid(Text device, int mode, int antenna) {
        return printed([&](char* out) { return control.RunRFIDCommands(device, mode, antenna, out, someCapacity); });
    }
    std::string printedAgain() {
        return printed([&](char* out) { return control.saveJob(out, someCapacity); });
    }
};

using MotorByNumber = DeviceControl;
using MotorByMode = DeviceControl;
using Cam = DeviceControl;
using Calibration = DeviceControl;
using OtherDevice = DeviceControl;
using Rfid = DeviceControl;
using Command = DeviceControl;

// ---- A motor by its number ----

TEST_F(MotorByNumber, OnHasItsDirectionAndSpeed) {
    EXPECT_EQ(motor(1, 0, 40, 0), command("<motor state=\"on\" direction=\"forward\" speed=\"40\">card_feed</motor>"));
    EXPECT_EQ(motor(1, 0, 40, 4), command("<motor state=\"on\" direction=\"forward\" speed=\"40\">options</motor>"));
    EXPECT_EQ(motor(1, 0, 40, 5), command("<motor state=\"on\" direction=\"forward\" speed=\"40\">flipper</motor>"));
}

TEST_F(MotorByNumber, CardXAndHeadLiftHaveADistanceBeforeTheirSpeed) {
    EXPECT_EQ(motor(1, 0, 40, 1),
              command("<motor state=\"on\" direction=\"forward\" distance=\"0\" speed=\"40\">card_x</motor>"));
    EXPECT_EQ(motor(1, 0, 40, 3),
              command("<motor state=\"on\" direction=\"forward\" distance=\"0\" speed=\"40\">head_lift</motor>"));
}

TEST_F(MotorByNumber, TheRibbonHasNoSpeed) {
    EXPECT_EQ(motor(1, 0, 40, 2), command("<motor state=\"on\" direction=\"forward\">ribbon</motor>"));
    EXPECT_EQ(motor(1, 1, 40, 2), command("<motor state=\"on\" direction=\"reverse\">ribbon</motor>"));
}

TEST_F(MotorByNumber, AnyOtherNumberHasNoText) {
    for (const int number : {6, 7, 9, INT_MAX, -1, -2, INT_MIN}) {
        EXPECT_EQ(motor(1, 0, 40, number), command("<motor state=\"on\" direction=\"forward\" speed=\"40\" />"))
            << number;
        EXPECT_EQ(motor(0, 0, 40, number), command("<motor state=\"off\" />")) << number;
    }
}

TEST_F(MotorByNumber, OffHasItsStateAlone) {
    EXPECT_EQ(motor(0, 1, 40, 0), command("<motor state=\"off\">card_feed</motor>"));
    EXPECT_EQ(motor(0, 1, 40, 1), command("<motor state=\"off\">card_x</motor>"));
    EXPECT_EQ(motor(0, 1, 40, 2), command("<motor state=\"off\">ribbon</motor>"));
    EXPECT_EQ(motor(0, 1, 40, 3), command("<motor state=\"off\">head_lift</motor>"));
    EXPECT_EQ(motor(0, 1, 40, 4), command("<motor state=\"off\">options</motor>"));
    EXPECT_EQ(motor(0, 1, 40, 5), command("<motor state=\"off\">flipper</motor>"));
}

TEST_F(MotorByNumber, AnyStateButOneIsOff) {
    for (const int state : {0, 2, 3, INT_MAX, -1, INT_MIN}) {
        EXPECT_EQ(motor(state, 0, 40, 1), command("<motor state=\"off\">card_x</motor>")) << state;
    }
}

TEST_F(MotorByNumber, AnyDirectionButZeroIsReverse) {
    for (const int direction : {1, 2, INT_MAX, -1, INT_MIN}) {
        EXPECT_EQ(motor(1, direction, 40, 0),
                  command("<motor state=\"on\" direction=\"reverse\" speed=\"40\">card_feed</motor>"))
            << direction;
    }
}

TEST_F(MotorByNumber, TheSpeedIsAnyInteger) {
    const std::pair<int, std::string> speeds[] = {
        {0, "0"}, {-1, "-1"}, {1000, "1000"}, {INT_MAX, "2147483647"}, {INT_MIN, "-2147483648"}};
    for (const auto& [speed, text] : speeds) {
        EXPECT_EQ(motor(1, 0, speed, 0),
                  command("<motor state=\"on\" direction=\"forward\" speed=\"" + text + "\">card_feed</motor>"));
    }
}

// ---- A motor by what it is to do ----

TEST_F(MotorByMode, ModeZeroIsOff) {
    EXPECT_EQ(motorByMode(0, 3, 12.5F, 40, true), command("<motor state=\"off\" />"));
    EXPECT_EQ(motorByMode(0, 3, 12.5F, 40, false), command("<motor state=\"off\" />"));
}

TEST_F(MotorByMode, ModeOneIsOnInADirectionAtASpeed) {
    EXPECT_EQ(motorByMode(1, 3, 12.5F, 40, true), command("<motor state=\"on\" direction=\"forward\" speed=\"40\" />"));
    EXPECT_EQ(motorByMode(1, 3, 12.5F, 40, false),
              command("<motor state=\"on\" direction=\"reverse\" speed=\"40\" />"));
    EXPECT_EQ(motorByMode(1, 3, 12.5F, INT_MIN, true),
              command("<motor state=\"on\" direction=\"forward\" speed=\"-2147483648\" />"));
    EXPECT_EQ(motorByMode(1, 3, 12.5F, INT_MAX, true),
              command("<motor state=\"on\" direction=\"forward\" speed=\"2147483647\" />"));
}

TEST_F(MotorByMode, ModeTwoWarmsUpAtRevolutionsForAPeriod) {
    const std::string warmUp = command("<motor state=\"warm_up\" rpm=\"12.5\" period=\"3\" />");
    EXPECT_EQ(motorByMode(2, 3, 12.5F, 40, true), warmUp);
    EXPECT_EQ(motorByMode(2, 3, 12.5F, 40, false), warmUp);
    EXPECT_EQ(motorByMode(2, INT_MIN, 12.5F, 40, true),
              command("<motor state=\"warm_up\" rpm=\"12.5\" period=\"-2147483648\" />"));
    EXPECT_EQ(motorByMode(2, INT_MAX, 12.5F, 40, true),
              command("<motor state=\"warm_up\" rpm=\"12.5\" period=\"2147483647\" />"));
}

TEST_F(MotorByMode, AnyOtherModeIsAnEmptyMotor) {
    for (const int mode : {3, 4, INT_MAX, -1, INT_MIN}) {
        EXPECT_EQ(motorByMode(mode, 3, 12.5F, 40, true), command("<motor />")) << mode;
        EXPECT_EQ(motorByMode(mode, 3, 12.5F, 40, false), command("<motor />")) << mode;
    }
}

TEST_F(MotorByMode, TheSenseOfItsDirectionIsOppositeToThatByNumber) {
    EXPECT_NE(motorByMode(1, 0, 0, 40, true).find("forward"), std::string::npos);
    EXPECT_NE(motor(1, 1, 40, 0).find("reverse"), std::string::npos);
}

TEST_F(MotorByMode, TheNameHasNoEffect) {
    const std::string off = command("<motor state=\"off\" />");
    for (const Text& name : {Text(nullptr), Text(""), Text("card_x"), Text("<&>")}) {
        EXPECT_EQ(motorByMode(0, 3, 12.5F, 40, true, name), off);
    }
}

TEST_F(MotorByMode, RevolutionsHaveOneDecimalAndAPointInEveryLocale) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const std::pair<float, std::string> cases[] = {
        {0.0F, "0.0"},
        {-0.0F, "-0.0"},
        {12.0F, "12.0"},
        {12.5F, "12.5"},
        {-12.5F, "-12.5"},
        {12.25F, "12.2"},  // halfway: to the even digit
        {12.75F, "12.8"},
        {-12.25F, "-12.2"},
        {12.3125F, "12.3"},
        {0.05F, "0.1"},  // as a float 0.0500000007
        {0.35F, "0.3"},  // as a float 0.3499999940
        {9.95F, "9.9"},  // as a float 9.9499998092
        {9.96F, "10.0"},
        {0.04F, "0.0"},
        {-0.04F, "-0.0"},
        {FLT_MIN, "0.0"},
        {1234567.0F, "1234567.0"},
        {16777216.0F, "16777216.0"},
        {FLT_MAX, "340282346638528859811704183484516925440.0"},  // 2^128 - 2^104
        {-FLT_MAX, "-340282346638528859811704183484516925440.0"},
        {infinity, "inf"},
        {-infinity, "-inf"},
    };
    for (const auto& [rpm, text] : cases) {
        EXPECT_EQ(motorByMode(2, 3, rpm, 0, true),
                  command("<motor state=\"warm_up\" rpm=\"" + text + "\" period=\"3\" />"));
    }
}

// ---- A cam ----

TEST_F(Cam, HasItsStateAndItsName) {
    EXPECT_EQ(cam("lift", "up"), command("<cam state=\"up\">lift</cam>"));
    EXPECT_EQ(cam("Head 2", "HOME position"), command("<cam state=\"HOME position\">Head 2</cam>"));
}

TEST_F(Cam, WhatXmlReservesIsEscaped) {
    EXPECT_EQ(cam("a & b", "<x>"), command("<cam state=\"&lt;x&gt;\">a &amp; b</cam>"));
    EXPECT_EQ(cam("'a' < \"b\"", "it's"), command("<cam state=\"it&apos;s\">&apos;a&apos; &lt; &quot;b&quot;</cam>"));
}

TEST_F(Cam, ControlCharactersAreEscaped) {
    EXPECT_EQ(cam("a\tb\n", "\x01"), command("<cam state=\"&#x01;\">a&#x09;b&#x0A;</cam>"));
}

TEST_F(Cam, ABlankAtEitherEndIsKept) { EXPECT_EQ(cam(" lift ", " up"), command("<cam state=\" up\"> lift </cam>")); }

TEST_F(Cam, BytesBeyondAsciiAreWrittenAsTheyAreInEveryLocale) {
    EXPECT_EQ(cam("caf\xC3\xA9", "\xE9"), command("<cam state=\"\xE9\">caf\xC3\xA9</cam>"));
}

TEST_F(Cam, ANullTextIsLeftOut) {
    EXPECT_EQ(cam(nullptr, "up"), command("<cam state=\"up\" />"));
    EXPECT_EQ(cam("lift", nullptr), command("<cam>lift</cam>"));
    EXPECT_EQ(cam(nullptr, nullptr), command("<cam />"));
}

TEST_F(Cam, AnEmptyTextIsThere) {
    EXPECT_EQ(cam("", "up"), command("<cam state=\"up\"></cam>"));
    EXPECT_EQ(cam("lift", ""), command("<cam state=\"\">lift</cam>"));
}

// ---- A calibration ----

TEST_F(Calibration, LowAndHighHaveATorqueAndThenRevolutions) {
    EXPECT_EQ(calibrate(1, 1.5F, 20.0F), command("<calibrate type=\"low\" torque=\"1.5\" rpm=\"20.0\" />"));
    EXPECT_EQ(calibrate(2, 1.5F, 20.0F), command("<calibrate type=\"high\" torque=\"1.5\" rpm=\"20.0\" />"));
}

TEST_F(Calibration, TheOthersHaveTheirTypeAlone) {
    EXPECT_EQ(calibrate(3, 1.5F, 20.0F), command("<calibrate type=\"calc\" />"));
    EXPECT_EQ(calibrate(4, 1.5F, 20.0F), command("<calibrate type=\"mot_cur_off\" />"));
    EXPECT_EQ(calibrate(5, 1.5F, 20.0F), command("<calibrate type=\"mot_cur_on\" />"));
    EXPECT_EQ(calibrate(6, 1.5F, 20.0F), command("<calibrate type=\"save_cal\" />"));
}

TEST_F(Calibration, AnyOtherNumberIsAnEmptyCalibration) {
    for (const int number : {0, 7, 8, INT_MAX, -1, INT_MIN}) {
        EXPECT_EQ(calibrate(number, 1.5F, 20.0F), command("<calibrate />")) << number;
    }
}

TEST_F(Calibration, BothNumbersAreRoundedToOneDecimal) {
    EXPECT_EQ(calibrate(1, 12.25F, 0.05F), command("<calibrate type=\"low\" torque=\"12.2\" rpm=\"0.1\" />"));
    EXPECT_EQ(calibrate(2, -0.04F, 12.75F), command("<calibrate type=\"high\" torque=\"-0.0\" rpm=\"12.8\" />"));
    EXPECT_EQ(calibrate(2, FLT_MAX, -FLT_MAX),
              command("<calibrate type=\"high\" torque=\"340282346638528859811704183484516925440.0\" "
                      "rpm=\"-340282346638528859811704183484516925440.0\" />"));
}

TEST_F(Calibration, TheNameHasNoEffect) {
    const std::string low = command("<calibrate type=\"low\" torque=\"1.5\" rpm=\"20.0\" />");
    for (const Text& name : {Text(nullptr), Text(""), Text("high"), Text("<&>")}) {
        EXPECT_EQ(calibrate(1, 1.5F, 20.0F, name), low);
    }
}

// ---- Other devices ----

TEST_F(OtherDevice, FanSensorAndClutchAreSwitched) {
    for (const std::string device : {"fan", "sensor", "clutch"}) {
        EXPECT_EQ(other(device, "left", nullptr, true), command("<" + device + " state=\"on\">left</" + device + ">"));
        EXPECT_EQ(other(device, "left", nullptr, false),
                  command("<" + device + " state=\"off\">left</" + device + ">"));
        EXPECT_EQ(other(device, "left", "ignored", true),
                  command("<" + device + " state=\"on\">left</" + device + ">"));
    }
}

TEST_F(OtherDevice, AdvanceHasItsPanel) {
    EXPECT_EQ(other("advance", "ribbon", "yellow", false), command("<advance panel=\"yellow\">ribbon</advance>"));
    EXPECT_EQ(other("advance", "ribbon", "yellow", true), command("<advance panel=\"yellow\">ribbon</advance>"));
    EXPECT_EQ(other("advance", "a<b", "\"K\" & 'O'", true),
              command("<advance panel='&quot;K&quot; &amp; &apos;O&apos;'>a&lt;b</advance>"));
    EXPECT_EQ(other("advance", "ribbon", "", true), command("<advance panel=\"\">ribbon</advance>"));
}

TEST_F(OtherDevice, AdvanceWithoutPanelHasNone) {
    EXPECT_EQ(other("advance", "ribbon", nullptr, true), command("<advance>ribbon</advance>"));
}

TEST_F(OtherDevice, TheLaminatorsCalibrationNamesItsSpool) {
    EXPECT_EQ(other("laminator", "scal", nullptr, true), command("<laminator spool=\"both\">scal</laminator>"));
    EXPECT_EQ(other("laminator", "scal 1", nullptr, true), command("<laminator spool=\"top\">scal</laminator>"));
    EXPECT_EQ(other("laminator", "scal 2", nullptr, true), command("<laminator spool=\"bottom\">scal</laminator>"));
    EXPECT_EQ(other("laminator", "scal 2", "ignored", false), command("<laminator spool=\"bottom\">scal</laminator>"));
}

TEST_F(OtherDevice, AnyOtherTextOfTheLaminatorIsWrittenAsItIs) {
    for (const std::string text : {"scal 3", "scal 0", "SCAL", "Scal 1", "scal ", " scal", "scal  1", "scal 12",
                                   "scal1", "sca", "both", "scan", ""}) {
        EXPECT_EQ(other("laminator", text, nullptr, true), command("<laminator>" + text + "</laminator>"));
    }
}

TEST_F(OtherDevice, TheRadiosScanHasOneIteration) {
    EXPECT_EQ(other("radio", "scan", nullptr, true), command("<radio iterations=\"1\">scan</radio>"));
    EXPECT_EQ(other("radio", "scan", "ignored", false), command("<radio iterations=\"1\">scan</radio>"));
}

TEST_F(OtherDevice, AnyOtherTextOfTheRadioIsWrittenAsItIs) {
    for (const std::string text : {"SCAN", "Scan", "scan ", "scan 1", "off", ""}) {
        EXPECT_EQ(other("radio", text, nullptr, true), command("<radio>" + text + "</radio>"));
    }
}

TEST_F(OtherDevice, AnyOtherNameHasItsTextAlone) {
    for (const std::string device : {"led", "motor", "rfid", "Fan", "FAN", "fans", "fa", "Sensor", "CLUTCH", "Advance",
                                     "Laminator", "RADIO", "laminators"}) {
        for (const std::string text : {"on", "scal", "scal 1", "scan"}) {
            EXPECT_EQ(other(device, text, "yellow", true), command("<" + device + ">" + text + "</" + device + ">"));
        }
    }
}

TEST_F(OtherDevice, TextsOfOneDeviceMeanNothingToAnother) {
    EXPECT_EQ(other("fan", "scal 1", "p", true), command("<fan state=\"on\">scal 1</fan>"));
    EXPECT_EQ(other("advance", "scan", "p", true), command("<advance panel=\"p\">scan</advance>"));
    EXPECT_EQ(other("radio", "scal 2", "p", true), command("<radio>scal 2</radio>"));
}

TEST_F(OtherDevice, ANullTextIsLeftOut) {
    EXPECT_EQ(other("fan", nullptr, nullptr, true), command("<fan state=\"on\" />"));
    EXPECT_EQ(other("advance", nullptr, "yellow", true), command("<advance panel=\"yellow\" />"));
    EXPECT_EQ(other("laminator", nullptr, nullptr, true), command("<laminator />"));
    EXPECT_EQ(other("radio", nullptr, nullptr, true), command("<radio />"));
    EXPECT_EQ(other("led", nullptr, nullptr, true), command("<led />"));
}

TEST_F(OtherDevice, AnEmptyTextIsThere) {
    EXPECT_EQ(other("sensor", "", nullptr, false), command("<sensor state=\"off\"></sensor>"));
}

// ---- The RFID antenna ----

TEST_F(Rfid, HasItsAntennaAndTheWordOfItsMode) {
    EXPECT_EQ(rfid("rfid", 0, 2), command("<rfid antenna=\"2\">off</rfid>"));
    EXPECT_EQ(rfid("rfid", 1, 2), command("<rfid antenna=\"2\">on</rfid>"));
    EXPECT_EQ(rfid("rfid", 2, 2), command("<rfid antenna=\"2\">modulate</rfid>"));
}

TEST_F(Rfid, AnyOtherModeHasNoText) {
    for (const int mode : {3, 4, INT_MAX, -1, INT_MIN}) {
        EXPECT_EQ(rfid("rfid", mode, 2), command("<rfid antenna=\"2\" />")) << mode;
        EXPECT_EQ(rfid("reader", mode, 2), command("<reader />")) << mode;
    }
}

TEST_F(Rfid, TheAntennaIsAnyInteger) {
    EXPECT_EQ(rfid("rfid", 1, 0), command("<rfid antenna=\"0\">on</rfid>"));
    EXPECT_EQ(rfid("rfid", 1, -1), command("<rfid antenna=\"-1\">on</rfid>"));
    EXPECT_EQ(rfid("rfid", 1, INT_MAX), command("<rfid antenna=\"2147483647\">on</rfid>"));
    EXPECT_EQ(rfid("rfid", 1, INT_MIN), command("<rfid antenna=\"-2147483648\">on</rfid>"));
}

TEST_F(Rfid, ADeviceOfAnotherNameHasNoAntenna) {
    for (const std::string device : {"reader", "RFID", "Rfid", "rfid2", "rfi", "fan"}) {
        EXPECT_EQ(rfid(device, 0, 2), command("<" + device + ">off</" + device + ">"));
        EXPECT_EQ(rfid(device, 1, 2), command("<" + device + ">on</" + device + ">"));
        EXPECT_EQ(rfid(device, 2, 2), command("<" + device + ">modulate</" + device + ">"));
    }
}

// ---- Every command ----

using Compose = std::function<bool(KVJDeviceControl&, char*, int)>;

/// A command of each operation, and of each kind that the operation knows.
const std::vector<Compose> composers = {
    [](auto& control, char* out, int capacity) { return control.RunMotorCommand(1, 0, 40, 0, out, capacity); },
    [](auto& control, char* out, int capacity) { return control.RunMotorCommand(1, 1, 40, 2, out, capacity); },
    [](auto& control, char* out, int capacity) { return control.RunMotorCommand(0, 1, 40, 3, out, capacity); },
    [](auto& control, char* out, int capacity) { return control.RunMotorCommand(1, 0, 40, 9, out, capacity); },
    [](auto& control, char* out, int capacity) {
        return control.RunMotorCommand(nullptr, 0, 3, 12.5F, 40, true, out, capacity);
    },
    [](auto& control, char* out, int capacity) {
        return control.RunMotorCommand(nullptr, 1, 3, 12.5F, 40, false, out, capacity);
    },
    [](auto& control, char* out, int capacity) {
        return control.RunMotorCommand(nullptr, 2, 3, 12.5F, 40, true, out, capacity);
    },
    [](auto& control, char* out, int capacity) {
        return control.RunMotorCommand(nullptr, 3, 3, 12.5F, 40, true, out, capacity);
    },
    [](auto& control, char* out, int capacity) {
        return control.RunCamCommand(Text("lift"), Text("up"), out, capacity);
    },
    [](auto& control, char* out, int capacity) { return control.RunCamCommand(nullptr, nullptr, out, capacity); },
    [](auto& control, char* out, int capacity) {
        return control.RunCalibrateCommand(nullptr, 1, 1.5F, 20.0F, out, capacity);
    },
    [](auto& control, char* out, int capacity) {
        return control.RunCalibrateCommand(nullptr, 6, 1.5F, 20.0F, out, capacity);
    },
    [](auto& control, char* out, int capacity) {
        return control.RunCalibrateCommand(nullptr, 7, 1.5F, 20.0F, out, capacity);
    },
    [](auto& control, char* out, int capacity) {
        return control.RunOtherCommands(Text("fan"), Text("left"), nullptr, true, out, capacity);
    },
    [](auto& control, char* out, int capacity) {
        return control.RunOtherCommands(Text("advance"), Text("ribbon"), Text("yellow"), true, out, capacity);
    },
    [](auto& control, char* out, int capacity) {
        return control.RunOtherCommands(Text("laminator"), Text("scal 2"), nullptr, true, out, capacity);
    },
    [](auto& control, char* out, int capacity) {
        return control.RunOtherCommands(Text("radio"), Text("scan"), nullptr, true, out, capacity);
    },
    [](auto& control, char* out, int capacity) {
        return control.RunOtherCommands(Text("led"), Text("on"), nullptr, true, out, capacity);
    },
    [](auto& control, char* out, int capacity) { return control.RunRFIDCommands(Text("rfid"), 2, 1, out, capacity); },
    [](auto& control, char* out, int capacity) { return control.RunRFIDCommands(Text("reader"), 1, 1, out, capacity); },
};

/// The command as an object that composes nothing else prints it.
std::string printedByItsOwnObject(const Compose& compose) {
    KVJDeviceControl control;
    return printed([&](char* out) { return compose(control, out, someCapacity); });
}

TEST_F(Command, OneObjectComposesAnyNumberOfThem) {
    for (int round = 0; round < 2; ++round) {
        for (std::size_t i = 0; i < composers.size(); ++i) {
            EXPECT_EQ(printed([&](char* out) { return composers[i](control, out, someCapacity); }),
                      printedByItsOwnObject(composers[i]))
                << i;
        }
    }
}

TEST_F(Command, HasOneElementAloneUnderItsRoot) {
    for (std::size_t i = 0; i < composers.size(); ++i) {
        printed([&](char* out) { return composers[i](control, out, someCapacity); });
        const TiXmlElement* root = control.RootElement();
        ASSERT_NE(root, nullptr) << i;
        EXPECT_STREQ(root->Value(), "device_control") << i;
        EXPECT_EQ(root->NextSibling(), nullptr) << i;
        EXPECT_EQ(root->FirstAttribute(), nullptr) << i;
        ASSERT_NE(root->FirstChild(), nullptr) << i;
        EXPECT_EQ(root->FirstChild(), root->LastChild()) << i;
    }
}

TEST_F(Command, TheCapacityIsNotApplied) {
    for (std::size_t i = 0; i < composers.size(); ++i) {
        const std::string whole = printedByItsOwnObject(composers[i]);
        for (const int capacity : {0, 1, 10, -1, INT_MIN, INT_MAX}) {
            EXPECT_EQ(printed([&](char* out) { return composers[i](control, out, capacity); }), whole) << i << capacity;
            EXPECT_EQ(printed([&](char* out) { return control.saveJob(out, capacity); }), whole) << i << capacity;
        }
    }
}

TEST_F(Command, ObjectsInSeveralThreadsPrintTheirOwn) {
    const auto repeat = [](const Compose& compose, const std::string& expected, int& wrong) {
        KVJDeviceControl own;
        for (int i = 0; i < 200; ++i) {
            std::string buffer(1000, '#');
            if (!compose(own, buffer.data(), someCapacity) || buffer.c_str() != expected) ++wrong;
        }
    };
    const std::string motorOn = command("<motor state=\"on\" direction=\"forward\" speed=\"40\">card_feed</motor>");
    const std::string spool = command("<laminator spool=\"bottom\">scal</laminator>");
    int wrongMotors = 0;
    int wrongSpools = 0;
    std::thread second([&] { repeat(composers[15], spool, wrongSpools); });
    repeat(composers[0], motorOn, wrongMotors);
    second.join();
    EXPECT_EQ(wrongMotors, 0);
    EXPECT_EQ(wrongSpools, 0);
}

TEST_F(Command, WithoutTheNameOfADeviceItIsFalseAndNothingIsWritten) {
    std::string buffer(1000, '#');
    EXPECT_FALSE(control.RunOtherCommands(nullptr, Text("on"), Text("yellow"), true, buffer.data(), someCapacity));
    EXPECT_FALSE(control.RunOtherCommands(nullptr, nullptr, nullptr, false, buffer.data(), someCapacity));
    EXPECT_FALSE(control.RunRFIDCommands(nullptr, 1, 2, buffer.data(), someCapacity));
    EXPECT_EQ(buffer, std::string(1000, '#'));
}

TEST_F(Command, AfterOneWithoutANameTheNextIsAsEver) {
    std::string buffer(1000, '#');
    EXPECT_FALSE(control.RunRFIDCommands(nullptr, 1, 2, buffer.data(), someCapacity));
    EXPECT_EQ(rfid("rfid", 1, 2), command("<rfid antenna=\"2\">on</rfid>"));
}

// ---- Room for it ----

/// The most that the buffer has to hold, according to the header, for texts of `characters` in all.
std::size_t enoughFor(std::size_t characters) { return 256 + 6 * characters; }

TEST_F(Command, TheRoomPromisedIsEnoughForTheLongestNumbers) {
    const std::size_t room = enoughFor(0);
    EXPECT_LE(calibrate(2, -FLT_MAX, -FLT_MAX).size() + 1, room);
    EXPECT_LE(motorByMode(2, INT_MIN, -FLT_MAX, 0, true).size() + 1, room);
    EXPECT_LE(motorByMode(1, 0, 0, INT_MIN, false).size() + 1, room);
    EXPECT_LE(motor(1, 1, INT_MIN, 3).size() + 1, room);
}

TEST_F(Command, TheRoomPromisedIsEnoughForTheWorstTexts) {
    for (const char worst : {'"', '\'', '\x01', '\n', '&', 'x'}) {
        for (const std::size_t size : {0U, 1U, 10U, 300U}) {
            const std::string text(size, worst);
            EXPECT_LE(cam(text, text).size() + 1, enoughFor(2 * size)) << worst << size;
            EXPECT_LE(other("advance", text, text, true).size() + 1, enoughFor(7 + 2 * size)) << worst << size;
            EXPECT_LE(other("laminator", text, nullptr, true).size() + 1, enoughFor(9 + size)) << worst << size;
        }
    }
}

TEST_F(Command, TheRoomPromisedIsEnoughForTheLongestNames) {
    for (const std::size_t size : {1U, 10U, 300U}) {
        const std::string name(size, 'n');
        EXPECT_LE(other(name, "t", nullptr, true).size() + 1, enoughFor(size + 1)) << size;
        EXPECT_LE(rfid(name, 2, INT_MIN).size() + 1, enoughFor(size)) << size;
    }
}

TEST_F(Command, FillsABufferOfTheRoomPromised) {
    const std::string text(100, '"');
    std::vector<char> out(enoughFor(200), '#');
    EXPECT_TRUE(control.RunCamCommand(Text(text), Text(text), out.data(), static_cast<int>(out.size())));
    std::string escaped;
    for (int i = 0; i < 100; ++i) escaped += "&quot;";
    EXPECT_STREQ(out.data(), command("<cam state='" + escaped + "'>" + escaped + "</cam>").c_str());
}

// ---- The last command, once more ----

using LastCommand = DeviceControl;

TEST_F(LastCommand, IsPrintedAgain) {
    EXPECT_EQ(rfid("rfid", 1, 2), command("<rfid antenna=\"2\">on</rfid>"));
    EXPECT_EQ(printedAgain(), command("<rfid antenna=\"2\">on</rfid>"));
    EXPECT_EQ(printedAgain(), command("<rfid antenna=\"2\">on</rfid>"));
    EXPECT_EQ(motor(0, 0, 0, 9), command("<motor state=\"off\" />"));
    EXPECT_EQ(printedAgain(), command("<motor state=\"off\" />"));
}

TEST_F(LastCommand, OfAnObjectThatComposedNoneIsEmpty) { EXPECT_EQ(printedAgain(), ""); }

TEST_F(LastCommand, ThatWasComposedWithoutABufferIsThere) {
    EXPECT_FALSE(control.RunMotorCommand(0, 0, 0, 9, nullptr, someCapacity));
    EXPECT_EQ(printedAgain(), command("<motor state=\"off\" />"));
}

TEST_F(LastCommand, IsSavedToAFile) {
    const TemporaryFolder folder;
    const std::filesystem::path path = folder / "command.xml";
    kvj::tests::write(path, std::string(5000, 'z'));
    for (std::size_t i = 0; i < composers.size(); ++i) {
        const std::string text = printed([&](char* out) { return composers[i](control, out, someCapacity); });
        EXPECT_TRUE(control.saveJob(Text(path.string()))) << i;
        EXPECT_EQ(contentOf(path), text) << i;
    }
}

TEST_F(LastCommand, IsNotSavedWithoutAFileToWrite) {
    const TemporaryFolder folder;
    EXPECT_EQ(motor(0, 0, 0, 9), command("<motor state=\"off\" />"));
    EXPECT_FALSE(control.saveJob(nullptr));
    EXPECT_FALSE(control.saveJob(Text("")));
    EXPECT_FALSE(control.saveJob(Text((folder / "").string())));
    EXPECT_FALSE(control.saveJob(Text((folder / "missing/command.xml").string())));
    EXPECT_FALSE(std::filesystem::exists(folder / "missing"));
}

TEST_F(LastCommand, IsStillThereAfterAFailedSave) {
    EXPECT_EQ(motor(0, 0, 0, 9), command("<motor state=\"off\" />"));
    EXPECT_FALSE(control.saveJob(nullptr));
    EXPECT_FALSE(control.saveJob(nullptr, someCapacity));
    EXPECT_EQ(printedAgain(), command("<motor state=\"off\" />"));
}

// ---- The copy for the service engineer ----

mode_t modeOf(const std::filesystem::path& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) throw std::runtime_error("no file " + path.string());
    return status.st_mode & 07777;
}

class ServiceCopy : public DeviceControl {
protected:
    TemporaryFolder folder;

    /// A copy that no command leaves, to see whether it is touched.
    static void writeOld() {
        kvj::tests::write(copyPath, "old");
        std::filesystem::permissions(copyPath, std::filesystem::perms{0644});
    }
    static void expectOld() {
        EXPECT_EQ(contentOf(copyPath), "old");
        EXPECT_EQ(modeOf(copyPath), mode_t{0644});
    }
};

TEST_F(ServiceCopy, IsEveryCommandInTurn) {
    const std::filesystem::path path = folder / "command.xml";
    for (std::size_t i = 0; i < composers.size(); ++i) {
        const std::string text = printed([&](char* out) { return composers[i](control, out, someCapacity); });
        EXPECT_EQ(contentOf(copyPath), text) << i;
        EXPECT_TRUE(control.saveJob(Text(path.string()))) << i;
        EXPECT_EQ(contentOf(copyPath), contentOf(path)) << i;
    }
}

TEST_F(ServiceCopy, IsTheDocumentByteForByte) {
    cam("a & \"b\"", "up\n");
    EXPECT_EQ(contentOf(copyPath), command("<cam state=\"up&#x0A;\">a &amp; &quot;b&quot;</cam>"));
}

TEST_F(ServiceCopy, IsReadableByItsOwnerAlone) {
    const mode_t before = umask(0);
    motor(0, 0, 0, 9);
    umask(before);
    EXPECT_EQ(modeOf(copyPath), mode_t{0600});
}

TEST_F(ServiceCopy, ReplacesALongerOneThatEveryoneCouldRead) {
    kvj::tests::write(copyPath, std::string(5000, 'z'));
    std::filesystem::permissions(copyPath, std::filesystem::perms{0644});
    motor(0, 0, 0, 9);
    EXPECT_EQ(contentOf(copyPath), command("<motor state=\"off\" />"));
    EXPECT_EQ(modeOf(copyPath), mode_t{0600});
}

TEST_F(ServiceCopy, IsThatOfTheObjectThatWroteLast) {
    KVJDeviceControl second;
    motor(0, 0, 0, 9);
    printed([&](char* out) { return second.RunCamCommand(Text("lift"), Text("up"), out, someCapacity); });
    EXPECT_EQ(contentOf(copyPath), command("<cam state=\"up\">lift</cam>"));
    printedAgain();
    EXPECT_EQ(contentOf(copyPath), command("<motor state=\"off\" />"));
}

TEST_F(ServiceCopy, WithoutABufferNoCommandTouchesIt) {
    writeOld();
    for (std::size_t i = 0; i < composers.size(); ++i) {
        EXPECT_FALSE(composers[i](control, nullptr, someCapacity)) << i;
        EXPECT_FALSE(control.saveJob(nullptr, someCapacity)) << i;
        expectOld();
    }
}

TEST_F(ServiceCopy, WithoutABufferNoCommandCreatesIt) {
    for (std::size_t i = 0; i < composers.size(); ++i) {
        EXPECT_FALSE(composers[i](control, nullptr, 0)) << i;
        EXPECT_FALSE(std::filesystem::exists(copyPath)) << i;
    }
}

TEST_F(ServiceCopy, WithoutTheNameOfADeviceItIsNotTouched) {
    writeOld();
    std::string buffer(1000, '#');
    EXPECT_FALSE(control.RunOtherCommands(nullptr, Text("on"), nullptr, true, buffer.data(), someCapacity));
    EXPECT_FALSE(control.RunRFIDCommands(nullptr, 1, 2, buffer.data(), someCapacity));
    expectOld();
}

TEST_F(ServiceCopy, IsNotTouchedByASaveToAnotherFile) {
    motor(0, 0, 0, 9);
    writeOld();
    EXPECT_TRUE(control.saveJob(Text((folder / "command.xml").string())));
    expectOld();
}

TEST_F(ServiceCopy, ALinkIsNotFollowed) {
    const std::filesystem::path target = folder / "target";
    kvj::tests::write(target, "precious");
    std::filesystem::permissions(target, std::filesystem::perms{0644});
    std::filesystem::create_symlink(target, copyPath);
    EXPECT_EQ(motor(0, 0, 0, 9), command("<motor state=\"off\" />"));
    EXPECT_EQ(contentOf(target), "precious");
    EXPECT_EQ(modeOf(target), mode_t{0644});
    EXPECT_TRUE(std::filesystem::is_symlink(copyPath));
}

TEST_F(ServiceCopy, ThatItCannotBeWrittenIsNotReported) {
    std::filesystem::create_directory(copyPath);
    testing::internal::CaptureStderr();
    for (std::size_t i = 0; i < composers.size(); ++i) {
        EXPECT_TRUE(printed([&](char* out) { return composers[i](control, out, someCapacity); }).starts_with("<?xml"))
            << i;
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_TRUE(std::filesystem::is_empty(copyPath));
}

}  // namespace

}  // namespace device_control_test
