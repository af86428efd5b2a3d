#include "schema.h"

#include <algorithm>
#include <cstdint>
#include <iostream>
#include <limits>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "code_words.h"
#include "field_comments.h"
#include "merged_rows.h"

namespace kvj::tool {

namespace {

using Json = nlohmann::ordered_json;

// ---- The rows of a record ----

using Rows = std::vector<const Description*>;

/// The rows of a table that read into the record itself, those of its groups as well.
// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void addRows(std::span<const DescribedRow> table, Rows& rows) {
    for (const auto& [name, row, condition, section] : table) {
        rows.push_back(&row);
        if (row.kind == Kind::group || row.kind == Kind::wordOfPanels) addRows(row.group, rows);
    }
}

/// Whether a row reads a field. Rows of entries that name none fill the only list of their record.
bool reads(const Description& row, const Field& field) {
    if (row.field.empty()) return field.type == FieldType::list && row.kind == Kind::entry;
    return row.field.name == field.name || row.otherField.name == field.name;
}

Rows rowsOf(const Field& field, const Rows& rows) {
    Rows found;
    std::ranges::copy_if(rows, std::back_inserter(found), [&](const Description* row) { return reads(*row, field); });
    return found;
}

/// The rows inside those of a record that is a field.
Rows rowsInside(const Rows& around) {
    Rows rows;
    for (const Description* const row : around) addRows(row->group, rows);
    return rows;
}

/// The rows of a list's entries. Rows of a list have rows of entries in them, or rows that read an entry's text.
Rows rowsOfEntries(const Rows& ofList) {
    Rows rows;
    for (const Description* const row : ofList) {
        if (row->kind != Kind::list) {
            addRows(row->group, rows);
            continue;
        }
        for (const DescribedRow& entry : row->group) {
            entry.description.group.empty() ? rows.push_back(&entry.description)
                                            : addRows(entry.description.group, rows);
        }
    }
    return rows;
}

// ---- Numbers ----

/// The codes of a field, with what they stand for. 0 is what a field has that is not in the reply.
Json codes(const std::vector<CodeTable>& tables) {
    std::set<int> all{0};
    for (const CodeTable& table : tables) {
        for (const Word& row : table.rows().rows) all.insert(row.code);
        if (const auto& other = table.rows().other) all.insert(*other);
    }
    Json list = Json::array();
    for (const int code : all) {
        std::set<std::string> meanings;
        for (const CodeTable& table : tables) {
            const std::string words = wordsOf(table, code);
            if (!words.empty()) meanings.insert(words);
            if (table.rows().other == code) meanings.insert("any other word");
        }
        if (code == 0) meanings.insert("not in the reply");
        std::string text;
        for (const std::string& meaning : meanings) text.append(text.empty() ? "" : ", or ").append(meaning);
        list.push_back({{"const", code}, {"description", text}});
    }
    return {{"type", "integer"}, {"oneOf", list}};
}

/// What is stored of a number.
struct Width {
    int bits;
    bool isSigned;
};

Json range(const Width& width) {
    Json schema{{"type", "integer"}};
    if (width.isSigned) {
        const std::int64_t most = std::numeric_limits<std::int64_t>::max() >> (64 - width.bits);
        schema["minimum"] = -most - 1;
        schema["maximum"] = most;
    } else {
        schema["minimum"] = 0;
        schema["maximum"] = std::numeric_limits<std::uint64_t>::max() >> (64 - width.bits);
    }
    return schema;
}

/// Whether a row has a code for the field, and not a number.
std::optional<CodeTable> tableFor(const Description& row, const Field& field) {
    const bool isText = row.kind == Kind::textAndCode && row.field.name == field.name;
    return isText ? std::nullopt : codeTable(row);
}

Json number(const Field& field, const Rows& rows) {
    Width width{static_cast<int>(8 * field.size), field.isSigned};
    std::vector<CodeTable> tables;
    bool isCode = !rows.empty();
    bool isNarrow = !rows.empty();
    int most = 0;
    for (const Description* const row : rows) {
        const auto table = tableFor(*row, field);
        isCode = isCode && table && !table->isOfBits;
        if (table) tables.push_back(*table);
        const int bits = row->number.digits > 0 ? 4 * row->number.digits : row->number.bits;
        isNarrow = isNarrow && row->kind == Kind::number && !row->number.isSigned && bits < width.bits;
        most = std::max(most, bits);
    }
    if (isCode) return codes(tables);
    return range(isNarrow ? Width{most, false} : width);
}

// ---- Values ----

// Records nest as deep as they are declared, so the recursion ends.
// NOLINTBEGIN(misc-no-recursion)

Json value(const Field& field, const Rows& rows);

Json object(const RecordType& record, const Rows& rows) {
    Json properties = Json::object();
    Json required = Json::array();
    for (const Field& field : record.fields) {
        if (field.type == FieldType::list && field.entries->showsCount) {
            const Field& counter = *field.entries->counter;
            properties[std::string(counter.name)] = {
                {"description", "how many entries the list has"}, {"type", "integer"}, {"minimum", 0}};
            required.push_back(counter.name);
        }
        Json schema = Json::object();
        const std::string_view comment = commentOf(record.name, field.name);
        if (!comment.empty()) schema["description"] = comment;
        schema.update(value(field, rowsOf(field, rows)));
        properties[std::string(field.name)] = schema;
        required.push_back(field.name);
    }
    return {{"type", "object"}, {"properties", properties}, {"required", required}, {"additionalProperties", false}};
}

Json value(const Field& field, const Rows& rows) {
    switch (field.type) {
        case FieldType::flag:
        case FieldType::bit:
            return {{"type", "boolean"}};
        case FieldType::number:
            return number(field, rows);
        case FieldType::decimal:
            return {{"type", {"number", "null"}}};
        case FieldType::text:
            return {{"type", "string"}, {"maxLength", field.size - 1}};
        case FieldType::hardwareAddress:
            return {{"type", "string"}, {"pattern", "^[0-9a-f]{2}(:[0-9a-f]{2}){5}$"}};
        case FieldType::ipAddress:
            return {{"type", "string"}, {"format", "ipv4"}};
        case FieldType::hostText:
            return {{"type", {"string", "null"}}};
        case FieldType::record:
            return object(*field.record, rowsInside(rows));
        case FieldType::list: {
            const Field& entry = *field.entries->entry;
            const Rows entries = rowsOfEntries(rows);
            const bool isRecord = entry.type == FieldType::record;
            return {{"type", "array"}, {"items", isRecord ? object(*entry.record, entries) : value(entry, entries)}};
        }
    }
    return {};
}

// NOLINTEND(misc-no-recursion)

Json schemaOf(const Message& message) {
    Rows rows;
    addRows(message.table, rows);
    const Field& field = message.record;
    Json schema{{"title", message.operation}};
    if (field.record != nullptr) {
        schema["description"] = commentOf(field.record->name);
        schema.update(object(*field.record, rows));
    } else if (field.name.empty()) {
        schema.update(value(field, rows));
    } else {
        schema.update({{"type", "object"},
                       {"properties", {{std::string(field.name), value(field, rows)}}},
                       {"required", {field.name}},
                       {"additionalProperties", false}});
    }
    return schema;
}

/// Several readers may each take a part of one document: decode prints them side by side.
Json schemaOfRoot(std::string_view root) {
    const auto readers = messagesWithRoot(root);
    if (readers.size() == 1) return schemaOf(*readers.front());
    Json properties = Json::object();
    Json required = Json::array();
    for (const Message* const message : readers) {
        properties[std::string(message->operation)] = schemaOf(*message);
        required.push_back(message->operation);
    }
    return {{"type", "object"}, {"properties", properties}, {"required", required}, {"additionalProperties", false}};
}

/// What is printed of a damaged reply says so: in the object, or around what is none.
Json orDamaged(Json schema) {
    const Json damaged{{"description", "the reply is cut or broken, and this is what could be read"}, {"const", true}};
    if (schema["type"] == "object") {
        schema["properties"]["damaged"] = damaged;
        return schema;
    }
    const Json around{{"type", "object"},
                      {"properties", {{"damaged", damaged}, {"value", schema}}},
                      {"required", {"damaged", "value"}},
                      {"additionalProperties", false}};
    return {{"anyOf", {std::move(schema), around}}};
}

}  // namespace

Json schemaOf(std::string_view root) {
    Json schema{{"$schema", "https://json-schema.org/draft/2020-12/schema"}};
    if (!root.empty()) {
        schema.update(orDamaged(schemaOfRoot(root)));
        return schema;
    }
    Json any = Json::array();
    Json all = Json::object();
    for (const Message& message : messages()) {
        const std::string name(message.root);
        if (all.contains(name)) continue;
        all[name] = orDamaged(schemaOfRoot(name));
        any.push_back({{"$ref", "#/$defs/" + name}});
    }
    schema["anyOf"] = any;
    schema["$defs"] = all;
    return schema;
}

ExitCode printSchema(std::string_view root) {
    constexpr int indent = 4;
    std::cout << schemaOf(root).dump(indent) << '\n';
    return ExitCode::done;
}

}  // namespace kvj::tool
