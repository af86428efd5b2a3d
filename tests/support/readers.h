/// @file readers.h
/// Every reader of a whole reply as a row of one table, for tests that give the same text to all of them and decide
/// where in memory text and record lie.
#ifndef KVJXML_TESTS_SUPPORT_READERS_H
#define KVJXML_TESTS_SUPPORT_READERS_H

#include <cstddef>
#include <span>
#include <string_view>

namespace kvjxml::tests {

/// A reply in both forms that readers take.
struct Text {
    const char* narrow;   ///< `length` characters and a NUL
    const wchar_t* wide;  ///< `length` characters; nothing behind them is read
    std::size_t length;
};

struct Reader {
    std::string_view name;  ///< of the operation
    const char* root;       ///< the name of the element that it looks for
    bool takesWide;         ///< which of the two forms it reads
    std::size_t recordSize;
    /// Reads the text into a record: `recordSize` zero bytes, aligned for any type. What the host sets before a call,
    /// as the room in a list, is set here. No pointer is left in the record, so records in two places can be compared.
    bool (*read)(const Text& text, void* record);
    /// Whether the record's texts are terminated within their fields, and its counts within their bounds.
    bool (*isValid)(const void* record);
    bool isAlone = false;  ///< Not to be called in two threads at once.
};

std::span<const Reader> readers();

}  // namespace kvjxml::tests

#endif
