#include "xml_printer.h"

namespace kvj::tool {

XmlPrinter::XmlPrinter(std::ostream& out) : out_(&out) { *out_ << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"; }

void XmlPrinter::element(std::string_view name, const Attributes& attributes, std::string_view text) {
    open(name, attributes);
    if (text.empty()) {
        *out_ << "/>\n";
    } else {
        *out_ << '>' << escaped(text) << "</" << name << ">\n";
    }
}

std::string XmlPrinter::escaped(std::string_view text) {
    std::string safe;
    for (const char c : text) {
        switch (c) {
            case '&':
                safe += "&amp;";
                break;
            case '<':
                safe += "&lt;";
                break;
            case '>':
                safe += "&gt;";
                break;
            case '"':
                safe += "&quot;";
                break;
            default:
                safe += c;
        }
    }
    return safe;
}

void XmlPrinter::indent() {
    constexpr std::size_t width = 4;
    *out_ << std::string(depth_ * width, ' ');
}

void XmlPrinter::open(std::string_view name, const Attributes& attributes) {
    indent();
    *out_ << '<' << name;
    for (const auto& [attribute, value] : attributes) *out_ << ' ' << attribute << "=\"" << escaped(value) << '"';
}

}  // namespace kvj::tool
