// The public operations that look words and codes up, each against the file of its table.
#include "words/operations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "support/lines.h"
#include "words/word_file.h"

namespace kvj::tests {

void PrintTo(const ReadingOperation& operation, std::ostream* out) { *out << operation.name; }
void PrintTo(const WritingOperation& operation, std::ostream* out) { *out << operation.name; }

}  // namespace kvj::tests

namespace operations_test {

namespace {

using namespace kvj::tests;

/// The operations, with their classes, that the library exports under a pattern.
std::vector<std::string> exportedAs(const std::string& pattern) {
    return exported("(?:Kavrin::)?(" + pattern + ")\\(.*\\)");
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
        testing::UnorderedElementsAreArray(exportedAs(
            R"(\w+::\w+ToInt|\w+::stringTo\w+|\w+::GetWirelessState|KVJ(?:Config|Status)Parser::Get(?:Security|Crypto)|KVJConfigParser::get(?:USBSpeed|FeederMode))")));
}

// Three more words of the capabilities do not come from a code alone.
TEST(WordOperations, AreAllThatLookUpACode) {
    EXPECT_THAT(
        namesOf(writingOperations()),
        testing::UnorderedElementsAreArray(exportedAs(
            R"(\w+::(?!LamType|Laminator|printSystemType)\w+ToString|\w+::\w+FromInt|KVJSetConfig::Get(?:Security|Crypto))")));
}

template <class Operation>
std::string nameOf(const testing::TestParamInfo<Operation>& test) {
    return identifierOf(test.param.name);
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

}  // namespace operations_test
