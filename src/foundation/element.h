/// @file element.h
/// What the whole vocabulary asks of an element beside its name: its text, and how many children it has.
#ifndef KVJXML_FOUNDATION_ELEMENT_H
#define KVJXML_FOUNDATION_ELEMENT_H

#include <tinyxml.h>

#include <cstddef>

namespace kvjxml {

/// The value of the element's first child node, whatever kind of node that is; null for a null or empty element.
/// The printer's readers ask no more than that, so TiXmlElement::GetText, which does, would lose texts.
inline const char* textOf(const TiXmlElement* element) {
    const TiXmlNode* first = element == nullptr ? nullptr : element->FirstChild();
    return first == nullptr ? nullptr : first->Value();
}

/// How many child elements an element has, of whatever name; a null element has none.
inline std::size_t countChildren(const TiXmlElement* element) {
    std::size_t count = 0;
    const TiXmlElement* child = element == nullptr ? nullptr : element->FirstChildElement();
    for (; child != nullptr; child = child->NextSiblingElement()) ++count;
    return count;
}

}  // namespace kvjxml

#endif
