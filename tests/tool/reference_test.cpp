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

namespace reference_test {

namespace {

using kvj::DescribedRow;
using kvj::Kind;
using kvj::tests::contentOf;
using kvj::tests::runShell;
using kvj::tests::runTool;

/// All that are written by hand: what is printed from the tables would prove nothing.
std::string publicHeaders() {
    std::string text;
    for (const auto& file : std::filesystem::directory_iterator(KVJXML_INCLUDE)) {
        if (file.path().extension() == ".h") text += contentOf(file.path());
    }
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
    for (const auto& message : kvj::messages()) collect(message.table, all);
    for (const auto& request : kvj::requests()) collect(request.table, all);
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
    std::map<std::string_view, const kvj::Word*> tables;
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
    const std::string reference = runTool("messages").out;
    for (const auto& heading : matchesOf(reference, std::regex("\n### ([^\n]+)"))) ++headings[heading[1]];
    for (const auto& [name, count] : headings) EXPECT_EQ(count, 1) << name;
    EXPECT_EQ(headings.count("configuration::securityWords"), 1U);
    EXPECT_EQ(headings.count("status::securityWords"), 1U);
}

/// Whether a description has the data that its kind calls for.
bool isComplete(const kvj::Description& row) {
    const bool hasField = !row.field.empty();
    const bool hasWords = !row.words.words.rows.empty();
    const bool hasWord = !row.word.empty();
    const bool hasOtherWord = !row.otherWord.empty();
    const bool hasOtherField = !row.otherField.empty();
    const bool hasGroup = !row.group.empty();
    switch (row.kind) {
        case Kind::number:
            return row.number.bits == 16 || row.number.bits == 32 || row.number.bits == 64;
        case Kind::text:
        case Kind::appendedText:
            return row.capacity > 1;
        case Kind::textWithoutWord:
            return row.capacity > 1 && hasWord;
        case Kind::textAndCode:
            return row.capacity > 1 && hasWords && hasOtherField;
        case Kind::word:
            return hasWords && (row.withoutText != kvj::WithoutText::isOther || row.words.words.other);
        case Kind::bits:
        case Kind::combinedCodes:
            return hasWords;
        case Kind::laminatorWord:
            return hasWords && hasOtherWord;
        case Kind::wordOrNext:
            return hasWords && hasOtherField;
        case Kind::wordOfPanels:
            return hasWords && hasGroup;
        case Kind::attribute:
        case Kind::isWord:
        case Kind::isNotWord:
        case Kind::constant:
            return hasWord;
        case Kind::either:
        case Kind::toldWord:
            return hasWord && hasOtherWord;
        case Kind::decimal:
        case Kind::setting:
        case Kind::decimalSetting:
        case Kind::flag:
        case Kind::hardwareAddress:
        case Kind::ipAddress:
        case Kind::list:
            return hasField;
        case Kind::group:
        case Kind::entry:
        case Kind::firstEntry:
            return hasGroup && !hasField;
        case Kind::part:
        case Kind::newEntry:
            return hasGroup && hasField;
        case Kind::byDescription:
            return hasWord && hasOtherField && hasGroup;
        case Kind::givenAttributes:
            return !row.attributes.empty();
    }
    return false;
}

TEST(Reference, ARowHasWhatItsKindCallsFor) {
    for (const auto& row : allRows()) EXPECT_TRUE(isComplete(row.description)) << row.name;
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

/// Whether a comment names an element.
bool names(const std::string& comment, std::string_view element) {
    return comment.find('"' + std::string(element) + '"') != std::string::npos;
}

TEST(Reference, TheHeadersNameTheElementOfEveryFieldBesideIt) {
    auto comments = commentsOfFields();
    std::size_t compared = 0;
    for (const auto& row : allRows()) {
        const auto& [record, field, at] = row.description.field;
        if (record.empty() || record == "KeyExchange") continue;  // No field, or one that a reader keeps for itself.
        // A record or a field that is in no header has an empty comment here.
        EXPECT_TRUE(names(comments[std::string(record)][std::string(field)], row.name))
            << "the header does not name \"" << row.name << "\" beside " << record << "::" << field;
        ++compared;
    }
    EXPECT_GT(compared, 400U);
}

/// Whether the code comes after the word, or after those that share it: "a", "b" and "c" 7
bool isListed(const std::string& headers, const std::string& word, const std::string& code) {
    const std::string quoted = '"' + word + '"';
    const std::regex rest(R"((?:(?:,| and)[\s/]*"[^"]+")*[\s/]*)" + code + "\\b");
    for (std::size_t at = headers.find(quoted); at != std::string::npos; at = headers.find(quoted, at + 1)) {
        const char* const behind = &headers[at + quoted.size()];
        if (std::regex_search(behind, rest, std::regex_constants::match_continuous)) return true;
    }
    return false;
}

TEST(Reference, TheHeadersHaveEveryWordOfEveryTable) {
    const std::string headers = publicHeaders();
    const std::string reference = runTool("messages").out;
    const auto words = matchesOf(reference, std::regex(R"(\| `([^`]+)` \| (-?\d+) \|\n)"));
    ASSERT_FALSE(words.empty());
    for (const auto& word : words) {
        EXPECT_TRUE(isListed(headers, word[1], word[2])) << word[1] << " is not in the headers as " << word[2];
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

}  // namespace reference_test
