/// @file records.h
/// Records compared field by field. Who uses it includes the list of the record's fields.
#ifndef KVJXML_TESTS_SUPPORT_RECORDS_H
#define KVJXML_TESTS_SUPPORT_RECORDS_H

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>
#include <vector>

#include "fields/differences.h"
#include "fields/list.h"

namespace kvj::tests {

template <class Record>
void expectEqual(const Record& actual, const std::type_identity_t<Record>& expected) {
    EXPECT_EQ(describeDifferences(recordType<Record>, &expected, &actual), "");
}

template <class Record>
void expectEqual(const std::vector<Record>& actual, const std::type_identity_t<std::vector<Record>>& expected) {
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, i);
        expectEqual(actual[i], expected[i]);
    }
}

}  // namespace kvj::tests

#endif
