// The tables that the tool, the hostile tests and the fuzzer take the operations from.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "messages/message.h"
#include "messages/request.h"
#include "support/lines.h"

namespace operations_test {

namespace {

using kvj::tests::exported;

template <class Rows>
std::vector<std::string> operationsOf(const Rows& rows) {
    std::vector<std::string> names;
    for (const auto& row : rows) names.emplace_back(row.operation);
    return names;
}

// A reader takes a text, its length and where to read it to; composers are of classes that set something.
TEST(Messages, AreAllThatTheLibraryReads) {
    EXPECT_THAT(
        operationsOf(kvj::messages()),
        testing::UnorderedElementsAreArray(exported(
            R"(\w+::(?!KVJSet)\w+::(\w+)\((wchar_t const&|wchar_t\*|char const&|char const\*), (int|unsigned long), .*)")));
}

// A composer takes a buffer and its size; `saveJob` prints what is composed already.
TEST(Requests, AreAllThatTheLibraryComposes) {
    EXPECT_THAT(
        operationsOf(kvj::requests()),
        testing::UnorderedElementsAreArray(exported(
            R"((?:\w+::KVJSet\w+(?=.*wchar_t\*, int)|KVJDeviceControl)::(?!saveJob)(\w+)\(.*(wchar_t|char)\*, int.*)")));
}

}  // namespace

}  // namespace operations_test
