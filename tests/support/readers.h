/// @file readers.h
/// Every reader of a whole reply, for tests that give the same text to all of them and decide where in memory text and
/// record lie.
#ifndef KVJXML_TESTS_SUPPORT_READERS_H
#define KVJXML_TESTS_SUPPORT_READERS_H

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "messages/message.h"

namespace kvj::tests {

using Text = ReplyText;

/// A message with all that its reader fills in one piece of memory: the record, and behind it the arrays of a host's.
/// No pointer is left in there, so records in two places can be compared.
class Reader {
public:
    explicit Reader(const Message& message);

    std::string_view name;   ///< of the operation
    const char* root;        ///< the name of the element that it looks for
    bool takesWide;          ///< which of the two forms of a reply it takes
    bool isAlone;            ///< not to be called in two threads at once
    std::size_t recordSize;  ///< of all that it fills

    /// Reads the text into a record: `recordSize` zero bytes, aligned for any type. What the host sets before a call,
    /// as the room in a list, is set here.
    bool read(const Text& text, void* record) const;
    /// Whether the record's texts are terminated within their fields, its counts within their bounds, and nothing was
    /// written behind the arrays.
    [[nodiscard]] bool isValid(const void* record) const;

private:
    /// An array of a host's for a list, or where the first entries of a catalogue's list are copied to. A host's array
    /// of exactly so many entries as the list needs ends in front of an entry that stays zero.
    struct Room {
        const Field* list;
        std::size_t offset;
        std::size_t entries;
    };
    bool readIntoArrays(const Text& text, void* record) const;
    bool readCatalogue(const Text& text, void* record) const;

    const Message* message_;
    bool ownsLists_ = false;  ///< the record's lists are on the heap
    std::vector<Room> rooms_;
};

std::span<const Reader> readers();

}  // namespace kvj::tests

#endif
