#include "json_printer.h"

#include <algorithm>
#include <string>

#include "visible_text.h"

namespace kvj::tool {

namespace {

/// JSON in which nothing is left that a terminal would obey. Its texts are the same.
std::string escaped(std::string json) {
    for (std::size_t at = 0; (at = json.find('\x7F', at)) != std::string::npos;) json.replace(at, 1, "\\u007f");
    return visible(json);  // What else there can be has four digits, and is written as JSON has it.
}

}  // namespace

void JsonPrinter::field(std::string_view name) {
    entry();
    text_.append("\"").append(name).append("\": ");
}

void JsonPrinter::entry() {
    const bool isFirst = std::exchange(isEmpty_, false);
    if (!isFirst) text_ += ',';
    if (!isInLine_) {
        beginLine();
    } else if (!isFirst) {
        text_ += ' ';
    }
    constexpr std::size_t large = 16 << 10;
    if (text_.size() > large) pass();
}

void JsonPrinter::value(const nlohmann::json& value) {
    const std::string text = value.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    constexpr auto isPlain = [](char c) { return c >= ' ' && c <= '~'; };
    text_ += std::ranges::all_of(text, isPlain) ? text : escaped(text);
}

void JsonPrinter::value(std::string_view text) {
    constexpr auto isPlain = [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; };
    if (!std::ranges::all_of(text, isPlain)) return value(nlohmann::json(text));
    text_.append("\"").append(text).append("\"");
}

void JsonPrinter::beginLine() {
    constexpr std::size_t indent = 4;
    text_.append("\n").append(depth_ * indent, ' ');
}

void JsonPrinter::pass() {
    out_->write(text_.data(), static_cast<std::streamsize>(text_.size()));
    text_.clear();
}

}  // namespace kvj::tool
