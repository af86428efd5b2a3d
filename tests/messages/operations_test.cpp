// The tables that the tool, the hostile tests and the fuzzer take the operations from.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <string>
#include <vector>

#include "messages/message.h"
#include "messages/request.h"

namespace {

/// The names in what the library exports: the pattern's first group.
std::vector<std::string> exported(const std::string& pattern) {
    const std::regex operation(pattern);
    std::vector<std::string> names;
    std::ifstream symbols(SYMBOLS);
    std::smatch match;
    for (std::string line; std::getline(symbols, line);) {
        if (std::regex_match(line, match, operation)) names.push_back(match[1]);
    }
    return names;
}

template <class Rows>
std::vector<std::string> operationsOf(const Rows& rows) {
    std::vector<std::string> names;
    for (const auto& row : rows) names.emplace_back(row.operation);
    return names;
}

// A reader takes a text, its length and where to read it to; composers are of classes that set something.
TEST(Messages, AreAllThatTheLibraryReads) {
    EXPECT_THAT(
        operationsOf(kvjxml::messages()),
        testing::UnorderedElementsAreArray(exported(
            R"(\w+::(?!KVJSet)\w+::(\w+)\((wchar_t const&|wchar_t\*|char const&|char const\*), (int|unsigned long), .*)")));
}

// A composer takes a buffer and its size; `saveJob` prints what is composed already.
TEST(Requests, AreAllThatTheLibraryComposes) {
    EXPECT_THAT(
        operationsOf(kvjxml::requests()),
        testing::UnorderedElementsAreArray(exported(
            R"((?:\w+::KVJSet\w+(?=.*wchar_t\*, int)|KVJDeviceControl)::(?!saveJob)(\w+)\(.*(wchar_t|char)\*, int.*)")));
}

}  // namespace
