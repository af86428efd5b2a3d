/// @file sent.h
/// What a reply said of each field of a record, beside what the field became.
#ifndef KVJXML_TOOL_SENT_H
#define KVJXML_TOOL_SENT_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "foundation/watch.h"
#include "messages/message.h"
#include "messages/read_list.h"

namespace kvj::tool {

/// A field that the reply carried.
struct SentValue {
    const Description* row = nullptr;  ///< by which it was read
    std::string text{};                ///< that of a word, and of a value that is not what was sent; else empty
    bool isChanged = false;            ///< whether the field's value is not what was sent
};

/// Told of each element while a message is read, it keeps what the fields were read from.
class Sent final : public Watch::Diagnosis, public EntryWatch {
public:
    /// @param record  that of the message, which outlives it as well.
    Sent(const Message& message, const void* record) : message_(&message), record_(record) {}

    /// Somebody else who is told of each element; null for nobody.
    void passOnTo(Watch::Diagnosis* next) { next_ = next; }

    void read(const Read& read) override;
    void skip(Element element) override {
        if (next_ != nullptr) next_->skip(element);
    }

    /// That of a field, by the address of the record that the field is in; null when the reply did not carry it.
    [[nodiscard]] const SentValue* find(const void* record, std::string_view field) const;

    /// Whether the reply carried any field that is stored there.
    [[nodiscard]] bool knows(const void* memory, std::size_t size) const;

    void move(std::uintptr_t from, std::size_t size, const void* to) override;
    void forget(const void* first, std::size_t size) override;

private:
    /// A record and the first of its fields have the same address.
    using Key = std::pair<std::uintptr_t, std::string_view>;

    static Key key(const void* record, std::string_view field) {
        return {reinterpret_cast<std::uintptr_t>(record), field};
    }
    void keep(const Read& read);
    void add(const void* record, std::string_view field, SentValue value);

    const Message* message_;
    const void* record_;
    Watch::Diagnosis* next_ = nullptr;
    std::map<Key, SentValue> values_;
};

}  // namespace kvj::tool

#endif
