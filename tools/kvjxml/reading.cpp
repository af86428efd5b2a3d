#include "reading.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "foundation/document.h"
#include "foundation/element.h"
#include "foundation/rooms.h"
#include "foundation/watch.h"

namespace kvj::tool {

void GrowingList::Free::operator()(std::byte* memory) const noexcept { std::free(memory); }

GrowingList::GrowingList(const Field& field, Sent& sent) : field_(&field), name_(field.name), sent_(&sent) {}

kvjxml_v1_list GrowingList::asTarget() {
    return {name_.c_str(), this,
            [](void* list, std::size_t count) { return static_cast<GrowingList*>(list)->resize(count); }};
}

void* GrowingList::resize(std::size_t count) {
    const std::size_t size = entry().size;
    if (count > capacity_ && !reserve(std::max(count, 2 * capacity_))) return nullptr;
    if (count < count_) {
        std::byte* const first = entries_.get() + count * size;
        sent_->forget(first, (count_ - count) * size);
        std::memset(first, 0, (count_ - count) * size);
    }
    count_ = count;
    return entries_.get();
}

/// Memory that nobody writes to is not there yet: a reply can have a million entries with nothing in them.
bool GrowingList::reserve(std::size_t count) {
    const std::size_t size = entry().size;
    std::unique_ptr<std::byte, Free> larger(static_cast<std::byte*>(std::calloc(count, size)));
    if (larger == nullptr) return false;
    if (count_ > 0) {
        std::memcpy(larger.get(), entries_.get(), count_ * size);
        sent_->move(entries_.get(), count_ * size, larger.get());
    }
    entries_ = std::move(larger);
    capacity_ = count;
    return true;
}

namespace {

/// What a document is made of: nothing behind a NUL is read.
Text copyOf(std::string_view text) {
    text = text.substr(0, text.find('\0'));
    Text copy(text.size());
    std::ranges::copy(text, copy.bytes());
    return copy;
}

}  // namespace

Reading::Reading(std::string_view text, const Message& message)
    : record_(std::make_unique<std::byte[]>(message.record.size)) {
    if (message.record.type == FieldType::list) {
        lists_.emplace_back(message.record, sent_);
    } else if (message.record.type == FieldType::record) {
        for (const Field& field : message.record.record->fields) {
            if (field.type == FieldType::list) lists_.emplace_back(field, sent_);
        }
    }
    Document document(copyOf(text), Manner::ofUtf8);
    const Element root = document.root(message.root.data(), message.otherRoot.data());
    if (!root) return;
    std::vector<kvjxml_v1_list> targets;
    for (GrowingList& list : lists_) targets.push_back(list.asTarget());
    std::vector<Room> rooms(targets.begin(), targets.end());
    std::vector<unsigned char> carried(message.record.size / 8 + 1);
    Watch watch(record_.get(), message.record.size, carried.data(), &sent_);
    document.watchWith(&watch);
    message.readRoot(root, record_.get(), rooms);
}

const GrowingList* Reading::list(const Field& field) const {
    const auto found = std::ranges::find_if(lists_, [&](const GrowingList& list) { return &list.field() == &field; });
    return found == lists_.end() ? nullptr : &*found;
}

}  // namespace kvj::tool
