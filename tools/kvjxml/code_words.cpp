#include "code_words.h"

#include <charconv>

#include "field_rows.h"

namespace kvj::tool {

namespace {

bool isOfBits(const Description& row) { return row.kind == Kind::bits || row.kind == Kind::combinedCodes; }

void append(std::string& text, std::string_view between, std::string_view part) {
    if (!text.empty()) text.append(between);
    text.append(part);
}

}  // namespace

std::optional<CodeTable> codeTable(const Description& row) {
    if (row.words.name.empty()) return std::nullopt;
    return CodeTable{&row.words, isOfBits(row)};
}

std::optional<CodeTable> codeTable(std::string_view record, std::string_view field) {
    const NamedWords* const words = wordsRead(record, field);
    if (words == nullptr) return std::nullopt;
    const auto rows = rowsFor(rowsOfMessages(), record, field);
    return CodeTable{words, isOfBits(rows.front()->description)};
}

std::string wordsOf(const CodeTable& table, std::int64_t code, std::string_view same) {
    std::string words;
    std::string bits;
    std::int64_t unnamed = code;
    for (const Word& row : table.rows().rows) {
        if (row.code == code) append(words, same, row.word);
        const bool isFirst = wordOf(table.rows(), row.code) == row.word;
        if (row.code != 0 && isFirst && (row.code & ~code) == 0) {
            append(bits, " + ", row.word);
            unnamed &= ~std::int64_t{row.code};
        }
    }
    if (!words.empty() || !table.isOfBits || bits.empty()) return words;
    if (unnamed != 0) append(bits, " + ", inHexadecimal(static_cast<std::uint64_t>(unnamed)));
    return bits;
}

std::string inHexadecimal(std::uint64_t number) {
    char digits[16];
    return std::string("0x").append(digits, std::to_chars(digits, digits + sizeof digits, number, 16).ptr);
}

}  // namespace kvj::tool
