/// @file field.h
/// The fields of a record as data, so that one loop can print, fill or compare any record. The lists themselves are in
/// the other headers of this folder; they are made with list.h, where the compiler checks them.
#ifndef KVJXML_FIELDS_FIELD_H
#define KVJXML_FIELDS_FIELD_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

namespace kvj {

enum class FieldType : std::uint8_t {
    flag,             ///< a bool
    bit,              ///< one bit of a byte
    number,           ///< a whole number or a code, of `size` bytes
    decimal,          ///< a float
    text,             ///< up to `size` characters, terminated
    hardwareAddress,  ///< six bytes
    ipAddress,        ///< an IPv4 address in network byte order
    hostText,         ///< a pointer to a text of the host's
    record,           ///< a record inside the record
    list,             ///< entries, see `Entries`
};

/// What a text of the host's is for.
enum class HostText : std::uint8_t {
    optional,     ///< it may be null
    needed,       ///< it may not
    elementName,  ///< nor is it any text
};

struct Field;

struct RecordType {
    std::string_view name;  ///< with its namespace
    std::size_t size;
    std::size_t alignment;
    std::span<const Field> fields;
};

/// Where the entries of a list are.
enum class Storage : std::uint8_t {
    inRecord,   ///< in an array inside the record
    ofHost,     ///< in an array that the host provides
    catalogue,  ///< on the heap, each by itself, owned by the record
};

/// How the entries of a list are reached.
struct Entries {
    const Field* entry;  ///< what each of them is, as a field at the entry's own address
    Storage storage;
    const Field* counter{};  ///< the field that counts them; null where none does
    std::size_t room{};      ///< how many an array inside the record holds
    bool showsCount{};       ///< whether the count says more than how many entries there are
    std::int64_t (*count)(const void* record);
    void (*setCount)(void* record, std::int64_t count){};
    const void* (*at)(const void* record, std::size_t index);
    void (*provide)(void* record, void* array){};  ///< sets the pointer to the host's array
    void* (*append)(void* record){};               ///< a new entry of a catalogue
};

/// A field of a record. Its value is reached with the functions below, which take the record's address.
struct Field {
    std::string_view name;
    FieldType type;
    std::size_t size;            ///< in bytes
    bool isSigned{};             ///< of a number
    const RecordType* record{};  ///< of a record inside the record
    const Entries* entries{};    ///< of a list
    HostText hostText{};         ///< of a text of the host's
    /// The field's own address; a bit has none.
    const void* (*at)(const void* record){};
    bool (*bit)(const void* record){};
    void (*setBit)(void* record, bool value){};

    [[nodiscard]] void* in(void* record_) const { return const_cast<void*>(at(record_)); }
};

/// The value of a simple field.
template <class Value>
Value valueOf(const Field& field, const void* record) {
    Value value;
    std::memcpy(&value, field.at(record), sizeof value);
    return value;
}
template <class Value>
void setValue(const Field& field, void* record, Value value) {
    std::memcpy(field.in(record), &value, sizeof value);
}

inline bool flagOf(const Field& field, const void* record) {
    return field.type == FieldType::bit ? field.bit(record) : valueOf<bool>(field, record);
}
inline void setFlag(const Field& field, void* record, bool value) {
    field.type == FieldType::bit ? field.setBit(record, value) : setValue(field, record, value);
}

/// A whole number of any size and sign. Of an unsigned one of 64 bits the value keeps its bits.
std::int64_t wholeNumberOf(const Field& field, const void* record);
/// @return false, and nothing is stored, for a number that the field cannot hold.
bool setWholeNumber(const Field& field, void* record, std::int64_t value);

/// How many entries of a list say something: as many as it counts; none while its count is more than there is room for
/// in the record, as a host sets it to ask for all; and of an array without a count, those up to the last that is not
/// all zero.
std::size_t countOf(const Entries& entries, const void* record);

/// The characters of a text field up to its NUL, or all of them when there is none.
inline std::string_view textOf(const Field& field, const void* record) {
    const auto* const first = static_cast<const char*>(field.at(record));
    return {first, strnlen(first, field.size)};
}

}  // namespace kvj

#endif
