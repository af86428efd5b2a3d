#include "text_printer.h"

#include <FoundationRecords.h>

#include <algorithm>
#include <iomanip>
#include <span>

#include "fields/foundation.h"
#include "units.h"
#include "visible_text.h"

namespace kvj::tool {

namespace {

/// How many characters a terminal shows.
std::size_t widthOf(std::string_view text) {
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80; }));
}

std::string padded(std::string_view text, std::size_t width) {
    std::string line(text);
    const std::size_t own = widthOf(text);
    return own < width ? line.append(width - own, ' ') : line;
}

std::string textOf(const nlohmann::json& value) {
    if (value.is_boolean()) return value.get<bool>() ? "yes" : "no";
    if (!value.is_string()) return value.dump();
    const auto& text = value.get_ref<const std::string&>();
    return text.empty() ? "\"\"" : visible(text);
}

std::string listed(const std::vector<std::string_view>& words) {
    std::string text;
    for (const std::string_view word : words) text.append(text.empty() ? "" : ", ").append(visible(word));
    return text;
}

/// What was sent in the place of a value.
std::string sentText(const Shown& shown) {
    return shown.sent ? "sent \"" + visible(*shown.sent) + "\"" : std::string();
}

bool isSetting(const Field& field) {
    return field.record == &recordType<Kavrin::_MinMaxVal> || field.record == &recordType<Kavrin::_MinMaxValFloat>;
}

bool isZero(const void* memory, std::size_t size) {
    return std::ranges::all_of(std::span(static_cast<const unsigned char*>(memory), size),
                               [](unsigned char byte) { return byte == 0; });
}

}  // namespace

ListView viewOf(const Field& list, const void* record) {
    const Entries* const entries = list.entries;
    return {entries->entry, countOf(*entries, record),
            [entries, record](std::size_t index) { return entries->at(record, index); }};
}

// ---- Lines ----

TextPrinter::Line TextPrinter::lineOf(const RecordType* type, const Field& field, const void* record) const {
    const Shown value = shown(type, field, record, showing_);
    if (!value.isCarried && !isThere(field, record)) return {std::string(field.name), "-", {}, {}, true};
    Line line{std::string(field.name), textOf(value.value), listed(value.words), sentText(value)};
    const std::string_view unit = type == nullptr ? std::string_view() : unitOf(type->name, field.name);
    if (!unit.empty()) line.value.append(" ").append(unit);
    return line;
}

/// A setting is one line, with its range behind it.
TextPrinter::Line TextPrinter::settingLine(const Field& field, const void* record) const {
    const void* const setting = field.at(record);
    const auto part = [&](std::string_view name) {
        const auto& fields = field.record->fields;
        return shown(field.record, *std::ranges::find(fields, name, &Field::name), setting, showing_);
    };
    const Shown value = part("value");
    const Shown min = part("min");
    const Shown max = part("max");
    Line line{std::string(field.name), textOf(value.value), {}, sentText(value)};
    if (min.value != 0 || max.value != 0) line.words = textOf(min.value) + " to " + textOf(max.value);
    for (const Shown* const limit : {&min, &max}) {
        if (limit->sent) line.sent += (line.sent.empty() ? "" : ", ") + sentText(*limit);
    }
    return line;
}

/// Whether the reply said anything of a field.
bool TextPrinter::isThere(const Field& field, const void* record) const {
    if (field.at == nullptr) return flagOf(field, record);
    const void* const first = field.at(record);
    return !isZero(first, field.size) || (field.type == FieldType::record && showing_.sent->knows(first, field.size));
}

void TextPrinter::print(const Line& line, std::size_t nameWidth, std::size_t valueWidth) {
    indent();
    *out_ << padded(line.name, nameWidth) << "  ";
    const std::string behind = line.words + (line.words.empty() || line.sent.empty() ? "" : "  ") +
                               (line.sent.empty() ? std::string() : styled(line.sent, Style::warning));
    const std::string value = behind.empty() ? line.value : padded(line.value, valueWidth) + "  ";
    *out_ << (line.isFaint ? styled(value, Style::faint) : value) << behind << '\n';
}

// ---- Records ----

// Records nest as deep as they are declared, so the recursion ends. NOLINTBEGIN(misc-no-recursion)

void TextPrinter::record(const RecordType& type, const void* record, const ListOf& listOf) {
    std::vector<Line> lines;  // An empty name stands for a block.
    for (const Field& field : type.fields) {
        if (field.type == FieldType::list) {
            const bool isEmpty = listOf(field).count == 0;
            lines.push_back(isEmpty ? Line{std::string(field.name), "none"} : Line{});
        } else if (field.type == FieldType::record && !isThere(field, record)) {
            lines.push_back({std::string(field.name), "-", {}, {}, true});
        } else if (field.type != FieldType::record) {
            lines.push_back(lineOf(&type, field, record));
        } else if (isSetting(field)) {
            lines.push_back(settingLine(field, record));
            const std::string_view unit = unitOf(type.name, field.name);
            if (!unit.empty()) lines.back().value.append(" ").append(unit);
        } else {
            lines.push_back({});
        }
    }
    // A long value does not push the words of all others to the right.
    constexpr std::size_t widest = 24;
    std::size_t nameWidth = 0;
    std::size_t valueWidth = 0;
    for (const Line& line : lines) {
        nameWidth = std::max(nameWidth, line.name.size());
        if (!line.words.empty() || !line.sent.empty()) valueWidth = std::max(valueWidth, widthOf(line.value));
    }
    valueWidth = std::min(valueWidth, widest);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Field& field = type.fields[i];
        if (!lines[i].name.empty()) {
            print(lines[i], nameWidth, valueWidth);
        } else if (field.type == FieldType::list) {
            list(field.name, listOf(field));
        } else {
            const void* const inner = field.at(record);
            begin(field.name);
            this->record(*field.record, inner, [&](const Field& each) { return viewOf(each, inner); });
            end();
        }
    }
}

void TextPrinter::list(std::string_view name, const ListView& list) {
    const Field& entry = *list.entry;
    const std::string all = " of " + std::to_string(list.count);
    for (std::size_t i = 0; i < list.count; ++i) {
        const std::string place = std::string(name) + (name.empty() ? "" : " ") + std::to_string(i + 1) + all;
        const void* const value = list.at(i);
        if (entry.type != FieldType::record) {
            this->value(place, entry, value);
            continue;
        }
        begin(place);
        record(*entry.record, value, [&](const Field& each) { return viewOf(each, value); });
        end();
    }
}

// NOLINTEND(misc-no-recursion)

void TextPrinter::value(std::string_view name, const Field& field, const void* value) {
    Line line = lineOf(nullptr, field, value);
    line.name = name;
    print(line, 0, 0);
}

// ---- Looks ----

void TextPrinter::begin(std::string_view heading) {
    indent();
    *out_ << styled(heading, Style::heading) << '\n';
    ++depth_;
}

void TextPrinter::warn(std::string_view text) {
    indent();
    *out_ << styled(visible(text), Style::warning) << '\n';
}

void TextPrinter::indent() {
    constexpr std::size_t indent = 4;
    *out_ << std::setw(static_cast<int>(depth_ * indent)) << "";
}

std::string TextPrinter::styled(std::string_view text, Style style) const {
    if (!colours_) return std::string(text);
    constexpr std::string_view begins[] = {"\x1B[1m", "\x1B[2m", "\x1B[33m"};
    return std::string(begins[static_cast<std::size_t>(style)]).append(text).append("\x1B[0m");
}

}  // namespace kvj::tool
