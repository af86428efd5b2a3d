#include "json_printer.h"

#include <iomanip>

namespace kvj::tool {

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
    *out_ << value.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

void JsonPrinter::beginLine() {
    constexpr std::size_t indent = 4;
    *out_ << '\n' << std::setw(static_cast<int>(depth_ * indent)) << "";
}

}  // namespace kvj::tool
