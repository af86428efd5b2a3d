/// @file decode_message.h
/// What is made of a document, as JSON and for eyes.
#ifndef KVJXML_TOOL_DECODE_MESSAGE_H
#define KVJXML_TOOL_DECODE_MESSAGE_H

#include <ostream>

#include "decoded_document.h"
#include "json_printer.h"
#include "view.h"

namespace kvj::tool {

/// Prints the record of a document, a long list entry by entry; where there are several readers, an object that has the
/// record of each under its name. What comes from a damaged document is an object that says so first.
void printDocument(JsonPrinter& json, const DecodedDocument& document, const View& view);

/// Prints the same for eyes, a block for each reader. What was sent has to be kept.
void printText(std::ostream& out, const DecodedDocument& document, const View& view);

}  // namespace kvj::tool

#endif
