/// @file document.h
/// A reply as its readers see it: elements with their names, the values of their first children, their attributes and
/// their child elements. It is made in one pass over the text, which is decoded where it stands, and it is what TinyXML
/// would make of the same text, to the last oddity: printers and hosts have come to rely on that.
#ifndef KVJXML_FOUNDATION_DOCUMENT_H
#define KVJXML_FOUNDATION_DOCUMENT_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>

namespace kvjxml {

class Element;

/// The first thing that is wrong with a text.
struct Fault {
    int id = 0;              ///< a TiXmlBase::TIXML_ERROR_..., 0 for none
    std::size_t offset = 0;  ///< where it was noticed, in bytes from the beginning of the text
    explicit operator bool() const noexcept { return id != 0; }
};

/// The private copy of a reply that a document is made of and then lives in.
class Text {
public:
    /// Behind a text there are zeros, for whoever looks a few characters ahead.
    static constexpr std::size_t padding = 16;

    Text() = default;
    /// Room for `length` bytes, not yet written.
    /// @throws std::bad_alloc, also when there is no such amount of memory at all.
    explicit Text(std::size_t length);

    [[nodiscard]] char* bytes() noexcept { return bytes_.get(); }
    [[nodiscard]] const char* bytes() const noexcept { return bytes_.get(); }
    [[nodiscard]] std::size_t length() const noexcept { return length_; }

    /// Ends the text behind so many of its bytes.
    void end(std::size_t length) noexcept;

private:
    std::unique_ptr<char[]> bytes_;
    std::size_t length_ = 0;
};

class Document {
public:
    /// An element. They stand in document order, so the descendants of one are those from behind it up to its end.
    /// Offsets are from the beginning of the text.
    struct Node {
        std::uint32_t name;
        std::uint32_t nameLength;
        std::uint32_t value;       ///< of the first child; 0 when there is no child
        std::uint32_t attributes;  ///< index of the first; they go on up to those of the next element
        std::uint32_t end;         ///< index of the next element that is no descendant
    };
    struct Attribute {
        std::uint32_t name;
        std::uint32_t value;
    };

    /// One without a text.
    Document() = default;
    /// Takes the text as far as it makes sense. One of 4 GiB or more is refused; one that is none has no fault.
    /// @throws std::bad_alloc
    explicit Document(Text text);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    /// The first element of that name at the top level; a null one when there is none.
    [[nodiscard]] Element root(const char* name) const noexcept;
    /// The same of the other name when there is none of the first.
    [[nodiscard]] Element root(const char* name, const char* other) const noexcept;
    /// The document as an element that has those at the top level for children.
    [[nodiscard]] Element top() const noexcept;

    [[nodiscard]] const Fault& fault() const noexcept { return fault_; }
    /// Whether the text began with a byte-order mark.
    [[nodiscard]] bool hasByteOrderMark() const noexcept { return hasByteOrderMark_; }
    [[nodiscard]] bool hasText() const noexcept { return text_.bytes() != nullptr; }

private:
    friend class Element;
    friend class DocumentParser;

    void parse();
    void allocate(std::size_t elements, std::size_t attributes);

    static constexpr std::size_t largest = std::numeric_limits<std::uint32_t>::max() - Text::padding;

    Text text_;
    // Enough for an ordinary reply; the heap has what goes beyond.
    alignas(Node) std::array<std::byte, 2048> few_;
    std::unique_ptr<std::byte[]> many_;
    Node* nodes_ = nullptr;  // The first is the document itself, one more stands behind the last.
    Attribute* attributes_ = nullptr;
    Fault fault_;
    bool hasByteOrderMark_ = false;
};

}  // namespace kvjxml

#endif
