#include "json_record.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

#include "foundation/convert.h"

namespace kvj::tool {

namespace {

/// A float in as few digits as tell it from its neighbours, 24.35 and not 24.350000381469727.
void printDecimal(JsonPrinter& json, float value) {
    if (!std::isfinite(value)) return json.value(nullptr);  // JSON has no other number for it.
    std::array<char, 64> digits{};
    std::to_chars(digits.data(), digits.data() + digits.size() - 1, value);
    json.value(nlohmann::json::parse(digits.data()));
}

void printNumber(JsonPrinter& json, const Field& field, const void* record) {
    const std::int64_t number = wholeNumberOf(field, record);
    if (field.isSigned) {
        json.value(number);
    } else {
        json.value(static_cast<std::uint64_t>(number));
    }
}

// Records nest as deep as they are declared, so the recursion ends.
// NOLINTBEGIN(misc-no-recursion)

void printEntries(JsonPrinter& json, const Entries& entries, const void* record) {
    const std::size_t count = countOf(entries, record);
    for (std::size_t i = 0; i < count; ++i) {
        json.entry();
        print(json, *entries.entry, entries.at(record, i));
    }
}

}  // namespace

void print(JsonPrinter& json, const Field& field, const void* record) {
    switch (field.type) {
        case FieldType::flag:
        case FieldType::bit:
            return json.value(flagOf(field, record));
        case FieldType::number:
            return printNumber(json, field, record);
        case FieldType::decimal:
            return printDecimal(json, valueOf<float>(field, record));
        case FieldType::text:
            return json.value(textOf(field, record));
        case FieldType::hardwareAddress:
            return json.value(
                convert::fromHardwareAddress(static_cast<const unsigned char*>(field.at(record))).c_str());
        case FieldType::ipAddress:
            return json.value(convert::fromIpAddress(valueOf<unsigned long>(field, record)).c_str());
        case FieldType::hostText:
            return json.value(valueOf<const char*>(field, record));
        case FieldType::record: {
            const void* const inner = field.at(record);
            return json.object([&] {
                printFields(json, *field.record, inner, [&](const Field& list) {
                    printList(json, list, countOf(*list.entries, inner),
                              [&] { printEntries(json, *list.entries, inner); });
                });
            });
        }
        case FieldType::list:
            return json.list([&] { printEntries(json, *field.entries, record); });
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
