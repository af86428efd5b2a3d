/// @file field_at.h
/// What a JSON pointer points to in a record.
#ifndef KVJXML_TOOL_FIELD_AT_H
#define KVJXML_TOOL_FIELD_AT_H

#include <string>
#include <string_view>
#include <vector>

#include "fields/field.h"

namespace kvj::tool {

/// A field with the record that it belongs to.
struct FieldOfRecord {
    const RecordType* record;
    const Field* field;
};

/// The parts of a JSON pointer, unescaped.
std::vector<std::string> partsOf(std::string_view pointer);

/// The fields on the way to a place, the outermost first, as far as the record has them. Entries of lists count as
/// their list.
std::vector<FieldOfRecord> fieldsTo(const RecordType& type, std::string_view pointer);

/// Whether what stands there is a secret.
bool isSecretAt(const RecordType& type, std::string_view pointer);

}  // namespace kvj::tool

#endif
