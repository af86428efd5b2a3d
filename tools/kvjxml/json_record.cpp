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

// NOLINTEND(misc-no-recursion)

}  // namespace kvj::tool
