#include "messages/read_list.h"

#include <new>

namespace kvj {

kvjxml_v1_list ReadList::asTarget() {
    return {.name = name_.c_str(), .list = this, .resize = [](void* list, std::size_t count) {
                return static_cast<ReadList*>(list)->resize(count);
            }};
}

// What the library calls; it knows no exceptions.
void* ReadList::resize(std::size_t count) noexcept {
    const auto before = reinterpret_cast<std::uintptr_t>(bytes_.data());
    const std::size_t sizeBefore = bytes_.size();
    const std::size_t size = count * entryField().size;
    if (watch_ != nullptr && size < sizeBefore) watch_->forget(bytes_.data() + size, sizeBefore - size);
    try {
        bytes_.resize(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
    const bool isElsewhere = reinterpret_cast<std::uintptr_t>(bytes_.data()) != before;
    if (watch_ != nullptr && isElsewhere) watch_->move(before, sizeBefore, bytes_.data());
    return bytes_.data();
}

std::vector<const Field*> listsOf(const Field& record) {
    if (record.type == FieldType::list) return {&record};
    std::vector<const Field*> lists;
    if (record.record == nullptr) return lists;
    for (const Field& field : record.record->fields) {
        if (field.type == FieldType::list) lists.push_back(&field);
    }
    return lists;
}

std::vector<kvjxml_v1_list> asTargets(std::span<ReadList> lists) {
    std::vector<kvjxml_v1_list> targets;
    for (ReadList& list : lists) targets.push_back(list.asTarget());
    return targets;
}

}  // namespace kvj
