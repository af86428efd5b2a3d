#include "shown_value.h"

#include "code_words.h"
#include "secrets.h"
#include "shown.h"
#include "visible_text.h"

namespace kvj::tool {

namespace {

using Json = nlohmann::ordered_json;

// What records and JSON nest as deep as they are declared, so the recursion ends.
// NOLINTBEGIN(misc-no-recursion)

Json entries(const Entries& entries, const void* record, bool isMasked) {
    Json list = Json::array();
    for (std::size_t i = 0; i < countOf(entries, record); ++i) {
        list.push_back(shownValue({nullptr, entries.entry}, entries.at(record, i), isMasked));
    }
    return list;
}

}  // namespace

Json shownValue(const ShownField& shown, const void* record, bool isMasked) {
    const Field& field = *shown.field;
    if (field.type == FieldType::record) {
        Json object = Json::object();
        for (const Field& inner : field.record->fields) {
            object[std::string(inner.name)] = shownValue({field.record, &inner}, field.at(record), isMasked);
        }
        return object;
    }
    if (field.type == FieldType::list) return entries(*field.entries, record, isMasked);
    if (shown.around == nullptr) return valueIn(field, record);
    if (isMasked && isSecret(shown.around->name, field.name)) return masked;
    const auto table = field.type == FieldType::number ? codeTable(shown.around->name, field.name) : std::nullopt;
    if (!table) return valueIn(field, record);
    const std::string words = wordsOf(*table, wholeNumberOf(field, record));
    if (words.empty()) return valueIn(field, record);
    return {{"code", valueIn(field, record)}, {"word", words}};
}

std::string inText(const Json& value) {
    if (value.is_string()) {
        const auto& text = value.get_ref<const std::string&>();
        return text == masked ? text : '"' + visible(text) + '"';
    }
    if (!value.is_structured()) return value.dump();
    if (value.size() == 2 && value.contains("code") && value.contains("word")) {
        return inText(value["code"]) + " (" + visible(value["word"].get<std::string>()) + ")";
    }
    std::string text;
    for (const auto& [name, inner] : value.items()) {
        if (!text.empty()) text += ", ";
        if (value.is_object()) text += name + ' ';
        text += inner.is_structured() && !inner.contains("word") ? '(' + inText(inner) + ')' : inText(inner);
    }
    return text;
}

// NOLINTEND(misc-no-recursion)

std::string inJson(const Json& value) {
    return value.dump(-1, ' ', writesToTerminal(), Json::error_handler_t::replace);
}

}  // namespace kvj::tool
