#include "support/readings.h"

#include <algorithm>

namespace kvj::tests {

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
