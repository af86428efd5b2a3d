#include "field_help.h"

#include "face/joined.h"
#include "field_codes.h"
#include "field_rows.h"
#include "needed.h"
#include "request_json.h"
#include "secrets.h"

namespace kvj::tool {

namespace {

using nlohmann::ordered_json;

/// Smaller numbers than usual have their ends said.
std::string numberOf(const Field& field) {
    if (field.size >= sizeof(int)) return "whole number";
    const int ends = 1 << (8 * field.size - (field.isSigned ? 1 : 0));
    return "whole number, " + std::to_string(field.isSigned ? -ends : 0) + " to " + std::to_string(ends - 1);
}

std::string valueOf(const RecordType& record, const Field& field) {
    switch (field.type) {
        case FieldType::flag:
        case FieldType::bit:
            return "true or false";
        case FieldType::number: {
            const FieldCodes codes(record.name, field.name);
            if (codes.empty()) return numberOf(field);
            return (codes.areBits() ? "a list of words, or the sum of their numbers: " : "a word or its number: ") +
                   codes.listed();
        }
        case FieldType::decimal:
            return "number";
        case FieldType::text:
            return "text, at most " + std::to_string(field.size - 1) + " bytes";
        case FieldType::hardwareAddress:
            return "hardware address such as 00:1a:2b:3c:4d:5e";
        case FieldType::ipAddress:
            return "IPv4 address such as 192.168.0.1";
        case FieldType::hostText:
            if (field.hostText == HostText::elementName) return "the name of an element";
            return field.hostText == HostText::optional ? "text, or null to leave it out" : "text";
        case FieldType::record:
            return "an object";
        case FieldType::list: {
            const FieldCodes codes(record.name, field.name);
            return codes.empty() ? "a list" : "a list of words or their numbers: " + codes.listed();
        }
    }
    return {};
}

/// The elements that a field is written as: "lcd_contrast".
std::string elementsOf(const RecordType& record, const Field& field) {
    std::string names;
    for (const DescribedRow* row : rowsFor(rowsOfRequests(), record.name, field.name)) {
        const std::string name = joined({"<", row->name, ">"});
        if (names.find(name) == std::string::npos) names.append(names.empty() ? "" : ", ").append(name);
    }
    return names.empty() ? names : names + ": ";
}

std::string helpOf(const RecordType& record, const Field& field) {
    std::string help = joined({elementsOf(record, field), valueOf(record, field)});
    if (isSecret(record.name, field.name)) help += "; a secret";
    const bool isOfSetting = record.fields.front().name == "min" && field.name == "value";
    if (isOfSetting) help += " from min to max";
    if (isOfSetting && field.type == FieldType::decimal) help += "; the printer gets the maximum in its place";
    return help;
}

/// Whether only hosts know a field: no message has it, but what is written can depend on it.
bool isHosts(const RecordType& record, const Field& field) {
    return field.type == FieldType::flag && rowsFor(rowsOfMessages(), record.name, field.name).empty() &&
           rowsFor(rowsOfRequests(), record.name, field.name).empty();
}

// Records nest as deep as they are declared, so the recursion ends. NOLINTBEGIN(misc-no-recursion)

ordered_json blank(const RecordType& record, const Needed& needed, bool isOfArguments) {
    ordered_json fields;
    ordered_json help;
    fields[helpKey] = nullptr;  // It stands in front.
    for (const Field& field : record.fields) {
        const Needed* const inner = needed.of(field.name);
        if (inner == nullptr && !isOfArguments && !isHosts(record, field)) continue;
        help[std::string(field.name)] = helpOf(record, field);
        ordered_json value;
        if (field.type == FieldType::record && inner != nullptr) value = blank(*field.record, *inner, false);
        if (field.type == FieldType::list && inner != nullptr) {
            const Field& entry = *field.entries->entry;
            value =
                ordered_json::array({entry.record == nullptr ? ordered_json() : blank(*entry.record, *inner, false)});
        }
        fields[std::string(field.name)] = std::move(value);
    }
    fields[helpKey] = std::move(help);
    return fields;
}

void addCodes(const RecordType& record, const std::string& pointer, std::string& lines) {
    for (const Field& field : record.fields) {
        const std::string place = pointer + "/" + std::string(field.name);
        const RecordType* inner = field.record;
        if (field.type == FieldType::list) inner = field.entries->entry->record;
        const bool isList = field.type == FieldType::list;
        if (inner != nullptr) {
            addCodes(*inner, isList ? place + "/*" : place, lines);
        } else if (isList || field.type == FieldType::number) {
            const FieldCodes codes(record.name, field.name);
            if (!codes.empty()) lines.append("  ").append(place).append("\n      ").append(codes.listed()).append("\n");
        }
    }
}

// NOLINTEND(misc-no-recursion)

}  // namespace

ordered_json templateOf(const Request& request, const Choices& choices) {
    return blank(*request.record, neededFor(request, choices), request.written == nullptr);
}

std::string codesOf(const Request& request) {
    std::string lines;
    addCodes(*request.record, "", lines);
    return lines.empty() ? lines : "Codes, which are given as a word or its number:\n" + lines;
}

}  // namespace kvj::tool
