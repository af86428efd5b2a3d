/// @file field_rows.h
/// The rows of all tables, and by which of them a field is read or written.
#ifndef KVJXML_TOOL_FIELD_ROWS_H
#define KVJXML_TOOL_FIELD_ROWS_H

#include <span>
#include <string_view>
#include <vector>

#include "foundation/kinds.h"

namespace kvj::tool {

/// Every row that messages read with, those of groups included, each once.
std::span<const DescribedRow* const> rowsOfMessages();
/// Every row that requests are written with.
std::span<const DescribedRow* const> rowsOfRequests();

/// The name of a record as rows have it, without its namespace.
inline std::string_view unqualified(std::string_view record) { return record.substr(record.rfind(':') + 1); }

/// Whether a row is for a field of a record, as the field itself or as its other one.
inline bool isFor(const DescribedRow& row, std::string_view record, std::string_view field) {
    const auto is = [&](const FieldName& name) { return name.record == unqualified(record) && name.name == field; };
    return is(row.description.field) || is(row.description.otherField);
}

/// The rows among `rows` for a field; several messages can have one.
std::vector<const DescribedRow*> rowsFor(std::span<const DescribedRow* const> rows, std::string_view record,
                                         std::string_view field);

/// The words of a code that messages read; null where a field is no code.
const NamedWords* wordsRead(std::string_view record, std::string_view field);
/// The words of a code that requests write.
const NamedWords* wordsWritten(std::string_view record, std::string_view field);

}  // namespace kvj::tool

#endif
