#include "json_record.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "shown.h"

namespace kvj::tool {

namespace {

void printNumber(JsonPrinter& json, const Field& field, const void* record) {
    const std::int64_t number = wholeNumberOf(field, record);
    if (field.isSigned) {
        json.value(number);
    } else {
        json.value(static_cast<std::uint64_t>(number));
    }
}

/// Beside the value its word, and what was sent in its place.
void printShown(JsonPrinter& json, const Shown& shown) {
    if (!shown.isCode && !shown.sent) return json.value(shown.value);
    json.line([&] {
        json.object([&] {
            json.field(shown.isCode ? "code" : "value");
            json.value(shown.value);
            if (shown.hasBits) {
                json.field("words");
                json.list([&] {
                    for (const std::string_view word : shown.words) {
                        json.entry();
                        json.value(word);
                    }
                });
            } else if (!shown.words.empty()) {
                json.field("word");
                json.value(shown.words.front());
            }
            if (shown.sent) {
                json.field("sent");
                json.value(*shown.sent);
            }
        });
    });
}

// Records nest as deep as they are declared, so the recursion ends.
// NOLINTBEGIN(misc-no-recursion)

void printEntries(JsonPrinter& json, const Entries& entries, const void* record, const Showing& showing) {
    const std::size_t count = countOf(entries, record);
    for (std::size_t i = 0; i < count; ++i) {
        json.entry();
        print(json, nullptr, *entries.entry, entries.at(record, i), showing);
    }
}

}  // namespace

void print(JsonPrinter& json, const RecordType* type, const Field& field, const void* record, const Showing& showing) {
    if (field.type == FieldType::record) {
        const void* const inner = field.at(record);
        json.object([&] {
            printFields(json, *field.record, inner, showing, [&](const Field& list) {
                printList(json, list, countOf(*list.entries, inner),
                          [&] { printEntries(json, *list.entries, inner, showing); });
            });
        });
    } else if (field.type == FieldType::list) {
        json.list([&] { printEntries(json, *field.entries, record, showing); });
    } else if (showing.sent != nullptr || showing.redacts) {
        printShown(json, shown(type, field, record, showing));
    } else if (field.type == FieldType::number) {
        printNumber(json, field, record);
    } else {
        json.value(valueIn(field, record));
    }
}

namespace {

void read(const Place& place, const Field& field, void* record, Arrays& arrays);

/// Memory of the host's that a record points to, all zero.
std::byte* makeArray(std::size_t size, Arrays& arrays) {
    return arrays.emplace_back(std::make_shared<std::byte[]>(size)).get();
}

void readEntries(const Place& place, const Entries& entries, void* record, Arrays& arrays) {
    const std::size_t count = place.expectList();
    const Field& entry = *entries.entry;
    if (entries.storage == Storage::ofHost) {
        std::byte* const array = makeArray(count * entry.size, arrays);
        for (std::size_t i = 0; i < count; ++i) read(place.at(i), entry, array + i * entry.size, arrays);
        entries.setCount(record, static_cast<std::int64_t>(count));
        entries.provide(record, array);
    } else {
        for (std::size_t i = 0; i < count; ++i) read(place.at(i), entry, entries.append(record), arrays);
    }
}

void readText(const Place& place, const Field& field, void* record) {
    const std::string content = place.text();
    if (content.size() >= field.size) place.refuse("is longer than " + std::to_string(field.size - 1) + " bytes");
    auto* const target = static_cast<char*>(field.in(record));
    content.copy(target, content.size());
    target[content.size()] = '\0';
}

const char* readHostText(const Place& place, const Field& field, Arrays& arrays) {
    const std::string content = field.hostText == HostText::elementName ? place.elementName() : place.text();
    auto* const text = reinterpret_cast<char*>(makeArray(content.size() + 1, arrays));
    content.copy(text, content.size());
    return text;
}

void read(const Place& place, const Field& field, void* record, Arrays& arrays) {
    switch (field.type) {
        case FieldType::flag:
        case FieldType::bit:
            return setFlag(field, record, place.flag());
        case FieldType::number:
            if (!setWholeNumber(field, record, place.wholeNumber())) place.refuse("is out of range");
            return;
        case FieldType::decimal:
            return setValue(field, record, place.decimal());
        case FieldType::text:
            return readText(place, field, record);
        case FieldType::hardwareAddress:
            return setValue(field, record, place.hardwareAddress());
        case FieldType::ipAddress:
            return setValue(field, record, place.ipAddress());
        case FieldType::hostText:
            return setValue<const char*>(field, record, readHostText(place, field, arrays));
        case FieldType::record: {
            Names all;
            for (const Field& inner : field.record->fields) all.insert(inner.name);
            return readRecord(place, *field.record, field.in(record), all, arrays);
        }
        case FieldType::list:
            return readEntries(place, *field.entries, record, arrays);
    }
}

}  // namespace

void readRecord(const Place& place, const RecordType& type, void* record, const Names& needed, Arrays& arrays) {
    place.expectObject();
    for (const auto& [name, value] : place.value().items()) {
        if (std::ranges::find(type.fields, name, &Field::name) == type.fields.end()) {
            place.refuse(name, "is not a field of this request");
        }
    }
    for (const Field& field : type.fields) {
        if (place.has(field.name) || needed.contains(field.name)) read(place.at(field.name), field, record, arrays);
    }
}

// NOLINTEND(misc-no-recursion)

}  // namespace kvj::tool
