/// @file commands.h
/// What the requests without a record of their own are made of: the arguments of their composer, as a record, with the
/// lists of their fields.
#ifndef KVJXML_MESSAGES_COMMANDS_H
#define KVJXML_MESSAGES_COMMANDS_H

#include "fields/list.h"
#include "kvjxml_arguments.hpp"

namespace kvj {

namespace command = kvjxml::arguments;

// clang-format off

template <>
inline constexpr FieldList<
    &command::Motor::state,
    &command::Motor::direction,
    &command::Motor::speed,
    &command::Motor::motor>
    fields<command::Motor>{};

template <>
inline constexpr FieldList<
    &command::MotorMode::mode,
    &command::MotorMode::period,
    &command::MotorMode::rpm,
    &command::MotorMode::speed,
    &command::MotorMode::forward>
    fields<command::MotorMode>{};

template <>
inline constexpr FieldList<
    needed<&command::Cam::cam>,
    needed<&command::Cam::state>>
    fields<command::Cam>{};

template <>
inline constexpr FieldList<
    &command::Calibrate::calibration,
    &command::Calibrate::torque,
    &command::Calibrate::rpm>
    fields<command::Calibrate>{};

template <>
inline constexpr FieldList<
    elementName<&command::Other::device>,
    &command::Other::text,
    &command::Other::panel,
    &command::Other::on>
    fields<command::Other>{};

template <>
inline constexpr FieldList<
    elementName<&command::Rfid::device>,
    &command::Rfid::mode,
    &command::Rfid::antenna>
    fields<command::Rfid>{};

template <>
inline constexpr FieldList<
    needed<&command::Nonce::nonce>>
    fields<command::Nonce>{};

template <>
inline constexpr FieldList<
    &command::ActionRequest::name,
    &command::ActionRequest::model,
    &command::ActionRequest::serial,
    &command::ActionRequest::nonce>
    fields<command::ActionRequest>{};

template <>
inline constexpr FieldList<
    &command::ActionDirective::model,
    &command::ActionDirective::serial,
    &command::ActionDirective::nonce,
    &command::ActionDirective::hmac,
    &command::ActionDirective::timeout>
    fields<command::ActionDirective>{};

template <>
inline constexpr FieldList<
    needed<&command::Passkey::passkey>>
    fields<command::Passkey>{};

template <>
inline constexpr FieldList<
    &command::PasskeyChange::current_passkey,
    &command::PasskeyChange::new_passkey>
    fields<command::PasskeyChange>{};

template <>
inline constexpr FieldList<
    &command::KeyChange::current_passkey,
    &command::KeyChange::current_host_authentication_key,
    &command::KeyChange::new_host_authentication_key,
    &command::KeyChange::current_data_encryption_key,
    &command::KeyChange::new_data_encryption_key,
    &command::KeyChange::current_printer_lock_key,
    &command::KeyChange::new_printer_lock_key,
    &command::KeyChange::host,
    &command::KeyChange::data,
    &command::KeyChange::lock>
    fields<command::KeyChange>{};

// clang-format on

}  // namespace kvj

#endif
