#include "needed.h"

#include <span>

#include "foundation/compose.h"

namespace kvj::tool {

namespace {

/// Whether a row is left out by what is chosen. What depends on the record is needed to know whether it is written.
bool isLeftOut(const DescribedRow& row, const Choices& choices) {
    if (row.section != 0 && (row.section & choices.sections) == 0) return true;
    return row.condition == (choices.withoutTransfer ? withTransfer.description : directToCard.description);
}

// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void addRows(Needed& needed, std::span<const DescribedRow> rows, const Choices& choices) {
    for (const DescribedRow& row : rows) {
        if (isLeftOut(row, choices)) continue;
        const Description& description = row.description;
        Needed& target = description.field.empty() ? needed : needed.fields[description.field.name];
        // What is inside a value by itself, such as the range of a setting, belongs to it.
        if (description.group.empty() && !description.field.empty()) target.all = true;
        addRows(target, description.group, choices);
        if (!description.otherField.empty()) needed.fields[description.otherField.name].all = true;
    }
}

/// Of arguments all but the texts that may be null.
Needed argumentsOf(const Request& request) {
    Needed needed;
    for (const Field& field : request.record->fields) {
        const bool isOptional = field.type == FieldType::text ||
                                (field.type == FieldType::hostText && field.hostText == HostText::optional);
        if (!isOptional) needed.fields[field.name].all = true;
    }
    return needed;
}

}  // namespace

const Needed* Needed::of(std::string_view field) const {
    static const Needed everything{.all = true, .fields = {}};
    if (all) return &everything;
    if (field.empty()) return this;
    const auto found = fields.find(field);
    return found == fields.end() ? nullptr : &found->second;
}

Needed neededFor(const Request& request, const Choices& choices) {
    if (request.written == nullptr) return argumentsOf(request);
    const WrittenFields written = request.written(choices);
    Needed needed;
    addRows(needed, written.rows, choices);
    if (!written.alone.empty()) needed.fields[written.alone].all = true;
    needed.fields.erase(written.without);
    return needed;
}

}  // namespace kvj::tool
