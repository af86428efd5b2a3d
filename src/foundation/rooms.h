/// @file rooms.h
/// The lists of a host that grow as a reply needs it.
#ifndef KVJXML_FOUNDATION_ROOMS_H
#define KVJXML_FOUNDATION_ROOMS_H

#include <kvjxml_v1.h>

#include <algorithm>
#include <cstddef>
#include <new>
#include <span>
#include <string_view>
#include <type_traits>

#include "foundation/element.h"
#include "foundation/read_rules.h"
#include "foundation/rows.h"
#include "foundation/watch.h"

namespace kvj {

/// One list.
class Room {
public:
    Room() = default;
    Room(const kvjxml_v1_list& list) noexcept  // A list is its room.
        : list_(&list) {}

    /// Makes it this long.
    /// @throws std::bad_alloc
    template <class Entry>
    std::span<Entry> resize(std::size_t count) {
        void* const entries = list_->resize(list_->list, count);
        if (entries == nullptr && count != 0) throw std::bad_alloc();
        count_ = count;
        return {static_cast<Entry*>(entries), count};
    }
    /// @throws std::bad_alloc
    template <class Entry>
    Entry& append() {
        return resize<Entry>(count_ + 1).back();
    }

    [[nodiscard]] std::string_view name() const noexcept { return list_->name; }

private:
    const kvjxml_v1_list* list_ = nullptr;
    std::size_t count_ = 0;
};

/// The lists of a record.
using Rooms = std::span<Room>;

/// The list in the place of a field; null when the host has none.
inline Room* roomFor(Rooms rooms, std::string_view field) noexcept {
    const auto found = std::ranges::find(rooms, field, &Room::name);
    return found == rooms.end() ? nullptr : &*found;
}

/// How many children of a section have a row. What is skipped takes no room, or a short reply could ask for any.
template <const auto& Table>
std::size_t countEntries(Element section) {
    std::size_t count = 0;
    for (const Element child : section.children()) {
        if (std::ranges::any_of(Table, [&](const auto& row) { return row.name == child.name(); })) ++count;
    }
    return count;
}

/// Reads all entries of a section, in the place of those that are there.
template <const auto& Table>
bool readAll(Element section, Room& room) {
    using Entry = typename decltype(RecordOfTable<Table>::entries)::element_type;
    room.resize<Entry>(0);
    List<Entry> entries{room.resize<Entry>(countEntries<Table>(section))};
    const DiagnosedAlone unmarked(section);
    const bool result = walk(section, entries, Table);
    room.resize<Entry>(entries.filled);
    return result;
}

}  // namespace kvj

#endif
