#include "json_printer.h"

#include <algorithm>

namespace kvj::tool {

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
    text_ += value.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
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
