/// @file element.h
/// The one element that tables, rules and the walk know. Most are those of a reply; those that a host hands to a
/// public walker are TinyXML's, and are seen through the same type as they stand, without a copy.
#ifndef KVJXML_FOUNDATION_ELEMENT_H
#define KVJXML_FOUNDATION_ELEMENT_H

#include <tinyxml.h>

#include <cstddef>
#include <string_view>
#include <vector>

#include "foundation/document.h"

namespace kvj {

/// A view, to be passed by value. The element belongs to its document, or to the host. A null one has no text, no
/// attribute and no children.
class Element {
public:
    Element() = default;
    // Any element of TinyXML's can be seen as one.
    Element(const TiXmlElement* host) noexcept : at_(host) {}
    Element(const Document& document, const Document::Node* node) noexcept : document_(&document), at_(node) {}

    explicit operator bool() const noexcept { return at_ != nullptr; }

    [[nodiscard]] std::string_view name() const {
        return document_ == nullptr ? std::string_view(host()->ValueStr())
                                    : std::string_view(text(node()->name), node()->nameLength);
    }

    /// The value of the first child, whatever kind of child that is; null when there is none. The printer's readers ask
    /// no more than that, so TiXmlElement::GetText, which does, would lose texts.
    [[nodiscard]] const char* text() const noexcept {
        if (at_ == nullptr) return nullptr;
        if (document_ != nullptr) return node()->value == 0 ? nullptr : text(node()->value);
        const TiXmlNode* first = host()->FirstChild();
        return first == nullptr ? nullptr : first->Value();
    }

    /// The value of an attribute; null when there is none of that name.
    [[nodiscard]] const char* attribute(const char* name) const {
        if (at_ == nullptr || name == nullptr) return nullptr;
        if (document_ == nullptr) return host()->Attribute(name);
        for (auto i = node()->attributes; i != node()[1].attributes; ++i) {
            if (isSame(text(document_->attributes_[i].name), name)) return text(document_->attributes_[i].value);
        }
        return nullptr;
    }

    struct Attribute {
        const char* name;
        const char* value;
    };
    /// All attributes of an element of a reply, in its order; those of a host's element are not listed.
    [[nodiscard]] std::vector<Attribute> attributes() const {
        std::vector<Attribute> all;
        if (document_ == nullptr) return all;
        for (auto i = node()->attributes; i != node()[1].attributes; ++i) {
            const auto [name, value] = document_->attributes_[i];
            all.push_back({text(name), text(value)});
        }
        return all;
    }

    /// Who is told what is read from the element; null for nobody.
    [[nodiscard]] Watch* watch() const noexcept { return document_ == nullptr ? nullptr : document_->watch_; }

    /// Of an element of a host's nobody can be told.
    void watchWith(Watch* watch) const noexcept {
        if (document_ != nullptr) document_->watch_ = watch;
    }

    /// Its number in the document, in document order; the document itself is 0, and so is an element of a host's.
    [[nodiscard]] std::size_t number() const noexcept {
        return document_ == nullptr || at_ == nullptr ? 0 : static_cast<std::size_t>(node() - document_->nodes_);
    }

    /// Where the element's tag begins in the text that the document was made of; 0 for the document itself, and for an
    /// element of a host's.
    [[nodiscard]] std::size_t offset() const noexcept;

    /// The child elements, in document order.
    class Iterator;
    class Children;
    [[nodiscard]] Children children() const noexcept;

    /// Gives an element of the host's an attribute. One of a reply is left alone: nobody will look at it again.
    void setAttribute(const char* name, const char* value) const {
        // A host can only hand over elements that may be changed.
        if (at_ != nullptr && document_ == nullptr) const_cast<TiXmlElement*>(host())->SetAttribute(name, value);
    }

private:
    /// Attributes have short names: this takes fewer steps than a call.
    static bool isSame(const char* one, const char* other) noexcept {
        while (*one == *other && *one != '\0') {
            ++one;
            ++other;
        }
        return *one == *other;
    }
    /// This node of a host's, or the first of its siblings that is an element. TinyXML's own function for that makes
    /// two calls for each.
    static const TiXmlElement* hostElement(const TiXmlNode* node) noexcept {
        while (node != nullptr && node->Type() != TiXmlNode::TINYXML_ELEMENT) node = node->NextSibling();
        return static_cast<const TiXmlElement*>(node);
    }
    [[nodiscard]] const TiXmlElement* host() const noexcept { return static_cast<const TiXmlElement*>(at_); }
    [[nodiscard]] const Document::Node* node() const noexcept { return static_cast<const Document::Node*>(at_); }
    [[nodiscard]] const char* text(std::uint32_t offset) const noexcept { return document_->text_.bytes() + offset; }

    const Document* document_ = nullptr;  ///< null for a host's element
    const void* at_ = nullptr;
};

class Element::Iterator {
public:
    explicit Iterator(Element element) noexcept : element_(element) {}
    const Element& operator*() const noexcept { return element_; }
    Iterator& operator++() noexcept {
        if (element_.document_ != nullptr) {
            element_.at_ = element_.document_->nodes_ + element_.node()->end;
        } else {
            element_.at_ = hostElement(element_.host()->NextSibling());
        }
        return *this;
    }
    bool operator==(const Iterator& other) const noexcept { return element_.at_ == other.element_.at_; }

private:
    Element element_;
};

class Element::Children {
public:
    Children(Element first, Element last) noexcept : first_(first), last_(last) {}
    [[nodiscard]] Iterator begin() const noexcept { return Iterator(first_); }
    [[nodiscard]] Iterator end() const noexcept { return Iterator(last_); }
    [[nodiscard]] bool empty() const noexcept { return begin() == end(); }

private:
    Element first_;
    Element last_;
};

inline Element::Children Element::children() const noexcept {
    if (at_ == nullptr) return {{}, {}};
    if (document_ == nullptr) return {hostElement(host()->FirstChild()), {}};
    return {{*document_, node() + 1}, {*document_, document_->nodes_ + node()->end}};
}

inline Element Document::operator[](std::size_t number) const noexcept { return {*this, nodes_ + number}; }

inline Element Document::top() const noexcept { return nodes_ == nullptr ? Element() : Element(*this, nodes_); }

/// How many child elements an element has, of whatever name.
inline std::size_t countChildren(Element element) {
    std::size_t count = 0;
    for ([[maybe_unused]] const Element child : element.children()) ++count;
    return count;
}

}  // namespace kvj

#endif
