/// @file security/actions.h
/// The host's side of the hand-shake: how each message is composed of its arguments.
#ifndef KVJXML_SECURITY_ACTIONS_H
#define KVJXML_SECURITY_ACTIONS_H

#include "SecurityRecords.h"
#include "foundation/tags.h"
#include "messages/commands.h"

namespace kvj::security {

/// The root of a message by its arguments.
template <class Arguments>
inline constexpr const char* rootName = "keys";
template <>
inline constexpr const char* rootName<command::Nonce> = "nonce";
template <>
inline constexpr const char* rootName<command::Passkey> = "passkey";
template <>
inline constexpr const char* rootName<command::ActionRequest> = "secure_action_request";
template <>
inline constexpr const char* rootName<command::ActionDirective> = "secure_action_request";

/// Fills the root; false when what is to be its text is missing.
bool addAction(Parent root, const command::Nonce& it);
bool addAction(Parent root, const command::Passkey& it);
bool addAction(Parent root, const command::ActionRequest& it);
bool addAction(Parent root, const command::ActionDirective& it);
bool addAction(Parent root, const command::PasskeyChange& it);
bool addAction(Parent root, const command::KeyChange& it);
bool addAction(Parent root, const Kavrin::_tagSecKeys& it);

}  // namespace kvj::security

#endif
