/// @file document.h
/// A reply as its readers see it: elements with their names, the values of their first children, their attributes and
/// their child elements. It is made in one pass over the text, which is decoded in place, and it is what TinyXML would
/// make of the same text, down to the last oddity: printers and hosts have come to rely on that.
#ifndef KVJXML_FOUNDATION_DOCUMENT_H
#define KVJXML_FOUNDATION_DOCUMENT_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>

namespace kvj {

class Element;
class Watch;

/// The first thing that is wrong with a text.
struct Fault {
    int id = 0;              ///< a TiXmlBase::TIXML_ERROR_..., 0 for none
    std::size_t offset = 0;  ///< where it was noticed, in bytes from the beginning of the text
    explicit operator bool() const noexcept { return id != 0; }
};

/// The private copy of a reply that a document is made of and then lives in.
class Text {
public:
    /// A text is followed by this many zeros, so that a few characters can be read ahead.
    static constexpr std::size_t padding = 16;

    Text() = default;
    /// Room for `length` bytes, not yet written.
    /// @throws std::bad_alloc, also for a length that no memory can have.
    explicit Text(std::size_t length);

    [[nodiscard]] char* bytes() noexcept { return bytes_.get(); }
    [[nodiscard]] const char* bytes() const noexcept { return bytes_.get(); }
    [[nodiscard]] std::size_t length() const noexcept { return length_; }

    /// Ends the text after this many of its bytes.
    void end(std::size_t length) noexcept;

private:
    std::unique_ptr<char[]> bytes_;
    std::size_t length_ = 0;
};

/// What a text is read by, besides its own bytes.
enum class Manner {
    ofProcess,  ///< as the process is set: its locale's letters, and whether TinyXML condenses white space
    ofUtf8,     ///< alike in every process: UTF-8 whatever the text declares, ASCII letters, white space condensed
};

class Document {
public:
    /// An element. Elements are stored in document order, so those between an element and its end are its descendants.
    /// Offsets are from the beginning of the text.
    struct Node {
        std::uint32_t name;
        std::uint32_t nameLength;
        std::uint32_t value;       ///< of the first child; 0 when there is no child
        std::uint32_t attributes;  ///< index of the first; the last is before the first of the next element
        std::uint32_t end;         ///< index of the next element that is not a descendant
    };
    struct Attribute {
        std::uint32_t name;
        std::uint32_t value;
    };

    /// A document without a text.
    Document() = default;
    /// Reads the text as far as it makes sense. A text of 4 GiB or more is refused; having no text is not a fault.
    /// @throws std::bad_alloc
    explicit Document(Text text, Manner manner = Manner::ofProcess);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    /// The first element of that name at the top level; a null one when there is none.
    [[nodiscard]] Element root(const char* name) const noexcept;
    /// The same; when no element has the first name, the first with the other.
    [[nodiscard]] Element root(const char* name, const char* other) const noexcept;
    /// The document as an element whose children are those at the top level.
    [[nodiscard]] Element top() const noexcept;

    [[nodiscard]] const Fault& fault() const noexcept { return fault_; }
    // What follows is known of a document that is read as UTF-8.

    /// Whether the text is a document from its beginning to its end: one element at the top level, ended by its own end
    /// tag, with nothing before or after it but blanks, comments and instructions, and no markup in it that is none.
    [[nodiscard]] bool isWhole() const noexcept { return isWhole_; }
    /// Whether every byte is ASCII.
    [[nodiscard]] bool isAscii() const noexcept { return isAscii_; }
    /// Whether there is nothing in the document but elements, attributes and values: no text beside an element, no
    /// comment and the like within one, no reference but to the five characters that have names.
    [[nodiscard]] bool isPlain() const noexcept { return isPlain_; }

    /// How many elements there are, the document itself being one.
    [[nodiscard]] std::size_t size() const noexcept { return nodes_ == nullptr ? 0 : nodes_[0].end; }
    [[nodiscard]] Element operator[](std::size_t number) const noexcept;
    /// The number of the next element that is no descendant of this one.
    [[nodiscard]] std::size_t endOf(std::size_t number) const noexcept { return nodes_[number].end; }

    /// Where the parsing ended, in bytes from the beginning of the text: at the end of a whole document.
    [[nodiscard]] std::size_t end() const noexcept { return end_; }

    /// Who is told what is read from the document; null for nobody. It outlives the reading.
    void watchWith(Watch* watch) noexcept { watch_ = watch; }
    /// Whether the text began with a byte-order mark.
    [[nodiscard]] bool hasByteOrderMark() const noexcept { return hasByteOrderMark_; }
    [[nodiscard]] bool hasText() const noexcept { return text_.bytes() != nullptr; }

private:
    friend class Element;
    template <Manner manner>
    friend class DocumentParser;

    void parse(Manner manner);
    template <Manner manner>
    void parseAs();
    void allocate(std::size_t elements, std::size_t attributes);

    static constexpr std::size_t largest = std::numeric_limits<std::uint32_t>::max() - Text::padding;

    Text text_;
    // Enough for an ordinary reply; a larger one is stored on the heap.
    alignas(Node) std::array<std::byte, 2048> few_;
    std::unique_ptr<std::byte[]> many_;
    Node* nodes_ = nullptr;  // The first is the document itself, and one more follows the last.
    Attribute* attributes_ = nullptr;
    Fault fault_;
    std::size_t end_ = 0;
    mutable Watch* watch_ = nullptr;  // Who looks on is no part of what there is.
    bool hasByteOrderMark_ = false;
    bool isWhole_ = false;
    bool isAscii_ = false;
    bool isPlain_ = true;
};

}  // namespace kvj

#endif
