/// @file messages/any_reading.h
/// A reply as hosts of kvjxml.hpp read it, of any message: what its templates do for one, by what is known of each at
/// run time.
#ifndef KVJXML_MESSAGES_ANY_READING_H
#define KVJXML_MESSAGES_ANY_READING_H

#include <cstddef>
#include <kvjxml_read.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "messages/message.h"
#include "messages/read_list.h"

namespace kvj {

struct AnyReading {
    const Message* message = nullptr;
    bool found = false;     ///< whether the message is in the reply
    bool whole = false;     ///< whether the reply is whole, as kvjxml.hpp says
    bool tooLarge = false;  ///< whether it is so large that nothing was read
    std::string root{};     ///< where the message was not found, the name of the first element, cut to 63 bytes
    /// Of the size of the named operation's record; what is in a list is in `lists`.
    std::vector<std::byte> record{};
    std::vector<unsigned char> carried{};  ///< a bit for each byte of the record
    std::vector<ReadList> lists{};
    std::vector<kvjxml::finding> findings{};  ///< in the order of the reply
    std::size_t omitted = 0;                  ///< how many findings there were beyond those

    /// Whether the reply had something for what lies in these bytes of the record.
    [[nodiscard]] bool has(std::size_t first, std::size_t size = 1) const;
    /// The entries of a list; null when it is none of the message.
    [[nodiscard]] const ReadList* list(const Field& field) const;
};

/// Reads a message from a reply, with the library as any host; with `kvjxml::diagnose`, also what was ignored, changed
/// or lost.
/// @throws std::bad_alloc
AnyReading readAny(const Message& message, std::string_view reply);
AnyReading readAny(const Message& message, std::string_view reply, kvjxml::diagnose_t diagnose);

}  // namespace kvj

#endif
