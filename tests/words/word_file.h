/// @file word_file.h
/// What the printer's words stand for, a file for each table of words: how a text matches, the code of any other text,
/// and a line for each word with its direction and its code. `read` is a word that replies have, `write` one that
/// requests have, `both` one of both.
#ifndef KVJXML_TESTS_WORDS_WORD_FILE_H
#define KVJXML_TESTS_WORDS_WORD_FILE_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/words.h"

namespace kvj::tests {

struct WordRow {
    std::string word;
    int code;
    bool isRead;
    bool isWritten;
};

struct WordFile {
    std::string table;  ///< with its namespaces below the library's, as "status::jobStates"
    Match match = Match::whole;
    std::optional<int> other;
    std::vector<WordRow> rows;

    [[nodiscard]] bool isRead() const;
    [[nodiscard]] bool isWritten() const;
    /// What a text is read as; `before` when it has no code.
    [[nodiscard]] int codeOf(const std::string& text, int before) const;
    /// What a code is written as; null when no word stands for it.
    [[nodiscard]] const std::string* wordOf(int code) const;
};

const std::vector<WordFile>& wordFiles();

/// The file of a table.
const WordFile& wordFile(std::string_view table);

/// The words that are read and texts that are nearly one: with other letters, longer, shorter, behind or before a
/// blank.
std::vector<std::string> textsLike(const WordFile& file);

/// The codes around those that words stand for, and some far off.
std::vector<int> codesAround(const WordFile& file);

}  // namespace kvj::tests

#endif
