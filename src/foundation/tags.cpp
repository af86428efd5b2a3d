#include "foundation/tags.h"

#include <memory>
#include <utility>

#include "foundation/request_text.h"

namespace kvj {

namespace {

using Element = std::unique_ptr<TiXmlElement>;

/// A new element with a text.
Element make(const char* name, const char* text) {
    auto element = std::make_unique<TiXmlElement>(name);
    addText(element.get(), text);
    return element;
}

/// Hands `element` over to `parent` as its last child.
TiXmlElement* link(Parent parent, Element element) {
    return parent.element()->LinkEndChild(element.release())->ToElement();
}

}  // namespace

Parent addTag(Parent parent, const char* name) {
    if (!parent || name == nullptr) return nullptr;
    if (RequestText* const written = parent.text()) {
        written->open(parent.depth(), name);
        return {*written, parent.depth() + 1};
    }
    return link(parent, std::make_unique<TiXmlElement>(name));
}

bool addTag(Parent parent, const char* name, const char* text) {
    if (!parent || name == nullptr || text == nullptr) return false;
    if (RequestText* const written = parent.text()) {
        written->open(parent.depth(), name);
        written->text(text);
        return true;
    }
    return link(parent, make(name, text)) != nullptr;
}

bool addSetting(Parent parent, const char* name, const char* min, const char* max, const char* text) {
    if (!parent || name == nullptr || text == nullptr) return false;
    if (parent.text() != nullptr) {
        const Parent element = addTag(parent, name);
        setAttribute(element, "min", min);
        setAttribute(element, "max", max);
        return addText(element, text);
    }
    Element element = make(name, text);
    setAttribute(element.get(), "min", min);
    setAttribute(element.get(), "max", max);
    return link(parent, std::move(element)) != nullptr;
}

bool addText(Parent element, const char* text) {
    if (!element || text == nullptr) return false;
    if (RequestText* const written = element.text()) {
        written->text(text);
        return true;
    }
    return element.element()->LinkEndChild(std::make_unique<TiXmlText>(text).release()) != nullptr;
}

bool setAttribute(Parent element, const char* name, const char* value) {
    if (!element || name == nullptr || value == nullptr) return false;
    if (RequestText* const written = element.text()) {
        written->attribute(name, value);
    } else {
        element.element()->SetAttribute(name, value);
    }
    return true;
}

}  // namespace kvj
