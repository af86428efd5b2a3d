/// @file secrets.h
/// What must not be seen over a shoulder, nor be left in the scrollback of a terminal.
#ifndef KVJXML_TOOL_SECRETS_H
#define KVJXML_TOOL_SECRETS_H

#include <string_view>

namespace kvj::tool {

/// What is shown in the place of a secret. No request may carry it: it would be sent as the key.
inline constexpr std::string_view masked = "********";

/// Whether a field of a record, "Kavrin::_WirelessParams" and "key", has a secret: the printer's and the network's
/// keys, passkeys, and what is on the magnetic stripe of a card.
bool isSecret(std::string_view record, std::string_view field);

/// Whether an element of this name may have one, in any message.
bool isSecretElement(std::string_view name);

}  // namespace kvj::tool

#endif
