/// @file messages.h
/// The replies that the tool knows: one row per reader.
#ifndef KVJXML_TOOL_MESSAGES_H
#define KVJXML_TOOL_MESSAGES_H

#include <span>
#include <string_view>

#include "foundation/rows.h"
#include "input.h"
#include "json_printer.h"

namespace kvjxml::tool {

struct Message {
    std::string_view root;                ///< the reply's root element
    std::string_view otherRoot;           ///< another that its reader takes; empty when there is none
    std::string_view reader;              ///< the library's operation
    std::span<const DescribedRow> table;  ///< what that operation reads
    /// Reads the reply and prints the record, a long list entry by entry.
    /// @return what the reader returned; whether it had anything to read when it does not say.
    bool (*decode)(const Input& input, JsonPrinter& json);
};

std::span<const Message> messages();

}  // namespace kvjxml::tool

#endif
