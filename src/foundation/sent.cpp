#include "foundation/sent.h"

#include <cmath>
#include <cstring>
#include <string>

#include "foundation/convert.h"
#include "foundation/fitness.h"
#include "foundation/problems.h"
#include "foundation/request_text.h"

namespace kvj {

namespace {

using kvjxml::problem_kind;

/// Who is told of what is not sent as it is asked for; null for nobody.
Problems* listener(Parent parent) {
    RequestText* const text = parent.text();
    return text == nullptr ? nullptr : text->problems();
}

std::string behind(std::string_view mark, std::string_view name) { return std::string(mark).append(name); }

/// Whether these digits are read as that number.
bool keeps(const convert::Digits& digits, float value) {
    return std::isfinite(value) && convert::toFloat(digits.c_str()) == value;
}

void checkDigits(Problems& problems, const convert::Digits& sent, float value, std::string_view field,
                 std::string_view path) {
    if (keeps(sent, value)) return;
    problems.found(problem_kind::digits_lost, convert::shortest(value).c_str(), sent.c_str(), field, path);
}

void checkText(Problems& problems, std::string_view text, Stands where, std::string_view field = {},
               std::string_view path = {}) {
    if (const auto kind = unfitness(text, where)) problems.found(*kind, text, text, field, path);
}

/// A text of the host's can be longer than what is sent of it.
void checkArgument(Problems& problems, const char* text, Stands where, std::string_view field, std::string_view path) {
    const std::string_view whole = problems.whole(text);
    if (whole.size() != std::strlen(text)) {
        problems.found(problem_kind::holds_nul, whole, text, behind("/", field), path);
    } else {
        checkText(problems, whole, where, behind("/", field), path);
    }
}

/// Of a setting with a fraction, whose text is its maximum.
void checkFraction(Problems& problems, const Kavrin::_MinMaxValFloat& setting, const convert::Digits& min,
                   const convert::Digits& max) {
    checkDigits(problems, min, setting.min, "/min", "/@min");
    checkDigits(problems, max, setting.max, "/max", "/@max");
    const bool isInRange = setting.value >= setting.min && setting.value <= setting.max;
    if (isInRange && keeps(max, setting.value)) return;
    const auto kind = !isInRange                     ? problem_kind::out_of_range
                      : setting.value == setting.max ? problem_kind::digits_lost
                                                     : problem_kind::sent_as_maximum;
    problems.found(kind, convert::shortest(setting.value).c_str(), max.c_str(), "/value");
}

}  // namespace

// ---- Elements ----

bool addWord(Parent parent, const char* name, const Words& table, int code, const char* other, std::string_view field) {
    const char* const word = wordOf(table, code);
    const bool added = addTag(parent, name, word == nullptr ? other : word);
    if (word != nullptr) return added;
    if (Problems* const problems = listener(parent)) {
        problems->found(problem_kind::no_word, convert::fromInt(code).c_str(), other, field);
    }
    return added;
}

bool addBits(Parent parent, const char* name, const Words& table, int bits) {
    const Description* const row = parent.text() == nullptr ? nullptr : parent.text()->announced();
    bool result = false;
    int left = bits;
    for (const Word& word : table.rows) {
        if ((bits & word.code) == 0) continue;
        result = addTag(parent, name, word.word);
        left &= ~word.code;
    }
    if (Problems* const problems = left == 0 ? nullptr : listener(parent)) {
        problems->leftOut(problem_kind::no_bit, convert::fromInt(left).c_str(), parent.depth(), name, row);
    }
    return result;
}

bool addDecimal(Parent parent, const char* name, float value, int decimals) {
    const convert::Digits digits = convert::fromDouble(value, decimals);
    const bool added = addTag(parent, name, digits.c_str());
    if (Problems* const problems = listener(parent)) checkDigits(*problems, digits, value, {}, {});
    return added;
}

bool addField(Parent parent, const char* name, const char* field, std::size_t capacity) {
    const std::string_view text(field, strnlen(field, capacity));
    const bool added =
        text.size() < capacity ? addTag(parent, name, field) : addTag(parent, name, std::string(text).c_str());
    if (Problems* const problems = listener(parent)) checkText(*problems, text, Stands::inElement);
    return added;
}

bool addSetting(Parent parent, const char* name, const Kavrin::_MinMaxVal& setting) {
    const convert::Digits value = convert::fromInt(setting.value);
    const bool added = addSetting(parent, name, convert::fromInt(setting.min).c_str(),
                                  convert::fromInt(setting.max).c_str(), value.c_str());
    if (setting.value >= setting.min && setting.value <= setting.max) return added;
    if (Problems* const problems = listener(parent)) {
        problems->found(problem_kind::out_of_range, value.c_str(), value.c_str(), "/value");
    }
    return added;
}

bool addSetting(Parent parent, const char* name, const Kavrin::_MinMaxValFloat& setting) {
    const convert::Digits min = convert::fromDouble(setting.min, 2);
    const convert::Digits max = convert::fromDouble(setting.max, 2);
    const bool added = addSetting(parent, name, min.c_str(), max.c_str(), max.c_str());
    if (Problems* const problems = listener(parent)) checkFraction(*problems, setting, min, max);
    return added;
}

bool addIpAddress(Parent parent, const char* name, unsigned long address) {
    const convert::Digits digits = convert::fromIpAddress(address);
    const bool added = addTag(parent, name, digits.c_str());
    constexpr unsigned long largest = 0xFFFFFFFF;
    if (Problems* const problems = address > largest ? listener(parent) : nullptr) {
        problems->found(problem_kind::digits_lost, std::to_string(address), digits.c_str());
    }
    return added;
}

// ---- Arguments ----

Parent addNamed(Parent parent, const char* name, std::string_view field) {
    Problems* const problems = listener(parent);
    // Even a host that accepts changes wants XML.
    if (parent.text() != nullptr && problems == nullptr && (name == nullptr || !isName(name))) return nullptr;
    const Parent element = addTag(parent, name);
    if (problems != nullptr && element) {
        const std::string_view whole = problems->whole(name);
        if (!isName(whole)) problems->found(problem_kind::no_name, whole, name, behind("/", field));
    }
    return element;
}

bool addArgument(Parent parent, const char* name, const char* text, std::string_view field) {
    if (!addTag(parent, name, text)) return false;
    if (Problems* const problems = listener(parent)) checkArgument(*problems, text, Stands::inElement, field, {});
    return true;
}

bool addArgumentText(Parent element, const char* text, std::string_view field, const char* word) {
    if (!addText(element, word == nullptr ? text : word)) return false;
    if (Problems* const problems = listener(element)) checkArgument(*problems, text, Stands::inElement, field, {});
    return true;
}

void setArgument(Parent element, const char* name, const char* text, std::string_view field) {
    if (!setAttribute(element, name, text)) return;
    if (Problems* const problems = listener(element)) {
        checkArgument(*problems, text, Stands::inAttribute, field, behind("/@", name));
    }
}

void setArgument(Parent element, const char* name, float value, std::string_view field) {
    const convert::Digits digits = convert::fromDouble(value, 1);
    if (!setAttribute(element, name, digits.c_str())) return;
    if (Problems* const problems = listener(element)) {
        checkDigits(*problems, digits, value, behind("/", field), behind("/@", name));
    }
}

void setWord(Parent element, const char* name, const Words& table, int code, std::string_view field) {
    if (setAttribute(element, name, wordOf(table, code))) return;
    if (Problems* const problems = listener(element)) {
        problems->found(problem_kind::no_word, convert::fromInt(code).c_str(), {}, behind("/", field),
                        behind("/@", name));
    }
}

void addWordText(Parent element, const Words& table, int code, std::string_view field) {
    if (addText(element, wordOf(table, code))) return;
    if (Problems* const problems = listener(element)) {
        problems->found(problem_kind::no_word, convert::fromInt(code).c_str(), {}, behind("/", field));
    }
}

void need(Parent element, const char* text, std::string_view field, std::string_view path) {
    if (Problems* const problems = text == nullptr ? listener(element) : nullptr) {
        problems->found(problem_kind::missing, {}, {}, behind("/", field), path);
    }
}

}  // namespace kvj
