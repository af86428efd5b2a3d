/// @file face/value_check.h
/// Whether a value is what its element says.
#ifndef KVJXML_FACE_VALUE_CHECK_H
#define KVJXML_FACE_VALUE_CHECK_H

#include "face/diagnosis.h"
#include "fields/field.h"
#include "foundation/watch.h"

namespace kvj {

/// The field of that name and its record; null where there is none.
struct KnownField {
    const RecordType* record = nullptr;
    const Field* field = nullptr;
    explicit operator bool() const noexcept { return field != nullptr; }
};
KnownField knownField(const FieldName& name);

/// Appends what is wrong with what was read.
void checkValue(const Read& read, Candidates& candidates);

}  // namespace kvj

#endif
