/// @file reading.h
/// A reply as hosts of kvjxml.hpp read it, of any message: what its templates do for one, by what is known of each at
/// run time.
#ifndef KVJXML_TOOL_READING_H
#define KVJXML_TOOL_READING_H

#include <cstddef>
#include <kvjxml_read.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "fields/field.h"
#include "messages/message.h"

namespace kvj::tool {

/// A list of a message, its entries as they lie in memory.
struct ReadList {
    const Field* field;  ///< that of the named operation's record
    std::vector<std::byte> bytes;

    [[nodiscard]] std::size_t entrySize() const { return field->entries->entry->size; }
    [[nodiscard]] std::size_t count() const { return bytes.size() / entrySize(); }
    [[nodiscard]] const void* entry(std::size_t index) const { return bytes.data() + index * entrySize(); }
};

struct Reading {
    const Message* message;
    bool isFound;      ///< whether the message is in the reply
    bool isWhole;      ///< whether the reply is whole, as kvjxml.hpp says
    bool isTooLarge;   ///< whether it is so large that nothing was read
    std::string root;  ///< where the message was not found, the name of the first element, cut to 63 bytes
    /// Of the size of the named operation's record; what is in a list is in `lists`.
    std::vector<std::byte> record;
    std::vector<unsigned char> carried;  ///< a bit for each byte of the record
    std::vector<ReadList> lists;
    std::vector<kvjxml::finding> findings;  ///< in the order of the reply
    std::size_t omitted;                    ///< how many findings there were beyond those

    /// Whether the reply had something for what lies in these bytes of the record.
    [[nodiscard]] bool has(std::size_t first, std::size_t size) const;
    /// The entries of a list; null when it is none of the message.
    [[nodiscard]] const ReadList* list(const Field& field) const;
};

/// Whether a reading says what was ignored, changed or lost.
enum class Diagnosing : bool { no, yes };

/// Reads a message from a reply, with the library as any host.
/// @throws std::bad_alloc
Reading readMessage(const Message& message, std::string_view reply, Diagnosing diagnosing = Diagnosing::no);

}  // namespace kvj::tool

#endif
