/// @file kinds.h
/// What kinds of value elements have, and what a row says of its own: enough for a reference, a check or a schema,
/// which know nothing of how a value is read.
#ifndef KVJXML_FOUNDATION_KINDS_H
#define KVJXML_FOUNDATION_KINDS_H

#include <cstddef>
#include <span>
#include <string_view>
#include <type_traits>

#include "foundation/member.h"
#include "foundation/words.h"

namespace kvj {

/// The kind of value that an element is read as or written from. Beside each stand the members of a Description that it
/// has, other than the field.
enum class Kind {
    // ---- Numbers ----
    number,          ///< an integer: `number`
    decimal,         ///< a number with a decimal point; `decimals` when it is written
    setting,         ///< an integer with the attributes "min" and "max"
    decimalSetting,  ///< a number with a decimal point and these attributes; `decimals` when it is written
    attribute,       ///< an integer, not from the text but from the attribute `word`: `number`

    // ---- Texts ----
    text,             ///< `capacity`
    textWithoutWord,  ///< a text without the `word` at its front: `capacity`
    textAndCode,      ///< a text, and its code to `otherField`: `capacity`, `words`
    appendedText,     ///< a text added to the one that is there: `capacity`, that of both

    // ---- Words ----
    word,           ///< a code: `words`; a code without a word is written as `otherWord`
    wordOrNext,     ///< a code; when there is one already, to `otherField`: `words`
    wordOfPanels,   ///< the code of the text that the elements of `group` make: `words`
    bits,           ///< the bit of a word, added to those that are there; an element for each when written: `words`
    combinedCodes,  ///< a code, OR-ed into what is there: `words`
    flag,           ///< a truth word: true for "enabled" and "yes"
    isWord,         ///< true for `word` alone
    isNotWord,      ///< false for `word` alone
    either,         ///< written as `word` when true, else as `otherWord`
    constant,       ///< always written as `word`
    toldWord,       ///< written as `word` or `otherWord`, as the composer is told
    laminatorWord,  ///< written as the word of the laminator's type, `words`; without a laminator as `otherWord`

    // ---- Addresses ----
    hardwareAddress,  ///< six bytes
    ipAddress,        ///< IPv4

    // ---- Elements around others: `group`. They and what follows carry no value of their own ----
    group,          ///< elements of the same record
    part,           ///< elements of a record inside the record
    list,           ///< a list in an array of the host's; when written, of elements `word`
    entry,          ///< the next entry of a list
    firstEntry,     ///< the first entry of a list, each time
    newEntry,       ///< a new entry of a list that grows
    byDescription,  ///< a record with the description `word`; with any other it goes to `otherField`

    givenAttributes,  ///< nothing is read: the element is given the `attributes`
};

/// Whether an element is read for a value of its own, and not for the elements inside it.
constexpr bool hasOwnValue(Kind kind) { return kind < Kind::group; }

/// How the digits of an integer stand in a text.
enum class Base {
    decimal,
    hexadecimal,  ///< after "0x"
    either,       ///< hexadecimal after "0x", else decimal
};

struct Number {
    int bits = 32;  ///< as many as are stored; of a number that needs more the low ones
    bool isSigned = true;
    Base base = Base::decimal;
    int digits = 0;            ///< the most that are read, or the fewest that are written; 0 when they are not counted
    bool onlyNumbers = false;  ///< whether a text that is no number leaves the field alone; else it counts as 0
};

/// The integer that a field of a type holds.
template <class Value>
inline constexpr Number numberOf{.bits = 8 * sizeof(Value), .isSigned = std::is_signed_v<Value>};

/// What becomes of a field whose element has no text.
enum class WithoutText {
    isKept,   ///< it stays as it was
    isFalse,  ///< it becomes false
    isZero,   ///< it becomes 0
    isOther,  ///< it becomes the code of a word that the table does not have
};

/// A field of a record, by the names that the source has for them.
struct FieldName {
    std::string_view record;
    std::string_view name;
    /// Its address in a record; null for one bit, which has none.
    const void* (*at)(const void* record){};
    [[nodiscard]] constexpr bool empty() const { return name.empty(); }
};

template <auto Member>
const void* addressOf(const void* record) {
    return &(static_cast<const RecordOf<Member>*>(record)->*Member);
}

template <auto Member>
inline constexpr FieldName fieldOf{nameOfType<RecordOf<Member>>(), nameOf<Member>(), addressOf<Member>};
/// That of a part or a list, which has nothing of its own: its fields are read one by one.
template <auto Member>
inline constexpr FieldName partOf{nameOfType<RecordOf<Member>>(), nameOf<Member>()};

/// A table of words with its name. Two are the same table when they have the same rows in memory, not the same name.
struct NamedWords {
    std::string_view name;  ///< with its namespaces below the library's, "status::jobStates"
    Words words;
};

template <const auto& Table>
inline constexpr NamedWords named{nameOfTable<Table>(), Table};

struct DescribedRow;

/// What a row says of itself; reading and writing do not need it.
struct Description {
    FieldName field{};  ///< empty for a group in the same record, and for a record that is a single value
    Kind kind;
    Number number{};
    int decimals{};          ///< how many digits stand after the decimal point
    std::size_t capacity{};  ///< the size of a text field in bytes
    NamedWords words{};
    std::string_view word{};
    std::string_view otherWord{};
    FieldName otherField{};
    WithoutText withoutText = WithoutText::isKept;
    std::span<const std::string_view> attributes{};
    std::span<const DescribedRow> group{};
};

struct DescribedRow {
    std::string_view name;
    Description description;
    std::string_view condition{};  ///< when it is written, in words; empty for always
    long section{};                ///< the bit that it is written for; 0 when it is no section
};

}  // namespace kvj

#endif
