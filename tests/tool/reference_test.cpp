// The reference and the headers say what the tables do.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <string>

#include "tool/tool.h"

namespace {

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

TEST(Reference, ThePageIsWhatTheToolPrints) {
    const auto outcome = runTool("messages");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.out, contentOf(std::string(KVJXML_DOCS) + "/messages.md"))
        << "make it anew: kvjxml messages >docs/messages.md";
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
