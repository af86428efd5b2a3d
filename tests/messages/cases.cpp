#include "messages/cases.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <string_view>
#include <utility>

namespace kvj::tests {

namespace {

using Change = std::function<void(void* record)>;

std::string element(std::string_view name, const std::string& content, const std::string& attributes = "") {
    return "<" + std::string(name) + attributes + ">" + content + "</" + std::string(name) + ">";
}

const Field* fieldNamed(const RecordType& type, std::string_view name) {
    const auto field = std::ranges::find(type.fields, name, &Field::name);
    return field == type.fields.end() ? nullptr : &*field;
}

// ---- What elements do ----

void keep(void* /*record*/) {}

Change setNumber(const Field& field, std::int64_t number) {
    return [&field, number](void* record) { setWholeNumber(field, record, number); };
}
Change setDecimal(const Field& field, float number) {
    return [&field, number](void* record) { setValue(field, record, number); };
}
/// A flag, or a byte that is one.
Change setTruth(const Field& field, bool value) {
    if (field.type == FieldType::number) return setNumber(field, value ? 1 : 0);
    return [&field, value](void* record) { setFlag(field, record, value); };
}
Change setText(const Field& field, const std::string& text) {
    return
        [&field, text](void* record) { std::strncpy(static_cast<char*>(field.in(record)), text.c_str(), field.size); };
}
Change both(Change first, Change second) {
    return [=](void* record) {
        first(record);
        second(record);
    };
}
Change setCode(const Field& field, std::optional<int> code) { return code ? setNumber(field, *code) : keep; }

/// Sets the value and the ends of a setting's range, where they are given, and holds the value to the range.
template <class Number>
Change setSetting(const Field& setting, std::vector<std::pair<const char*, Number>> values) {
    return [&setting, values](void* record) {
        const RecordType& type = *setting.record;
        void* const fields = setting.in(record);
        for (const auto& [name, number] : values) setValue(*fieldNamed(type, name), fields, number);
        const auto limit = [&](const char* name) { return valueOf<Number>(*fieldNamed(type, name), fields); };
        setValue(*fieldNamed(type, "value"), fields, std::min(std::max(limit("value"), limit("min")), limit("max")));
    };
}

// ---- The elements of a row, by its kind ----

/// A row whose value goes to a field.
class ValueRow {
public:
    ValueRow(const DescribedRow& row, const Field& field, const Field* otherField)
        : row_(&row), field_(&field), otherField_(otherField) {
        add();
    }

    std::vector<Input> inputs;

    [[nodiscard]] Input withoutText() const { return {element(row_->name, ""), changeWithoutText(), false}; }

private:
    [[nodiscard]] const Description& description() const { return row_->description; }

    void input(const std::string& text, Change change, std::optional<bool> result = true) {
        inputs.push_back({element(row_->name, text), std::move(change), result});
    }
    void inputWith(const std::string& attributes, const std::string& text, Change change,
                   std::optional<bool> result = true) {
        inputs.push_back({element(row_->name, text, " " + attributes), std::move(change), result});
    }

    void add() {
        switch (description().kind) {
            case Kind::number:
                return addNumbers();
            case Kind::decimal:
                input("1.25", setDecimal(*field_, 1.25F));
                input("-7", setDecimal(*field_, -7));
                input("x", setDecimal(*field_, 0));
                return;
            case Kind::setting:
                return addSettings<int>();
            case Kind::decimalSetting:
                return addSettings<float>();
            case Kind::attribute:
                inputWith(std::string(description().word) + "='177'", "1", setNumber(*field_, 177));
                inputWith(std::string(description().word) + "='-7'", "", setNumber(*field_, -7));
                inputWith(std::string(description().word) + "='x'", "1", keep, false);
                inputWith("other='1'", "1", keep, false);
                return;
            case Kind::textWithoutWord:
                input(std::string(description().word) + " RED", setText(*field_, "RED"));
                [[fallthrough]];
            case Kind::text:
                return addTexts([](const std::string& /*text*/) { return Change(keep); });
            case Kind::textAndCode:
                addTexts([this](const std::string& text) { return codeToOther(text.c_str()); });
                for (const Word& word : description().words.words.rows) {
                    input(word.word, both(setText(*field_, word.word), codeToOther(word.word)));
                }
                return;
            case Kind::word:
                for (const Word& word : description().words.words.rows) input(word.word, codeToField(word.word));
                input("no word of a printer", codeToField("no word of a printer"));
                return;
            case Kind::bits:
            case Kind::combinedCodes:
                for (const Word& word : description().words.words.rows) input(word.word, addCode(word.word));
                return;
            case Kind::flag:
                input("yes", setTruth(*field_, true));
                input("no", setTruth(*field_, false));
                input("enabled", setTruth(*field_, true));
                input("disabled", setTruth(*field_, false));
                return;
            case Kind::isWord:
            case Kind::isNotWord: {
                const bool word = description().kind == Kind::isWord;
                input(std::string(description().word), setTruth(*field_, word));
                input("no word of a printer", setTruth(*field_, !word));
                return;
            }
            case Kind::hardwareAddress:
                input("00:1A:2B:3C:4D:FE", [&field = *field_](void* record) {
                    std::memcpy(field.in(record), "\x00\x1A\x2B\x3C\x4D\xFE", 6);
                });
                return;
            case Kind::ipAddress:
                input("10.20.30.240", [&field = *field_](void* record) { setValue(field, record, 0xF01E140AUL); });
                return;
            default:
                return;  // Elements around others, and what requests alone write.
        }
    }

    void addNumbers() {
        const Number& number = description().number;
        if (number.base != Base::decimal) input("0x2A", setNumber(*field_, 0x2A));
        if (number.base != Base::hexadecimal) input("177", setNumber(*field_, 177));
        if (number.onlyNumbers) return input("x", keep, std::nullopt);
        input("x", setNumber(*field_, 0));
        // The low bits of a number that is too large.
        if (number.bits == 16) input("65613", setNumber(*field_, 77));
        if (number.bits == 32) input("4294967373", setNumber(*field_, 77));
        if (number.bits == 32 && number.isSigned) input("-7", setNumber(*field_, -7));
    }

    template <class Value>
    void addSettings() {
        const std::string range = "min='-90' max='190'";
        const auto set = [this](Value min, Value max, Value value) {
            return setSetting<Value>(*field_, {{"min", min}, {"max", max}, {"value", value}});
        };
        inputWith(range, "177", set(-90, 190, 177));
        inputWith(range, "-177", set(-90, 190, -90));
        inputWith(range, "1000", set(-90, 190, 190));
        inputWith("min='x'", "-7", setSetting<Value>(*field_, {{"value", Value{-7}}}));
    }

    /// A text that fits, the longest that does, and one that is cut. `andOther` is done too.
    template <class AndOther>
    void addTexts(AndOther andOther) {
        const std::size_t longest = description().capacity - 1;
        for (const std::size_t length : {std::size_t{2}, longest}) {
            const std::string text(length, 'x');
            input(text, both(setText(*field_, text), andOther(text)));
        }
        for (const std::size_t length : {longest + 1, longest + 1000}) {
            input(std::string(length, 'y'), setText(*field_, std::string(longest, 'y')), false);
        }
    }

    Change codeToField(const char* text) { return setCode(*field_, codeOf(description().words.words, text)); }
    Change codeToOther(const char* text) { return setCode(*otherField_, codeOf(description().words.words, text)); }
    Change addCode(const char* text) {
        return [&field = *field_, code = *codeOf(description().words.words, text)](void* record) {
            setWholeNumber(field, record, wholeNumberOf(field, record) | code);
        };
    }

    [[nodiscard]] Change changeWithoutText() const {
        if (description().kind == Kind::setting) return setSetting<int>(*field_, {});
        if (description().kind == Kind::decimalSetting) return setSetting<float>(*field_, {});
        switch (description().withoutText) {
            case WithoutText::isKept:
                return keep;
            case WithoutText::isFalse:
                return setTruth(*field_, false);
            case WithoutText::isZero:
                return [&field = *field_](void* record) { std::memset(field.in(record), 0, field.size); };
            case WithoutText::isOther:
                return setCode(*field_, description().words.words.other);
        }
        return keep;
    }

    const DescribedRow* row_;
    const Field* field_;
    const Field* otherField_;
};

// ---- All rows ----

class Collecting {
public:
    explicit Collecting(const Message& message) {
        collect(message.table, {"", "", [](void* record) { return record; }, &message.record});
    }

    std::vector<RowCases> all;

private:
    /// What rows are read into: a record, or a value that stands for itself.
    struct Place {
        std::string open;
        std::string close;
        std::function<void*(void* record)> within;
        const Field* what;
        bool isList = false;  ///< whether the next element is an entry
    };

    // Groups nest as deep as the tables are written, so the recursion ends.
    // NOLINTBEGIN(misc-no-recursion)
    void collect(std::span<const DescribedRow> rows, const Place& place) {
        for (const DescribedRow& row : rows) collect(row, place);
    }

    void collect(const DescribedRow& row, Place place) {
        const Description& description = row.description;
        const Field* field = fieldOf(description.field, place);
        const auto open = [&] {
            place.open += "<" + std::string(row.name) + ">";
            place.close.insert(0, "</" + std::string(row.name) + ">");
        };
        switch (description.kind) {
            case Kind::group:
                open();
                return collect(description.group, place);
            case Kind::part:
                open();
                enter(place, *field, [field](void* record) { return field->in(record); });
                return collect(description.group, place);
            case Kind::list:
                open();
                enterEntry(place, *field);
                place.isList = true;
                return collect(description.group, place);
            case Kind::entry:
            case Kind::firstEntry:
                // A message that is one list has no element around it.
                if (const Field* const list = onlyListOf(*place.what)) enterEntry(place, *list);
                place.isList = false;
                open();
                return collect(description.group, place);
            case Kind::newEntry:
                open();
                enter(place, *field->entries->entry, [field](void* record) { return field->entries->append(record); });
                return collect(description.group, place);
            case Kind::byDescription: {
                // None of the inputs has the description of the first.
                const Field* const other = fieldOf(description.otherField, place);
                open();
                enter(place, *other, [other](void* record) { return std::memset(other->in(record), 0, other->size); });
                return collect(description.group, place);
            }
            default:
                break;
        }
        if (field == nullptr) return;  // It goes through a record that hosts do not see.
        const Field* const otherField = fieldOf(description.otherField, place);
        if (field->type == FieldType::record && !isSetting(description.kind)) {
            // The value of a setting that is read without its range.
            enter(place, *field, [field](void* record) { return field->in(record); });
            field = fieldNamed(*field->record, "value");
        }
        const ValueRow values(row, *field, otherField);
        if (values.inputs.empty()) return;
        all.push_back({std::string(row.name), place.open, place.close, place.within, place.isList, values.inputs,
                       values.withoutText()});
    }
    // NOLINTEND(misc-no-recursion)

    /// The field of a place's record; where there is no record, the value itself when the row names no field.
    static const Field* fieldOf(const FieldName& name, const Place& place) {
        if (place.what->record != nullptr) return fieldNamed(*place.what->record, name.name);
        return name.empty() ? place.what : nullptr;
    }

    static bool isSetting(Kind kind) { return kind == Kind::setting || kind == Kind::decimalSetting; }

    static const Field* onlyListOf(const Field& what) {
        if (what.type == FieldType::list) return &what;
        if (what.record == nullptr || what.record->fields.size() != 1) return nullptr;
        return onlyListOf(what.record->fields.front());
    }

    static void enter(Place& place, const Field& what, const std::function<void*(void*)>& step) {
        place.within = [before = place.within, step](void* record) { return step(before(record)); };
        place.what = &what;
    }
    static void enterEntry(Place& place, const Field& list) {
        enter(place, *list.entries->entry,
              [entries = list.entries](void* record) { return const_cast<void*>(entries->at(record, 0)); });
    }
};

}  // namespace

std::vector<RowCases> casesOf(const Message& message) { return Collecting(message).all; }

}  // namespace kvj::tests
