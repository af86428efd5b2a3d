/// @file kvjxml_words.hpp
/// Names for the codes in records, for hosts in C++17 and later. A field is named by its member pointer, which knows
/// its words, so that no wrong table can be taken:
///
///     kvjxml::name<&Kavrin::KVGeneralStatus::printerState>(status)      // "printing"
///     kvjxml::name<&Kavrin::KVGeneralStatus::printerState>(5)           // "printing"
///     kvjxml::code<&Kavrin::KVGeneralStatus::printerState>("printing")  // 5
///     if (const auto state = kvjxml::as_enum<&Kavrin::KVGeneralStatus::printerState>(status)) {
///         switch (*state) {
///             case kvjxml::printer_state::printing: ...
///
/// A field that has no words does not compile. kvjxml_vocabulary.hpp has the enumerations, with the fields that each is
/// for and what becomes of a word that it does not have.
///
/// The words are those of the library that the host runs with, which may know more than this header does. They are
/// static texts: nobody releases them, and they are good for as long as the library is loaded.
///
/// **Where the printer takes other words than it sends,** these are the words that it sends: coercivity 0 is composed
/// as "none", but no reply has that word, so it has no name here. A field that is composed and never read has the words
/// that are composed.
#ifndef KVJXML_WORDS_HPP
#define KVJXML_WORDS_HPP

#include <cstddef>
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "kvjxml_vocabulary.hpp"
#include "kvjxml_word_tables.hpp"

namespace kvjxml {
inline namespace v1 {

namespace detail {

template <class Member>
struct member_of;
template <class Record, class Value>
struct member_of<Value Record::*> {
    using record = Record;
    using value = std::remove_pointer_t<Value>;
    /// What a code is passed as: an enumeration of the records counts as its integer.
    using code = decltype(+std::declval<value>());
    static constexpr bool is_list = std::is_pointer_v<Value>;
};

template <auto Field>
using record_of = typename member_of<decltype(Field)>::record;
template <auto Field>
using value_of = typename member_of<decltype(Field)>::value;
template <auto Field>
using code_of = typename member_of<decltype(Field)>::code;
template <auto Field>
using enumeration_of = typename words_of<Field>::enumeration;

template <auto Field>
constexpr const char* table() noexcept {
    static_assert(words_of<Field>::held != holds::no_words, "this field has no words");
    return table_of<enumeration_of<Field>>;
}
template <auto Field>
constexpr const char* table_of_one() noexcept {
    static_assert(words_of<Field>::held != holds::bits, "this field has several words at once: ask for its names");
    return table<Field>();
}
template <auto Field>
constexpr const char* table_of_several() noexcept {
    static_assert(words_of<Field>::held != holds::one_word, "this field has one word at a time: ask for its name");
    return table<Field>();
}
template <auto Field>
constexpr code_of<Field> code_in(const record_of<Field>& record) noexcept {
    static_assert(!member_of<decltype(Field)>::is_list, "this field is a list: give one of its codes");
    return record.*Field;
}

}  // namespace detail

// ---- Fields with one word ----

/// The word of a code; of several the one that is written, which is the first. None for a code that no word has, such
/// as the 38 that an unknown word becomes in printerState. Where it becomes the code of a known word, as an unknown
/// ribbon that of "Black", it has that word's name.
template <auto Field>
[[nodiscard]] std::optional<std::string_view> name(detail::code_of<Field> code) noexcept {
    const char* const word = kvjxml_v1_word(detail::table_of_one<Field>(), static_cast<int>(code));
    return word == nullptr ? std::nullopt : std::optional<std::string_view>(word);
}
template <auto Field>
[[nodiscard]] std::optional<std::string_view> name(detail::enumeration_of<Field> value) noexcept {
    return name<Field>(static_cast<detail::code_of<Field>>(value));
}
/// That of the field itself, in its record or one that is derived from it.
template <auto Field>
[[nodiscard]] std::optional<std::string_view> name(const detail::record_of<Field>& record) noexcept {
    return name<Field>(detail::code_in<Field>(record));
}

/// A code as its enumerator; none when no word has it. A library that is newer than this header may know words that
/// have no enumerator here, so a switch needs its default.
template <auto Field>
[[nodiscard]] std::optional<detail::enumeration_of<Field>> as_enum(detail::code_of<Field> code) noexcept {
    if (!name<Field>(code)) return std::nullopt;
    return static_cast<detail::enumeration_of<Field>>(code);
}
template <auto Field>
[[nodiscard]] std::optional<detail::enumeration_of<Field>> as_enum(const detail::record_of<Field>& record) noexcept {
    return as_enum<Field>(detail::code_in<Field>(record));
}

// ---- All fields with words ----

/// The code that a word is read as, or its bit; none for a text that is no word. A text matches as it does in a reply:
/// as it is, but for the names of ribbons, in which the case of letters does not count.
template <auto Field>
[[nodiscard]] std::optional<detail::value_of<Field>> code(std::string_view word) noexcept {
    int found = 0;
    if (!kvjxml_v1_code(detail::table<Field>(), word.data(), word.size(), &found)) return std::nullopt;
    return static_cast<detail::value_of<Field>>(found);
}

// ---- Fields with bits, or with codes that are OR-ed into each other ----

/// The words of a field, in the order of the library's table, one for each code. A value that is the code of a word has
/// that word alone. Any other has every word whose bits are all set in it: where the codes of words share bits, as
/// those of wireless_security do, each of these may have been in the reply, and some were not.
template <auto Field>
[[nodiscard]] std::vector<std::string_view> names(detail::code_of<Field> codes) {
    const char* const table = detail::table_of_several<Field>();
    unsigned int unnamed = 0;
    const auto bits = static_cast<unsigned int>(codes);
    std::vector<const char*> words(kvjxml_v1_words(table, bits, nullptr, 0, &unnamed));
    kvjxml_v1_words(table, bits, words.data(), words.size(), &unnamed);
    return {words.begin(), words.end()};
}
template <auto Field>
[[nodiscard]] std::vector<std::string_view> names(const detail::record_of<Field>& record) {
    return names<Field>(detail::code_in<Field>(record));
}

/// The bits of a field that are in none of its names.
template <auto Field>
[[nodiscard]] unsigned int unnamed(detail::code_of<Field> codes) noexcept {
    unsigned int bits = 0;
    kvjxml_v1_words(detail::table_of_several<Field>(), static_cast<unsigned int>(codes), nullptr, 0, &bits);
    return bits;
}
template <auto Field>
[[nodiscard]] unsigned int unnamed(const detail::record_of<Field>& record) noexcept {
    return unnamed<Field>(detail::code_in<Field>(record));
}

// ---- Bits without words ----

/// The numbers of the bits that are set, the lowest first and counted from 0. For KVGeneralStatus::alarms: its bits are
/// the printer's own, and nothing is known of what each of them stands for, so a host can list them and no more.
[[nodiscard]] inline std::vector<int> bits(unsigned int value) {
    std::vector<int> numbers;
    for (int number = 0; value != 0; ++number, value >>= 1U) {
        if ((value & 1U) != 0) numbers.push_back(number);
    }
    return numbers;
}

}  // namespace v1
}  // namespace kvjxml

#endif
