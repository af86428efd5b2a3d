/// @file both.h
/// Elements that are written just as they are read: one table for both directions.
///
///     constexpr auto usbTimeout = bothWays<_USBTimeout>({
///         {"read",  both::setting<&_USBTimeout::read>},
///         {"write", both::setting<&_USBTimeout::write>},
///     });
///
/// Where names, order, words or conditions differ, two tables side by side show it.
#ifndef KVJXML_FOUNDATION_BOTH_H
#define KVJXML_FOUNDATION_BOTH_H

#include <array>
#include <cstddef>
#include <string_view>

#include "foundation/compose.h"
#include "foundation/read_rules.h"
#include "foundation/rows.h"
#include "foundation/write_rules.h"

namespace kvj {

/// How an element is read and written.
template <class Record>
struct BothRules : ReadRule<Record>, WriteRule<Record> {};

template <class Record>
struct BothRow {
    std::string_view name;
    BothRules<Record> rule;
};

template <class Record>
constexpr DescribedRow describe(const BothRow<Record>& row) {
    return {row.name, static_cast<const ReadRule<Record>&>(row.rule).description};
}
template <class Record>
constexpr DescribedRow describeWritten(const BothRow<Record>& row) {
    return {row.name, static_cast<const WriteRule<Record>&>(row.rule).description};
}

template <class Record>
bool isWanted(const BothRow<Record>& /*row*/, const Record& /*record*/, const Selection& /*selection*/) {
    return true;
}

/// Makes a table.
template <class Record, std::size_t N>
consteval std::array<BothRow<Record>, N> bothWays(const BothRow<Record> (&list)[N]) {
    return withoutRepeats(list);
}

}  // namespace kvj

namespace kvj::both {

template <auto Member>
inline constexpr BothRules<RecordOf<Member>> number{kvj::number<Member>, put::number<Member>};

template <auto Member>
inline constexpr BothRules<RecordOf<Member>> text{kvj::text<Member>, put::text<Member>};

template <auto Member>
inline constexpr BothRules<RecordOf<Member>> setting{kvj::setting<Member>, put::setting<Member>};

/// A truth word, written as "yes" or "no".
template <auto Member>
inline constexpr BothRules<RecordOf<Member>> yesOrNo{flag<Member>, put::yesOrNo<Member>};

/// The code of a word; a code without one is written as `Otherwise`.
template <auto Member, const auto& Table, Literal Otherwise = "">
inline constexpr BothRules<RecordOf<Member>> word{kvj::word<Member, Table>, put::word<Member, Table, Otherwise>};

/// Bits, an element for each.
template <auto Member, const auto& Table>
inline constexpr BothRules<RecordOf<Member>> bits{kvj::bits<Member, Table>, put::bits<Member, Table>};

template <const auto& Table>
inline constexpr BothRules<RecordOfTable<Table>> group{kvj::group<Table>, put::group<Table>};

template <auto Member, const auto& Table>
inline constexpr BothRules<RecordOf<Member>> part{kvj::part<Member, Table>, put::part<Member, Table>};

}  // namespace kvj::both

#endif
