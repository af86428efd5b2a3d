/// @file reading.h
/// A message, read with all of its lists, and what was sent for each of its fields.
#ifndef KVJXML_TOOL_READING_H
#define KVJXML_TOOL_READING_H

#include <kvjxml_v1.h>

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>

#include "messages/message.h"
#include "sent.h"

namespace kvj::tool {

/// The entries of a list, of which there are as many as the reply has.
class GrowingList {
public:
    GrowingList(const Field& field, Sent& sent);

    [[nodiscard]] const Field& field() const { return *field_; }
    [[nodiscard]] const Field& entry() const { return *field_->entries->entry; }
    [[nodiscard]] std::size_t count() const { return count_; }
    [[nodiscard]] const void* at(std::size_t index) const { return entries_.get() + index * entry().size; }
    /// As the library takes it; the list outlives that, and stays where it is.
    [[nodiscard]] kvjxml_v1_list asTarget();

private:
    void* resize(std::size_t count);
    bool reserve(std::size_t count);

    struct Free {
        void operator()(std::byte* memory) const noexcept;
    };
    const Field* field_;
    std::string name_;
    Sent* sent_;
    std::unique_ptr<std::byte, Free> entries_;
    std::size_t count_ = 0;
    std::size_t capacity_ = 0;
};

class Reading {
public:
    /// Reads the message from a text in UTF-8; without the message everything is zero.
    /// @throws std::bad_alloc
    Reading(std::string_view text, const Message& message);

    [[nodiscard]] const void* record() const { return record_.get(); }
    /// The entries of a list of the record; null when they are in the record.
    [[nodiscard]] const GrowingList* list(const Field& field) const;
    [[nodiscard]] const Sent& sent() const { return sent_; }

private:
    Sent sent_;
    std::unique_ptr<std::byte[]> record_;
    std::deque<GrowingList> lists_;
};

}  // namespace kvj::tool

#endif
