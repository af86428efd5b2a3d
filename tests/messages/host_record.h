/// @file host_record.h
/// The record of a message as a host could have left it: with a value in every field, and arrays for its lists.
#ifndef KVJXML_TESTS_MESSAGES_HOST_RECORD_H
#define KVJXML_TESTS_MESSAGES_HOST_RECORD_H

#include <memory>
#include <string>
#include <vector>

#include "messages/message.h"
#include "messages/zeroed_record.h"

namespace kvj::tests {

/// What flags and numbers are set to, so that a value that a reader stores differs from one of the two.
enum class Preset { low, high };

class HostRecord {
public:
    HostRecord(const Message& message, Preset preset);

    [[nodiscard]] void* get() const { return memory_.get(); }
    /// Reads a reply of ASCII. @return what the reader says
    bool read(const std::string& reply) const;
    /// How this record differs from what is expected, apart from how many entries the record's lists count; empty when
    /// it does not.
    [[nodiscard]] std::string differencesFrom(const HostRecord& expected) const;

private:
    void fill(const Field& field, void* record);
    void fill(const Entries& entries, void* record);

    const Message* message_;
    Preset preset_;
    int number_ = 0;  ///< of the fields that are filled
    ZeroedRecord<Message> memory_;
    std::vector<std::unique_ptr<std::byte[]>> arrays_;
};

}  // namespace kvj::tests

#endif
