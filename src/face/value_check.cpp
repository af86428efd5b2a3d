#include "face/value_check.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>
#include <utility>

#include "FoundationRecords.h"
#include "face/joined.h"
#include "face/nearest.h"
#include "fields/records.h"
#include "foundation/convert.h"
#include "messages/request.h"

namespace kvj {

namespace {

using kvjxml::finding_kind;

bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

std::string_view withoutBlanks(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

// ---- What a field holds ----

const Field* fieldNamed(const RecordType& record, std::string_view name) {
    for (const Field& field : record.fields) {
        if (field.name == name) return &field;
    }
    return nullptr;
}

/// A field, and the record that it is in.
struct Stored {
    const Field* field;
    const void* record;
};

/// The field that a row names; of a setting its value.
std::optional<Stored> storedIn(const FieldName& name, const void* record) {
    const KnownField known = knownField(name);
    if (!known || record == nullptr) return std::nullopt;
    if (known.field->type != FieldType::record) return Stored{known.field, record};
    const Field* const value = fieldNamed(*known.field->record, "value");
    if (value == nullptr) return std::nullopt;
    return Stored{value, known.field->at(record)};
}

template <class Number>
std::string shortest(Number number) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return {digits.data(), end};
}

std::string shown(const Stored& stored) {
    const auto& [field, record] = stored;
    switch (field->type) {
        case FieldType::flag:
        case FieldType::bit:
            return flagOf(*field, record) ? "true" : "false";
        case FieldType::number:
            if (!field->isSigned) return shortest(static_cast<std::uint64_t>(wholeNumberOf(*field, record)));
            return shortest(wholeNumberOf(*field, record));
        case FieldType::decimal:
            return shortest(valueOf<float>(*field, record));
        case FieldType::text:
            return std::string(textOf(*field, record));
        case FieldType::hardwareAddress:
            return convert::fromHardwareAddress(static_cast<const unsigned char*>(field->at(record))).c_str();
        case FieldType::ipAddress:
            return convert::fromIpAddress(valueOf<unsigned long>(*field, record)).c_str();
        case FieldType::hostText:
        case FieldType::record:
        case FieldType::list:
            break;
    }
    return {};
}

// ---- What a text says ----

/// A number that a text begins with.
struct Whole {
    std::size_t used = 0;  ///< how much of the text; 0 when it is no number
    bool isNegative = false;
    bool isHuge = false;  ///< more than 64 bits
    std::uint64_t magnitude = 0;
};

int digitOf(char c, int base) {
    const int value = c >= '0' && c <= '9'   ? c - '0'
                      : c >= 'a' && c <= 'f' ? c - 'a' + 10
                      : c >= 'A' && c <= 'F' ? c - 'A' + 10
                                             : 99;
    return value < base ? value : -1;
}

Whole wholeIn(std::string_view text, const Number& form) {
    Whole number;
    std::size_t at = 0;
    while (at < text.size() && isBlank(text[at])) ++at;
    const bool hasPrefix = text.substr(at).starts_with("0x");
    if (form.base == Base::hexadecimal && !hasPrefix) return number;
    int base = 10;
    if (form.base != Base::decimal && hasPrefix) {
        base = 16;
        at += 2;
    } else if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
        number.isNegative = text[at] == '-';
        ++at;
    }
    const std::size_t first = at;
    const std::size_t most = form.digits > 0 ? first + static_cast<std::size_t>(form.digits) : text.size();
    for (; at < text.size() && at < most; ++at) {
        const int digit = digitOf(text[at], base);
        if (digit < 0) break;
        const auto weight = static_cast<std::uint64_t>(base);
        const std::uint64_t next = number.magnitude * weight + static_cast<std::uint64_t>(digit);
        number.isHuge |=
            number.magnitude > std::numeric_limits<std::uint64_t>::max() / weight || next < number.magnitude;
        number.magnitude = next;
    }
    if (at != first) number.used = at;
    return number;
}

/// Whether a field of that sign holds the number.
bool isSame(const Whole& number, std::int64_t stored, bool isSigned) {
    if (number.isHuge) return false;
    if (number.isNegative && number.magnitude != 0) {
        return isSigned && stored < 0 && 0 - static_cast<std::uint64_t>(stored) == number.magnitude;
    }
    return static_cast<std::uint64_t>(stored) == number.magnitude && !(isSigned && stored < 0);
}

/// Whether it is stored as it is.
bool fits(const Whole& number, const Number& form) {
    if (number.isHuge || (number.isNegative && !form.isSigned)) return false;
    const int bits = form.isSigned ? form.bits - 1 : form.bits;
    return bits >= 64 || number.magnitude >> bits == 0;
}

/// A number with a decimal point, in the same way.
struct Decimal {
    std::size_t used = 0;
    double value = 0;
    bool isHuge = false;
};

Decimal decimalIn(std::string_view text) {
    Decimal number;
    std::size_t at = 0;
    while (at < text.size() && isBlank(text[at])) ++at;
    if (at < text.size() && text[at] == '+') ++at;
    const auto [end, error] = std::from_chars(text.data() + at, text.data() + text.size(), number.value);
    if (error == std::errc::invalid_argument) return number;
    number.used = static_cast<std::size_t>(end - text.data());
    number.isHuge = error == std::errc::result_out_of_range || std::isinf(number.value);
    if (std::isnan(number.value)) number.used = 0;
    return number;
}

// ---- The check of one element ----

class Check {
public:
    Check(const Read& read, Candidates& candidates) : read_(read), row_(read.row), candidates_(candidates) {
        const char* const content = read.element.text();
        if (content != nullptr && row_.group.empty()) text_ = content;
    }

    void all() {
        if (read_.again && lastCounts(row_.kind)) {
            add(finding_kind::repeated, {}, "it stands here more than once, and the last one counts");
        }
        switch (row_.kind) {
            case Kind::number:
                return withText([&] { whole(row_.number); });
            case Kind::decimal:
                return withText([&] { decimal(); });
            case Kind::setting:
                range();
                return withText([&] { setting(); });
            case Kind::decimalSetting:
                range();
                return withText([&] { decimalSetting(); });
            case Kind::attribute:
                return attribute(row_.word);
            case Kind::text:
            case Kind::textWithoutWord:
                return withText([&] { cut(row_.capacity); });
            case Kind::textAndCode:
                return withText([&] { textAndCode(); });
            case Kind::appendedText:
                return withText([&] { appended(); });
            case Kind::word:
            case Kind::bits:
            case Kind::combinedCodes:
                return withText([&] { word(row_.field); });
            case Kind::wordOrNext:
                return withText([&] { word(read_.toOther ? row_.otherField : row_.field); });
            case Kind::wordOfPanels:
                return panels();
            case Kind::flag:
                return withText([&] { truthWord(); });
            case Kind::isWord:
            case Kind::isNotWord:
                return withText([&] { singleWord(); });
            case Kind::hardwareAddress:
                return withText([&] { hardwareAddress(); });
            case Kind::ipAddress:
                return withText([&] { ipAddress(); });
            case Kind::either:
            case Kind::constant:
            case Kind::toldWord:
            case Kind::laminatorWord:
            case Kind::group:
            case Kind::part:
            case Kind::list:
            case Kind::entry:
            case Kind::firstEntry:
            case Kind::newEntry:
            case Kind::byDescription:
            case Kind::givenAttributes:
                return;
        }
    }

private:
    /// Whether an element that comes again takes the place of the one before.
    static bool lastCounts(Kind kind) {
        switch (kind) {
            case Kind::appendedText:
            case Kind::bits:
            case Kind::combinedCodes:
            case Kind::entry:
            case Kind::newEntry:
            case Kind::byDescription:
                return false;
            default:
                return true;
        }
    }

    Candidate& add(finding_kind kind, std::string became, std::string detail) {
        return candidates_.add({.kind = kind,
                                .node = read_.element.number(),
                                .row = &row_,
                                .toOther = read_.toOther,
                                .text = std::string(text_.value_or("")),
                                .became = std::move(became),
                                .detail = std::move(detail)});
    }

    [[nodiscard]] std::string became(const FieldName& name) const {
        if (const auto stored = storedIn(name, read_.record)) return shown(*stored);
        if (row_.capacity != 0 && name.at != nullptr && read_.record != nullptr) {
            const auto* const text = static_cast<const char*>(name.at(read_.record));
            return {text, strnlen(text, row_.capacity)};
        }
        // A record that is the value itself.
        if (name.empty() && read_.record != nullptr) return shortest(*static_cast<const int*>(read_.record));
        return {};
    }
    [[nodiscard]] std::string became() const { return became(row_.field); }

    template <class Then>
    void withText(Then then) {
        if (text_) return then();
        constexpr std::string_view outcomes[] = {"the field stays as it was", "the field becomes false",
                                                 "the field becomes 0", "the field gets the code of an unknown word"};
        add(finding_kind::no_text, became(), std::string(outcomes[static_cast<std::size_t>(row_.withoutText)]));
    }

    void rest(std::size_t used) {
        const std::string_view left = withoutBlanks(text_->substr(used));
        if (left.empty()) return;
        add(finding_kind::trailing_text, became(), joined({"\"", left, "\" behind the number was ignored"}));
    }

    void noNumber() {
        add(finding_kind::not_a_number, became(),
            row_.number.onlyNumbers && row_.kind == Kind::number ? "the field stays as it was" : "it counts as 0");
    }

    /// Whether a text is nothing but a few digits, as nearly all numbers are; any field of 32 bits holds them.
    static std::optional<int> plain(std::string_view text, std::size_t most = 9) {
        if (text.empty() || text.size() > most) return std::nullopt;
        int number = 0;
        for (const char c : text) {
            if (c < '0' || c > '9') return std::nullopt;
            number = 10 * number + (c - '0');
        }
        return number;
    }

    void whole(const Number& form) {
        constexpr std::size_t inSixteenBits = 4;
        if (form.base == Base::decimal && form.bits >= 16 && plain(*text_, form.bits > 16 ? 9 : inSixteenBits)) return;
        const Whole number = wholeIn(*text_, form);
        if (number.used == 0) return noNumber();
        rest(number.used);
        if (fits(number, form)) return;
        std::int64_t stored = 0;
        bool isSigned = form.isSigned;
        if (const auto field = storedIn(row_.field, read_.record)) {
            stored = wholeNumberOf(*field->field, field->record);
            isSigned = field->field->isSigned;
        } else if (row_.field.empty() && read_.record != nullptr) {
            stored = *static_cast<const int*>(read_.record);
        } else if (!number.isHuge) {
            return;
        }
        if (!number.isHuge && isSame(number, stored, isSigned)) return;
        add(finding_kind::out_of_range, became(),
            joined({"the field has ", std::to_string(form.bits), " bits", form.isSigned ? "" : ", without a sign"}));
    }

    /// The same of a number with a decimal point.
    static bool isPlainDecimal(std::string_view text) {
        constexpr std::size_t most = 9;
        std::size_t points = 0;
        for (const char c : text) {
            if (c == '.') {
                ++points;
            } else if (c < '0' || c > '9') {
                return false;
            }
        }
        return text.size() > points && text.size() <= most && points <= 1;
    }

    void decimal() {
        if (isPlainDecimal(*text_)) return;
        const Decimal number = decimalIn(*text_);
        if (number.used == 0) return noNumber();
        rest(number.used);
        if (number.isHuge || std::isinf(static_cast<float>(number.value))) {
            add(finding_kind::out_of_range, became(), "the field is a float");
        }
    }

    template <class Setting>
    [[nodiscard]] const Setting& stored() const {
        return *static_cast<const Setting*>(row_.field.at(read_.record));
    }
    template <class Setting>
    void clamped(const Setting& setting) {
        add(finding_kind::clamped, became(),
            joined({"its range is ", shortest(setting.min), " to ", shortest(setting.max)}));
    }

    void setting() {
        if (const auto number = plain(*text_); number && *number == stored<Kavrin::_MinMaxVal>().value) return;
        const Whole number = wholeIn(*text_, {});
        if (number.used == 0) return noNumber();
        rest(number.used);
        const auto& setting = stored<Kavrin::_MinMaxVal>();
        if (isBeyondInt(number)) {
            add(finding_kind::out_of_range, became(), "the field has 32 bits");
        } else if (!isSame(number, setting.value, true)) {
            clamped(setting);
        }
    }

    void decimalSetting() {
        const Decimal number = decimalIn(*text_);
        if (number.used == 0) return noNumber();
        rest(number.used);
        const auto value = static_cast<float>(number.value);
        const auto& setting = stored<Kavrin::_MinMaxValFloat>();
        if (number.isHuge || std::isinf(value)) {
            add(finding_kind::out_of_range, became(), "the field is a float");
        } else if (value < setting.min || value > setting.max) {
            clamped(setting);
        }
    }

    void attribute(std::string_view name) {
        const char* const content = read_.element.attribute(name.data());
        if (content == nullptr) {
            add(finding_kind::attribute, {}, "it is missing").name = name;
            return;
        }
        const std::string_view value = content;
        if (plain(value)) return;
        const bool isDecimal = row_.kind == Kind::decimalSetting;
        const std::size_t used = isDecimal ? decimalIn(value).used : wholeIn(value, {}).used;
        const bool isHuge = !isDecimal && used != 0 && isBeyondInt(wholeIn(value, {}));
        if (used != 0 && !isHuge && withoutBlanks(value.substr(used)).empty()) return;
        Candidate& found = add(finding_kind::attribute, {},
                               used == 0 ? "it is no number"
                               : isHuge  ? "its number needs more than 32 bits"
                                         : "what is behind its number was ignored");
        found.name = name;
        found.text = value;
    }
    static bool isBeyondInt(const Whole& number) {
        return number.isHuge || number.magnitude > 2147483647U + (number.isNegative ? 1U : 0U);
    }
    void range() {
        attribute("min");
        attribute("max");
    }

    void cut(std::size_t capacity) {
        if (text_->size() < capacity) return;
        add(finding_kind::text_cut, became(),
            joined({"the field holds ", std::to_string(capacity - 1), " of its ", std::to_string(text_->size()),
                    " bytes"}));
    }

    void textAndCode() {
        cut(row_.capacity);
        if (text_->size() < row_.capacity) word(row_.otherField);
    }

    void appended() {
        if (became().ends_with(*text_)) return;
        add(finding_kind::text_cut, became(),
            joined({"the field holds ", std::to_string(row_.capacity - 1), " bytes of all that it is made of"}));
    }

    void panels() {
        const KnownField description = knownField({row_.field.record, "description"});
        const auto stored = description ? storedIn({row_.field.record, "description"}, read_.record) : std::nullopt;
        if (!stored) return;
        text_ = textOf(*stored->field, stored->record);
        // Without any panel the code stays as it was.
        if (!text_->empty()) word(row_.field);
    }

    [[nodiscard]] bool known(const char* word) const {
        return codeOf(Words{row_.words.words.rows, {}, row_.words.words.match}, word).has_value();
    }

    /// Words that the printer takes but does not send are known all the same.
    // Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
    static bool isWritten(std::span<const DescribedRow> rows, const FieldName& field, std::string_view word) {
        return std::ranges::any_of(rows, [&](const DescribedRow& row) {  // NOLINT(misc-no-recursion): likewise
            const Description& it = row.description;
            const bool isOfField = it.field.record == field.record && it.field.name == field.name;
            const bool hasWord =
                it.word == word || it.otherWord == word ||
                std::ranges::any_of(it.words.words.rows, [&](const Word& each) { return each.word == word; });
            return (isOfField && hasWord) || isWritten(it.group, field, word);
        });
    }

    void unknownWord(const FieldName& field) {
        for (const Request& request : requests()) {
            if (isWritten(request.table, field, *text_)) return;
        }
        const auto best =
            nearest(withoutBlanks(*text_), row_.words.words.rows, [](const Word& word) { return word.word; });
        add(finding_kind::unknown_word, became(field),
            best.empty() ? std::string() : joined({"did you mean \"", best, "\"?"}));
    }

    void word(const FieldName& field) {
        if (!known(text_->data())) unknownWord(field);  // Each of these texts has its terminator.
    }

    void truthWord() {
        for (const std::string_view word : {"yes", "no", "enabled", "disabled"}) {
            if (*text_ == word) return;
        }
        add(finding_kind::unknown_word, became(), R"(only "yes" and "enabled" are true)");
    }

    /// Any other word is the other truth, so only one that is nearly the same tells that it was not meant.
    void singleWord() {
        const std::string trimmed(withoutBlanks(*text_));
        const std::string word(row_.word);
        if (*text_ == word || !convert::equalIgnoringCase(trimmed.c_str(), word.c_str())) return;
        add(finding_kind::unknown_word, became(), joined({"did you mean \"", word, "\"?"}));
    }

    void hardwareAddress() {
        const std::string_view text = withoutBlanks(*text_);
        const convert::Digits address =
            convert::fromHardwareAddress(static_cast<const unsigned char*>(row_.field.at(read_.record)));
        constexpr std::size_t length = 17;
        const std::string begin(text.substr(0, length));
        if (!convert::equalIgnoringCase(address.c_str(), begin.c_str())) {
            add(finding_kind::not_a_number, became(), "it is not six bytes such as \"00:1a:2b:3c:4d:5e\"");
        } else if (text.size() > length) {
            rest(static_cast<std::size_t>(text.data() - text_->data()) + length);
        }
    }

    void ipAddress() {
        const auto address = *static_cast<const unsigned long*>(row_.field.at(read_.record));
        if (convert::fromIpAddress(address).c_str() == withoutBlanks(*text_)) return;
        add(finding_kind::not_a_number, became(), "it is not an address such as \"192.168.1.20\"");
    }

    const Read& read_;
    const Description& row_;
    Candidates& candidates_;
    std::optional<std::string_view> text_;
};

}  // namespace

KnownField knownField(const FieldName& name) {
    if (name.empty()) return {};
    for (const RecordType* const record : recordTypes()) {
        const std::string_view last = record->name.substr(record->name.rfind(':') + 1);
        if (last != name.record) continue;
        return {record, fieldNamed(*record, name.name)};
    }
    return {};
}

void checkValue(const Read& read, Candidates& candidates) {
    // Elements around others have no value of their own.
    if (hasOwnValue(read.row.kind) || read.again) Check(read, candidates).all();
}

}  // namespace kvj
