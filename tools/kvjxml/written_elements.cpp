#include "written_elements.h"

namespace kvj::tool {

std::vector<WrittenRow> writtenIn(Element parent, std::span<const DescribedRow> rows, const Asked& asked,
                                  const WrittenRow& around) {
    std::vector<WrittenRow> written;
    const auto children = parent.children();
    auto child = children.begin();
    for (const DescribedRow& row : rows) {
        const auto& field = row.description.field;
        const Needed* const needed = around.needed->of(field.name);
        if (needed == nullptr || (row.section & asked.choices.sections) != row.section) continue;
        const std::string pointer = field.empty() ? around.pointer : around.pointer + "/" + std::string(field.name);
        // Elements stand in the order of their rows: one of another name is a later row's.
        const bool isThere = child != children.end() && (*child).name() == row.name;
        written.push_back({&row, pointer, needed, isThere ? *child : Element()});
        if (isThere) ++child;
    }
    return written;
}

std::vector<WrittenRow> writtenInRoot(Element root, const Asked& asked) {
    if (asked.request.written == nullptr) return {};
    return writtenIn(root, asked.request.written(asked.choices).rows, asked, {nullptr, "", &asked.needed, root});
}

}  // namespace kvj::tool
