/// @file readings.h
/// Readings of kvjxml.hpp of any message, for tests that go through all of them: what its templates do for one, by what
/// is known of each at run time.
#ifndef KVJXML_TESTS_SUPPORT_READINGS_H
#define KVJXML_TESTS_SUPPORT_READINGS_H

#include <cstddef>
#include <kvjxml_read.hpp>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "messages/message.h"

namespace kvj::tests {

/// A list of a reading, its entries as they lie in memory.
struct ReadList {
    const Field* field;  ///< that of the named operation's record
    std::vector<std::byte> bytes;

    [[nodiscard]] std::size_t entrySize() const { return field->entries->entry->size; }
    [[nodiscard]] std::size_t count() const { return bytes.size() / entrySize(); }
    [[nodiscard]] const void* entry(std::size_t index) const { return bytes.data() + index * entrySize(); }
};

/// The lists of the named operation's record; those of a record that has none are none.
std::vector<const Field*> listsOf(const Message& message);

struct AnyReading {
    bool found = false;
    bool whole = false;
    bool tooLarge = false;
    std::string root;
    std::vector<std::byte> record;  ///< without lists, of the size of the named operation's record
    std::vector<unsigned char> carried;
    std::vector<ReadList> lists;
    std::vector<kvjxml::finding> findings;
    std::size_t omitted = 0;

    /// Whether a reply carried something for the field that begins at this byte of the record.
    [[nodiscard]] bool carries(std::size_t at) const { return (carried[at / 8] >> at % 8 & 1U) != 0; }
};

AnyReading readAny(const Message& message, std::string_view bytes);
AnyReading readAny(const Message& message, std::string_view bytes, kvjxml::diagnose_t);

/// The message of that name.
const Message& messageOf(std::string_view name);

/// A finding on one line: `error unknown-word 2:5 /a/b Kavrin::X::y "text" -> "became" (detail)`.
std::string toldOf(const kvjxml::finding& finding);
std::vector<std::string> toldOf(const std::vector<kvjxml::finding>& findings);

}  // namespace kvj::tests

#endif
