/// @file element.h
/// The text of an element, as the whole vocabulary understands it.
#ifndef KVJXML_FOUNDATION_ELEMENT_H
#define KVJXML_FOUNDATION_ELEMENT_H

#include <tinyxml.h>

namespace kvjxml {

/// The value of the element's first child node, whatever kind of node that is; null for a null or empty element.
/// The printer's readers ask no more than that, so TiXmlElement::GetText, which does, would lose texts.
inline const char* textOf(const TiXmlElement* element) {
    const TiXmlNode* first = element == nullptr ? nullptr : element->FirstChild();
    return first == nullptr ? nullptr : first->Value();
}

}  // namespace kvjxml

#endif
