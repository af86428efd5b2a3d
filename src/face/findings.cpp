#include "face/findings.h"

#include <memory>
#include <utility>

/// What a host holds.
struct kvjxml_v1_findings : kvj::Findings {
    explicit kvjxml_v1_findings(kvj::Findings findings) noexcept : kvj::Findings(std::move(findings)) {}
};

namespace kvj {

kvjxml_v1_findings* handOver(Findings findings) {
    if (findings.all.empty()) return nullptr;
    return std::make_unique<kvjxml_v1_findings>(std::move(findings)).release();
}

}  // namespace kvj

size_t kvjxml_v1_findings_count(const kvjxml_v1_findings* findings) { return findings->all.size(); }

size_t kvjxml_v1_findings_omitted(const kvjxml_v1_findings* findings) { return findings->omitted; }

void kvjxml_v1_findings_at(const kvjxml_v1_findings* findings, size_t index, kvjxml_v1_finding* finding) {
    const kvjxml::finding& from = findings->all[index];
    *finding = {static_cast<int>(from.kind),
                static_cast<int>(from.level),
                from.line,
                from.column,
                from.offset,
                from.length,
                from.path.c_str(),
                from.field.c_str(),
                from.text.data(),
                from.text.size(),
                from.became.c_str(),
                from.detail.c_str()};
}

void kvjxml_v1_findings_release(kvjxml_v1_findings* findings) { std::default_delete<kvjxml_v1_findings>()(findings); }
