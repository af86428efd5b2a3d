#include "foundation/words.h"

#include <algorithm>
#include <cstring>

#include "foundation/convert.h"

namespace kvj {

namespace {

bool matches(Match match, const char* text, const char* word) noexcept {
    switch (match) {
        case Match::wholeIgnoringCase:
            return convert::equalIgnoringCase(text, word);
        case Match::part:
            return std::strstr(text, word) != nullptr;
        case Match::whole:
            break;
    }
    return *text == *word && convert::equal(text, word);  // The first character tells most words apart.
}

}  // namespace

std::optional<int> codeOf(Words table, const char* text) noexcept {
    if (text == nullptr) return table.other;
    const auto row = std::ranges::find_if(
        table.rows, [&](const char* word) { return matches(table.match, text, word); }, &Word::word);
    return row == table.rows.end() ? table.other : row->code;
}

int anyCodeOf(Words table, const char* text) noexcept { return codeOf(table, text).value_or(0); }

const char* wordOf(Words table, int code) noexcept {
    const auto row = std::ranges::find(table.rows, code, &Word::code);
    return row == table.rows.end() ? nullptr : row->word;
}

const char* wordOf(Words table, int code, const char* other) noexcept {
    const char* word = wordOf(table, code);
    return word == nullptr ? other : word;
}

bool writeWord(char* buffer, Words table, int code, const char* other) noexcept {
    if (buffer == nullptr) return false;
    const char* word = wordOf(table, code);
    const std::string_view text = word == nullptr ? other : word;
    buffer[text.copy(buffer, text.size())] = '\0';
    return word != nullptr;
}

}  // namespace kvj
