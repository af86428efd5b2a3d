/// @file face/markup.h
/// A reply's text once more, as it came: what stands between its elements, which the reading passes over. It goes along
/// with the elements that the reading made, and stops where those do.
#ifndef KVJXML_FACE_MARKUP_H
#define KVJXML_FACE_MARKUP_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "foundation/document.h"
#include "foundation/element.h"

namespace kvj {

/// A piece of the text. It belongs to the innermost element that is open there, an element's tags to itself.
struct Piece {
    enum class Kind : std::uint8_t {
        startTag,
        endTag,
        text,
        cdata,
        comment,
        instruction,
        other,  ///< a document type, or what is no markup
        rest,   ///< what the reading did not come to
    };
    Kind kind;
    std::size_t node;
    std::size_t offset;
    std::size_t length;
    bool isFirstChild = false;  ///< of its element; a start tag of its parent
    bool isCut = false;         ///< its end is not there
};

/// The number of the element around each of a document's.
std::vector<std::uint32_t> parentsIn(const Document& document);

/// Goes through a text.
class Markup {
public:
    /// `bytes` are what the document was made of.
    Markup(const Document& document, std::string_view bytes, std::span<const std::uint32_t> parents);

    /// @return false at the end of the text; the piece stays the last one.
    bool next(Piece& piece);

    /// Where the reading stopped.
    [[nodiscard]] std::size_t end() const { return end_; }

private:
    /// A piece that ends with this, which is looked for after so many bytes.
    bool upTo(std::string_view last, std::size_t from, Piece::Kind kind, Piece& piece);
    bool upTo(std::size_t end, Piece::Kind kind, Piece& piece);
    bool text(Piece& piece);
    bool startTag(Piece& piece);
    bool takeFirstChild(std::size_t node);

    const Document& document_;
    std::string_view bytes_;
    std::size_t at_ = 0;
    std::size_t end_;
    std::size_t open_ = 0;
    std::size_t count_ = 1;  ///< of elements passed
    std::span<const std::uint32_t> parents_;
    std::vector<bool> hasChild_;
};

/// The length of the blanks that a text begins with; byte-order marks are some.
std::size_t blanksIn(std::string_view text);

/// Where a start tag that begins at `from` ends.
std::size_t endOfTag(std::string_view bytes, std::size_t from);

}  // namespace kvj

#endif
