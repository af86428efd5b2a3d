/// @file rows.h
/// A message is a table: one row per element, with its name and the rule by which it is read into the record. One loop
/// walks them all. The rules are in read_rules.h.
///
///     constexpr auto jobStatus = rows<KVJobStatus>({
///         {"uuid",               text<&KVJobStatus::uuid>},
///         {"ready_for_next_job", is<&KVJobStatus::readyForNextJob, "yes">},
///         {"status_printing",    group<statusPrinting>},
///     });
///
/// A row does not compile when its rule does not fit the member, when the member is another record's, or when its
/// name stands in the table already.
#ifndef KVJXML_FOUNDATION_ROWS_H
#define KVJXML_FOUNDATION_ROWS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "foundation/element.h"
#include "foundation/kinds.h"
#include "foundation/watch.h"

namespace kvj {

/// How the content of an element gets into a record.
template <class Record>
struct ReadRule {
    Description description;
    /// False when there was nothing to read or it did not fit; the field then has what the rule says.
    bool (*read)(Element element, Record& record);
};

template <class Record>
struct Row {
    std::string_view name;
    ReadRule<Record> rule;
};

template <class Record>
constexpr DescribedRow describe(const Row<Record>& row) {
    return {row.name, row.rule.description};
}

/// A table, when no name occurs twice in it.
template <class AnyRow, std::size_t N>
consteval std::array<AnyRow, N> withoutRepeats(const AnyRow (&list)[N]) {
    for (std::size_t i = 0; i < N; ++i) {
        for (std::size_t k = 0; k < i; ++k) {
            if (list[i].name == list[k].name) throw "a name occurs twice in its table";
        }
    }
    return std::to_array(list);
}

/// Makes a table.
template <class Record, std::size_t N>
consteval std::array<Row<Record>, N> rows(const Row<Record> (&list)[N]) {
    return withoutRepeats(list);
}

/// The record whose fields a table's rows name: most often that of the walk itself.
template <class Record>
const void* watched(const Record& record) {
    return &record;
}

/// Whether each child of a row is an entry of its own.
template <class Record>
inline constexpr bool isList = false;

/// The one loop. Visits the children of `element` in document order and reads each that has a row: a name is compared
/// exactly, one without a row is skipped, one that comes again is read again.
/// @return the result of the last child that had a row; false for a null element and one without such a child.
template <class Record, template <class> class RowOf, std::size_t N>
bool walk(Element element, Record& record, const std::array<RowOf<Record>, N>& table) {
    static_assert(N <= 64);
    bool result = false;
    Watch* const watch = element.watch();
    std::uint64_t seen = 0;  // a bit for each row
    for (const Element child : element.children()) {
        const std::string_view name = child.name();
        bool isKnown = false;
        for (const auto& row : table) {
            if (row.name != name) continue;
            const ReadRule<Record>& rule = row.rule;
            result = rule.read(child, record);
            isKnown = true;
            if (watch == nullptr) break;
            if (!watch->diagnoses()) {
                watch->mark(child, rule.description, watched(record));
                break;
            }
            const std::uint64_t bit = std::uint64_t{1} << (&row - table.data());
            const bool isEntry = isList<Record> && rule.description.kind != Kind::firstEntry;
            watch->tell(child, rule.description, watched(record), !isEntry && (seen & bit) != 0);
            seen |= bit;
            break;
        }
        if (!isKnown && watch != nullptr) watch->skip(child);
    }
    return result;
}

/// Reads an element itself, not its children.
template <class Record>
bool readItself(Element element, Record& record, const ReadRule<Record>& rule) {
    const bool result = rule.read(element, record);
    if (Watch* const watch = element.watch()) watch->read(element, rule.description, watched(record));
    return result;
}

/// A table as the reference sees it.
template <const auto& Table>
inline constexpr auto described = [] {
    std::array<DescribedRow, Table.size()> list{};
    for (std::size_t i = 0; i < list.size(); ++i) list[i] = describe(Table[i]);
    return list;
}();

template <template <class> class RowOf, class Record, std::size_t N>
Record recordOf(const std::array<RowOf<Record>, N>&);
/// The record that a table is for.
template <const auto& Table>
using RecordOfTable = decltype(recordOf(Table));

}  // namespace kvj

#endif
