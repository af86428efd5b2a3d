/// @file tags.h
/// New elements of a request. An element is linked once it is whole, and then belongs to its parent, so that nothing is
/// half done or lost when memory runs out. A null parent, name or text adds nothing, as KVJHelper promises its callers.
#ifndef KVJXML_FOUNDATION_TAGS_H
#define KVJXML_FOUNDATION_TAGS_H

#include <tinyxml.h>

namespace kvj {

/// Adds an element; null when it cannot be added.
TiXmlElement* addTag(TiXmlElement* parent, const char* name);

/// Adds an element with a text; false when it cannot be added.
bool addTag(TiXmlElement* parent, const char* name, const char* text);

/// Adds an element with a range and a text, its numbers already in the form that the printer takes.
bool addSetting(TiXmlElement* parent, const char* name, const char* min, const char* max, const char* text);

/// Gives an element a text.
bool addText(TiXmlElement* element, const char* text);

/// Sets an attribute.
bool setAttribute(TiXmlElement* element, const char* name, const char* value);

}  // namespace kvj

#endif
