#include "shown.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>

#include "field_rows.h"
#include "foundation/convert.h"
#include "secrets.h"

namespace kvj::tool {

namespace {

using SortedJson = nlohmann::json;

/// A float in as few digits as tell it from its neighbours, 24.35 and not 24.350000381469727.
SortedJson decimal(float value) {
    if (!std::isfinite(value)) return nullptr;  // JSON has no other number for it.
    std::array<char, 64> digits{};
    std::to_chars(digits.data(), digits.data() + digits.size() - 1, value);
    return SortedJson::parse(digits.data());
}

SortedJson number(const Field& field, const void* record) {
    const std::int64_t number = wholeNumberOf(field, record);
    if (field.isSigned) return number;
    return static_cast<std::uint64_t>(number);
}

/// Whether a field has the code of a word that messages read.
bool isCode(const RecordType& type, const Field& field) {
    static std::map<const Field*, bool> known;
    const auto [at, isNew] = known.emplace(&field, false);
    if (isNew) at->second = field.type == FieldType::number && wordsRead(type.name, field.name) != nullptr;
    return at->second;
}

/// The word of a code: the one that was sent, or where the table has another spelling, that of the table. A text that
/// the printer may send, and that no row needs to have, is a word as well.
std::string_view wordFor(const SentValue& sent, int code) {
    const Words& words = sent.row->words.words;
    const auto same = std::ranges::find(words.rows, sent.text, &Word::word);
    if (same != words.rows.end() && same->code == code) return same->word;
    const char* const word = wordOf(words, code);
    return word != nullptr ? std::string_view(word) : std::string_view(sent.text);
}

/// The words of the bits of a code, of those that have the same bits the first.
std::vector<std::string_view> wordsOfBits(const Words& words, std::int64_t code) {
    std::vector<std::string_view> found;
    for (const auto& [word, bits] : words.rows) {
        if (bits != 0 && (code & bits) == bits && wordOf(words, bits) == word) found.emplace_back(word);
    }
    return found;
}

void addWords(Shown& shown, const SentValue& sent, std::int64_t code) {
    if (sent.row->kind == Kind::bits) {
        shown.words = wordsOfBits(sent.row->words.words, code);
    } else if (!sent.isChanged) {
        const std::string_view word = wordFor(sent, static_cast<int>(code));
        if (word.empty()) return;
        shown.words.emplace_back(word);
        if (!sent.text.empty() && sent.text != word) shown.sent = sent.text;
    }
}

}  // namespace

SortedJson valueIn(const Field& field, const void* record) {
    switch (field.type) {
        case FieldType::flag:
        case FieldType::bit:
            return flagOf(field, record);
        case FieldType::number:
            return number(field, record);
        case FieldType::decimal:
            return decimal(valueOf<float>(field, record));
        case FieldType::text:
            return textOf(field, record);
        case FieldType::hardwareAddress:
            return convert::fromHardwareAddress(static_cast<const unsigned char*>(field.at(record))).c_str();
        case FieldType::ipAddress:
            return convert::fromIpAddress(valueOf<unsigned long>(field, record)).c_str();
        case FieldType::hostText:
            return valueOf<const char*>(field, record);
        case FieldType::record:
        case FieldType::list:
            break;
    }
    return nullptr;
}

Shown shown(const RecordType* type, const Field& field, const void* record, const Showing& showing) {
    Shown shown{.value = valueIn(field, record)};
    const SentValue* const sent = showing.sent == nullptr ? nullptr : showing.sent->find(record, field.name);
    shown.isCarried = sent != nullptr;
    if (showing.redacts && type != nullptr && isSecret(type->name, field.name)) {
        const bool isEmpty = shown.value.is_string() && shown.value.get_ref<const std::string&>().empty();
        if (!isEmpty) shown.value = masked;
        return shown;
    }
    shown.isCode = showing.sent != nullptr && type != nullptr && isCode(*type, field);
    if (sent == nullptr) return shown;
    const Description& row = *sent->row;
    const bool hasWords = field.type == FieldType::number && !row.words.name.empty();
    shown.isCode = shown.isCode || hasWords;
    shown.hasBits = row.kind == Kind::bits;
    if (sent->isChanged) shown.sent = sent->text;
    if (hasWords) addWords(shown, *sent, wholeNumberOf(field, record));
    return shown;
}

}  // namespace kvj::tool
