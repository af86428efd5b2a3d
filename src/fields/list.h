/// @file fields/list.h
/// Makes the lists of fields:
///
///     template <>
///     inline constexpr FieldList<
///         &_PortCaps::portId,
///         &_PortCaps::portType>
///         fields<_PortCaps>{};
///
/// A list that lacks a field of its record does not compile, nor does a field whose type has no place in FieldType.
/// That the fields stand in their record's order is left to a test: clang++ does not compare addresses inside a record
/// at compile time.
#ifndef KVJXML_FIELDS_LIST_H
#define KVJXML_FIELDS_LIST_H

#include <array>
#include <cstddef>
#include <iterator>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "fields/field.h"
#include "foundation/kinds.h"

namespace kvj {

template <auto... Fields>
struct FieldList {};

/// The fields of a record; a record without a list does not compile.
template <class Record>
inline constexpr std::nullptr_t fields = nullptr;

template <class Record>
struct RecordTypeOf;
/// What is known of a record.
template <class Record>
inline constexpr const RecordType& recordType = RecordTypeOf<Record>::value;

// ---- Fields that are more, or less, than one member ----

/// A list: a count, and the entries that it counts.
template <auto Count_, auto Array_, bool ShowsCount = false>
struct ListField {
    static constexpr auto count = Count_;
    static constexpr auto array = Array_;
    static constexpr bool showsCount = ShowsCount;
};
template <auto Count, auto Array>
inline constexpr ListField<Count, Array> list{};
/// The same, of a record whose count says more than how many entries there are.
template <auto Count, auto Array>
inline constexpr ListField<Count, Array, true> countedList{};

/// One bit; `Bit` has its name and gets and sets it.
template <class Record_, class Bit_>
struct BitField {
    using Record = Record_;
    using Bit = Bit_;
};
template <class Record, class Bit>
inline constexpr BitField<Record, Bit> bitField{};

/// A text of the host's that has to be there, or that moreover becomes the name of an element.
template <auto Member_, HostText Use_>
struct HostTextField {
    static constexpr auto member = Member_;
};
template <auto Member>
inline constexpr HostTextField<Member, HostText::needed> needed{};
template <auto Member>
inline constexpr HostTextField<Member, HostText::elementName> elementName{};

/// An IPv4 address in network byte order.
template <auto Member_>
struct AddressField {
    static constexpr auto member = Member_;
};
template <auto Member>
inline constexpr AddressField<Member> address{};

// ---- What a member is ----

/// A value by itself, as a field at its own address.
template <class Value>
constexpr Field fieldOfType(std::string_view name);

template <class Entry>
inline constexpr Field entryField = fieldOfType<Entry>({});

/// An array of records by itself, without a count.
template <class Entry, std::size_t Room>
inline constexpr Entries arrayOf{
    .entry = &entryField<Entry>,
    .storage = Storage::inRecord,
    .room = Room,
    .count = [](const void* /*array*/) -> std::int64_t { return Room; },
    .at = [](const void* array, std::size_t index) -> const void* { return static_cast<const Entry*>(array) + index; }};

template <class Value>
constexpr Field fieldOfType(std::string_view name) {
    const auto itself = [](const void* value) { return value; };
    // NOLINTNEXTLINE(bugprone-sizeof-expression): a field may be a pointer.
    Field field{.name = name, .type = FieldType::number, .size = sizeof(Value), .at = itself};
    if constexpr (std::is_same_v<Value, bool>) {
        field.type = FieldType::flag;
    } else if constexpr (std::is_enum_v<Value>) {
        field.isSigned = std::is_signed_v<std::underlying_type_t<Value>>;
    } else if constexpr (std::is_integral_v<Value>) {
        field.isSigned = std::is_signed_v<Value>;
    } else if constexpr (std::is_same_v<Value, float>) {
        field.type = FieldType::decimal;
    } else if constexpr (std::is_same_v<std::remove_extent_t<Value>, char>) {
        field.type = FieldType::text;
    } else if constexpr (std::is_same_v<Value, unsigned char[6]>) {
        field.type = FieldType::hardwareAddress;
    } else if constexpr (std::is_same_v<Value, const char*>) {
        field.type = FieldType::hostText;
    } else if constexpr (std::is_array_v<Value>) {
        field.type = FieldType::list;
        field.entries = &arrayOf<std::remove_extent_t<Value>, std::extent_v<Value>>;
    } else {
        static_assert(std::is_class_v<Value>, "a field of this type has no place in FieldType");
        field.type = FieldType::record;
        field.record = &recordType<Value>;
    }
    return field;
}

// ---- Lists ----

/// What is known of what a list of fields names; see below.
template <auto Member>
struct FieldTraits;

/// A list on the heap that the record owns.
template <auto Member>
auto& vectorIn(const void* record) {
    return *(static_cast<const RecordOf<Member>*>(record)->*Member);
}

template <auto Member, class Entry>
constexpr Entries catalogue() {
    return {.entry = &entryField<Entry>,
            .storage = Storage::catalogue,
            .count = [](const void* record) -> std::int64_t { return std::ssize(vectorIn<Member>(record)); },
            .at = [](const void* record, std::size_t index) -> const void* { return vectorIn<Member>(record)[index]; },
            .append = [](void* record) -> void* {
                auto entry = std::make_unique<Entry>();
                vectorIn<Member>(record).push_back(entry.get());
                return entry.release();  // The list owns it now.
            }};
}

template <class Entry, std::size_t Room>
constexpr std::size_t roomOf(std::type_identity<Entry[Room]> /*array*/) {
    return Room;
}
template <class Entry>
constexpr std::size_t roomOf(std::type_identity<Entry*> /*array*/) {
    return 0;
}

/// A list in an array.
template <auto Count, auto Array, bool ShowsCount>
constexpr Entries arrayEntries() {
    using Record = RecordOf<Array>;
    using Value = ValueOf<Array>;
    using Entry = std::remove_pointer_t<std::decay_t<Value>>;
    Entries entries{
        .entry = &entryField<Entry>,
        .storage = Storage::inRecord,
        .counter = &FieldTraits<Count>::field,
        .room = roomOf(std::type_identity<Value>{}),
        .showsCount = ShowsCount,
        .count =
            [](const void* record) { return static_cast<std::int64_t>(static_cast<const Record*>(record)->*Count); },
        .setCount =
            [](void* record, std::int64_t count) {
                static_cast<Record*>(record)->*Count = static_cast<ValueOf<Count>>(count);
            },
        .at = [](const void* record, std::size_t index) -> const void* {
            return &(static_cast<const Record*>(record)->*Array)[index];
        },
    };
    if constexpr (std::is_pointer_v<Value>) {
        entries.storage = Storage::ofHost;
        entries.provide = [](void* record, void* array) {
            static_cast<Record*>(record)->*Array = static_cast<Entry*>(array);
        };
    }
    return entries;
}

template <auto Count, auto Array, bool ShowsCount>
inline constexpr Entries arrayEntriesOf = arrayEntries<Count, Array, ShowsCount>();
template <auto Member, class Entry>
inline constexpr Entries catalogueOf = catalogue<Member, Entry>();

// ---- From what a list of fields names to a field ----

template <class Value>
inline constexpr std::size_t initializersOf = 1;
template <class Value, std::size_t N>
inline constexpr std::size_t initializersOf<Value[N]> = N* initializersOf<Value>;

/// A field, how many initializers its members take, and how many bytes they have.
template <auto Member>
struct FieldTraits {
    static constexpr std::size_t initializers = initializersOf<ValueOf<Member>>;
    // NOLINTNEXTLINE(bugprone-sizeof-expression): likewise.
    static constexpr std::size_t bytes = sizeof(ValueOf<Member>);
    template <class Entry>
    static constexpr Field of(std::type_identity<std::vector<Entry*>*> /*list*/) {
        return {.name = nameOf<Member>(),
                .type = FieldType::list,
                .size = bytes,
                .entries = &catalogueOf<Member, Entry>,
                .at = addressOf<Member>};
    }
    template <class Value>
    static constexpr Field of(std::type_identity<Value> /*value*/) {
        Field member = fieldOfType<Value>(nameOf<Member>());
        member.at = addressOf<Member>;
        return member;
    }
    static constexpr Field field = of(std::type_identity<ValueOf<Member>>{});
};
template <auto Count, auto Array, bool ShowsCount, ListField<Count, Array, ShowsCount> List>
struct FieldTraits<List> {
    static constexpr std::size_t initializers = 1 + initializersOf<ValueOf<Array>>;
    static constexpr std::size_t bytes = sizeof(ValueOf<Count>) + sizeof(ValueOf<Array>);
    static constexpr Field field{.name = nameOf<Array>(),
                                 .type = FieldType::list,
                                 // NOLINTNEXTLINE(bugprone-sizeof-expression): likewise.
                                 .size = sizeof(ValueOf<Array>),
                                 .entries = &arrayEntriesOf<Count, Array, ShowsCount>,
                                 .at = addressOf<Array>};
};
template <class Record, class Bit, BitField<Record, Bit> Field_>
struct FieldTraits<Field_> {
    static constexpr std::size_t initializers = 1;
    static constexpr Field field{
        .name = Bit::name,
        .type = FieldType::bit,
        .size = 0,
        .bit = [](const void* record) { return Bit::get(*static_cast<const Record*>(record)); },
        .setBit = [](void* record, bool value) { Bit::set(*static_cast<Record*>(record), value); }};
};
template <auto Member, AddressField<Member> Address>
struct FieldTraits<Address> : FieldTraits<Member> {
    static constexpr Field field{.name = nameOf<Member>(),
                                 .type = FieldType::ipAddress,
                                 .size = FieldTraits<Member>::bytes,
                                 .at = addressOf<Member>};
};

template <auto Member, HostText Use, HostTextField<Member, Use> Text>
struct FieldTraits<Text> : FieldTraits<Member> {
    static constexpr Field field{.name = nameOf<Member>(),
                                 .type = FieldType::hostText,
                                 .size = FieldTraits<Member>::bytes,
                                 .hostText = Use,
                                 .at = addressOf<Member>};
};

// ---- Whether a list is complete ----

/// Initializes anything.
struct Anything {
    template <class Value>
    operator Value() const noexcept;
};
template <class Record, std::size_t... Indices>
constexpr bool takes(std::index_sequence<Indices...> /*initializers*/) {
    return requires { Record{(static_cast<void>(Indices), Anything{})...}; };
}

/// Whether a record takes as many initializers as its fields do, and not one more. Where it is made by a constructor,
/// its fields have to fill it to the last byte.
template <class Record, auto... Fields>
consteval bool isComplete() {
    if constexpr (std::is_aggregate_v<Record>) {
        constexpr std::size_t count = (FieldTraits<Fields>::initializers + ...);
        return takes<Record>(std::make_index_sequence<count>{}) &&
               !takes<Record>(std::make_index_sequence<count + 1>{});
    } else {
        return (FieldTraits<Fields>::bytes + ...) == sizeof(Record);
    }
}

template <class Record, auto... Fields>
constexpr auto fieldArray(FieldList<Fields...> /*list*/) {
    static_assert(isComplete<Record, Fields...>(), "a field of the record is missing in its list");
    return std::array{FieldTraits<Fields>::field...};
}

template <class Record>
struct RecordTypeOf {
    // Hosts zero their records and copy them byte by byte; those of a constructor they do not.
    static_assert(!std::is_aggregate_v<Record> || std::is_trivial_v<Record>);
    static constexpr auto all = fieldArray<Record>(fields<Record>);
    static constexpr RecordType value{qualifiedNameOf<Record>(), sizeof(Record), alignof(Record), all};
};

}  // namespace kvj

#endif
