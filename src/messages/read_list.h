/// @file messages/read_list.h
/// A list that grows as the library reads its entries.
#ifndef KVJXML_MESSAGES_READ_LIST_H
#define KVJXML_MESSAGES_READ_LIST_H

#include <kvjxml_v1.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "fields/field.h"

namespace kvj {

/// Is told where the entries of a list are.
class EntryWatch {
public:
    /// They are elsewhere now.
    virtual void move(std::uintptr_t from, std::size_t size, const void* to) = 0;
    /// What lay there are no entries any more.
    virtual void forget(const void* first, std::size_t size) = 0;

protected:
    ~EntryWatch() = default;
};

/// The entries of a list as they lie in memory, as many as the reply has.
class ReadList {
public:
    /// @param field  the list in the named operation's record.
    /// @param watch  null for nobody.
    explicit ReadList(const Field& field, EntryWatch* watch = nullptr)
        : field_(&field), name_(field.name), watch_(watch) {}

    [[nodiscard]] const Field& field() const { return *field_; }
    /// What an entry is, as a field at its own address.
    [[nodiscard]] const Field& entryField() const { return *field_->entries->entry; }
    [[nodiscard]] std::size_t count() const { return bytes_.size() / entryField().size; }
    [[nodiscard]] const void* entry(std::size_t index) const { return bytes_.data() + index * entryField().size; }
    [[nodiscard]] std::span<const std::byte> bytes() const { return bytes_; }

    /// As the library takes it; the list stays in its place until it is filled.
    [[nodiscard]] kvjxml_v1_list asTarget();

private:
    void* resize(std::size_t count) noexcept;

    const Field* field_;
    std::string name_;
    EntryWatch* watch_;
    std::vector<std::byte> bytes_{};
};

/// The lists of a record; that which a record is itself, and none for one that has none.
std::vector<const Field*> listsOf(const Field& record);

/// What the library takes for them.
std::vector<kvjxml_v1_list> asTargets(std::span<ReadList> lists);

}  // namespace kvj

#endif
