#include "xml_text.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace kvj::tool {

std::string firstNotOfXml(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto byte = static_cast<unsigned char>(text[at]);
        const std::string_view rest = text.substr(at);
        if (byte < ' ' && byte != '\t' && byte != '\n' && byte != '\r') {
            std::array<char, 16> name{};
            static_cast<void>(std::snprintf(name.data(), name.size(), "U+%04X", static_cast<unsigned>(byte)));
            return name.data();
        }
        if (rest.starts_with("\xEF\xBF\xBE")) return "U+FFFE";
        if (rest.starts_with("\xEF\xBF\xBF")) return "U+FFFF";
    }
    return {};
}

bool isElementName(std::string_view text) {
    const auto isFirst = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; };
    const auto isNext = [&](char c) { return isFirst(c) || (c >= '0' && c <= '9') || c == '-' || c == '.'; };
    return !text.empty() && isFirst(text.front()) && std::ranges::all_of(text, isNext);
}

bool isBlank(std::string_view text) { return text.find_first_not_of(" \t\r\n") == std::string_view::npos; }

}  // namespace kvj::tool
