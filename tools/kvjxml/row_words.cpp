#include "row_words.h"

#include <span>
#include <sstream>

namespace kvj::tool {

std::string code(std::string_view name) {
    std::string text;
    if (!name.empty()) text.append("`").append(name).append("`");
    return text;
}

namespace {

std::string listed(std::span<const std::string_view> names) {
    std::string text;
    for (const auto& name : names) {
        if (&name != names.data()) text.append(&name == &names.back() ? " and " : ", ");
        text.append(code(name));
    }
    return text;
}

/// A number of digits, in words.
std::string_view spelled(int count) {
    constexpr std::string_view words[] = {"no", "one", "two", "three", "four"};
    return words[count];
}

std::string integer(const Number& number, Direction direction) {
    std::string text(number.base == Base::hexadecimal ? "hexadecimal after `0x`" : "number");
    if (number.base == Base::either) text.append(", hexadecimal after `0x`");
    if (number.bits == 16) text.append(", its low 16 bits");
    if (number.digits > 0) {
        text.append(direction == Direction::read ? ", at most " : ", at least ");
        text.append(spelled(number.digits)).append(" digits");
    }
    if (number.onlyNumbers) text.append("; any other text leaves it alone");
    return text;
}

std::string decimals(int count) { return std::string(spelled(count)).append(" decimals"); }

std::string setting(std::string_view value, Direction direction, std::string_view written) {
    if (direction == Direction::written) return std::string("attributes `min` and `max`, and ").append(written);
    return std::string(value).append(", brought into the range of `min` and `max`");
}

std::string atMost(std::size_t capacity) { return ", at most " + std::to_string(capacity - 1) + " bytes"; }

std::string otherwise(std::string_view word) { return word.empty() ? "" : ", else " + code(word); }

}  // namespace

std::string inWords(const Description& row, Direction direction) {
    const bool isRead = direction == Direction::read;
    const auto see = [&] { return ", see " + code(row.words.name); };
    switch (row.kind) {
        case Kind::number:
            return integer(row.number, direction);
        case Kind::decimal:
            return isRead ? "number with a decimal point" : "number with " + decimals(row.decimals);
        case Kind::setting:
            return setting("number", direction, "the value");
        case Kind::decimalSetting:
            return setting("number with a decimal point", direction,
                           "the maximum once more, with " + decimals(row.decimals));
        case Kind::attribute:
            return "attribute " + code(row.word);
        case Kind::text:
            return isRead ? "text" + atMost(row.capacity) : "text";
        case Kind::textWithoutWord:
            return "text without a leading " + code(row.word) + atMost(row.capacity);
        case Kind::textAndCode:
            return "text, and its code to " + code(row.otherField.name) + atMost(row.capacity) + see();
        case Kind::appendedText:
            return "text, appended" + atMost(row.capacity) + " in all";
        case Kind::word:
            if (!isRead) return "word of the code" + otherwise(row.otherWord) + see();
            return std::string("code of the word") +
                   (row.withoutText == WithoutText::isOther ? ", without text that of any other" : "") + see();
        case Kind::wordOrNext:
            return "code of the word; a second one to " + code(row.otherField.name) + see();
        case Kind::wordOfPanels:
            return "code of the description with its panels after it" + see();
        case Kind::bits:
            return (isRead ? "bit of the word, added" : "an element for each bit") + see();
        case Kind::combinedCodes:
            return "code of the word, OR-ed in" + see();
        case Kind::flag:
            return "true for exactly `enabled` and `yes`";
        case Kind::isWord:
            return "true for exactly " + code(row.word);
        case Kind::isNotWord:
            return "false for exactly " + code(row.word);
        case Kind::either:
            return "when true " + code(row.word) + otherwise(row.otherWord);
        case Kind::constant:
            return "always " + code(row.word);
        case Kind::toldWord:
            return code(row.word) + " or " + code(row.otherWord) + ", as the composer is told";
        case Kind::laminatorWord:
            return "word of the laminator's type; without a laminator " + code(row.otherWord) + see();
        case Kind::hardwareAddress:
            return "hardware address";
        case Kind::ipAddress:
            return "IPv4 address";
        case Kind::group:
        case Kind::part:
            return "group";
        case Kind::list:
            return isRead ? "list" : "a list of " + code(row.word);
        case Kind::entry:
            return "entry of a list";
        case Kind::firstEntry:
            return "the first entry of a list, each time";
        case Kind::newEntry:
            return "a new entry of the list";
        case Kind::byDescription:
            return "the last with the description " + code(row.word) + "; the last other one to " +
                   code(row.otherField.name);
        case Kind::givenAttributes:
            return "nothing: its attribute" + std::string(row.attributes.size() == 1 ? " " : "s ") +
                   listed(row.attributes) + (row.attributes.size() == 1 ? " is" : " are") + " set from the record";
    }
    return {};
}

std::string whenWritten(const DescribedRow& row) {
    std::ostringstream text;
    if (row.section != 0) text << "bit `0x" << std::hex << row.section << '`';
    if (row.section != 0 && !row.condition.empty()) text << ", ";
    text << row.condition;
    return text.str();
}

}  // namespace kvj::tool
