/// @file decode.h
/// The verb that shows what captured replies say.
#ifndef KVJXML_TOOL_DECODE_H
#define KVJXML_TOOL_DECODE_H

#include <span>
#include <string>
#include <string_view>

#include "captures.h"
#include "decoded_document.h"
#include "exit_code.h"
#include "view.h"

namespace kvj::tool {

/// How documents are printed.
struct Format {
    std::string_view name;
    std::string_view summary;  ///< for --help
    Counting counting;         ///< whether it shows how much was ignored, changed or lost
    Keeping keeping;           ///< whether it shows what was sent even if not asked to
    void (*print)(const Capture& capture, const DecodedDocument& document, const View& view);
    OnFailure fail;
};

/// The first one is the default.
std::span<const Format> formats();

/// Prints the records of all documents. One that is damaged is printed as far as it goes.
/// @param message  the root element of the message to look for; empty to go by the document.
/// @throws std::exception when standard output cannot be written.
ExitCode decode(const Captures& captures, const std::string& message, const Format& format, const View& view);

}  // namespace kvj::tool

#endif
