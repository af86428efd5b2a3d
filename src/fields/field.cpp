#include "fields/field.h"

#include <algorithm>
#include <utility>

namespace kvj {

namespace {

/// Calls `action` with a value of the type that a number has.
template <class Action>
auto withNumberType(const Field& field, Action action) {
    switch (field.size) {
        case 1:
            return field.isSigned ? action(std::int8_t{}) : action(std::uint8_t{});
        case 2:
            return field.isSigned ? action(std::int16_t{}) : action(std::uint16_t{});
        case 4:
            return field.isSigned ? action(std::int32_t{}) : action(std::uint32_t{});
        default:
            return field.isSigned ? action(std::int64_t{}) : action(std::uint64_t{});
    }
}

bool isZero(const void* value, std::size_t size) {
    const auto* const bytes = static_cast<const char*>(value);
    return std::all_of(bytes, bytes + size, [](char byte) { return byte == 0; });
}

}  // namespace

std::int64_t wholeNumberOf(const Field& field, const void* record) {
    return withNumberType(field, [&]<class Number>(Number /*type*/) {
        return static_cast<std::int64_t>(valueOf<Number>(field, record));
    });
}

bool setWholeNumber(const Field& field, void* record, std::int64_t value) {
    return withNumberType(field, [&]<class Number>(Number /*type*/) {
        if (!std::in_range<Number>(value)) return false;
        setValue(field, record, static_cast<Number>(value));
        return true;
    });
}

std::size_t countOf(const Entries& entries, const void* record) {
    auto count = static_cast<std::size_t>(entries.count(record));
    if (entries.storage != Storage::inRecord) return count;
    if (count > entries.room) return 0;
    if (entries.counter == nullptr) {
        while (count > 0 && isZero(entries.at(record, count - 1), entries.entry->size)) --count;
    }
    return count;
}

}  // namespace kvj
