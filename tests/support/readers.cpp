#include "support/readers.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "messages/zeroed_record.h"

namespace kvj::tests {

namespace {

const Entries& entriesOf(const Field& list) { return *list.entries; }

std::size_t aligned(std::size_t size) {
    constexpr std::size_t alignment = alignof(std::max_align_t);
    return (size + alignment - 1) / alignment * alignment;
}

bool isZero(const char* bytes, std::size_t size) {
    return std::all_of(bytes, bytes + size, [](char byte) { return byte == 0; });
}

bool isSound(const Field& field, const void* record);

bool areSound(const Entries& entries, const void* record) {
    if (entries.storage != Storage::inRecord) return true;  // The entries lie elsewhere.
    const std::int64_t count = entries.count(record);
    if (count < 0 || count > static_cast<std::int64_t>(entries.room)) return false;
    for (std::size_t i = 0; i < entries.room; ++i) {
        if (!isSound(*entries.entry, entries.at(record, i))) return false;
    }
    return true;
}

/// Whether texts are terminated and counts within their bounds.
bool isSound(const Field& field, const void* record) {
    switch (field.type) {
        case FieldType::text:
            return std::memchr(field.at(record), '\0', field.size) != nullptr;
        case FieldType::record:
            return std::ranges::all_of(field.record->fields,
                                       [inner = field.at(record)](const Field& part) { return isSound(part, inner); });
        case FieldType::list:
            return areSound(*field.entries, record);
        default:
            return true;
    }
}

/// Asks for as many entries as the record has room for.
void askForAll(const Field& record, void* memory) {
    if (record.record == nullptr) return;
    for (const Field& field : record.record->fields) {
        if (field.type != FieldType::list || field.entries->storage != Storage::inRecord) continue;
        if (field.entries->counter == nullptr) continue;
        field.entries->setCount(memory, static_cast<std::int64_t>(field.entries->room));
    }
}

}  // namespace

Reader::Reader(const Message& message)
    : name(message.operation),
      root(message.root.data()),
      takesWide(message.takesWide),
      isAlone(message.isAlone),
      recordSize(aligned(message.record.size)),
      message_(&message) {
    const auto addRoom = [&](const Field& list, std::size_t entries, std::size_t behind) {
        rooms_.push_back({&list, recordSize, entries});
        recordSize += aligned((entries + behind) * entriesOf(list).entry->size);
    };
    for (const HostList& list : message.lists) {
        const std::size_t size = entriesOf(*list.field).entry->size;
        addRoom(*list.field, size > 2048 ? 4 : size > 128 ? 16 : 64, 1);
    }
    if (message.record.record == nullptr) return;
    for (const Field& field : message.record.record->fields) {
        if (field.type != FieldType::list || field.entries->storage != Storage::catalogue) continue;
        if (!ownsLists_) recordSize = 0;  // The record itself is none of what is compared.
        ownsLists_ = true;
        addRoom(field, 16, 0);
    }
}

bool Reader::read(const Text& text, void* record) const {
    return ownsLists_ ? readCatalogue(text, record) : readIntoArrays(text, record);
}

/// In two calls where there are arrays: one for the sizes of the arrays, one to fill arrays of these sizes. A host that
/// has not so much room makes do with the first.
bool Reader::readIntoArrays(const Text& text, void* record) const {
    askForAll(message_->record, record);
    bool result = message_->read(text, record);
    auto* const memory = static_cast<char*>(record);
    bool hasRoom = false;
    for (const auto& [list, offset, entries] : rooms_) {
        const auto needed = static_cast<std::size_t>(entriesOf(*list).count(record));
        if (needed > entries) continue;
        entriesOf(*list).provide(record, memory + offset + (entries - needed) * entriesOf(*list).entry->size);
        hasRoom = true;
    }
    if (hasRoom) result = message_->read(text, record);
    for (const auto& room : rooms_) entriesOf(*room.list).provide(record, nullptr);
    return result;
}

bool Reader::readCatalogue(const Text& text, void* record) const {
    const ZeroedRecord catalogue(*message_, message_->record.size);
    const bool result = message_->read(text, catalogue.get());
    for (const auto& [list, offset, entries] : rooms_) {
        const auto count = static_cast<std::size_t>(entriesOf(*list).count(catalogue.get()));
        const std::size_t size = entriesOf(*list).entry->size;
        for (std::size_t i = 0; i < std::min(count, entries); ++i) {
            std::memcpy(static_cast<char*>(record) + offset + i * size, entriesOf(*list).at(catalogue.get(), i), size);
        }
    }
    return result;
}

bool Reader::isValid(const void* record) const {
    const auto* const memory = static_cast<const char*>(record);
    return (ownsLists_ || isSound(message_->record, record)) && std::ranges::all_of(rooms_, [&](const Room& room) {
               const Field& entry = *entriesOf(*room.list).entry;
               const char* const first = memory + room.offset;
               for (std::size_t i = 0; i < room.entries; ++i) {
                   if (!isSound(entry, first + i * entry.size)) return false;
               }
               return ownsLists_ || isZero(first + room.entries * entry.size, entry.size);
           });
}

std::span<const Reader> readers() {
    static const std::vector<Reader> all(messages().begin(), messages().end());
    return all;
}

}  // namespace kvj::tests
