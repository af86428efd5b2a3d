/// @file differences.h
/// Compares records field by field.
#ifndef KVJXML_FIELDS_DIFFERENCES_H
#define KVJXML_FIELDS_DIFFERENCES_H

#include <string>
#include <vector>

#include "fields/field.h"

namespace kvj {

struct Difference {
    std::string path;  ///< of the field, such as "/wireless/ssid" or "/jobs/3/uuid"
    std::string expected;
    std::string actual;
    bool operator==(const Difference&) const = default;
};

/// The fields of two records of one type that differ: texts up to their NUL, entries of lists up to their count. What
/// is behind a NUL or between fields does not count.
std::vector<Difference> differences(const RecordType& type, const void* expected, const void* actual);

/// The same, for people: one line for each; empty when there is none.
std::string describeDifferences(const RecordType& type, const void* expected, const void* actual);

}  // namespace kvj

#endif
