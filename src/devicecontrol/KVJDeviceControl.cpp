#include "KVJDeviceControl.h"

#include "devicecontrol/commands.h"
#include "foundation/diagnostic_copy.h"
#include "foundation/request.h"

namespace command = kvj::command;
using kvj::beginRequestAnew;
using kvj::devicecontrol::addCommand;
using kvj::devicecontrol::rootName;

bool KVJDeviceControl::RunMotorCommand(int state, int direction, int speed, int motor, char* out, int capacity) {
    root_ = beginRequestAnew(*this, rootName);
    return addCommand(root_, command::Motor{state, direction, speed, motor}) && saveJob(out, capacity);
}

bool KVJDeviceControl::RunMotorCommand(char* /*name*/, int mode, int period, float rpm, int speed, bool forward,
                                       char* out, int capacity) {
    root_ = beginRequestAnew(*this, rootName);
    return addCommand(root_, command::MotorMode{mode, period, rpm, speed, forward}) && saveJob(out, capacity);
}

bool KVJDeviceControl::RunCamCommand(char* cam, char* state, char* out, int capacity) {
    root_ = beginRequestAnew(*this, rootName);
    return addCommand(root_, command::Cam{cam, state}) && saveJob(out, capacity);
}

bool KVJDeviceControl::RunCalibrateCommand(char* /*name*/, int calibration, float torque, float rpm, char* out,
                                           int capacity) {
    root_ = beginRequestAnew(*this, rootName);
    return addCommand(root_, command::Calibrate{calibration, torque, rpm}) && saveJob(out, capacity);
}

bool KVJDeviceControl::RunOtherCommands(char* device, char* text, char* panel, bool on, char* out, int capacity) {
    root_ = beginRequestAnew(*this, rootName);
    return addCommand(root_, command::Other{device, text, panel, on}) && saveJob(out, capacity);
}

bool KVJDeviceControl::RunRFIDCommands(char* device, int mode, int antenna, char* out, int capacity) {
    root_ = beginRequestAnew(*this, rootName);
    return addCommand(root_, command::Rfid{device, mode, antenna}) && saveJob(out, capacity);
}

bool KVJDeviceControl::saveJob(char* out, int /*capacity*/) {
    if (out == nullptr) return false;
    kvj::keepDiagnosticCopy(*this, "/tmp/composedXML");
    return kvj::print(*this, out);
}

bool KVJDeviceControl::saveJob(char* path) { return kvj::save(*this, path); }
