// The service commands. Their buffers hold 256 characters and six for each character of the texts passed in, which
// "are always enough".
#include <KVJDeviceControl.h>

#include "composing.h"

namespace {

using kvj::fuzz::Text;
using kvj::fuzz::Values;

template <class Compose>
void check(std::size_t lengthOfTexts, Compose compose) {
    kvj::fuzz::checkNarrow<KVJDeviceControl>(256 + 6 * lengthOfTexts, compose);
}

void motor(Values& values) {
    const int state = values.number();
    const int direction = values.number();
    const int speed = values.number();
    const int motor = values.number();
    check(0, [&](KVJDeviceControl& composer, char* out, int capacity) {
        return composer.RunMotorCommand(state, direction, speed, motor, out, capacity);
    });
}

void motorMode(Values& values) {
    const int mode = values.number();
    const int period = values.number();
    const float rpm = values.decimal();
    const int speed = values.number();
    const bool forward = values.flag();
    check(0, [&](KVJDeviceControl& composer, char* out, int capacity) {
        return composer.RunMotorCommand(nullptr, mode, period, rpm, speed, forward, out, capacity);
    });
}

void cam(Values& values) {
    const Text cam = values.text();
    const Text state = values.text();
    check(cam.length() + state.length(), [&](KVJDeviceControl& composer, char* out, int capacity) {
        return composer.RunCamCommand(cam.pointer(), state.pointer(), out, capacity);
    });
}

void calibrate(Values& values) {
    const int calibration = values.number();
    const float torque = values.decimal();
    const float rpm = values.decimal();
    check(0, [&](KVJDeviceControl& composer, char* out, int capacity) {
        return composer.RunCalibrateCommand(nullptr, calibration, torque, rpm, out, capacity);
    });
}

void other(Values& values) {
    const Text device = values.text();
    const Text text = values.text();
    const Text panel = values.text();
    const bool on = values.flag();
    check(device.length() + text.length() + panel.length(), [&](KVJDeviceControl& composer, char* out, int capacity) {
        return composer.RunOtherCommands(device.pointer(), text.pointer(), panel.pointer(), on, out, capacity);
    });
}

void rfid(Values& values) {
    const Text device = values.text();
    const int mode = values.number();
    const int antenna = values.number();
    check(device.length(), [&](KVJDeviceControl& composer, char* out, int capacity) {
        return composer.RunRFIDCommands(device.pointer(), mode, antenna, out, capacity);
    });
}

constexpr kvj::fuzz::Operation operations[] = {
    {"RunMotorCommand", motor},  {"RunMotorCommand by mode", motorMode},
    {"RunCamCommand", cam},      {"RunCalibrateCommand", calibrate},
    {"RunOtherCommands", other}, {"RunRFIDCommands", rfid},
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kvj::fuzz::run(operations, data, size);
}
