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
#include "field_rows.h"
#include "merged_rows.h"

namespace kvj::tool {

namespace {

using Json = nlohmann::ordered_json;

// ---- The rows of a record ----

using Descriptions = std::vector<const Description*>;

/// The rows of a table that read into the record itself, those of its groups as well.
// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void addRows(std::span<const DescribedRow> table, Descriptions& rows) {
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

Descriptions rowsOf(const Field& field, const Descriptions& rows) {
    Descriptions found;
    std::ranges::copy_if(rows, std::back_inserter(found), [&](const Description* row) { return reads(*row, field); });
    return found;
}

/// The rows inside those of a record that is a field.
Descriptions rowsInside(const Descriptions& around) {
    Descriptions rows;
    for (const Description* const row : around) addRows(row->group, rows);
    return rows;
}

/// The rows of a list's entries. Rows of a list have rows of entries in them, or rows that read an entry's text.
Descriptions rowsOfEntries(const Descriptions& ofList) {
    Descriptions rows;
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

Json number(const Field& field, const Descriptions& rows) {
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

Json value(const RecordType* around, const Field& field, const Descriptions& rows, const SchemaForm& form);

Json object(const RecordType& record, const Descriptions& rows, const SchemaForm& form) {
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
        schema.update(value(&record, field, rowsOf(field, rows), form));
        properties[std::string(field.name)] = schema;
        required.push_back(field.name);
    }
    return {{"type", "object"}, {"properties", properties}, {"required", required}, {"additionalProperties", false}};
}

/// Of a value beside which something may stand.
Json objectOf(std::string_view name, const Json& plain, const Json& more, const Json& required) {
    Json properties{{std::string(name), plain}};
    properties.update(more);
    return {{"type", "object"}, {"properties", properties}, {"required", required}, {"additionalProperties", false}};
}

/// A value with its words, and with what was sent in its place.
Json withWords(const Json& plain, bool isCode) {
    const Json text{{"type", "string"}};
    Json more{{"sent", {{"description", "what the printer sent, where it is not what was read"}, {"type", "string"}}}};
    if (!isCode) return {{"anyOf", {plain, objectOf("value", plain, more, {"value", "sent"})}}};
    more["word"] = {{"description", "the word that the printer sent for the code"}, {"type", "string"}};
    more["words"] = {{"description", "a word for each bit of the code"}, {"type", "array"}, {"items", text}};
    return objectOf("code", plain, more, {"code"});
}

bool readsWord(const Description* row) { return !row->words.name.empty(); }

Json plainValue(const Field& field, const Descriptions& rows) {
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
        case FieldType::list:
            break;
    }
    return {};
}

Json value(const RecordType* around, const Field& field, const Descriptions& rows, const SchemaForm& form) {
    if (field.type == FieldType::record) return object(*field.record, rowsInside(rows), form);
    if (field.type == FieldType::list) {
        const Field& entry = *field.entries->entry;
        const Descriptions entries = rowsOfEntries(rows);
        const bool isRecord = entry.type == FieldType::record;
        return {{"type", "array"},
                {"items", isRecord ? object(*entry.record, entries, form) : value(nullptr, entry, entries, form)}};
    }
    Json plain = plainValue(field, rows);
    if (!form.words) return plain;
    const bool isNumber = field.type == FieldType::number;
    const bool isCode = isNumber && around != nullptr && wordsRead(around->name, field.name) != nullptr;
    if (isCode || !isNumber || std::ranges::none_of(rows, readsWord)) return withWords(plain, isCode);
    // What stands for itself is a code where the reply had a word for it.
    return {{"anyOf", {withWords(plain, false), withWords(plain, true)}}};
}

// NOLINTEND(misc-no-recursion)

Json schemaOf(const Message& message, const SchemaForm& form) {
    Descriptions rows;
    addRows(message.table, rows);
    const Field& field = message.record;
    Json schema{{"title", message.operation}};
    if (field.record != nullptr) {
        schema["description"] = commentOf(field.record->name);
        schema.update(object(*field.record, rows, form));
    } else if (field.name.empty()) {
        schema.update(value(nullptr, field, rows, form));
    } else {
        schema.update({{"type", "object"},
                       {"properties", {{std::string(field.name), value(nullptr, field, rows, form)}}},
                       {"required", {field.name}},
                       {"additionalProperties", false}});
    }
    return schema;
}

/// Several readers may each take a part of one document: decode prints them side by side.
Json schemaOfRoot(std::string_view root, const SchemaForm& form) {
    const auto readers = messagesWithRoot(root);
    if (readers.size() == 1) return schemaOf(*readers.front(), form);
    Json properties = Json::object();
    Json required = Json::array();
    for (const Message* const message : readers) {
        properties[std::string(message->operation)] = schemaOf(*message, form);
        required.push_back(message->operation);
    }
    return {{"type", "object"}, {"properties", properties}, {"required", required}, {"additionalProperties", false}};
}

/// What is printed of a damaged reply says so: in the object, or around what is none.
Json orDamaged(Json schema) {
    const Json damaged{{"description", "the reply is cut or broken, and this is what could be read"}, {"const", true}};
    if (schema.contains("type") && schema["type"] == "object") {
        schema["properties"]["damaged"] = damaged;
        return schema;
    }
    const Json around{{"type", "object"},
                      {"properties", {{"damaged", damaged}, {"value", schema}}},
                      {"required", {"damaged", "value"}},
                      {"additionalProperties", false}};
    return {{"anyOf", {std::move(schema), around}}};
}

/// A line of decode: the record with what is known of the document, or an error in its place.
Json lineOf(const Json& message, const Json& record) {
    const Json whole{{"type", "integer"}, {"minimum", 0}};
    const Json text{{"type", "string"}};
    const Json source{{"type", "object"},
                      {"properties", {{"file", text}, {"number", {{"type", "integer"}, {"minimum", 1}}}}},
                      {"required", {"file", "number"}},
                      {"additionalProperties", false}};
    const Json error{{"type", "object"},
                     {"properties", {{"code", whole}, {"text", text}}},
                     {"required", {"code", "text"}},
                     {"additionalProperties", false}};
    const auto line = [&](const Json& more, const Json& required) -> Json {
        Json properties{{"schema", {{"const", 1}}}, {"source", source}};
        properties.update(more);
        Json all{"schema", "source"};
        all.insert(all.end(), required.begin(), required.end());
        return {{"type", "object"}, {"properties", properties}, {"required", all}, {"additionalProperties", false}};
    };
    const Json read = line({{"message", message},
                            {"damaged", {{"type", "boolean"}}},
                            {"findings", whole},
                            {"notes", {{"type", "array"}, {"items", text}}},
                            {"record", record}},
                           {"message", "damaged", "findings", "record"});
    return {{"oneOf", {read, line({{"error", error}}, {"error"})}}};
}

}  // namespace

Json schemaOf(std::string_view root, const SchemaForm& form) {
    Json schema{{"$schema", "https://json-schema.org/draft/2020-12/schema"}};
    if (!root.empty()) {
        const Json record = orDamaged(schemaOfRoot(root, form));
        schema.update(form.lines ? lineOf({{"const", root}}, record) : record);
        return schema;
    }
    Json any = Json::array();
    Json all = Json::object();
    for (const Message& message : messages()) {
        const std::string name(message.root);
        if (all.contains(name)) continue;
        const Json record = orDamaged(schemaOfRoot(name, form));
        all[name] = form.lines ? lineOf({{"const", name}}, record) : record;
        any.push_back({{"$ref", "#/$defs/" + name}});
    }
    schema["anyOf"] = any;
    schema["$defs"] = all;
    return schema;
}

ExitCode printSchema(std::string_view root, const SchemaForm& form) {
    constexpr int indent = 4;
    std::cout << schemaOf(root, form).dump(indent) << '\n';
    return ExitCode::done;
}

}  // namespace kvj::tool
