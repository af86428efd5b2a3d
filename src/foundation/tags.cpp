#include "foundation/tags.h"

#include <memory>
#include <utility>

namespace kvj {

namespace {

using Element = std::unique_ptr<TiXmlElement>;

/// A new element with a text; none when there is no name or no text.
Element make(const char* name, const char* text) {
    if (name == nullptr || text == nullptr) return nullptr;
    auto element = std::make_unique<TiXmlElement>(name);
    addText(element.get(), text);
    return element;
}

/// Hands `element` over to `parent` as its last child; null when there is no element or no parent.
TiXmlElement* link(TiXmlElement* parent, Element element) {
    if (parent == nullptr || element == nullptr) return nullptr;
    return parent->LinkEndChild(element.release())->ToElement();
}

}  // namespace

TiXmlElement* addTag(TiXmlElement* parent, const char* name) {
    return name == nullptr ? nullptr : link(parent, std::make_unique<TiXmlElement>(name));
}

bool addTag(TiXmlElement* parent, const char* name, const char* text) {
    return link(parent, make(name, text)) != nullptr;
}

bool addSetting(TiXmlElement* parent, const char* name, const char* min, const char* max, const char* text) {
    Element element = make(name, text);
    setAttribute(element.get(), "min", min);
    setAttribute(element.get(), "max", max);
    return link(parent, std::move(element)) != nullptr;
}

bool addText(TiXmlElement* element, const char* text) {
    return element != nullptr && text != nullptr &&
           element->LinkEndChild(std::make_unique<TiXmlText>(text).release()) != nullptr;
}

bool setAttribute(TiXmlElement* element, const char* name, const char* value) {
    if (element == nullptr || name == nullptr || value == nullptr) return false;
    element->SetAttribute(name, value);
    return true;
}

}  // namespace kvj
