/// @file read_rules.h
/// The rules that the rows of a reply's table are made with: each says how an element is read into one member of a
/// record.
#ifndef KVJXML_FOUNDATION_READ_RULES_H
#define KVJXML_FOUNDATION_READ_RULES_H

#include <cstddef>
#include <span>
#include <string_view>
#include <type_traits>

#include "FoundationRecords.h"
#include "foundation/convert.h"
#include "foundation/element.h"
#include "foundation/member.h"
#include "foundation/rows.h"
#include "foundation/values.h"

namespace kvj {

/// The integer that readNumber makes of a text.
template <class Value>
inline constexpr Number numberRead = numberOf<Value>;
template <>
inline constexpr Number numberRead<unsigned long> = numberOf<unsigned short>;

template <class Value>
inline constexpr Kind kindOfNumber = std::is_floating_point_v<Value> ? Kind::decimal : Kind::number;

/// A number of the member's type.
template <auto Member>
inline constexpr ReadRule<RecordOf<Member>> number{
    {.field = fieldOf<Member>, .kind = kindOfNumber<ValueOf<Member>>, .number = numberRead<ValueOf<Member>>},
    [](Element element, RecordOf<Member>& record) { return readNumber(element, record.*Member); }};

/// A text, cut to the size of its field.
template <auto Member>
inline constexpr ReadRule<RecordOf<Member>> text{
    {.field = fieldOf<Member>, .kind = Kind::text, .capacity = std::extent_v<ValueOf<Member>>},
    [](Element element, RecordOf<Member>& record) {
        constexpr auto capacity = static_cast<int>(std::extent_v<ValueOf<Member>>);
        return readText(element, record.*Member, capacity);
    }};

/// A word, as its code. An unknown word has the table's code for other texts, or leaves the value alone. Without text
/// the value stays as it was.
template <class Value>
bool readWord(Element element, Value& value, const Words& table) {
    const char* content = element.text();
    if (content == nullptr) return false;
    if (const auto code = codeOf(table, content)) value = static_cast<Value>(*code);
    return true;
}

template <auto Member, const auto& Table>
inline constexpr ReadRule<RecordOf<Member>> word{
    {.field = fieldOf<Member>, .kind = Kind::word, .words = named<Table>},
    [](Element element, RecordOf<Member>& record) { return readWord(element, record.*Member, Table); }};

/// The bits of words, added to those that are set already; an unknown word adds none.
template <auto Member, const auto& Table>
inline constexpr ReadRule<RecordOf<Member>> bits{{.field = fieldOf<Member>, .kind = Kind::bits, .words = named<Table>},
                                                 [](Element element, RecordOf<Member>& record) {
                                                     const char* content = element.text();
                                                     if (const auto bit = codeOf(Table, content))
                                                         record.*Member |= *bit;
                                                     return content != nullptr;
                                                 }};

/// A truth word.
template <auto Member>
inline constexpr ReadRule<RecordOf<Member>> flag{
    {.field = fieldOf<Member>,
     .kind = Kind::flag,
     .withoutText = std::is_same_v<ValueOf<Member>, bool> ? WithoutText::isFalse : WithoutText::isKept},
    [](Element element, RecordOf<Member>& record) { return readTruth(element, record.*Member); }};

/// A word as a template argument.
template <std::size_t N>
struct Literal {
    consteval Literal(const char (&word)[N]) {
        for (std::size_t i = 0; i < N; ++i) characters[i] = word[i];
    }
    char characters[N]{};
};

/// Such a word, to point to. It is a copy, because clang++ would export the template argument's own object from the
/// library.
template <Literal Word>
inline constexpr Literal literal = Word;

/// A flag that is true for exactly one word. Without text it is stored as false, or kept as it was.
template <auto Member, Literal Word, WithoutText Otherwise = WithoutText::isFalse>
inline constexpr ReadRule<RecordOf<Member>> is{
    {.field = fieldOf<Member>, .kind = Kind::isWord, .word = literal<Word>.characters, .withoutText = Otherwise},
    [](Element element, RecordOf<Member>& record) {
        bool& flag = record.*Member;
        const char* content = element.text();
        if (content != nullptr || Otherwise == WithoutText::isFalse) {
            flag = content != nullptr && convert::equal(content, literal<Word>.characters);
        }
        return content != nullptr;
    }};

/// A flag that is false for exactly one word and true for any other. Without text it is kept as it was.
template <auto Member, Literal Word>
inline constexpr ReadRule<RecordOf<Member>> isNot{
    {.field = fieldOf<Member>, .kind = Kind::isNotWord, .word = literal<Word>.characters},
    [](Element element, RecordOf<Member>& record) {
        bool& flag = record.*Member;
        const char* content = element.text();
        if (content != nullptr) flag = !convert::equal(content, literal<Word>.characters);
        return content != nullptr;
    }};

/// An integer attribute of the element; its text does not count.
template <auto Member, Literal Name>
inline constexpr ReadRule<RecordOf<Member>> attribute{{.field = fieldOf<Member>,
                                                       .kind = Kind::attribute,
                                                       .number = {.onlyNumbers = true},
                                                       .word = literal<Name>.characters},
                                                      [](Element element, RecordOf<Member>& record) {
                                                          return readAttribute(element, literal<Name>.characters,
                                                                               record.*Member);
                                                      }};

/// Six bytes.
template <auto Member>
inline constexpr ReadRule<RecordOf<Member>> hardwareAddress{
    {.field = fieldOf<Member>, .kind = Kind::hardwareAddress}, [](Element element, RecordOf<Member>& record) {
        static_assert(sizeof(ValueOf<Member>) == sizeof(convert::HardwareAddress));
        return readHardwareAddress(element, record.*Member);
    }};

/// A setting with its range, as KVJConfigParser::getMinMaxVal reads it.
template <class Setting>
bool readSetting(Element element, Setting& setting) {
    const bool hasMin = readAttribute(element, "min", setting.min);
    const bool hasMax = readAttribute(element, "max", setting.max);
    const bool result = readNumber(element, setting.value);
    // Not std::clamp: where the range is the wrong way round, the printer expects its maximum.
    if (setting.value < setting.min) setting.value = setting.min;
    if (setting.value > setting.max) setting.value = setting.max;
    if (Watch* const watch = element.watch()) {
        if (hasMin) watch->mark(&setting.min);
        if (hasMax) watch->mark(&setting.max);
        if (result) watch->mark(&setting.value);
    }
    return result;
}

template <class Setting>
inline constexpr Kind kindOfSetting =
    std::is_same_v<Setting, Kavrin::_MinMaxVal> ? Kind::setting : Kind::decimalSetting;

template <auto Member>
inline constexpr ReadRule<RecordOf<Member>> setting{
    {.field = fieldOf<Member>, .kind = kindOfSetting<ValueOf<Member>>},
    [](Element element, RecordOf<Member>& record) { return readSetting(element, record.*Member); }};

/// Bits in hexadecimal after a literal "0x"; any other text leaves them alone and counts as read.
template <auto Member>
inline constexpr ReadRule<RecordOf<Member>> prefixedHex{
    {.field = fieldOf<Member>,
     .kind = Kind::number,
     .number = {.isSigned = false, .base = Base::hexadecimal, .onlyNumbers = true}},
    [](Element element, RecordOf<Member>& record) {
        const char* content = element.text();
        if (content != nullptr) convert::scanPrefixedHex(content, record.*Member);
        return content != nullptr;
    }};

/// A group of elements, walked with a table of its own into the same record.
template <const auto& Table>
inline constexpr ReadRule<RecordOfTable<Table>> group{
    {.kind = Kind::group, .group = described<Table>},
    [](Element element, RecordOfTable<Table>& record) { return walk(element, record, Table); }};

/// A group of elements, walked with a table of its own into a record inside the record.
template <auto Member, const auto& Table>
inline constexpr ReadRule<RecordOf<Member>> part{
    {.field = fieldOf<Member>, .kind = Kind::part, .group = described<Table>},
    [](Element element, RecordOf<Member>& record) { return walk(element, record.*Member, Table); }};

/// A record that is a single number.
template <class Value>
inline constexpr ReadRule<Value> itself{{.kind = kindOfNumber<Value>, .number = numberRead<Value>},
                                        [](Element element, Value& value) { return readNumber(element, value); }};

/// A record that is the code of a single word.
template <const auto& Table>
inline constexpr ReadRule<int> wordItself{{.kind = Kind::word, .words = named<Table>},
                                          [](Element element, int& code) { return readWord(element, code, Table); }};

/// A list being filled: the entries that the host has room for.
template <class Entry>
struct List {
    std::span<Entry> entries;
    std::size_t filled = 0;
    bool result = false;  ///< that of the last entry
};

template <class Entry>
inline constexpr bool isList<List<Entry>> = true;

/// Rows of a list name the fields of the entry that has just been read.
template <class Entry>
const void* watched(const List<Entry>& list) {
    return list.filled == 0 ? nullptr : &list.entries[list.filled - 1];
}

/// Reads one more entry of a list. When there is no room it is skipped: nothing is written, and the result stays that
/// of the last entry.
template <class Entry>
bool readNext(Element element, List<Entry>& list, const ReadRule<Entry>& rule) {
    if (list.filled < list.entries.size()) list.result = rule.read(element, list.entries[list.filled++]);
    return list.result;
}

/// An entry that is a group of elements, walked with a table of its own.
template <const auto& Table>
inline constexpr ReadRule<List<RecordOfTable<Table>>> entry{
    {.kind = Kind::entry, .group = described<Table>},
    [](Element element, List<RecordOfTable<Table>>& list) { return readNext(element, list, group<Table>); }};

template <class Record>
Record recordOf(const ReadRule<Record>&);

/// An entry that has no elements of its own: the rule reads its text.
template <const auto& Text>
inline constexpr ReadRule<List<RecordOfTable<Text>>> each{
    Text.description, [](Element element, List<RecordOfTable<Text>>& list) { return readNext(element, list, Text); }};

}  // namespace kvj

#endif
