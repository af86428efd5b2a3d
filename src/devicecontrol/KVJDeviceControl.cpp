#include "KVJDeviceControl.h"

#include "devicecontrol/tables.h"
#include "foundation/convert.h"
#include "foundation/diagnostic_copy.h"
#include "foundation/request.h"
#include "foundation/tags.h"

namespace convert = kvj::convert;
namespace tables = kvj::devicecontrol;
using kvj::addText;
using kvj::setAttribute;
using kvj::wordOf;

namespace {

bool setAttribute(TiXmlElement* element, const char* name, int value) {
    return setAttribute(element, name, convert::fromInt(value).c_str());
}

/// A number as the printer takes torques and revolutions, with one decimal.
bool setAttribute(TiXmlElement* element, const char* name, float value) {
    return setAttribute(element, name, convert::fromDouble(value, 1).c_str());
}

/// Begins a command with its root, and adds the element of its device; null when the device has no name.
TiXmlElement* beginCommand(TiXmlDocument& command, TiXmlElement*& root, const char* device) {
    root = kvj::beginRequestAnew(command, "device_control");
    return kvj::addTag(root, device);
}

bool is(const char* text, const char* word) { return text != nullptr && convert::equal(text, word); }

}  // namespace

bool KVJDeviceControl::RunMotorCommand(int state, int direction, int speed, int motor, char* out, int capacity) {
    TiXmlElement* element = beginCommand(*this, root_, "motor");
    if (state == 1) {
        setAttribute(element, "state", "on");
        setAttribute(element, "direction", direction != 0 ? "reverse" : "forward");
        if (tables::hasDistance(motor)) setAttribute(element, "distance", "0");
        if (motor != tables::ribbonMotor) setAttribute(element, "speed", speed);
    } else {
        setAttribute(element, "state", "off");
    }
    addText(element, wordOf(tables::motors, motor));
    return saveJob(out, capacity);
}

bool KVJDeviceControl::RunMotorCommand(char* /*name*/, int mode, int period, float rpm, int speed, bool forward,
                                       char* out, int capacity) {
    TiXmlElement* element = beginCommand(*this, root_, "motor");
    switch (mode) {
        case 0:
            setAttribute(element, "state", "off");
            break;
        case 1:
            setAttribute(element, "state", "on");
            setAttribute(element, "direction", forward ? "forward" : "reverse");
            setAttribute(element, "speed", speed);
            break;
        case 2:
            setAttribute(element, "state", "warm_up");
            setAttribute(element, "rpm", rpm);
            setAttribute(element, "period", period);
            break;
        default:
            break;
    }
    return saveJob(out, capacity);
}

bool KVJDeviceControl::RunCamCommand(char* cam, char* state, char* out, int capacity) {
    TiXmlElement* element = beginCommand(*this, root_, "cam");
    setAttribute(element, "state", state);
    addText(element, cam);
    return saveJob(out, capacity);
}

bool KVJDeviceControl::RunCalibrateCommand(char* /*name*/, int calibration, float torque, float rpm, char* out,
                                           int capacity) {
    TiXmlElement* element = beginCommand(*this, root_, "calibrate");
    setAttribute(element, "type", wordOf(tables::calibrations, calibration));
    if (tables::hasTorque(calibration)) {
        setAttribute(element, "torque", torque);
        setAttribute(element, "rpm", rpm);
    }
    return saveJob(out, capacity);
}

bool KVJDeviceControl::RunOtherCommands(char* device, char* text, char* panel, bool on, char* out, int capacity) {
    TiXmlElement* element = beginCommand(*this, root_, device);
    if (element == nullptr) return false;
    const char* content = text;
    if (codeOf(tables::switchedDevices, device)) {
        setAttribute(element, "state", on ? "on" : "off");
    } else if (is(device, "advance")) {
        setAttribute(element, "panel", panel);
    } else if (is(device, "laminator")) {
        if (const auto spool = codeOf(tables::spoolTexts, text)) {
            setAttribute(element, "spool", wordOf(tables::spools, *spool));
            content = "scal";
        }
    } else if (is(device, "radio") && is(text, "scan")) {
        setAttribute(element, "iterations", 1);
    }
    addText(element, content);
    return saveJob(out, capacity);
}

bool KVJDeviceControl::RunRFIDCommands(char* device, int mode, int antenna, char* out, int capacity) {
    TiXmlElement* element = beginCommand(*this, root_, device);
    if (element == nullptr) return false;
    if (is(device, "rfid")) setAttribute(element, "antenna", antenna);
    addText(element, wordOf(tables::rfidModes, mode));
    return saveJob(out, capacity);
}

bool KVJDeviceControl::saveJob(char* out, int /*capacity*/) {
    if (out == nullptr) return false;
    kvj::keepDiagnosticCopy(*this, "/tmp/composedXML");
    return kvj::print(*this, out);
}

bool KVJDeviceControl::saveJob(char* path) { return kvj::save(*this, path); }
