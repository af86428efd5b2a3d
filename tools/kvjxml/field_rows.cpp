#include "field_rows.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "messages/message.h"
#include "messages/request.h"

namespace kvj::tool {

namespace {

using Rows = std::vector<const DescribedRow*>;

// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void collect(std::span<const DescribedRow> table, Rows& rows, std::set<const DescribedRow*>& seen) {
    for (const DescribedRow& row : table) {
        if (!seen.insert(&row).second) continue;
        rows.push_back(&row);
        collect(row.description.group, rows, seen);
    }
}

template <class Tables>
Rows rowsOf(const Tables& tables) {
    Rows rows;
    std::set<const DescribedRow*> seen;
    for (const auto& each : tables) collect(each.table, rows, seen);
    return rows;
}

const NamedWords* wordsAmong(std::span<const DescribedRow* const> rows, std::string_view record,
                             std::string_view field) {
    for (const DescribedRow* const row : rowsFor(rows, record, field)) {
        // Beside a text stands its code.
        const bool isText = row->description.kind == Kind::textAndCode && row->description.field.name == field;
        if (!row->description.words.name.empty() && !isText) return &row->description.words;
    }
    return nullptr;
}

}  // namespace

std::span<const DescribedRow* const> rowsOfMessages() {
    static const Rows rows = rowsOf(messages());
    return rows;
}

std::span<const DescribedRow* const> rowsOfRequests() {
    static const Rows rows = rowsOf(requests());
    return rows;
}

std::vector<const DescribedRow*> rowsFor(std::span<const DescribedRow* const> rows, std::string_view record,
                                         std::string_view field) {
    Rows found;
    std::ranges::copy_if(rows, std::back_inserter(found),
                         [&](const DescribedRow* row) { return isFor(*row, record, field); });
    return found;
}

const NamedWords* wordsRead(std::string_view record, std::string_view field) {
    return wordsAmong(rowsOfMessages(), record, field);
}

const NamedWords* wordsWritten(std::string_view record, std::string_view field) {
    return wordsAmong(rowsOfRequests(), record, field);
}

}  // namespace kvj::tool
