/// @file write_rules.h
/// The rules that the rows of a request's table are made with: each says how one member of a record is written.
#ifndef KVJXML_FOUNDATION_WRITE_RULES_H
#define KVJXML_FOUNDATION_WRITE_RULES_H

#include <type_traits>

#include "foundation/compose.h"
#include "foundation/convert.h"
#include "foundation/member.h"
#include "foundation/read_rules.h"
#include "foundation/sent.h"

namespace kvj::put {

/// A decimal number.
template <auto Member>
inline constexpr WriteRule<RecordOf<Member>> number{
    {.field = fieldOf<Member>, .kind = Kind::number, .number = numberOf<ValueOf<Member>>},
    [](Parent parent, const char* name, const RecordOf<Member>& record, const Selection&) {
        if constexpr (std::is_unsigned_v<ValueOf<Member>>) {
            return addTag(parent, name, convert::fromUnsigned(record.*Member).c_str());
        } else {
            return addTag(parent, name, convert::fromInt(record.*Member).c_str());
        }
    }};

/// A number with four decimals.
template <auto Member>
inline constexpr WriteRule<RecordOf<Member>> decimal{
    {.field = fieldOf<Member>, .kind = Kind::decimal, .decimals = 4},
    [](Parent parent, const char* name, const RecordOf<Member>& record, const Selection&) {
        return addDecimal(parent, name, record.*Member, 4);
    }};

/// A text, which need not be terminated in its field.
template <auto Member>
inline constexpr WriteRule<RecordOf<Member>> text{
    {.field = fieldOf<Member>, .kind = Kind::text, .capacity = std::extent_v<ValueOf<Member>>},
    [](Parent parent, const char* name, const RecordOf<Member>& record, const Selection&) {
        return addField(parent, name, record.*Member, sizeof(ValueOf<Member>));
    }};

/// One of two words.
template <auto Member, Literal True, Literal False>
inline constexpr WriteRule<RecordOf<Member>> either{
    {.field = fieldOf<Member>,
     .kind = Kind::either,
     .word = literal<True>.characters,
     .otherWord = literal<False>.characters},
    [](Parent parent, const char* name, const RecordOf<Member>& record, const Selection&) {
        return addTag(parent, name, record.*Member ? literal<True>.characters : literal<False>.characters);
    }};

template <auto Member>
inline constexpr const auto& yesOrNo = either<Member, "yes", "no">;
template <auto Member>
inline constexpr const auto& enabledOrNot = either<Member, "enabled", "disabled">;

/// The word of a code; a code without one is written as `Otherwise`.
template <auto Member, const auto& Table, Literal Otherwise = "">
inline constexpr WriteRule<RecordOf<Member>> word{
    {.field = fieldOf<Member>, .kind = Kind::word, .words = named<Table>, .otherWord = literal<Otherwise>.characters},
    [](Parent parent, const char* name, const RecordOf<Member>& record, const Selection&) {
        return addWord(parent, name, Table, record.*Member, literal<Otherwise>.characters);
    }};

/// A record that is the code of a single word.
template <const auto& Table>
inline constexpr WriteRule<int> wordItself{{.kind = Kind::word, .words = named<Table>},
                                           [](Parent parent, const char* name, const int& code, const Selection&) {
                                               return addWord(parent, name, Table, code, "");
                                           }};

/// A setting with its range.
template <auto Member>
inline constexpr WriteRule<RecordOf<Member>> setting{
    {.field = fieldOf<Member>, .kind = kindOfSetting<ValueOf<Member>>, .decimals = 2},
    [](Parent parent, const char* name, const RecordOf<Member>& record, const Selection&) {
        return addSetting(parent, name, record.*Member);
    }};

/// Six bytes, "00:1a:2b:3c:4d:5e".
template <auto Member>
inline constexpr WriteRule<RecordOf<Member>> hardwareAddress{
    {.field = fieldOf<Member>, .kind = Kind::hardwareAddress},
    [](Parent parent, const char* name, const RecordOf<Member>& record, const Selection&) {
        static_assert(sizeof(ValueOf<Member>) == sizeof(convert::HardwareAddress));
        return addTag(parent, name, convert::fromHardwareAddress(record.*Member).c_str());
    }};

/// "192.168.1.20"
template <auto Member>
inline constexpr WriteRule<RecordOf<Member>> ipAddress{
    {.field = fieldOf<Member>, .kind = Kind::ipAddress},
    [](Parent parent, const char* name, const RecordOf<Member>& record, const Selection&) {
        return addIpAddress(parent, name, record.*Member);
    }};

/// "0x0a"
template <auto Member>
inline constexpr WriteRule<RecordOf<Member>> prefixedHex{
    {.field = fieldOf<Member>,
     .kind = Kind::number,
     .number = {.isSigned = false, .base = Base::hexadecimal, .digits = 2}},
    [](Parent parent, const char* name, const RecordOf<Member>& record, const Selection&) {
        return addTag(parent, name, convert::fromPrefixedHex(record.*Member).c_str());
    }};

/// A word that is always the same.
template <class Record, Literal Word>
inline constexpr WriteRule<Record> constant{{.kind = Kind::constant, .word = literal<Word>.characters},
                                            [](Parent parent, const char* name, const Record&, const Selection&) {
                                                return addTag(parent, name, literal<Word>.characters);
                                            }};

/// An element for each bit of a number that has a word, in the order of the words.
template <auto Member, const auto& Table>
inline constexpr WriteRule<RecordOf<Member>> bits{
    {.field = fieldOf<Member>, .kind = Kind::bits, .words = named<Table>},
    [](Parent parent, const char* name, const RecordOf<Member>& record, const Selection&) {
        return addBits(parent, name, Table, record.*Member);
    }};

/// A list: an element `EntryName` for each entry of an array.
template <auto Count, auto Array, Literal EntryName, const auto& Entry>
inline constexpr WriteRule<RecordOf<Array>> list{
    {.field = fieldOf<Array>,
     .kind = Kind::list,
     .word = literal<EntryName>.characters,
     .group = Entry.description.group},
    [](Parent parent, const char* name, const RecordOf<Array>& record, const Selection&) {
        return addList(parent, name, literal<EntryName>.characters, record.*Array, record.*Count, Entry);
    }};

/// A group of elements, composed with a table of its own from the same record.
template <const auto& Table>
inline constexpr WriteRule<RecordOfTable<Table>> group{
    {.kind = Kind::group, .group = describedWritten<Table>},
    [](Parent parent, const char* name, const RecordOfTable<Table>& record, const Selection& selection) {
        return addGroup(parent, name, record, Table, selection);
    }};

/// A group of elements, composed with a table of its own from a record inside the record.
template <auto Member, const auto& Table>
inline constexpr WriteRule<RecordOf<Member>> part{
    {.field = fieldOf<Member>, .kind = Kind::part, .group = describedWritten<Table>},
    [](Parent parent, const char* name, const RecordOf<Member>& record, const Selection& selection) {
        return addGroup(parent, name, record.*Member, Table, selection);
    }};

}  // namespace kvj::put

#endif
