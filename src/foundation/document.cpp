#include "foundation/document.h"

#include <tinyxml.h>

#include <cstring>
#include <new>
#include <utility>

#include "foundation/element.h"

namespace kvj {

Text::Text(std::size_t length) : length_(length) {
    // No array is that long.
    if (length > std::numeric_limits<std::ptrdiff_t>::max() - padding) throw std::bad_alloc();
    bytes_.reset(new char[length + padding]);
    end(length);
}

void Text::end(std::size_t length) noexcept {
    length_ = length;
    std::memset(bytes_.get() + length, 0, padding);
}

Document::Document(Text text, Manner manner) : text_(std::move(text)) {
    if (text_.length() > largest) {
        fault_ = {TiXmlBase::TIXML_ERROR, largest};
    } else if (hasText()) {
        parse(manner);
    }
}

void Document::allocate(std::size_t elements, std::size_t attributes) {
    // One element is the document itself, and one more tells where the attributes of the last element end.
    const std::size_t first = (elements + 2) * sizeof(Node);
    const std::size_t size = first + attributes * sizeof(Attribute);
    std::byte* place = few_.data();
    if (size > few_.size()) {
        many_.reset(new std::byte[size]);
        place = many_.get();
    }
    nodes_ = reinterpret_cast<Node*>(place);
    attributes_ = reinterpret_cast<Attribute*>(place + first);
}

Element Document::root(const char* name) const noexcept {
    for (const Element element : top().children()) {
        if (element.name() == name) return element;
    }
    return {};
}

Element Document::root(const char* name, const char* other) const noexcept {
    const Element found = root(name);
    return found ? found : root(other);
}

std::size_t Element::offset() const noexcept {
    if (document_ == nullptr || at_ == nullptr || at_ == document_->nodes_) return 0;
    // Blanks may stand between the "<" and the name. The "<" itself may have become the end of a text.
    std::uint32_t at = node()->name - 1;
    while (*text(at) != '<' && *text(at) != '\0') --at;
    return at;
}

}  // namespace kvj
