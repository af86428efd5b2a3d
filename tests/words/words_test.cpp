// Each table of words against the file that says what its words stand for.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <ostream>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "foundation/words.h"
#include "messages/message.h"
#include "messages/request.h"
#include "support/lines.h"
#include "words/operations.h"
#include "words/tables.h"
#include "words/word_file.h"

namespace kvj {

void PrintTo(const NamedWords& words, std::ostream* out) { *out << words.name; }

}  // namespace kvj

namespace words_test {

namespace {

using kvj::DescribedRow;
using kvj::NamedWords;
using kvj::Words;
using kvj::tests::linesLike;
using kvj::tests::WordFile;
using kvj::tests::WordRow;

using Names = std::set<std::string, std::less<>>;

// ---- That there is a file for each table ----

/// The tables in a source, by their names with namespaces.
void addTablesOf(const std::filesystem::path& source, Names& names) {
    const std::string pattern =
        R"(namespace kvj::(\w+) \{|inline constexpr (?:WordTable (\w+)[\{\(].*|auto (\w+) = \w+\.leavingOthers\(\);))";
    std::string prefix;
    for (const auto& line : linesLike(pattern, source)) {
        if (!line[0].empty()) {
            prefix = line[0] + "::";
        } else {
            names.insert(prefix + line[1] + line[2]);
        }
    }
}

TEST(WordTables, EachHasItsFile) {
    Names inSources;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(KVJXML_SOURCES)) {
        if (entry.is_regular_file()) addTablesOf(entry.path(), inSources);
    }
    Names tables;
    for (const NamedWords& table : kvj::tests::wordTables()) tables.emplace(table.name);
    Names files;
    for (const WordFile& file : kvj::tests::wordFiles()) files.insert(file.table);
    EXPECT_EQ(tables, inSources);
    EXPECT_EQ(files, inSources);
}

// ---- That it is used in the directions that its file says ----

// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void addTablesOf(std::span<const DescribedRow> rows, Names& names) {
    for (const auto& [name, description, condition, section] : rows) {
        if (!description.words.name.empty()) names.emplace(description.words.name);
        addTablesOf(description.group, names);
    }
}

TEST(WordTables, AreReadAndWrittenAsTheirFilesSay) {
    Names read;
    Names written;
    for (const auto& message : kvj::messages()) addTablesOf(message.table, read);
    for (const auto& request : kvj::requests()) addTablesOf(request.table, written);
    for (const auto& operation : kvj::tests::readingOperations()) read.emplace(operation.table);
    for (const auto& operation : kvj::tests::writingOperations()) written.emplace(operation.table);
    for (const WordFile& file : kvj::tests::wordFiles()) {
        // Texts and numbers that a host passes to a service command are looked up in the code that composes it, and so
        // is the name of a protected action in what a host got; two words of the capabilities come from flags.
        if (file.table.starts_with("devicecontrol::") || file.table == "security::actionNames" ||
            file.table == "capabilities::laminatorsWritten" || file.table == "capabilities::printSystemsWritten") {
            continue;
        }
        EXPECT_EQ(file.isRead(), read.contains(file.table)) << file.table;
        EXPECT_EQ(file.isWritten(), written.contains(file.table)) << file.table;
    }
}

// ---- That it has the words and codes of its file ----

class WordTable : public testing::TestWithParam<NamedWords> {
protected:
    Words words = GetParam().words;
    const WordFile& file = kvj::tests::wordFile(GetParam().name);
};

TEST_P(WordTable, HasTheWordsOfItsFileAndNoOthers) {
    std::vector<std::pair<std::string, int>> inTable;
    for (const auto& [word, code] : words.rows) inTable.emplace_back(word, code);
    std::vector<std::pair<std::string, int>> inFile;
    for (const WordRow& row : file.rows) inFile.emplace_back(row.word, row.code);
    EXPECT_THAT(inTable, testing::UnorderedElementsAreArray(inFile));
}

TEST_P(WordTable, ReadsATextAsTheCodeOfItsWord) {
    if (!file.isRead()) {
        EXPECT_EQ(words.other, std::nullopt) << "nothing is read with it";
        return;
    }
    constexpr int before = -77;
    for (const std::string& text : textsLike(file)) {
        EXPECT_EQ(kvj::codeOf(words, text.c_str()).value_or(before), file.codeOf(text, before)) << '"' << text << '"';
    }
    EXPECT_EQ(kvj::codeOf(words, nullptr), file.other);
}

TEST_P(WordTable, WritesACodeAsItsWord) {
    if (!file.isWritten()) return;
    for (const int code : codesAround(file)) {
        const char* const word = kvj::wordOf(words, code);
        if (const std::string* const expected = file.wordOf(code)) {
            EXPECT_STREQ(word, expected->c_str()) << code;
        } else {
            EXPECT_EQ(word, nullptr) << code;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, WordTable, testing::ValuesIn(kvj::tests::wordTables()),
                         [](const auto& test) { return kvj::tests::identifierOf(test.param.name); });

}  // namespace

}  // namespace words_test
