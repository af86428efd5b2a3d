#include "json_printer.h"

#include <algorithm>
#include <iomanip>
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
    *out_ << '"' << name << "\": ";
}

void JsonPrinter::entry() {
    const bool isFirst = std::exchange(isEmpty_, false);
    if (!isFirst) *out_ << ',';
    if (!isInLine_) {
        beginLine();
    } else if (!isFirst) {
        *out_ << ' ';
    }
}

void JsonPrinter::value(const nlohmann::json& value) {
    const std::string text = value.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    constexpr auto isPlain = [](char c) { return c >= ' ' && c <= '~'; };
    *out_ << (std::ranges::all_of(text, isPlain) ? text : escaped(text));
}

void JsonPrinter::beginLine() {
    constexpr std::size_t indent = 4;
    *out_ << '\n' << std::setw(static_cast<int>(depth_ * indent)) << "";
}

}  // namespace kvj::tool
