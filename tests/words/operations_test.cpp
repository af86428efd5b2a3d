// The public operations that look words and codes up, each against the file of its table.
#include "words/operations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <ostream>
#include <regex>
#include <string>
#include <vector>

#include "words/word_file.h"

namespace kvjxml::tests {

void PrintTo(const ReadingOperation& operation, std::ostream* out) { *out << operation.name; }
void PrintTo(const WritingOperation& operation, std::ostream* out) { *out << operation.name; }

}  // namespace kvjxml::tests

namespace {

using namespace kvjxml::tests;

/// The names, with their classes, of what the library exports under a pattern.
std::vector<std::string> exported(const std::string& pattern) {
    const std::regex operation("(?:Kavrin::)?(" + pattern + ")\\(.*\\)");
    std::vector<std::string> names;
    std::ifstream symbols(SYMBOLS);
    std::smatch match;
    for (std::string line; std::getline(symbols, line);) {
        if (std::regex_match(line, match, operation)) names.push_back(match[1]);
    }
    return names;
}

template <class Operation>
std::vector<std::string> namesOf(std::span<const Operation> operations) {
    std::vector<std::string> names;
    for (const auto& operation : operations) names.emplace_back(operation.name);
    return names;
}

TEST(WordOperations, AreAllThatLookUpAWord) {
    EXPECT_THAT(
        namesOf(readingOperations()),
        testing::UnorderedElementsAreArray(exported(
            R"(\w+::\w+ToInt|\w+::stringTo\w+|\w+::GetWirelessState|KVJ(?:Config|Status)Parser::Get(?:Security|Crypto)|KVJConfigParser::get(?:USBSpeed|FeederMode))")));
}

// Three more words of the capabilities do not come from a code alone.
TEST(WordOperations, AreAllThatLookUpACode) {
    EXPECT_THAT(
        namesOf(writingOperations()),
        testing::UnorderedElementsAreArray(exported(
            R"(\w+::(?!LamType|Laminator|printSystemType)\w+ToString|\w+::\w+FromInt|KVJSetConfig::Get(?:Security|Crypto))")));
}

template <class Operation>
std::string nameOf(const testing::TestParamInfo<Operation>& test) {
    return std::regex_replace(std::string(test.param.name), std::regex("::"), "_");
}

class ReadingOperations : public testing::TestWithParam<ReadingOperation> {};

TEST_P(ReadingOperations, HaveTheCodeOfEachTextAndOfNone) {
    const auto& [name, table, codeOf, before] = GetParam();
    const WordFile& file = wordFile(table);
    for (const std::string& text : textsLike(file)) {
        if (before && text.empty()) continue;  // An element whose text is empty has none.
        EXPECT_EQ(codeOf(text.c_str()), file.codeOf(text, before.value_or(0))) << '"' << text << '"';
    }
    EXPECT_EQ(codeOf(nullptr), before ? before : file.other);
}

INSTANTIATE_TEST_SUITE_P(, ReadingOperations, testing::ValuesIn(readingOperations()), nameOf<ReadingOperation>);

class WritingOperations : public testing::TestWithParam<WritingOperation> {};

TEST_P(WritingOperations, HaveTheWordOfEachCode) {
    const auto& [name, table, wordOf, otherWord, otherResult] = GetParam();
    const WordFile& file = wordFile(table);
    for (const int code : codesAround(file)) {
        const std::string* const word = file.wordOf(code);
        bool result{};
        EXPECT_EQ(wordOf(code, result), word != nullptr ? *word : otherWord) << code;
        // Of the print types, that of two sides is written with the result of none.
        const bool expected = name == "KVJSetCaps::printTypeToString" ? code == 1 : word != nullptr || otherResult;
        EXPECT_EQ(result, expected) << code;
    }
}

INSTANTIATE_TEST_SUITE_P(, WritingOperations, testing::ValuesIn(writingOperations()), nameOf<WritingOperation>);

}  // namespace
