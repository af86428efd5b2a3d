#include "support/readings.h"

#include <algorithm>
#include <array>
#include <memory>
#include <new>

namespace kvj::tests {

namespace {

void* resize(void* list, std::size_t count) {
    auto& to = *static_cast<ReadList*>(list);
    try {
        to.bytes.resize(count * to.entrySize());
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
    return to.bytes.data();
}

struct Release {
    void operator()(kvjxml_v1_findings* findings) const { kvjxml_v1_findings_release(findings); }
};

std::vector<kvjxml::finding> copyOf(const kvjxml_v1_findings& findings) {
    std::vector<kvjxml::finding> all(kvjxml_v1_findings_count(&findings));
    for (std::size_t i = 0; i < all.size(); ++i) {
        kvjxml_v1_finding one{};
        kvjxml_v1_findings_at(&findings, i, &one);
        all[i] = {static_cast<kvjxml::finding_kind>(one.kind),
                  static_cast<kvjxml::severity>(one.severity),
                  one.line,
                  one.column,
                  one.offset,
                  one.length,
                  one.path,
                  one.field,
                  {one.text, one.text_length},
                  one.became,
                  one.detail};
    }
    return all;
}

AnyReading read(const Message& message, std::string_view bytes, bool diagnoses) {
    AnyReading reading;
    reading.record.resize(message.record.size);
    reading.carried.resize((message.record.size + 7) / 8);
    for (const Field* const list : listsOf(message)) reading.lists.push_back({list, {}});
    std::vector<std::string> names;
    for (const ReadList& list : reading.lists) names.emplace_back(list.field->name);
    std::vector<kvjxml_v1_list> lists;
    for (std::size_t i = 0; i < names.size(); ++i) {
        lists.push_back({names[i].c_str(), &reading.lists[i], resize});
    }
    std::array<char, 64> root{};
    const kvjxml_v1_target target{reading.record.data(),
                                  reading.record.size(),
                                  reading.carried.data(),
                                  lists.data(),
                                  lists.size(),
                                  root.data(),
                                  root.size()};
    const auto number = static_cast<int>(&message - messages().data());
    kvjxml_v1_findings* found = nullptr;
    const int result = kvjxml_v1_read(number, bytes.data(), bytes.size(), &target, diagnoses ? &found : nullptr);
    const std::unique_ptr<kvjxml_v1_findings, Release> findings(found);
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

std::vector<const Field*> listsOf(const Message& message) {
    if (message.record.type == FieldType::list) return {&message.record};
    std::vector<const Field*> lists;
    if (message.record.record == nullptr) return lists;
    for (const Field& field : message.record.record->fields) {
        if (field.type == FieldType::list) lists.push_back(&field);
    }
    return lists;
}

AnyReading readAny(const Message& message, std::string_view bytes) { return read(message, bytes, false); }
AnyReading readAny(const Message& message, std::string_view bytes, kvjxml::diagnose_t /*diagnose*/) {
    return read(message, bytes, true);
}

const Message& messageOf(std::string_view name) { return *std::ranges::find(messages(), name, &Message::name); }

std::string toldOf(const kvjxml::finding& finding) {
    std::string text(to_string(finding.level));
    text.append(" ").append(to_string(finding.kind));
    text += " " + std::to_string(finding.line) + ":" + std::to_string(finding.column) + " " + finding.path;
    if (!finding.field.empty()) text += " " + finding.field;
    if (!finding.text.empty()) text += " \"" + finding.text + "\"";
    if (!finding.became.empty()) text += " -> \"" + finding.became + "\"";
    if (!finding.detail.empty()) text += " (" + finding.detail + ")";
    return text;
}

std::vector<std::string> toldOf(const std::vector<kvjxml::finding>& findings) {
    std::vector<std::string> all;
    for (const auto& finding : findings) all.push_back(toldOf(finding));
    return all;
}

}  // namespace kvj::tests
