// The table that all these tests, and the fuzzer, take the readers from.
#include "support/readers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <string>
#include <vector>

namespace {

TEST(Readers, AreAllThatTheLibraryExports) {
    // A reader takes a text, its length and where to read it to; composers are of classes that set something.
    const std::regex reader(
        R"(\w+::(?!KVJSet)\w+::(\w+)\((wchar_t const&|wchar_t\*|char const&|char const\*), (int|unsigned long), .*)");
    std::vector<std::string> exported;
    std::ifstream symbols(SYMBOLS);
    std::smatch match;
    for (std::string line; std::getline(symbols, line);) {
        if (std::regex_match(line, match, reader)) exported.push_back(match[1]);
    }
    std::vector<std::string> listed;
    for (const auto& row : kvjxml::tests::readers()) listed.emplace_back(row.name);
    EXPECT_THAT(listed, testing::UnorderedElementsAreArray(exported));
}

}  // namespace
