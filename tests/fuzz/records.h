/// @file records.h
/// Records as a host could make them, by the lists of their fields: numbers and codes of any value, texts that are not
/// terminated, lists that are empty or missing.
#ifndef KVJXML_TESTS_FUZZ_RECORDS_H
#define KVJXML_TESTS_FUZZ_RECORDS_H

#include <memory>
#include <vector>

#include "fields/list.h"
#include "values.h"

namespace kvj::fuzz {

/// Keeps the arrays that records point to.
using Arrays = std::vector<std::shared_ptr<char[]>>;

/// Fills the fields of a record with the next values of the input.
void fill(const RecordType& type, void* record, Values& values, Arrays& arrays);

/// A record of zeros that is filled in this way, in memory of exactly its size.
template <class Record>
std::unique_ptr<Record> recordOf(Values& values, Arrays& arrays) {
    auto record = std::make_unique<Record>();
    fill(recordType<Record>, record.get(), values, arrays);
    return record;
}

}  // namespace kvj::fuzz

#endif
