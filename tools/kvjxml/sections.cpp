#include "sections.h"

#include <algorithm>
#include <iomanip>
#include <iostream>

namespace kvj::tool {

namespace {

std::string contentOf(const DescribedRow& row) {
    std::string text(row.name);
    if (row.description.group.empty()) return text;
    text += " (";
    for (const auto& part : row.description.group) {
        text.append(&part == row.description.group.data() ? "" : ", ").append(part.name);
    }
    return text + ")";
}

}  // namespace

std::vector<NamedSection> sectionsOf(std::span<const DescribedRow> rows) {
    std::vector<NamedSection> sections;
    for (const auto& row : rows) {
        const auto sameBit = std::ranges::find(sections, row.section, &NamedSection::bit);
        if (sameBit != sections.end()) {
            sameBit->content.append(", ").append(contentOf(row));
            continue;
        }
        const bool taken = std::ranges::find(sections, row.name, &NamedSection::name) != sections.end();
        sections.push_back({std::string(taken ? row.description.field.name : row.name), row.section, contentOf(row)});
    }
    return sections;
}

ExitCode listSections(std::span<const DescribedRow> rows) {
    for (const auto& section : sectionsOf(rows)) {
        std::cout << std::left << std::setw(24) << section.name << " 0x" << std::setw(7) << std::hex << section.bit
                  << section.content << '\n';
    }
    return ExitCode::done;
}

}  // namespace kvj::tool
