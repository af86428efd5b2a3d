#include "devicecontrol/commands.h"

#include "devicecontrol/tables.h"
#include "foundation/convert.h"
#include "foundation/sent.h"

namespace kvj::devicecontrol {

namespace {

bool setNumber(Parent element, const char* name, int value) {
    return setAttribute(element, name, convert::fromInt(value).c_str());
}

bool is(const char* text, const char* word) { return text != nullptr && convert::equal(text, word); }

}  // namespace

bool addCommand(Parent root, const command::Motor& it) {
    const Parent element = addTag(root, "motor");
    setAttribute(element, "state", it.state == 1 ? "on" : "off");
    if (it.state == 1) {
        setAttribute(element, "direction", it.direction != 0 ? "reverse" : "forward");
        if (hasDistance(it.motor)) setAttribute(element, "distance", "0");
        if (it.motor != ribbonMotor) setNumber(element, "speed", it.speed);
    }
    addWordText(element, motors, it.motor, "motor");
    return true;
}

bool addCommand(Parent root, const command::MotorMode& it) {
    const Parent element = addTag(root, "motor");
    setWord(element, "state", motorModes, it.mode, "mode");
    if (it.mode == motorOn) {
        setAttribute(element, "direction", it.forward ? "forward" : "reverse");
        setNumber(element, "speed", it.speed);
    } else if (it.mode == motorWarmUp) {
        setArgument(element, "rpm", it.rpm, "rpm");
        setNumber(element, "period", it.period);
    }
    return true;
}

bool addCommand(Parent root, const command::Cam& it) {
    const Parent element = addTag(root, "cam");
    need(element, it.state, "state", "/@state");
    need(element, it.cam, "cam");
    setArgument(element, "state", it.state, "state");
    addArgumentText(element, it.cam, "cam");
    return true;
}

bool addCommand(Parent root, const command::Calibrate& it) {
    const Parent element = addTag(root, "calibrate");
    setWord(element, "type", calibrations, it.calibration, "calibration");
    if (hasTorque(it.calibration)) {
        setArgument(element, "torque", it.torque, "torque");
        setArgument(element, "rpm", it.rpm, "rpm");
    }
    return true;
}

bool addCommand(Parent root, const command::Other& it) {
    need(root, it.device, "device");
    const Parent element = addNamed(root, it.device, "device");
    if (!element) return false;
    if (codeOf(switchedDevices, it.device)) {
        setAttribute(element, "state", it.on ? "on" : "off");
    } else if (is(it.device, "advance")) {
        setArgument(element, "panel", it.panel, "panel");
    } else if (is(it.device, "laminator")) {
        if (const auto spool = codeOf(spoolTexts, it.text)) {
            setAttribute(element, "spool", wordOf(spools, *spool));
            return addArgumentText(element, it.text, "text", "scal");
        }
    } else if (is(it.device, "radio") && is(it.text, "scan")) {
        setNumber(element, "iterations", 1);
    }
    addArgumentText(element, it.text, "text");
    return true;
}

bool addCommand(Parent root, const command::Rfid& it) {
    need(root, it.device, "device");
    const Parent element = addNamed(root, it.device, "device");
    if (!element) return false;
    if (is(it.device, "rfid")) setNumber(element, "antenna", it.antenna);
    addWordText(element, rfidModes, it.mode, "mode");
    return true;
}

}  // namespace kvj::devicecontrol
