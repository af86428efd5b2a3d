#include "sample.h"

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <string>

#include "merged_rows.h"
#include "security/tables.h"
#include "xml_printer.h"

namespace kvj::tool {

namespace {

std::string hexadecimal(unsigned number) {
    char digits[16];
    static_cast<void>(std::snprintf(digits, sizeof digits, "%02x", number));
    return digits;
}

/// A word that says the opposite: the tables have only the one that counts.
std::string oppositeOf(std::string_view word) { return word == "off" ? "on" : "yes"; }

/// Whether elements of this kind stand side by side, each with a value of its own.
bool standsAgain(Kind kind) {
    switch (kind) {
        case Kind::bits:
        case Kind::combinedCodes:
        case Kind::wordOrNext:
        case Kind::entry:
        case Kind::newEntry:
        case Kind::byDescription:
            return true;
        default:
            return false;
    }
}

class Sample {
public:
    explicit Sample(std::ostream& out) : xml_(out) {}

    void write(std::string_view root) {
        const auto readers = messagesWithRoot(root);
        const auto rows = mergedRows(readers);
        if (rows.empty()) return xml_.element(root, {}, text(root, readers.front()->record.size));
        xml_.element(root, {}, rootText(*readers.front()), [&] { write(rows, nullptr); });
    }

private:
    /// A directive has the name of its action in front of its elements, which no row says.
    static std::string_view rootText(const Message& message) {
        return message.name == "secure_directive" ? Words(security::actionNames).rows.front().word : "";
    }

    // Groups nest as deep as the tables are written, so the recursion ends.
    // NOLINTBEGIN(misc-no-recursion)
    void write(const std::vector<MergedRow>& rows, const MergedRow* around) {
        const bool isInList = around != nullptr && around->has(Kind::list);
        for (const MergedRow& row : rows) {
            const Kind kind = row.descriptions.front()->kind;
            const bool isAgain = standsAgain(kind) || (isInList && kind != Kind::firstEntry);
            write(row, around, row.descriptions.front()->word);
            if (isAgain) write(row, around, {});
        }
    }

    /// @param description  by which a record is told from another, see Kind::byDescription.
    void write(const MergedRow& row, const MergedRow* around, std::string_view description) {
        const auto group = row.group();
        const Attributes attributes = attributesOf(row);
        if (group.empty()) return xml_.element(row.name, attributes, valueOf(row, around));
        if (row.has(Kind::byDescription)) description_ = description;
        xml_.element(row.name, attributes, {}, [&] { write(group, &row); });
    }
    // NOLINTEND(misc-no-recursion)

    Attributes attributesOf(const MergedRow& row) {
        Attributes attributes;
        for (const Description* const each : row.descriptions) {
            if (each->kind == Kind::attribute) attributes.emplace_back(each->word, std::to_string(next()));
            for (const std::string_view name : each->attributes) attributes.emplace_back(name, text(name));
            const std::string fraction = each->kind == Kind::decimalSetting ? ".5" : "";
            if (each->kind != Kind::setting && each->kind != Kind::decimalSetting) continue;
            attributes.emplace_back("min", std::to_string(next()) + fraction);
            value_ = std::to_string(next()) + fraction;  // The value, between the two.
            attributes.emplace_back("max", std::to_string(next()) + fraction);
        }
        return attributes;
    }

    /// A value that every reader takes as it is: texts take what fits, so the others choose.
    std::string valueOf(const MergedRow& row, const MergedRow* around) {
        std::size_t room = longest;
        const Description* chooses = row.descriptions.front();
        for (const Description* const each : row.descriptions) {
            if (each->capacity != 0) room = std::min(room, each->capacity);
            if (chooses->kind == Kind::text || chooses->kind == Kind::attribute) chooses = each;
        }
        return valueOf(row.name, *chooses, room, around);
    }

    std::string valueOf(std::string_view name, const Description& row, std::size_t room, const MergedRow* around) {
        switch (row.kind) {
            case Kind::number:
                return number(row.number);
            case Kind::decimal:
                return std::to_string(next()) + ".5";
            case Kind::setting:
            case Kind::decimalSetting:
                return value_;
            case Kind::text:
            case Kind::textWithoutWord:
                if (row.field.name == "description" && !description_.empty()) {
                    return std::string(std::exchange(description_, {}));
                }
                return text(name, room);
            case Kind::textAndCode:
            case Kind::word:
            case Kind::wordOrNext:
            case Kind::bits:
            case Kind::combinedCodes:
                return word(row.words.words, room);
            case Kind::appendedText:  // The only panel, so it is the whole description.
                return word(around->descriptions.front()->words.words, room);
            case Kind::flag:
                return "yes";
            case Kind::isWord:
                return std::string(row.word);
            case Kind::isNotWord:
                return oppositeOf(row.word);
            case Kind::hardwareAddress:
                return "00:1a:2b:3c:4d:" + hexadecimal(next() % 0x100);
            case Kind::ipAddress:
                return "192.168.1." + std::to_string(next() % 0xFF);
            default:
                return {};
        }
    }

    /// Another number each time.
    unsigned next() { return ++count_; }

    std::string number(const Number& form) {
        const int bits = form.digits > 0 ? 4 * form.digits : form.bits - (form.isSigned ? 1 : 0);
        const unsigned value = bits >= 32 ? next() : next() % (1U << bits);
        return form.base == Base::hexadecimal ? "0x" + hexadecimal(value) : std::to_string(value);
    }

    /// The name of what it is for, with a number.
    std::string text(std::string_view name, std::size_t room = longest) {
        const std::string number = std::to_string(next());
        const std::size_t left = room - 1 > number.size() ? room - 1 - number.size() : 0;
        std::string text(name.substr(0, left));
        if (text.size() < left) text += ' ';
        return text + number;
    }

    /// Another word each time, and one that nothing else stands for: not 0, which fields begin with, nor the code of
    /// unknown words.
    std::string word(const Words& words, std::size_t room) {
        for (std::size_t i = 0; i < words.rows.size(); ++i) {
            const Word& row = words.rows[words_++ % words.rows.size()];
            const bool isItself = codeOf(words, row.word) == row.code && std::string_view(row.word).size() < room;
            if (isItself && row.code != 0 && row.code != words.other) return row.word;
        }
        return words.rows.front().word;
    }

    static constexpr std::size_t longest = 32;

    XmlPrinter xml_;
    unsigned count_ = 0;
    std::size_t words_ = 0;
    std::string value_;             ///< of the setting whose attributes are written
    std::string_view description_;  ///< that the next description gets
};

}  // namespace

void writeSample(std::ostream& out, std::string_view root) { Sample(out).write(root); }

ExitCode printSample(std::string_view root) {
    writeSample(std::cout, root);
    return ExitCode::done;
}

}  // namespace kvj::tool
