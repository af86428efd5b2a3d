// The reference and the headers say what the tables do.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/kinds.h"
#include "messages.h"
#include "requests.h"
#include "tool/tool.h"

namespace {

using kvjxml::DescribedRow;
using kvjxml::Kind;
using kvjxml::tests::contentOf;
using kvjxml::tests::runTool;

std::string publicHeaders() {
    std::string text;
    for (const auto& file : std::filesystem::directory_iterator(KVJXML_INCLUDE)) text += contentOf(file.path());
    return text;
}

/// All matches of a pattern in a text.
std::vector<std::smatch> matchesOf(const std::string& text, const std::regex& pattern) {
    return {std::sregex_iterator(text.begin(), text.end(), pattern), {}};
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

/// The lines of two texts between the beginning and the end that they share, as a diff shows them.
std::string differenceOf(const std::string& expected, const std::string& actual) {
    const auto old = linesOf(expected);
    const auto made = linesOf(actual);
    const auto [oldFirst, madeFirst] = std::ranges::mismatch(old, made);
    auto oldLast = old.end();
    auto madeLast = made.end();
    while (oldLast != oldFirst && madeLast != madeFirst && *(oldLast - 1) == *(madeLast - 1)) --oldLast, --madeLast;
    std::string text;
    for (auto line = oldFirst; line != oldLast; ++line) text += "-" + *line + "\n";
    for (auto line = madeFirst; line != madeLast; ++line) text += "+" + *line + "\n";
    return text;
}

/// All rows that the library reads and writes with, those of groups behind their group.
// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void collect(std::span<const DescribedRow> rows, std::vector<DescribedRow>& all) {
    for (const auto& row : rows) {
        all.push_back(row);
        collect(row.description.group, all);
    }
}
std::vector<DescribedRow> allRows() {
    std::vector<DescribedRow> all;
    for (const auto& message : kvjxml::tool::messages()) collect(message.table, all);
    for (const auto& request : kvjxml::tool::recordRequests()) collect(request.table, all);
    return all;
}

TEST(Reference, ThePageIsWhatTheToolPrints) {
    const auto outcome = runTool("messages");
    EXPECT_EQ(outcome.code, 0);
    const std::string page = contentOf(std::string(KVJXML_DOCS) + "/messages.md");
    EXPECT_TRUE(outcome.out == page) << "make it anew, kvjxml messages >docs/messages.md:\n"
                                     << differenceOf(page, outcome.out);
}

TEST(Reference, NoTwoTablesOfWordsHaveOneName) {
    std::map<std::string_view, const kvjxml::Word*> tables;
    for (const auto& row : allRows()) {
        const auto& words = row.description.words;
        if (words.name.empty()) continue;
        const auto [known, isNew] = tables.emplace(words.name, words.words.rows.data());
        EXPECT_EQ(known->second, words.words.rows.data()) << words.name;
    }
    EXPECT_GT(tables.size(), 30U);
}

TEST(Reference, EveryTableOfWordsIsThereOnce) {
    std::map<std::string, int> headings;
    for (const auto& heading : matchesOf(runTool("messages").out, std::regex("\n### ([^\n]+)"))) ++headings[heading[1]];
    for (const auto& [name, count] : headings) EXPECT_EQ(count, 1) << name;
    EXPECT_EQ(headings.count("configuration::securityWords"), 1U);
    EXPECT_EQ(headings.count("status::securityWords"), 1U);
}

TEST(Reference, ARowHasWhatItsKindSays) {
    for (const auto& row : allRows()) {
        const auto& [field, kind, number, decimals, capacity, words, word, otherWord, otherField, withoutText,
                     attributes, group] = row.description;
        switch (kind) {
            case Kind::number:
            case Kind::attribute:
                EXPECT_TRUE(number.bits == 16 || number.bits == 32 || number.bits == 64) << row.name;
                EXPECT_EQ(kind == Kind::attribute, !word.empty()) << row.name;
                break;
            case Kind::text:
            case Kind::textWithoutWord:
            case Kind::appendedText:
                EXPECT_GT(capacity, 1U) << row.name;
                EXPECT_EQ(kind == Kind::textWithoutWord, !word.empty()) << row.name;
                break;
            case Kind::textAndCode:
                EXPECT_GT(capacity, 1U) << row.name;
                EXPECT_FALSE(words.words.rows.empty() || otherField.empty()) << row.name;
                break;
            case Kind::word:
            case Kind::bits:
            case Kind::combinedCodes:
                EXPECT_FALSE(words.words.rows.empty()) << row.name;
                EXPECT_TRUE(withoutText != kvjxml::WithoutText::isOther || words.words.other) << row.name;
                break;
            case Kind::laminatorWord:
                EXPECT_FALSE(words.words.rows.empty() || otherWord.empty()) << row.name;
                break;
            case Kind::wordOrNext:
                EXPECT_FALSE(words.words.rows.empty() || otherField.empty()) << row.name;
                break;
            case Kind::wordOfPanels:
                EXPECT_FALSE(words.words.rows.empty() || group.empty()) << row.name;
                break;
            case Kind::isWord:
            case Kind::isNotWord:
            case Kind::constant:
                EXPECT_FALSE(word.empty()) << row.name;
                break;
            case Kind::either:
            case Kind::toldWord:
                EXPECT_FALSE(word.empty() || otherWord.empty()) << row.name;
                break;
            case Kind::decimal:
            case Kind::setting:
            case Kind::decimalSetting:
            case Kind::flag:
            case Kind::hardwareAddress:
            case Kind::ipAddress:
                EXPECT_FALSE(field.empty()) << row.name;
                break;
            case Kind::list:
                EXPECT_FALSE(field.empty()) << row.name;
                break;
            case Kind::group:
            case Kind::part:
            case Kind::entry:
            case Kind::firstEntry:
            case Kind::newEntry:
                EXPECT_FALSE(group.empty()) << row.name;
                EXPECT_EQ(kind == Kind::part || kind == Kind::newEntry, !field.empty()) << row.name;
                break;
            case Kind::byDescription:
                EXPECT_FALSE(word.empty() || otherField.empty() || group.empty()) << row.name;
                break;
            case Kind::givenAttributes:
                EXPECT_FALSE(attributes.empty()) << row.name;
                break;
        }
    }
}

TEST(Reference, TheHeadersNameTheElementOfEveryFieldBesideIt) {
    // A field's comment: lines that begin with ///, then its declaration, or ///< behind it.
    const std::regex declaration(R"(((?: *///[^\n]*\n)*) *[\w :<>*]+ (\w+)(?:\[\w+\]| : 1| = nullptr)?;([^\n]*))");
    const std::string headers = publicHeaders();
    std::map<std::string, std::string> comments;
    for (const auto& field : matchesOf(headers, declaration)) comments[field[2]] += field[1].str() + field[3].str();

    // A row of the reference: the element is the last name of its path, the field the name in the next column.
    const std::string reference = runTool("messages").out;
    const auto rows = matchesOf(reference, std::regex(R"(`(\w+)` \| `(\w+)` \|)"));
    ASSERT_FALSE(rows.empty());
    for (const auto& row : rows) {
        if (!comments.contains(row[2])) continue;  // Not a field of a record: a reader's own.
        const std::string element = std::string("\"") + row[1].str() + "\"";
        EXPECT_NE(comments[row[2]].find(element), std::string::npos)
            << "no header names " << element << " beside " << row[2];
    }
}

TEST(Reference, TheHeadersHaveEveryWordOfEveryTable) {
    const std::string headers = publicHeaders();
    const std::string reference = runTool("messages").out;
    const auto words = matchesOf(reference, std::regex(R"(\| `([^`]+)` \| (-?\d+) \|\n)"));
    ASSERT_FALSE(words.empty());
    for (const auto& word : words) {
        // The code stands behind the word, or behind those that share it: "a", "b" and "c" 7
        const std::regex listed(std::string("\"") + word[1].str() + "\"(?:(?:,| and)[\\s/]*\"[^\"]+\")*[\\s/]*" +
                                word[2].str() + "\\b");
        EXPECT_TRUE(std::regex_search(headers, listed)) << word[1] << " is not in the headers as " << word[2];
    }
}

TEST(Reference, TheHeaderHasEverySectionBesideItsBit) {
    const std::string header = contentOf(std::string(KVJXML_INCLUDE) + "/KVJSetConfig.h") +
                               contentOf(std::string(KVJXML_INCLUDE) + "/KVJSetPrinterInfo.h");
    const std::string reference = runTool("messages").out;
    const auto sections = matchesOf(reference, std::regex("\n\\| `(\\w+)` \\|[^\n]*\\| bit `(0x[0-9a-f]+)`"));
    ASSERT_EQ(sections.size(), 22U + 2U);
    for (const auto& section : sections) {
        const std::regex listed(section[2].str() + " [^\n]*\"" + section[1].str() + "\"");
        EXPECT_TRUE(std::regex_search(header, listed)) << section[1] << " is not in the header beside " << section[2];
    }
}

}  // namespace
