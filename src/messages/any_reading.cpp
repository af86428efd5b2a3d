#include "messages/any_reading.h"

#include <kvjxml_v1.h>

#include <algorithm>
#include <array>
#include <memory>
#include <new>

namespace kvj {

namespace {

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

AnyReading read(const Message& message, std::string_view reply, bool diagnoses) {
    AnyReading reading;
    reading.message = &message;
    reading.record.resize(message.record.size);
    reading.carried.resize((message.record.size + 7) / 8);
    for (const Field* const list : listsOf(message.record)) reading.lists.emplace_back(*list);
    const std::vector<kvjxml_v1_list> lists = asTargets(reading.lists);
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
    const int result = kvjxml_v1_read(number, reply.data(), reply.size(), &target, diagnoses ? &told : nullptr);
    const std::unique_ptr<kvjxml_v1_findings, Release> findings(told);
    if ((result & kvjxml_v1_no_memory) != 0) throw std::bad_alloc();
    reading.found = (result & kvjxml_v1_found) != 0;
    reading.whole = (result & kvjxml_v1_whole) != 0;
    reading.tooLarge = (result & kvjxml_v1_too_large) != 0;
    reading.root = root.data();
    if (findings != nullptr) {
        reading.findings = copyOf(*findings);
        reading.omitted = kvjxml_v1_findings_omitted(findings.get());
    }
    return reading;
}

}  // namespace

bool AnyReading::has(std::size_t first, std::size_t size) const {
    for (std::size_t at = first; at < first + size; ++at) {
        if ((carried[at / 8] >> at % 8 & 1U) != 0) return true;
    }
    return false;
}

const ReadList* AnyReading::list(const Field& field) const {
    const auto known = std::ranges::find(lists, &field, [](const ReadList& list) { return &list.field(); });
    return known == lists.end() ? nullptr : &*known;
}

AnyReading readAny(const Message& message, std::string_view reply) { return read(message, reply, false); }
AnyReading readAny(const Message& message, std::string_view reply, kvjxml::diagnose_t /*diagnose*/) {
    return read(message, reply, true);
}

}  // namespace kvj
