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

// NOLINTEND(misc-no-recursion)

}  // namespace kvj::tool
