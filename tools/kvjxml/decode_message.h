/// @file decode_message.h
/// What one reader makes of a reply, as JSON.
#ifndef KVJXML_TOOL_DECODE_MESSAGE_H
#define KVJXML_TOOL_DECODE_MESSAGE_H

#include "input.h"
#include "json_printer.h"
#include "messages/message.h"
#include "view.h"

namespace kvj::tool {

/// Reads the reply and prints the record, a long list entry by entry.
void decodeMessage(const Message& message, const Input& input, JsonPrinter& json, const View& view);

/// Reads the reply and prints the record for eyes.
void showMessage(const Message& message, const Input& input, bool isWhole, const View& view);

}  // namespace kvj::tool

#endif
