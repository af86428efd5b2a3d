/// @file rows.h
/// A message is a table: one row per element, saying its name and how its content gets into the record. One loop walks
/// them all.
///
///     constexpr auto jobStatus = rows<KVJobStatus>({
///         {"uuid",               text<&KVJobStatus::uuid>},
///         {"ready_for_next_job", is<&KVJobStatus::readyForNextJob, "yes">},
///         {"status_printing",    group<statusPrinting>},
///     });
///
/// A row does not compile when its conversion does not fit the member, when the member is another record's, or when its
/// name stands in the table already.
#ifndef KVJXML_FOUNDATION_ROWS_H
#define KVJXML_FOUNDATION_ROWS_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "KVJHelper.h"
#include "foundation/convert.h"
#include "foundation/element.h"
#include "foundation/member.h"
#include "foundation/words.h"

namespace kvjxml {

/// What the reference says of a conversion.
struct Description {
    std::string_view field;                        ///< the record's field; empty for a group in the same record
    std::string_view conversion;                   ///< in words
    std::string_view word{};                       ///< the word that a flag is compared with
    Words words{};                                 ///< the words of a table, else empty
    std::span<const struct DescribedRow> group{};  ///< the rows of a group, else empty
};

struct DescribedRow {
    std::string_view name;
    Description description;
};

/// How the content of an element gets into a record.
template <class Record>
struct Getter {
    /// False when there was nothing to read or it did not fit; the field then has what the conversion says.
    bool (*read)(TiXmlElement* element, Record& record);
    Description description;
};

template <class Record>
struct Row {
    const char* name;
    Getter<Record> getter;
};

template <class Record, std::size_t N>
using Rows = std::array<Row<Record>, N>;

/// Makes a table.
template <class Record, std::size_t N>
consteval Rows<Record, N> rows(const Row<Record> (&list)[N]) {
    for (std::size_t i = 0; i < N; ++i) {
        for (std::size_t k = 0; k < i; ++k) {
            if (std::string_view(list[i].name) == list[k].name) throw "a name stands twice in its table";
        }
    }
    return std::to_array(list);
}

/// The one loop. Visits the children of `element` in document order and reads each that has a row: a name is compared
/// exactly, one without a row is skipped, one that comes again is read again.
/// @return the result of the last child that had a row; false for a null element and one without such a child.
template <class Record, std::size_t N>
bool walk(TiXmlElement* element, Record& record, const Rows<Record, N>& table) {
    if (element == nullptr) return false;
    bool result = false;
    for (TiXmlElement* child = element->FirstChildElement(); child != nullptr; child = child->NextSiblingElement()) {
        const auto row = std::ranges::find_if(
            table, [&](const char* name) { return convert::equal(child->Value(), name); }, &Row<Record>::name);
        if (row != table.end()) result = row->getter.read(child, record);
    }
    return result;
}

// ---- What the conversions are made of -------------------------------------------------------------------------------

template <class Record, std::size_t N>
Record recordOf(const Rows<Record, N>&);
template <const auto& Table>
using RecordOfTable = decltype(recordOf(Table));

/// A word as a template argument.
template <std::size_t N>
struct Literal {
    consteval Literal(const char (&word)[N]) { std::ranges::copy(word, characters); }
    char characters[N]{};
};

template <const auto& Table>
inline constexpr auto described = [] {
    std::array<DescribedRow, Table.size()> list{};
    std::ranges::transform(Table, list.begin(), [](const auto& row) {
        return DescribedRow{row.name, row.getter.description};
    });
    return list;
}();

// ---- Conversions: each makes the getter of one member ---------------------------------------------------------------

/// A number of the member's type, as KVJHelper::GetNumber reads it.
template <auto Member>
inline constexpr Getter<RecordOf<Member>> number{
    [](TiXmlElement* element, RecordOf<Member>& record) { return KVJHelper::GetNumber(element, record.*Member); },
    {nameOf<Member>(), "number"}};

/// A text, cut to the size of its field.
template <auto Member>
inline constexpr Getter<RecordOf<Member>> text{[](TiXmlElement* element, RecordOf<Member>& record) {
                                                   constexpr std::size_t capacity = std::extent_v<ValueOf<Member>>;
                                                   static_assert(capacity > 0, "a text needs a field with a size");
                                                   return KVJHelper::GetString(element, (record.*Member)[0],
                                                                               static_cast<int>(capacity));
                                               },
                                               {nameOf<Member>(), "text"}};

/// A word, as its code; an unknown word is that of the table's other texts, or leaves the field alone. Without text the
/// field is left alone.
template <auto Member, const auto& Table>
inline constexpr Getter<RecordOf<Member>> word{[](TiXmlElement* element, RecordOf<Member>& record) {
                                                   const char* content = textOf(element);
                                                   if (content == nullptr) return false;
                                                   if (const auto code = codeOf(Table, content))
                                                       record.*Member = static_cast<ValueOf<Member>>(*code);
                                                   return true;
                                               },
                                               {.field = nameOf<Member>(), .conversion = "word", .words = Table}};

/// A flag that is true for exactly one word. Without text it is stored as false.
template <auto Member, Literal Word>
inline constexpr Getter<RecordOf<Member>> is{
    [](TiXmlElement* element, RecordOf<Member>& record) {
        bool& flag = record.*Member;
        const char* content = textOf(element);
        flag = content != nullptr && convert::equal(content, Word.characters);
        return content != nullptr;
    },
    {.field = nameOf<Member>(), .conversion = "true for one word", .word = Word.characters}};

/// A bit set in hexadecimal behind a literal "0x"; any other text leaves it alone and counts as read.
template <auto Member>
inline constexpr Getter<RecordOf<Member>> prefixedHex{[](TiXmlElement* element, RecordOf<Member>& record) {
                                                          const char* content = textOf(element);
                                                          if (content != nullptr)
                                                              convert::scanPrefixedHex(content, record.*Member);
                                                          return content != nullptr;
                                                      },
                                                      {nameOf<Member>(), "hexadecimal behind \"0x\""}};

/// A group of elements, walked with a table of its own into the same record.
template <const auto& Table>
inline constexpr Getter<RecordOfTable<Table>> group{
    [](TiXmlElement* element, RecordOfTable<Table>& record) { return walk(element, record, Table); },
    {.field = {}, .conversion = "group", .group = described<Table>}};

}  // namespace kvjxml

#endif
