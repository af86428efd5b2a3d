/// @file xml_text.h
/// What a text has to be to stand in a request. TinyXML writes whatever it is handed; a printer's parser takes XML.
#ifndef KVJXML_TOOL_XML_TEXT_H
#define KVJXML_TOOL_XML_TEXT_H

#include <string>
#include <string_view>

namespace kvjxml::tool {

/// The first character of a UTF-8 text that no XML document can have, not even as a reference: "U+001B"; empty when
/// there is none.
std::string firstNotOfXml(std::string_view text);

/// Whether an element can have that name. Those of the printers are ASCII, so no other letters are taken, and no colon,
/// which XML keeps for prefixes.
bool isElementName(std::string_view text);

}  // namespace kvjxml::tool

#endif
