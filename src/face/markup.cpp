#include "face/markup.h"

#include <algorithm>
#include <array>

#include "foundation/characters.h"

namespace kvj {

namespace {

/// Where a text ends: at the next delimiter that is seen. A character of several bytes takes all of them along, and a
/// numbered reference everything up to its semicolon.
std::size_t endOfText(std::string_view bytes, std::size_t from, char delimiter) {
    for (std::size_t at = from; at < bytes.size();) {
        const char c = bytes[at];
        if (c == delimiter) return at;
        if (c == '&' && bytes.substr(at).starts_with("&#")) {
            at = bytes.find(';', at);
            if (at == std::string_view::npos) break;
            ++at;
        } else {
            at += characters::lengthInUtf8(c);
        }
    }
    return bytes.size();
}

bool beginsInAnyCase(std::string_view text, std::string_view words) {
    return text.size() >= words.size() &&
           std::ranges::equal(text.substr(0, words.size()), words,
                              [](char c, char word) { return (c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c) == word; });
}

/// Where a declaration ends that is not wrong: at the first ">" that is in no value. Only these three have values.
std::size_t endOfDeclaration(std::string_view bytes, std::size_t from) {
    constexpr std::string_view blanks = " \t\n\v\f\r";
    constexpr std::string_view blanksAndEnd = " \t\n\v\f\r>";
    for (std::size_t at = from; (at = bytes.find_first_not_of(blanks, at)) != std::string_view::npos;) {
        if (bytes[at] == '>') return at + 1;
        const bool hasValue =
            std::ranges::any_of(std::array{"encoding", "version", "standalone"},
                                [&](const char* name) { return beginsInAnyCase(bytes.substr(at), name); });
        if (hasValue) {
            const std::size_t equals = bytes.find('=', at);
            at = equals == std::string_view::npos ? equals : bytes.find_first_not_of(blanks, equals + 1);
            if (at == std::string_view::npos) break;
            if (bytes[at] == '"' || bytes[at] == '\'') {
                at = endOfText(bytes, at + 1, bytes[at]) + 1;
                continue;
            }
        }
        at = bytes.find_first_of(blanksAndEnd, at);
    }
    return std::string_view::npos;
}

}  // namespace

std::vector<std::uint32_t> parentsIn(const Document& document) {
    std::vector<std::uint32_t> parents(document.size() + 1);
    std::uint32_t open = 0;
    for (std::uint32_t node = 1; node < document.size(); ++node) {
        while (node >= document.endOf(open)) open = parents[open];
        parents[node] = open;
        open = node;
    }
    return parents;
}

std::size_t blanksIn(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size()) {
        const bool isMark = text.size() - at >= characters::markLength && characters::beginsWithMark(text.data() + at);
        if (!isMark && !characters::is(text[at], characters::blank)) break;
        at += isMark ? characters::markLength : 1;
    }
    return at;
}

std::size_t endOfTag(std::string_view bytes, std::size_t from) {
    for (std::size_t at = from; at < bytes.size(); ++at) {
        at = bytes.find_first_of(">\"'", at);
        if (at == std::string_view::npos) break;
        if (bytes[at] == '>') return at + 1;
        at = endOfText(bytes, at + 1, bytes[at]);
    }
    return bytes.size();
}

Markup::Markup(const Document& document, std::string_view bytes, std::span<const std::uint32_t> parents)
    : document_(document),
      bytes_(bytes),
      end_(document.fault() ? std::min(document.fault().offset, document.end()) : document.end()),
      parents_(parents),
      hasChild_(document.size() + 1) {
    if (bytes.starts_with("\xEF\xBB\xBF")) at_ = 3;
}

bool Markup::takeFirstChild(std::size_t node) {
    const bool isFirst = !hasChild_[node];
    hasChild_[node] = true;
    return isFirst;
}

bool Markup::next(Piece& piece) {
    if (at_ >= bytes_.size()) return false;
    piece = {Piece::Kind::rest, open_, at_, bytes_.size() - at_};
    const std::string_view rest = bytes_.substr(at_);
    // The reader noticed only behind its beginning that an end tag is wrong.
    const bool isEndTag = rest.starts_with("</") && open_ != 0;
    if (isEndTag && at_ < end_) {
        const std::size_t last = rest.find('>');
        if (last != std::string_view::npos && at_ + last >= end_) end_ = at_;
    }
    if (at_ >= end_) {
        at_ = bytes_.size();
        return true;
    }
    if (rest[0] != '<') return text(piece);
    if (isEndTag) {
        open_ = parents_[open_];
        return upTo(">", 0, Piece::Kind::endTag, piece);
    }
    if (count_ < document_.size() && document_[count_].offset() == at_) return startTag(piece);
    piece.isFirstChild = takeFirstChild(open_);
    if (rest.starts_with("<!--")) return upTo("-->", 4, Piece::Kind::comment, piece);
    if (rest.starts_with("<![CDATA[")) return upTo("]]>", 9, Piece::Kind::cdata, piece);
    if (beginsInAnyCase(rest, "<?xml")) return upTo(endOfDeclaration(bytes_, at_ + 5), Piece::Kind::instruction, piece);
    if (rest.starts_with("<?")) return upTo(">", 0, Piece::Kind::instruction, piece);
    return upTo(">", 0, Piece::Kind::other, piece);
}

bool Markup::upTo(std::string_view last, std::size_t from, Piece::Kind kind, Piece& piece) {
    const std::size_t found = bytes_.find(last, at_ + from);
    return upTo(found == std::string_view::npos ? found : found + last.size(), kind, piece);
}

bool Markup::upTo(std::size_t end, Piece::Kind kind, Piece& piece) {
    piece.kind = kind;
    piece.isCut = end == std::string_view::npos;
    if (!piece.isCut) piece.length = end - at_;
    at_ += piece.length;
    return true;
}

bool Markup::text(Piece& piece) {
    const std::size_t end = std::min(endOfText(bytes_, at_, '<'), end_);
    const std::string_view content = bytes_.substr(at_, end - at_);
    piece.kind = Piece::Kind::text;
    piece.length = content.size();
    piece.isFirstChild = blanksIn(content) != content.size() && takeFirstChild(open_);
    at_ = end;
    return true;
}

bool Markup::startTag(Piece& piece) {
    const std::size_t end = endOfTag(bytes_, at_);
    piece = {Piece::Kind::startTag, count_, at_, end - at_, takeFirstChild(open_)};
    const bool isEmpty = end - at_ >= 2 && bytes_[end - 1] == '>' && bytes_[end - 2] == '/';
    if (!isEmpty) open_ = count_;
    ++count_;
    at_ = end;
    return true;
}

}  // namespace kvj
