#include "messages/host_record.h"

#include <array>
#include <cstring>

#include "fields/differences.h"
#include "support/xml.h"

namespace kvj::tests {

namespace {

/// How many entries an array of the host's has.
constexpr std::size_t hostEntries = 3;

/// A record's only field, or a value by itself, as a record.
RecordType typeOf(const Field& field) {
    if (field.record != nullptr) return *field.record;
    return {"", field.size, alignof(std::max_align_t), {&field, 1}};
}

}  // namespace

HostRecord::HostRecord(const Message& message, Preset preset)
    : message_(&message), preset_(preset), memory_(message, message.record.size) {
    fill(message.record, get());
}

bool HostRecord::read(const std::string& reply) const {
    const std::wstring text = wide(reply);
    return message_->read({reply.c_str(), text.c_str(), reply.size()}, get());
}

std::string HostRecord::differencesFrom(const HostRecord& expected) const {
    const RecordType type = typeOf(message_->record);
    for (const Field& field : type.fields) {
        if (field.type != FieldType::list || field.entries->counter == nullptr) continue;
        field.entries->setCount(expected.get(), field.entries->count(get()));
    }
    return describeDifferences(type, expected.get(), get());
}

// Records nest as deep as they are declared, so the recursion ends.
// NOLINTBEGIN(misc-no-recursion)
void HostRecord::fill(const Field& field, void* record) {
    const int number = ++number_ % 50 + (preset_ == Preset::high ? 51 : 1);
    switch (field.type) {
        case FieldType::flag:
        case FieldType::bit:
            return setFlag(field, record, preset_ == Preset::high);
        case FieldType::number:
            setWholeNumber(field, record, number);
            return;
        case FieldType::decimal:
            return setValue(field, record, static_cast<float>(number) + 0.5F);
        case FieldType::text:
            std::strncpy(static_cast<char*>(field.in(record)), std::to_string(number).c_str(), field.size);
            return;
        case FieldType::hardwareAddress:
            std::memset(field.in(record), number, field.size);
            return;
        case FieldType::ipAddress:
            return setValue(field, record, static_cast<unsigned long>(number));
        case FieldType::record:
            for (const Field& part : field.record->fields) fill(part, field.in(record));
            return;
        case FieldType::list:
            return fill(*field.entries, record);
        case FieldType::hostText:
            return;  // Requests alone have those.
    }
}

void HostRecord::fill(const Entries& entries, void* record) {
    std::size_t count = entries.room;
    switch (entries.storage) {
        case Storage::catalogue:
            return;  // Empty, as it is built.
        case Storage::ofHost:
            count = hostEntries;
            arrays_.push_back(std::make_unique<std::byte[]>(count * entries.entry->size));
            entries.provide(record, arrays_.back().get());
            break;
        case Storage::inRecord:
            break;
    }
    if (entries.counter != nullptr) entries.setCount(record, static_cast<std::int64_t>(count));
    for (std::size_t i = 0; i < count; ++i) fill(*entries.entry, const_cast<void*>(entries.at(record, i)));
}
// NOLINTEND(misc-no-recursion)

}  // namespace kvj::tests
