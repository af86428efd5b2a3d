#include "field_at.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "secrets.h"

namespace kvj::tool {

std::vector<std::string> partsOf(std::string_view pointer) {
    std::vector<std::string> parts;
    for (nlohmann::json::json_pointer rest{std::string(pointer)}; !rest.empty(); rest.pop_back()) {
        parts.push_back(rest.back());
    }
    std::ranges::reverse(parts);
    return parts;
}

std::vector<FieldOfRecord> fieldsTo(const RecordType& type, std::string_view pointer) {
    std::vector<FieldOfRecord> fields;
    const RecordType* record = &type;
    bool isEntry = false;
    for (const std::string& part : partsOf(pointer)) {
        if (std::exchange(isEntry, false)) continue;
        if (record == nullptr) break;
        const auto field = std::ranges::find(record->fields, part, &Field::name);
        if (field == record->fields.end()) break;
        fields.push_back({record, &*field});
        isEntry = field->type == FieldType::list;
        record = isEntry ? field->entries->entry->record : field->record;
    }
    return fields;
}

bool isSecretAt(const RecordType& type, std::string_view pointer) {
    return std::ranges::any_of(fieldsTo(type, pointer),
                               [](const FieldOfRecord& at) { return isSecret(at.record->name, at.field->name); });
}

}  // namespace kvj::tool
