/// @file xml_text.h
/// What XML knows of a text. TinyXML writes whatever it is given, but a printer's parser takes only XML.
#ifndef KVJXML_TOOL_XML_TEXT_H
#define KVJXML_TOOL_XML_TEXT_H

#include <string>
#include <string_view>

namespace kvj::tool {

/// The first character of a UTF-8 text that no XML document can have, not even as a reference, such as "U+001B"; empty
/// when there is none.
std::string firstNotOfXml(std::string_view text);

/// Whether an element can have this name. Printers use ASCII names, so no other letters are taken; nor is the colon,
/// which XML keeps for prefixes.
bool isElementName(std::string_view text);

/// Whether there is nothing in a text but blanks.
bool isBlank(std::string_view text);

}  // namespace kvj::tool

#endif
