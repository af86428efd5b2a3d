/// @file kvjxml_arguments.hpp
/// What the requests without a record of their own are made of, as plain structures that pass between any two
/// compilers. Hosts fill those of kvjxml_compose.hpp, with texts that own their characters.
#ifndef KVJXML_ARGUMENTS_HPP
#define KVJXML_ARGUMENTS_HPP

namespace kvjxml {
inline namespace v1 {

/// The names are those of the arguments. Texts are the host's, terminated; null leaves out what the text would be.
namespace arguments {

// ---- Service commands, see KVJDeviceControl ----

struct Motor {
    int state;
    int direction;
    int speed;
    int motor;
};

struct MotorMode {
    int mode;
    int period;
    float rpm;
    int speed;
    bool forward;
};

struct Cam {
    const char* cam;
    const char* state;
};

struct Calibrate {
    int calibration;
    float torque;
    float rpm;
};

struct Other {
    const char* device;
    const char* text;
    const char* panel;
    bool on;
};

struct Rfid {
    const char* device;
    int mode;
    int antenna;
};

// ---- The hand-shake, see KVJSetSecActions ----

struct Nonce {
    const char* nonce;
};

struct ActionRequest {
    const char* name;
    const char* model;
    const char* serial;
    const char* nonce;
};

struct ActionDirective {
    const char* model;
    const char* serial;
    const char* nonce;
    const char* hmac;
    int timeout;
};

struct Passkey {
    const char* passkey;
};

struct PasskeyChange {
    const char* current_passkey;
    const char* new_passkey;
};

struct KeyChange {
    const char* current_passkey;
    const char* current_host_authentication_key;
    const char* new_host_authentication_key;
    const char* current_data_encryption_key;
    const char* new_data_encryption_key;
    const char* current_printer_lock_key;
    const char* new_printer_lock_key;
    bool host;
    bool data;
    bool lock;
};

}  // namespace arguments

}  // namespace v1
}  // namespace kvjxml

#endif
