// The reference and the headers say what the tables do.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/kinds.h"
#include "messages/message.h"
#include "messages/request.h"
#include "tool/tool.h"

namespace {

using kvjxml::DescribedRow;
using kvjxml::Kind;
using kvjxml::tests::contentOf;
using kvjxml::tests::runShell;
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

/// All rows that the library reads and writes with, those of groups after their group.
// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void collect(std::span<const DescribedRow> rows, std::vector<DescribedRow>& all) {
    for (const auto& row : rows) {
        all.push_back(row);
        collect(row.description.group, all);
    }
}
std::vector<DescribedRow> allRows() {
    std::vector<DescribedRow> all;
    for (const auto& message : kvjxml::messages()) collect(message.table, all);
    for (const auto& request : kvjxml::requests()) collect(request.table, all);
    return all;
}

TEST(Reference, ThePageIsWhatTheToolPrints) {
    const auto outcome = runTool("messages");
    EXPECT_EQ(outcome.code, 0);
    const auto difference = runShell("diff -u '" KVJXML_DOCS "/messages.md' -", outcome.out);
    EXPECT_EQ(difference.code, 0) << "make it anew, kvjxml messages >docs/messages.md:\n"
                                  << difference.out << difference.error;
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

/// What the public headers say of each field of a record: the comment before its declaration and the one after it.
std::map<std::string, std::map<std::string, std::string>> commentsOfFields() {
    const std::regex record(R"(struct (\w+) \{)");
    const std::regex field(R"([\w :<>*]+[ *]([A-Za-z_]\w*)(?:\[\w+\])?(?: : 1)?(?: = nullptr)?;(.*))");
    std::map<std::string, std::map<std::string, std::string>> records;
    std::map<std::string, std::string>* fields = nullptr;
    std::string before;
    for (const auto& line : linesOf(publicHeaders())) {
        const std::string text = line.substr(std::min(line.find_first_not_of(' '), line.size()));
        std::smatch match;
        if (std::regex_match(text, match, record)) {
            fields = &records[match[1]];
            before.clear();
        } else if (text == "};") {
            fields = nullptr;
        } else if (text.starts_with("///")) {
            before += text + "\n";
        } else if (fields != nullptr && std::regex_match(text, match, field)) {
            (*fields)[match[1]] = std::exchange(before, {}) + match[2].str();
        }
    }
    return records;
}

TEST(Reference, TheHeadersNameTheElementOfEveryFieldBesideIt) {
    const auto records = commentsOfFields();
    std::size_t compared = 0;
    for (const auto& row : allRows()) {
        const auto& [record, field] = row.description.field;
        const auto fields = records.find(std::string(record));
        if (fields == records.end()) {
            // One that a reader keeps for itself, or none at all.
            EXPECT_TRUE(record.empty() || record == "KeyExchange") << record << "::" << field;
            continue;
        }
        const auto comment = fields->second.find(std::string(field));
        ASSERT_TRUE(comment != fields->second.end()) << record << "::" << field << " is in no public header";
        const std::string element = "\"" + std::string(row.name) + "\"";
        EXPECT_TRUE(comment->second.find(element) != std::string::npos)
            << "the header does not name " << element << " beside " << record << "::" << field;
        ++compared;
    }
    EXPECT_GT(compared, 400U);
}

TEST(Reference, TheHeadersHaveEveryWordOfEveryTable) {
    const std::string headers = publicHeaders();
    const std::string reference = runTool("messages").out;
    const auto words = matchesOf(reference, std::regex(R"(\| `([^`]+)` \| (-?\d+) \|\n)"));
    ASSERT_FALSE(words.empty());
    for (const auto& word : words) {
        // The code comes after the word, or after those that share it: "a", "b" and "c" 7
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
