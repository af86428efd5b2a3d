/// @file capabilities/lists.h
/// Reads a list of the capabilities into an array of the host's, which may be too small.
#ifndef KVJXML_CAPABILITIES_LISTS_H
#define KVJXML_CAPABILITIES_LISTS_H

#include <algorithm>
#include <cstddef>
#include <utility>

#include "CapabilitiesRecords.h"
#include "foundation/element.h"
#include "foundation/read_rules.h"
#include "foundation/rooms.h"
#include "foundation/rows.h"

namespace kvj::capabilities {

using namespace Kavrin;  // the records

/// The record being filled, and the record as the host passed it. A list that comes twice is measured against what the
/// host passed both times: the count that answers the first is not the size of an array.
struct Reading {
    explicit Reading(_Capabilities& record, Rooms lists = {}) : caps(record), rooms(lists), passed(record) {}
    _Capabilities& caps;
    Rooms rooms;  ///< lists that grow, in the place of the record's arrays; empty for a host that has arrays
    const _Capabilities passed;
    _Capabilities refused{};  ///< Only its counts: of each list, the most children that did not fit.
};

inline const void* watched(const Reading& reading) { return &reading.caps; }

/// A field that is not a list.
template <const auto& Field>
inline constexpr ReadRule<Reading> plain{
    Field.description, [](Element element, Reading& reading) { return Field.read(element, reading.caps); }};

/// A list. When the array has room for all child elements of the section, whatever their names, the entries are read
/// with a table of their own. Otherwise the count becomes the most that did not fit, so that the host can come again
/// with a larger array.
template <auto Count, auto Array, const auto& Table>
inline constexpr ReadRule<Reading> list{
    {.field = partOf<Array>, .kind = Kind::list, .group = described<Table>}, [](Element section, Reading& reading) {
        if (!section) return false;
        if (Room* const room = roomFor(reading.rooms, nameOf<Array>())) return readAll<Table>(section, *room);
        const std::size_t needed = countChildren(section);
        auto* const array = reading.caps.*Array;
        const int capacity = array == nullptr && needed > 0 ? 0 : reading.passed.*Count;
        if (std::cmp_less(capacity, needed)) {
            int& most = reading.refused.*Count;
            most = std::max(most, static_cast<int>(needed));
            reading.caps.*Count = most;
            return true;
        }
        RecordOfTable<Table> entries{{array, needed}};
        return walk(section, entries, Table);
    }};

}  // namespace kvj::capabilities

#endif
