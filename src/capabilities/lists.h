/// @file capabilities/lists.h
/// How a list of the capabilities gets into an array of the host's, which need not be large enough.
#ifndef KVJXML_CAPABILITIES_LISTS_H
#define KVJXML_CAPABILITIES_LISTS_H

#include <algorithm>
#include <cstddef>
#include <utility>

#include "CapabilitiesRecords.h"
#include "foundation/element.h"
#include "foundation/read_rules.h"
#include "foundation/rows.h"

namespace kvjxml::capabilities {

using namespace Kavrin;  // the records

/// A record being filled, and what the host passed with it. A list that stands twice must be measured against that both
/// times: the number that the first was answered with is not the size of any array.
struct Reading {
    explicit Reading(_Capabilities& record) : caps(record), passed(record) {}
    _Capabilities& caps;
    const _Capabilities passed;
    _Capabilities refused{};  ///< The counts alone: of each list, the most children that did not fit.
};

/// A field that is no list.
template <const auto& Field>
inline constexpr ReadRule<Reading> plain{
    Field.description, [](Element element, Reading& reading) { return Field.read(element, reading.caps); }};

/// A list: its entries, read with a table of their own, when the array has room for as many entries as the section has
/// child elements, whatever their names; else the largest such number, for the host to come again with.
template <auto Count, auto Array, const auto& Table>
inline constexpr ReadRule<Reading> list{
    {.field = fieldOf<Array>, .kind = Kind::list, .group = described<Table>}, [](Element section, Reading& reading) {
        if (!section) return false;
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

}  // namespace kvjxml::capabilities

#endif
