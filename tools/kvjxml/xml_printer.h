/// @file xml_printer.h
/// Prints XML while it is made, each element on a line of its own.
#ifndef KVJXML_TOOL_XML_PRINTER_H
#define KVJXML_TOOL_XML_PRINTER_H

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kvj::tool {

/// The names and values of attributes.
using Attributes = std::vector<std::pair<std::string_view, std::string>>;

class XmlPrinter {
public:
    /// Begins a document. `out` outlives the printer.
    explicit XmlPrinter(std::ostream& out);

    /// An element with the elements that `content` prints, behind a text that may be empty.
    // What is printed nests as deep as tables are written, so recursion ends. NOLINTBEGIN(misc-no-recursion)
    template <class Content>
    void element(std::string_view name, const Attributes& attributes, std::string_view text, Content content) {
        open(name, attributes);
        *out_ << '>' << escaped(text) << '\n';
        ++depth_;
        content();
        --depth_;
        indent();
        *out_ << "</" << name << ">\n";
    }
    // NOLINTEND(misc-no-recursion)
    /// An element with a text alone, or with nothing in it.
    void element(std::string_view name, const Attributes& attributes, std::string_view text = {});

private:
    static std::string escaped(std::string_view text);
    void indent();
    void open(std::string_view name, const Attributes& attributes);

    std::ostream* out_;
    std::size_t depth_ = 0;
};

}  // namespace kvj::tool

#endif
