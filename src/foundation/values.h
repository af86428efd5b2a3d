/// @file values.h
/// Reads an element's text or one of its attributes as a value. Without the text or the attribute the result is false,
/// and the value stays as it was unless stated otherwise.
#ifndef KVJXML_FOUNDATION_VALUES_H
#define KVJXML_FOUNDATION_VALUES_H

#include <algorithm>

#include "foundation/convert.h"
#include "foundation/element.h"

namespace kvj {

/// Stores what a conversion makes of a text, if there is one.
template <class Value, class Convert>
bool store(const char* content, Value& value, Convert convert) {
    if (content != nullptr) value = static_cast<Value>(convert(content));
    return content != nullptr;
}

// ---- The element's text ----

/// A number. One that is too large keeps its low bits.
inline bool readNumber(Element element, int& value) { return store(element.text(), value, convert::toInt); }
inline bool readNumber(Element element, unsigned int& value) { return store(element.text(), value, convert::toInt); }
inline bool readNumber(Element element, unsigned short& value) { return store(element.text(), value, convert::toInt); }
inline bool readNumber(Element element, long& value) { return store(element.text(), value, convert::toLong); }
inline bool readNumber(Element element, float& value) { return store(element.text(), value, convert::toFloat); }
/// Sixteen bits here as well.
inline bool readNumber(Element element, unsigned long& value) {
    unsigned short number = 0;
    if (!readNumber(element, number)) return false;
    value = number;
    return true;
}

/// A text. What does not fit is cut, terminated, and false.
inline bool readText(Element element, char* buffer, int capacity) {
    const char* content = element.text();
    return content != nullptr && convert::copy(content, buffer, capacity);
}

/// A truth word.
inline bool readTruth(Element element, char& value) { return store(element.text(), value, convert::isTrue); }
/// Without text this one becomes false.
inline bool readTruth(Element element, bool& value) {
    value = false;
    return store(element.text(), value, convert::isTrue);
}

/// A hardware address, to six bytes.
inline bool readHardwareAddress(Element element, unsigned char* address) {
    const char* content = element.text();
    if (content == nullptr) return false;
    const auto bytes = convert::toHardwareAddress(content);
    std::copy(bytes.begin(), bytes.end(), address);
    return true;
}

// ---- An attribute ----

/// A number; any other text leaves the value alone and is false.
inline bool readAttribute(Element element, const char* name, int& value) {
    const char* content = element.attribute(name);
    return content != nullptr && convert::scanInt(content, value);
}
inline bool readAttribute(Element element, const char* name, float& value) {
    const char* content = element.attribute(name);
    return content != nullptr && convert::scanFloat(content, value);
}

}  // namespace kvj

#endif
