/// @file xml.h
/// Elements and replies for tests, made from XML as it is written.
#ifndef KVJXML_TESTS_SUPPORT_XML_H
#define KVJXML_TESTS_SUPPORT_XML_H

#include <tinyxml.h>

#include <string>
#include <string_view>

namespace kvj::tests {

/// A parsed document; its root element lives as long as this object.
class Xml {
public:
    explicit Xml(const char* text) { document_.Parse(text, nullptr, TIXML_ENCODING_UNKNOWN); }
    [[nodiscard]] TiXmlElement* root() { return document_.RootElement(); }

private:
    TiXmlDocument document_;
};

/// An element as it is written, without white space between its parts.
inline std::string written(const TiXmlNode& node) {
    TiXmlPrinter printer;
    printer.SetStreamPrinting();
    node.Accept(&printer);
    return printer.Str();
}

/// ASCII text as wide text.
inline std::wstring wide(std::string_view text) { return {text.begin(), text.end()}; }

}  // namespace kvj::tests

#endif
