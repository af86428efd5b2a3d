#include "records.h"

#include <algorithm>
#include <cstdint>

namespace kvj::fuzz {

namespace {

void fill(const Field& field, void* record, Values& values, Arrays& arrays);

/// Any value, also one that is larger than the field: its low bytes.
void fillNumber(const Field& field, void* record, Values& values) {
    const std::int64_t number = values.number();
    std::memcpy(field.in(record), &number, field.size);
}

void fillList(const Entries& entries, void* record, Values& values, Arrays& arrays) {
    const int count = std::clamp(values.number(), -1, 8);
    entries.setCount(record, count);
    if (values.flag()) return;  // without an array, whatever the count
    const std::size_t size = entries.entry->size;
    const auto filled = static_cast<std::size_t>(std::max(count, 0));
    const std::shared_ptr<char[]> array(new char[filled * size]{});
    for (std::size_t i = 0; i < filled; ++i) fill(*entries.entry, array.get() + i * size, values, arrays);
    entries.provide(record, array.get());
    arrays.push_back(array);
}

void fill(const Field& field, void* record, Values& values, Arrays& arrays) {
    switch (field.type) {
        case FieldType::flag:
        case FieldType::bit:
            return setFlag(field, record, values.flag());
        case FieldType::number:
        case FieldType::ipAddress:
            return fillNumber(field, record, values);
        case FieldType::decimal:
            return setValue(field, record, values.decimal());
        case FieldType::text:
        case FieldType::hardwareAddress:
            return values.text(static_cast<char*>(field.in(record)), field.size);
        case FieldType::record:
            return fuzz::fill(*field.record, field.in(record), values, arrays);
        case FieldType::list:
            return fillList(*field.entries, record, values, arrays);
        case FieldType::hostText:
            return;  // No record of the composers here has one.
    }
}

}  // namespace

void fill(const RecordType& type, void* record, Values& values, Arrays& arrays) {
    for (const Field& field : type.fields) fill(field, record, values, arrays);
}

}  // namespace kvj::fuzz
