#include "reading.h"

#include <kvjxml_v1.h>

#include <algorithm>
#include <array>
#include <memory>
#include <new>

namespace kvj::tool {

namespace {

std::vector<ReadList> listsOf(const Field& record) {
    std::vector<ReadList> lists;
    if (record.type == FieldType::list) lists.push_back({&record, {}});
    if (record.record == nullptr) return lists;
    for (const Field& field : record.record->fields) {
        if (field.type == FieldType::list) lists.push_back({&field, {}});
    }
    return lists;
}

/// What the library calls; it knows no exceptions.
void* resize(void* list, std::size_t count) noexcept {
    auto& to = *static_cast<ReadList*>(list);
    try {
        to.bytes.resize(count * to.entrySize());
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
    return to.bytes.data();
}

struct Release {
    void operator()(kvjxml_v1_findings* findings) const noexcept { kvjxml_v1_findings_release(findings); }
};

std::vector<kvjxml::finding> copyOf(const kvjxml_v1_findings& findings) {
    std::vector<kvjxml::finding> all(kvjxml_v1_findings_count(&findings));
    for (std::size_t i = 0; i < all.size(); ++i) {
        kvjxml_v1_finding one{};
        kvjxml_v1_findings_at(&findings, i, &one);
        all[i] = {.kind = static_cast<kvjxml::finding_kind>(one.kind),
                  .level = static_cast<kvjxml::severity>(one.severity),
                  .line = one.line,
                  .column = one.column,
                  .offset = one.offset,
                  .length = one.length,
                  .path = one.path,
                  .field = one.field,
                  .text = {one.text, one.text_length},
                  .became = one.became,
                  .detail = one.detail};
    }
    return all;
}

}  // namespace

bool Reading::has(std::size_t first, std::size_t size) const {
    for (std::size_t at = first; at < first + size; ++at) {
        if ((carried[at / 8] >> at % 8 & 1U) != 0) return true;
    }
    return false;
}

const ReadList* Reading::list(const Field& field) const {
    const auto found = std::ranges::find(lists, &field, &ReadList::field);
    return found == lists.end() ? nullptr : &*found;
}

Reading readMessage(const Message& message, std::string_view reply, Diagnosing diagnosing) {
    Reading reading{};
    reading.message = &message;
    reading.record.resize(message.record.size);
    reading.carried.resize((message.record.size + 7) / 8);
    reading.lists = listsOf(message.record);
    std::vector<std::string> names;
    for (const ReadList& list : reading.lists) names.emplace_back(list.field->name);
    std::vector<kvjxml_v1_list> lists;
    for (std::size_t i = 0; i < names.size(); ++i) {
        lists.push_back({.name = names[i].c_str(), .list = &reading.lists[i], .resize = resize});
    }
    std::array<char, 64> root{};
    const kvjxml_v1_target target{.record = reading.record.data(),
                                  .size = reading.record.size(),
                                  .carried = reading.carried.data(),
                                  .lists = lists.data(),
                                  .lists_count = lists.size(),
                                  .root = root.data(),
                                  .root_size = root.size()};
    // The place of a message in the table is its number for hosts.
    const auto number = static_cast<int>(&message - messages().data());
    kvjxml_v1_findings* told = nullptr;
    const int result =
        kvjxml_v1_read(number, reply.data(), reply.size(), &target, diagnosing == Diagnosing::yes ? &told : nullptr);
    const std::unique_ptr<kvjxml_v1_findings, Release> findings(told);
    if ((result & kvjxml_v1_no_memory) != 0) throw std::bad_alloc();
    reading.isFound = (result & kvjxml_v1_found) != 0;
    reading.isWhole = (result & kvjxml_v1_whole) != 0;
    reading.isTooLarge = (result & kvjxml_v1_too_large) != 0;
    if (!reading.isFound) reading.root = root.data();
    if (findings != nullptr) {
        reading.findings = copyOf(*findings);
        reading.omitted = kvjxml_v1_findings_omitted(findings.get());
    }
    return reading;
}

}  // namespace kvj::tool
