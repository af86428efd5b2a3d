/// @file message.h
/// The replies that the library reads, one row per reader: what is read, and how a host calls the operation.
#ifndef KVJXML_MESSAGES_MESSAGE_H
#define KVJXML_MESSAGES_MESSAGE_H

#include <cstddef>
#include <span>
#include <string_view>

#include "fields/field.h"
#include "foundation/element.h"
#include "foundation/rooms.h"
#include "foundation/rows.h"

namespace kvj {

/// A reply in both forms that readers take.
struct ReplyText {
    const char* narrow;   ///< `length` bytes and a NUL
    const wchar_t* wide;  ///< `length` characters; nothing behind them is read
    std::size_t length;
};

/// A list of a message whose entries a host has to provide room for. Their number is not bounded, so a tool may rather
/// read them one by one.
struct HostList {
    const Field* field;        ///< of the record
    std::string_view section;  ///< the element in the root that has the entries; empty for the root itself
    std::string_view entry;    ///< the element of an entry
    bool isOneEntry;           ///< whether all elements are read into the first entry
    /// Reads an element into an entry of the list.
    bool (*read)(Element element, void* entry);
};

struct Message {
    std::string_view name;                ///< by which hosts of kvjxml.hpp know it, "general_status"
    std::string_view root;                ///< the name of the element that the reader looks for
    std::string_view otherRoot;           ///< another that it takes; empty when there is none
    std::string_view operation;           ///< of the library
    std::span<const DescribedRow> table;  ///< what the operation reads
    Field record;                         ///< what it fills: a record, or a value that stands for itself
    std::span<const HostList> lists;
    bool takesWide;        ///< which of the two forms of a reply it takes
    bool saysWhetherRead;  ///< whether its result tells that it read something; some are always true
    bool isAlone;          ///< not to be called in two threads at once
    /// What a host does before a call to a record of zeros, and after it; null for nothing.
    void (*begin)(void* record);
    void (*end)(void* record);
    bool (*read)(const ReplyText& reply, void* record);
    /// Reads the message from its root, into the record of kvjxml.hpp: lists that grow, and nothing global.
    bool (*readRoot)(Element root, void* record, Rooms rooms);
};

std::span<const Message> messages();

}  // namespace kvj

#endif
