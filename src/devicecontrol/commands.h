/// @file devicecontrol/commands.h
/// The service commands: how each is composed of its arguments.
#ifndef KVJXML_DEVICECONTROL_COMMANDS_H
#define KVJXML_DEVICECONTROL_COMMANDS_H

#include "foundation/tags.h"
#include "messages/commands.h"

namespace kvj::devicecontrol {

inline constexpr const char* rootName = "device_control";

/// Adds the element of the command's device; false when that has no name.
bool addCommand(Parent root, const command::Motor& it);
bool addCommand(Parent root, const command::MotorMode& it);
bool addCommand(Parent root, const command::Cam& it);
bool addCommand(Parent root, const command::Calibrate& it);
bool addCommand(Parent root, const command::Other& it);
bool addCommand(Parent root, const command::Rfid& it);

}  // namespace kvj::devicecontrol

#endif
