#include "merged_rows.h"

#include <algorithm>

namespace kvj::tool {

namespace {

void merge(std::span<const DescribedRow> table, std::vector<MergedRow>& rows) {
    for (const DescribedRow& row : table) {
        auto same = std::ranges::find(rows, row.name, &MergedRow::name);
        if (same == rows.end()) same = rows.insert(rows.end(), {row.name, {}});
        same->descriptions.push_back(&row.description);
    }
}

}  // namespace

bool MergedRow::has(Kind kind) const {
    return std::ranges::any_of(descriptions, [&](const Description* each) { return each->kind == kind; });
}

std::vector<MergedRow> MergedRow::group() const {
    std::vector<MergedRow> rows;
    for (const Description* const each : descriptions) merge(each->group, rows);
    return rows;
}

std::vector<const Message*> messagesWithRoot(std::string_view root) {
    std::vector<const Message*> found;
    for (const Message& message : messages()) {
        if (message.root == root || (!message.otherRoot.empty() && message.otherRoot == root))
            found.push_back(&message);
    }
    return found;
}

std::vector<MergedRow> mergedRows(const std::vector<const Message*>& messages) {
    std::vector<MergedRow> rows;
    for (const Message* const message : messages) merge(message->table, rows);
    return rows;
}

}  // namespace kvj::tool
