/// @file messages/request.h
/// The requests that the library composes, one row per composer: what they are made of, and how a host calls the
/// operation.
#ifndef KVJXML_MESSAGES_REQUEST_H
#define KVJXML_MESSAGES_REQUEST_H

#include <span>
#include <string_view>

#include "fields/field.h"
#include "foundation/rows.h"
#include "foundation/tags.h"

namespace kvj {

/// What a host says besides the record.
struct Choices {
    long sections = 0;             ///< their bits
    int card = 0;                  ///< of the configuration: one custom card alone
    int mode = 0;                  ///< of the capabilities: what of them, see CapabilitiesMode
    bool withoutTransfer = false;  ///< the printer prints on the card itself
    bool allCards = false;         ///< of the media catalogue: not those of the types 0 and 1 alone
    bool full = false;             ///< of the printer's identity: all of it, not single sections
};

/// The modes of the capabilities' composer.
enum CapabilitiesMode : int { allCapabilities, magEncoderAlone, encoderAlone };

/// What a request writes of its record.
struct WrittenFields {
    std::span<const DescribedRow> rows{};  ///< the fields of these, of sections only those that are chosen
    std::string_view alone{};              ///< or this field
    std::string_view without{};            ///< but not this one
};

/// Where a host wants its text. A composer takes one of the two forms.
struct RequestBuffer {
    char* narrow;  ///< **Whatever the capacity**, it has to hold the whole text: see KVJDeviceControl.
    wchar_t* wide;
    int capacity;  ///< in characters; a longer wide text is cut, without a terminator
};

struct Request {
    std::string_view name;
    std::string_view operation;           ///< of the library
    const RecordType* record;             ///< what it is made of
    std::span<const DescribedRow> table;  ///< what is written; empty where the record is the operation's arguments
    bool isWide;                          ///< which of the two forms its text has
    const char* copy;                     ///< the file that it leaves for the service engineer; null for none
    /// What is written for these choices; null where the record is the operation's arguments.
    WrittenFields (*written)(const Choices& choices);
    /// What a host does with a record of zeros before it fills it, and after composing; null for nothing.
    void (*begin)(void* record);
    void (*end)(void* record);
    /// Has the named operation compose it.
    bool (*compose)(const void* record, const Choices& choices, const RequestBuffer& out);
    const char* root;  ///< the name of its root
    /// Fills the root; false when there is nothing to send. The record is the same, but for the media catalogue, of
    /// which it is `media::Cards`.
    bool (*write)(Parent root, const void* record, const Choices& choices);

    /// Whether a host chooses what is written by bits.
    [[nodiscard]] bool hasSections() const { return !table.empty() && table.front().section != 0; }
};

std::span<const Request> requests();

}  // namespace kvj

#endif
