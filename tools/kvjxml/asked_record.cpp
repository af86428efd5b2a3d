#include "asked_record.h"

#include <algorithm>
#include <string>

#include "field_at.h"
#include "field_codes.h"
#include "secrets.h"
#include "suggestion.h"
#include "visible_text.h"

namespace kvj::tool {

namespace {

// Records nest as deep as they are declared, so the recursion ends.
// NOLINTBEGIN(misc-no-recursion)

class Filling {
public:
    Filling(bool isOfArguments, Arrays& arrays, Changes& changes)
        : isOfArguments_(isOfArguments), arrays_(&arrays), changes_(&changes) {}

    void readRecord(const Place& place, const RecordType& type, void* record, const Needed* needed) {
        place.expectObject();
        for (const auto& [name, value] : place.value().items()) {
            if (std::ranges::find(type.fields, name, &Field::name) == type.fields.end()) {
                place.refuse(name, "is not a field of this request" +
                                       meant(nearest(name, type.fields, [](const Field& it) { return it.name; })));
            }
        }
        for (const Field& field : type.fields) {
            const Needed* const inner = needed == nullptr ? nullptr : needed->of(field.name);
            if (!place.has(field.name) && inner == nullptr) continue;
            read(place.at(field.name), field, record, inner, {&type, &field});
        }
    }

private:
    /// @param name  by what the field is known: that of an entry is its list's.
    void read(const Place& place, const Field& field, void* record, const Needed* needed, const FieldOfRecord& name) {
        switch (field.type) {
            case FieldType::record:
                return readRecord(place, *field.record, field.in(record), needed);
            case FieldType::list:
                return readEntries(place, *field.entries, record, needed, name);
            default: {
                const bool isSent = needed != nullptr || isOfArguments_;
                readValue(place, field, record, name, isSent ? changes_ : nullptr);
            }
        }
    }

    void readEntries(const Place& place, const Entries& entries, void* record, const Needed* needed,
                     const FieldOfRecord& name) {
        const std::size_t count = place.expectList();
        const Field& entry = *entries.entry;
        if (entries.storage == Storage::ofHost) {
            std::byte* const array = makeArray(count * entry.size);
            for (std::size_t i = 0; i < count; ++i) read(place.at(i), entry, array + i * entry.size, needed, name);
            entries.setCount(record, static_cast<std::int64_t>(count));
            entries.provide(record, array);
        } else {
            for (std::size_t i = 0; i < count; ++i) read(place.at(i), entry, entries.append(record), needed, name);
        }
    }

    /// @param changes  null for a field that is not sent.
    void readValue(const Place& place, const Field& field, void* record, const FieldOfRecord& name, Changes* changes) {
        if (field.type == FieldType::number) {
            if (!setWholeNumber(field, record, number(place, name, changes))) place.refuse("is out of range");
        } else if (place.value().is_object() && place.has("value")) {
            expectMembers(place);
            const Place value = place.at("value");
            readSimple(value, field, record, changes);
            addRaw(place, value.value().is_string() ? value.text() : value.value().dump(), changes);
        } else {
            readSimple(place, field, record, changes);
        }
    }

    void readSimple(const Place& place, const Field& field, void* record, const Changes* changes) {
        switch (field.type) {
            case FieldType::flag:
            case FieldType::bit:
                return setFlag(field, record, place.flag());
            case FieldType::decimal:
                return setValue(field, record, place.decimal());
            case FieldType::hardwareAddress:
                return setValue(field, record, place.hardwareAddress());
            case FieldType::ipAddress:
                return setValue(field, record, place.ipAddress());
            case FieldType::text:
                return readText(place, field, record, changes);
            case FieldType::hostText:
                return setValue<const char*>(field, record, readHostText(place, field, changes));
            default:
                return;
        }
    }

    static std::string text(const Place& place, const Changes* changes) {
        std::string content = place.text();
        // However much is accepted: nobody wants stars for a key.
        if (changes != nullptr && content == masked) place.refuse("is masked, and would be sent as it stands");
        return content;
    }

    static void readText(const Place& place, const Field& field, void* record, const Changes* changes) {
        const std::string content = text(place, changes);
        if (content.size() >= field.size) place.refuse("is longer than " + std::to_string(field.size - 1) + " bytes");
        auto* const target = static_cast<char*>(field.in(record));
        content.copy(target, content.size());
        target[content.size()] = '\0';
    }

    const char* readHostText(const Place& place, const Field& field, const Changes* changes) {
        const std::string content =
            field.hostText == HostText::elementName ? place.elementName() : text(place, changes);
        auto* const target = reinterpret_cast<char*>(makeArray(content.size() + 1));
        content.copy(target, content.size());
        return target;
    }

    // ---- Numbers and codes ----

    static void expectMembers(const Place& place) {
        constexpr std::string_view known[] = {"code", "value", "word", "words", "sent"};
        for (const auto& [name, value] : place.value().items()) {
            if (std::ranges::find(known, name) == std::end(known)) place.refuse(name, "is nothing that a value has");
        }
    }

    /// What the printer's own text became is not what the printer said.
    static void addRaw(const Place& place, std::string sent, Changes* changes) {
        if (changes == nullptr || !place.has("sent")) return;
        changes->add(
            {place.pointer(), place.at("sent").text(), std::move(sent), "the reply said so, and was read otherwise"});
    }

    std::int64_t number(const Place& place, const FieldOfRecord& name, Changes* changes) {
        const nlohmann::json& value = place.value();
        if (value.is_number()) {
            const std::int64_t code = place.wholeNumber();
            if (changes != nullptr) checkCode(place, name, code, *changes);
            return code;
        }
        const FieldCodes codes(name.record->name, name.field->name);
        if (value.is_string() && !codes.empty()) return codeOf(place, codes);
        if (value.is_array() && codes.areBits()) return bitsOf(place, codes);
        if (!value.is_object()) return place.wholeNumber();
        expectMembers(place);
        if (place.has("value")) {
            const std::int64_t number = place.at("value").wholeNumber();
            addRaw(place, std::to_string(number), changes);
            return number;
        }
        return code(place, codes, name, changes);
    }

    /// Of an object as `decode --words` prints it.
    std::int64_t code(const Place& place, const FieldCodes& codes, const FieldOfRecord& name, Changes* changes) {
        const std::int64_t code = place.at("code").wholeNumber();
        const auto expect = [&](const Place& word, std::int64_t other) {
            if (other != code) word.refuse("is " + std::to_string(other) + ", but the code is " + std::to_string(code));
        };
        if (place.has("word")) expect(place.at("word"), codeOf(place.at("word"), codes));
        if (place.has("words")) expect(place.at("words"), bitsOf(place.at("words"), codes));
        if (place.has("sent") && codes.codeOf(place.at("sent").text()) != code) {
            const std::string word = codes.wordOf(code);
            addRaw(place, word.empty() ? std::to_string(code) : word, changes);
        } else if (!place.has("word") && !place.has("sent") && changes != nullptr) {
            checkCode(place, name, code, *changes);
        }
        return code;
    }

    static std::int64_t codeOf(const Place& place, const FieldCodes& codes) {
        const std::string word = place.text();
        const auto code = codes.codeOf(word);
        if (!code) {
            place.refuse("is no word for this field: \"" + visible(word) + "\" is none of " + codes.listed() +
                         meant(codes.nearest(word)));
        }
        return *code;
    }

    static std::int64_t bitsOf(const Place& place, const FieldCodes& codes) {
        std::int64_t bits = 0;
        const std::size_t count = place.expectList();
        for (std::size_t i = 0; i < count; ++i) bits |= codeOf(place.at(i), codes);
        return bits;
    }

    /// A network must not be opened because its printer's word was not known, nor a motor be stopped by a state 2.
    void checkCode(const Place& place, const FieldOfRecord& name, std::int64_t code, Changes& changes) const {
        if (code != 0 && !isOfArguments_) return;  // The library has a word for it, or says that there is none.
        const FieldCodes codes(name.record->name, name.field->name);
        const std::string word = codes.wordSentFor(code);
        if (code == 0 && codes.zeroMayBeUnread()) {
            changes.add({place.pointer(), "0", word,
                         "0 is also what a missing or unknown word leaves; say \"" + word + "\" if it is meant"});
        } else if (isOfArguments_ && !codes.empty() && codes.wordOf(code).empty()) {
            changes.add({place.pointer(), std::to_string(code), word, "the printer takes no word for that"});
        }
    }

    std::byte* makeArray(std::size_t size) { return arrays_->emplace_back(std::make_shared<std::byte[]>(size)).get(); }

    bool isOfArguments_;
    Arrays* arrays_;
    Changes* changes_;
};

// NOLINTEND(misc-no-recursion)

}  // namespace

void readAsked(const Place& place, const Request& request, const Needed& needed, void* record, Arrays& arrays,
               Changes& changes) {
    const bool isOfArguments = request.written == nullptr;  // They are sent if they are there.
    Filling(isOfArguments, arrays, changes).readRecord(place, *request.record, record, &needed);
}

}  // namespace kvj::tool
