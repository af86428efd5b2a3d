/// @file compose.h
/// A request is a table too: one row per element, with its name, the rule by which it is written, and when it is. One
/// loop writes them all, in the table's order. The rules are in write_rules.h.
///
///     constexpr auto cardTags = tags<_CardInfo>({
///         {"transfer_temps",        put::part<&_CardInfo::transferTemps, transferTemps>, withTransfer},
///         {"laminator_adjustments", put::part<&_CardInfo::laminationAdjustments, laminatorAdjustments>},
///         {"cal_table",             put::number<&_CardInfo::calTable>},
///     });
#ifndef KVJXML_FOUNDATION_COMPOSE_H
#define KVJXML_FOUNDATION_COMPOSE_H

#include <array>
#include <cstddef>
#include <string_view>

#include "foundation/request_text.h"
#include "foundation/rows.h"
#include "foundation/tags.h"

namespace kvj {

/// What a host asks for besides the record.
struct Selection {
    bool directToCard = false;      ///< The printer prints on the card itself: film and transfer are left out.
    bool withoutAddresses = false;  ///< Network addresses are left out.
    long sections = 0;              ///< Bits of the sections that are wanted.
    int card = 0;                   ///< One of the custom cards alone; 0 for the whole document.
};

/// How an element is written.
template <class Record>
struct WriteRule {
    Description description;
    /// Adds the element `name` to `parent`; false when it cannot be added.
    bool (*write)(Parent parent, const char* name, const Record& record, const Selection& selection);
};

/// When an element is written.
template <class Record>
struct Condition {
    std::string_view description;
    bool (*holds)(const Record& record, const Selection& selection);
};

/// A condition on the selection alone, which serves for any record.
template <class Holds>
struct SelectionCondition {
    consteval SelectionCondition(std::string_view words, Holds /*holds*/) : description(words) {}
    template <class Record>
    constexpr operator Condition<Record>() const {
        return {description, [](const Record&, const Selection& selection) { return Holds()(selection); }};
    }
    std::string_view description;
};

inline constexpr SelectionCondition always({}, [](const Selection&) { return true; });
/// Only a retransfer printer has a film and a transfer.
inline constexpr SelectionCondition withTransfer("unless printing is direct to card",
                                                 [](const Selection& selection) { return !selection.directToCard; });
inline constexpr SelectionCondition directToCard("when printing is direct to card",
                                                 [](const Selection& selection) { return selection.directToCard; });

template <class Record>
struct Tag {
    std::string_view name;
    WriteRule<Record> rule;
    Condition<Record> when = always;
};

template <class Record>
constexpr DescribedRow describe(const Tag<Record>& tag) {
    return {tag.name, tag.rule.description, tag.when.description};
}

template <class Record>
bool isWanted(const Tag<Record>& tag, const Record& record, const Selection& selection) {
    return tag.when.holds(record, selection);
}

/// A row that hosts choose by a bit. Two rows may share one.
template <class Record>
struct Section {
    long bit;
    std::string_view name;
    WriteRule<Record> rule;
    Condition<Record> when = always;
    bool ofCards = false;  ///< whether it is written for a card alone as well
};

template <class Record>
constexpr DescribedRow describe(const Section<Record>& section) {
    return {section.name, section.rule.description, section.when.description, section.bit};
}

template <class Record>
bool isWanted(const Section<Record>& section, const Record& record, const Selection& selection) {
    return (selection.sections & section.bit) != 0 && (selection.card == 0 || section.ofCards) &&
           section.when.holds(record, selection);
}

/// What a row that is written says of itself.
constexpr DescribedRow describeWritten(const auto& row) { return describe(row); }

/// A table as it is written, for the reference.
template <const auto& Table>
inline constexpr auto describedWritten = [] {
    std::array<DescribedRow, Table.size()> list{};
    for (std::size_t i = 0; i < list.size(); ++i) list[i] = describeWritten(Table[i]);
    return list;
}();

/// Makes a table.
template <class Record, std::size_t N>
consteval std::array<Tag<Record>, N> tags(const Tag<Record> (&list)[N]) {
    return std::to_array(list);
}
template <class Record, std::size_t N>
consteval std::array<Section<Record>, N> sections(const Section<Record> (&list)[N]) {
    return std::to_array(list);
}

/// The name of a row, for TinyXML. It is a literal, so that it has its terminator.
constexpr const char* terminated(std::string_view name) { return name.data(); }

/// The one loop, for a tree and for a text alike. The result is that of the last element written; `result` when there
/// was none.
template <class Record, template <class> class RowOf, std::size_t N>
bool compose(Parent parent, const Record& record, const std::array<RowOf<Record>, N>& table,
             const Selection& selection = {}, bool result = false) {
    for (const auto& row : table) {
        if (!isWanted(row, record, selection)) continue;
        const WriteRule<Record>& rule = row.rule;
        parent.announce(rule.description);
        result = rule.write(parent, terminated(row.name), record, selection);
    }
    return result;
}

/// One row alone, for the operation that is named after it.
template <class Record>
bool compose(Parent parent, const Record& record, const Tag<Record>& tag, const Selection& selection = {}) {
    return isWanted(tag, record, selection) && tag.rule.write(parent, terminated(tag.name), record, selection);
}

/// Adds the element `name` and composes it with a table of its own.
template <class Record, class Table>
bool addGroup(Parent parent, const char* name, const Record& record, const Table& table,
              const Selection& selection = {}) {
    const Parent group = addTag(parent, name);
    return group && compose(group, record, table, selection);
}

/// Adds an element `name` for each of `count` entries. A null array has none.
template <class Entry>
bool addEntries(Parent parent, const char* name, const Entry* entries, int count, const WriteRule<Entry>& rule,
                const Selection& selection = {}) {
    bool result = false;
    for (int i = 0; entries != nullptr && i < count; ++i) {
        parent.announce(rule.description, i);
        result = rule.write(parent, name, entries[i], selection);
    }
    return result;
}

/// Adds the element `name` with an element `entryName` for each entry.
template <class Entry>
bool addList(Parent parent, const char* name, const char* entryName, const Entry* entries, int count,
             const WriteRule<Entry>& rule) {
    const Parent list = addTag(parent, name);
    return list && addEntries(list, entryName, entries, count, rule);
}

}  // namespace kvj

#endif
