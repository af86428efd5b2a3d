/// @file words.h
/// The printer's fixed words and the codes that stand for them in the records: tables of rows, read in both directions.
#ifndef KVJXML_FOUNDATION_WORDS_H
#define KVJXML_FOUNDATION_WORDS_H

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace kvj {

struct Word {
    const char* word;
    int code;
};

/// How a text has to match a word of its table.
enum class Match {
    whole,              ///< the same text
    wholeIgnoringCase,  ///< the same text but for the case of its letters
    part,               ///< the word occurs in the text; the first row that does wins
};

/// A table as the look-ups see it.
struct Words {
    std::span<const Word> rows;
    /// The code of a text that matches no row; none where such a text leaves the field alone.
    std::optional<int> other;
    Match match;
};

/// A table as it is written: `constexpr WordTable states{0, {{"off", 0}, {"on", 1}}};`, the code of any other text
/// first. A table without that code has no code for other texts. A word that occurs twice does not compile.
template <std::size_t N>
class WordTable {
public:
    consteval WordTable(int other, const Word (&rows)[N], Match match = Match::whole) : WordTable(rows, match) {
        other_ = other;
    }
    explicit consteval WordTable(const Word (&rows)[N], Match match = Match::whole) : match_(match) {
        for (std::size_t i = 0; i < N; ++i) {
            for (std::size_t k = 0; k < i; ++k) {
                if (std::string_view(rows[i].word) == rows[k].word) throw "a word occurs twice in its table";
            }
            rows_[i] = rows[i];
        }
    }
    /// The same rows without a code for other texts, for a reader that then leaves its field alone.
    [[nodiscard]] consteval WordTable leavingOthers() const { return WordTable(rows_, match_); }
    // So that a table can be given wherever words are looked up.
    constexpr operator Words() const noexcept { return {rows_, other_, match_}; }

private:
    Word rows_[N]{};
    std::optional<int> other_;
    Match match_;
};

/// The code of a text: that of the first row that it matches, else that of other texts, if there is one.
/// A null text matches no row.
std::optional<int> codeOf(Words table, const char* text) noexcept;

/// The code of a text in a table that has one for every text.
int anyCodeOf(Words table, const char* text) noexcept;

/// The word of a code, that of the first row that has it; null when none does.
const char* wordOf(Words table, int code) noexcept;

/// The same, but `other` when none does.
const char* wordOf(Words table, int code, const char* other) noexcept;

/// Writes the word of a code, or `other` when it has none, to a buffer that holds the longest word.
/// @return whether it has one; false for a null buffer.
bool writeWord(char* buffer, Words table, int code, const char* other = "") noexcept;

}  // namespace kvj

#endif
