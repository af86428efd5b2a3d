/// @file merged_rows.h
/// The rows of all readers of one document: several may each take a part of it.
#ifndef KVJXML_TOOL_MERGED_ROWS_H
#define KVJXML_TOOL_MERGED_ROWS_H

#include <string_view>
#include <vector>

#include "messages/message.h"

namespace kvj::tool {

/// What readers make of an element of one name.
struct MergedRow {
    std::string_view name;
    std::vector<const Description*> descriptions;  ///< one at least

    [[nodiscard]] bool has(Kind kind) const;
    /// The rows of the elements inside.
    [[nodiscard]] std::vector<MergedRow> group() const;
};

/// The messages whose root has that name.
std::vector<const Message*> messagesWithRoot(std::string_view root);

/// The rows of the elements in the root of these messages.
std::vector<MergedRow> mergedRows(const std::vector<const Message*>& messages);

}  // namespace kvj::tool

#endif
