/// @file tags.h
/// New elements of a request, in a tree of TinyXML's or in a text that is being written. In a tree an element is linked
/// once it is whole, and then belongs to its parent, so that nothing is half done or lost when memory runs out. A null
/// parent, name or text adds nothing, as KVJHelper promises its callers.
#ifndef KVJXML_FOUNDATION_TAGS_H
#define KVJXML_FOUNDATION_TAGS_H

#include <tinyxml.h>

#include <cstddef>

#include "foundation/kinds.h"

namespace kvj {

class RequestText;

/// Where new elements go: an element of a tree, for hosts see those of a named operation, or the elements that are open
/// in a text up to a depth. It is as light as a pointer, and is passed by value.
class Parent {
public:
    constexpr Parent(std::nullptr_t = nullptr) noexcept {}
    constexpr Parent(TiXmlElement* element) noexcept : at_(element) {}
    constexpr Parent(RequestText& text, std::size_t depth) noexcept : at_(&text), depth_(depth) {}

    constexpr explicit operator bool() const noexcept { return at_ != nullptr; }
    /// The element of a tree; null in a text.
    [[nodiscard]] TiXmlElement* element() const noexcept {
        return depth_ == 0 ? static_cast<TiXmlElement*>(at_) : nullptr;
    }
    /// The text; null in a tree.
    [[nodiscard]] RequestText* text() const noexcept { return depth_ == 0 ? nullptr : static_cast<RequestText*>(at_); }
    /// How deep new elements of a text stand; its root stands at 0.
    [[nodiscard]] std::size_t depth() const noexcept { return depth_; }

    /// Says which row, and which entry of a list, the next element is of, for those who have to tell where it comes
    /// from.
    void announce(const Description& row, int entry = -1) const noexcept;

private:
    void* at_ = nullptr;
    std::size_t depth_ = 0;
};

/// Adds an element; null when it cannot be added. In a text it closes those that are open at its depth and below.
Parent addTag(Parent parent, const char* name);

/// Adds an element with a text; false when it cannot be added.
bool addTag(Parent parent, const char* name, const char* text);

/// Adds an element with a range and a text, its numbers already in the form that the printer takes.
bool addSetting(Parent parent, const char* name, const char* min, const char* max, const char* text);

/// Gives an element a text. In a text that is being written it comes after the attributes, once, and instead of other
/// elements.
bool addText(Parent element, const char* text);

/// Sets an attribute. In a text that is being written the element has to be the last one that was added, and gets each
/// attribute once.
bool setAttribute(Parent element, const char* name, const char* value);

}  // namespace kvj

#endif
