#include "requests.h"

#include <KVJDeviceControl.h>
#include <KVJSetSecActions.h>

#include "composed.h"

namespace kvjxml::tool {

namespace {

using Kavrin::KVJSetSecActions;

/// Composes narrow text, in a buffer that holds whatever the arguments can become.
template <class Compose>
std::string narrow(const Arguments& arguments, Compose compose) {
    arguments.expectNoOthers();
    std::vector<char> out(arguments.room());
    if (!compose(out.data(), static_cast<int>(out.size()))) notComposed();
    return out.data();
}

template <class Compose>
std::string wide(const Arguments& arguments, Compose compose) {
    arguments.expectNoOthers();
    auto text = composed(compose);
    if (text.empty()) notComposed();
    return text;
}

std::string motor(Arguments& json, const Options& /*options*/) {
    const int state = json.number("state");
    const int direction = json.number("direction");
    const int speed = json.number("speed");
    const int motor = json.number("motor");
    return narrow(json, [&](char* out, int capacity) {
        return KVJDeviceControl().RunMotorCommand(state, direction, speed, motor, out, capacity);
    });
}

std::string motorMode(Arguments& json, const Options& /*options*/) {
    const int mode = json.number("mode");
    const int period = json.number("period");
    const float rpm = json.decimal("rpm");
    const int speed = json.number("speed");
    const bool forward = json.flag("forward");
    return narrow(json, [&](char* out, int capacity) {
        return KVJDeviceControl().RunMotorCommand(nullptr, mode, period, rpm, speed, forward, out, capacity);
    });
}

std::string cam(Arguments& json, const Options& /*options*/) {
    Text cam = json.requiredText("cam");
    Text state = json.requiredText("state");
    return narrow(json, [&](char* out, int capacity) {
        return KVJDeviceControl().RunCamCommand(cam.pointer(), state.pointer(), out, capacity);
    });
}

std::string calibrate(Arguments& json, const Options& /*options*/) {
    const int calibration = json.number("calibration");
    const float torque = json.decimal("torque");
    const float rpm = json.decimal("rpm");
    return narrow(json, [&](char* out, int capacity) {
        return KVJDeviceControl().RunCalibrateCommand(nullptr, calibration, torque, rpm, out, capacity);
    });
}

std::string other(Arguments& json, const Options& /*options*/) {
    Text device = json.elementName("device");
    Text text = json.text("text");
    Text panel = json.text("panel");
    const bool on = json.flag("on");
    return narrow(json, [&](char* out, int capacity) {
        return KVJDeviceControl().RunOtherCommands(device.pointer(), text.pointer(), panel.pointer(), on, out,
                                                   capacity);
    });
}

std::string rfid(Arguments& json, const Options& /*options*/) {
    Text device = json.elementName("device");
    const int mode = json.number("mode");
    const int antenna = json.number("antenna");
    return narrow(json, [&](char* out, int capacity) {
        return KVJDeviceControl().RunRFIDCommands(device.pointer(), mode, antenna, out, capacity);
    });
}

std::string nonce(Arguments& json, const Options& /*options*/) {
    Text nonce = json.requiredText("nonce");
    return wide(json, [&](wchar_t* out, int capacity) {
        return KVJSetSecActions().GetNonceXML(nonce.pointer(), out, capacity);
    });
}

std::string secureActionRequest(Arguments& json, const Options& /*options*/) {
    Text name = json.text("name");
    Text model = json.text("model");
    Text serial = json.text("serial");
    Text nonce = json.text("nonce");
    Kavrin::_tagSecActionXMLValues values{name.pointer(), model.pointer(), serial.pointer(), nonce.pointer(), nullptr};
    return wide(json, [&](wchar_t* out, int capacity) {
        return KVJSetSecActions().SecureActionRequestXML(values, out, capacity);
    });
}

std::string secureActionDirective(Arguments& json, const Options& /*options*/) {
    Text model = json.text("model");
    Text serial = json.text("serial");
    Text nonce = json.text("nonce");
    Text hmac = json.text("hmac");
    const int timeout = json.number("timeout");
    Kavrin::_tagSecActionXMLValues values{nullptr, model.pointer(), serial.pointer(), nonce.pointer(), hmac.pointer()};
    return wide(json, [&](wchar_t* out, int capacity) {
        return KVJSetSecActions().SecureActionDirectiveXML(values, out, capacity, timeout);
    });
}

std::string passkey(Arguments& json, const Options& /*options*/) {
    Text passkey = json.requiredText("passkey");
    return wide(json, [&](wchar_t* out, int capacity) {
        return KVJSetSecActions().GetSecureActionXML(passkey.pointer(), out, capacity);
    });
}

std::string passkeyChange(Arguments& json, const Options& /*options*/) {
    Text current = json.text("current_passkey");
    Text next = json.text("new_passkey");
    return wide(json, [&](wchar_t* out, int capacity) {
        return KVJSetSecActions().GetPasskeyXML(current.pointer(), next.pointer(), out, capacity);
    });
}

std::string keys(Arguments& json, const Options& /*options*/) {
    Kavrin::_tagSecKeys keys{};
    json.text("data_encryption_key", keys.data_encryption_key);
    json.text("host_authentication_key", keys.host_authentication_key);
    json.text("printer_lock_key", keys.printer_lock_key);
    return wide(json,
                [&](wchar_t* out, int capacity) { return KVJSetSecActions().SetSecureActionXML(keys, out, capacity); });
}

std::string keyChange(Arguments& json, const Options& /*options*/) {
    Text passkey = json.text("current_passkey");
    Text currentHost = json.text("current_host_authentication_key");
    Text newHost = json.text("new_host_authentication_key");
    Text currentData = json.text("current_data_encryption_key");
    Text newData = json.text("new_data_encryption_key");
    Text currentLock = json.text("current_printer_lock_key");
    Text newLock = json.text("new_printer_lock_key");
    const bool host = json.flag("host");
    const bool data = json.flag("data");
    const bool lock = json.flag("lock");
    return wide(json, [&](wchar_t* out, int capacity) {
        return KVJSetSecActions().SetHostAndEncryptXML(out, capacity, passkey.pointer(), currentHost.pointer(),
                                                       newHost.pointer(), currentData.pointer(), newData.pointer(),
                                                       currentLock.pointer(), newLock.pointer(), host, data, lock);
    });
}

constexpr Request table[] = {
    {"motor", "RunMotorCommand", "state, direction, speed, motor: whole numbers", motor},
    {"motor-mode", "RunMotorCommand", "mode, period, speed: whole numbers; rpm: number; forward: true or false",
     motorMode},
    {"cam", "RunCamCommand", "cam, state: texts", cam},
    {"calibrate", "RunCalibrateCommand", "calibration: whole number; torque, rpm: numbers", calibrate},
    {"other", "RunOtherCommands", "device, text, panel: texts; on: true or false", other},
    {"rfid", "RunRFIDCommands", "device: text; mode, antenna: whole numbers", rfid},
    {"nonce", "GetNonceXML", "nonce: text", nonce},
    {"secure-action-request", "SecureActionRequestXML", "name, model, serial, nonce: texts", secureActionRequest},
    {"secure-action-directive", "SecureActionDirectiveXML", "model, serial, nonce, hmac: texts; timeout: whole number",
     secureActionDirective},
    {"passkey", "GetSecureActionXML", "passkey: text", passkey},
    {"passkey-change", "GetPasskeyXML", "current_passkey, new_passkey: texts", passkeyChange},
    {"keys", "SetSecureActionXML", "data_encryption_key, host_authentication_key, printer_lock_key: texts", keys},
    {"key-change", "SetHostAndEncryptXML",
     "current_passkey, current_ and new_ host_authentication_key, data_encryption_key and printer_lock_key: texts; "
     "host, "
     "data, lock: true or false",
     keyChange},
};

}  // namespace

CLI::Validator oneOf(const NamedNumbers& numbers) {
    return {[numbers](std::string& text) {
                const auto found = numbers.find(text);
                if (found == numbers.end()) {
                    std::string reason = "\"" + text + "\" is none of";
                    for (const auto& [name, number] : numbers) reason.append(" ").append(name);
                    return reason;
                }
                text = std::to_string(found->second);
                return std::string();
            },
            ""};
}

std::span<const Request> valueRequests() { return table; }

std::vector<Request> requests() {
    std::vector<Request> all(recordRequests().begin(), recordRequests().end());
    all.insert(all.end(), valueRequests().begin(), valueRequests().end());
    return all;
}

}  // namespace kvjxml::tool
