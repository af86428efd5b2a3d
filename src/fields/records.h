/// @file records.h
/// All records of the library.
#ifndef KVJXML_FIELDS_RECORDS_H
#define KVJXML_FIELDS_RECORDS_H

#include <span>

#include "fields/field.h"

namespace kvj {

std::span<const RecordType* const> recordTypes();

}  // namespace kvj

#endif
