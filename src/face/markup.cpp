#include "face/markup.h"

#include <algorithm>

#include "foundation/characters.h"

namespace kvj {

namespace {

bool isBlank(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return characters::is(c, characters::blank); });
}

}  // namespace

std::size_t endOfTag(std::string_view bytes, std::size_t from) {
    for (std::size_t at = from; at < bytes.size(); ++at) {
        at = bytes.find_first_of(">\"'", at);
        if (at == std::string_view::npos) break;
        if (bytes[at] == '>') return at + 1;
        at = bytes.find(bytes[at], at + 1);
        if (at == std::string_view::npos) break;
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

std::size_t Markup::behind(std::string_view last, std::size_t from) const {
    const std::size_t found = bytes_.find(last, from);
    return found == std::string_view::npos ? bytes_.size() : found + last.size();
}

bool Markup::takeFirstChild(std::size_t node) {
    const bool isFirst = !hasChild_[node];
    hasChild_[node] = true;
    return isFirst;
}

bool Markup::next(Piece& piece) {
    piece = {Piece::Kind::rest, open_, at_, 0};
    const auto found = [&](Piece::Kind kind, std::size_t end) {
        piece.kind = kind;
        piece.length = end - at_;
        at_ = end;
        return true;
    };
    if (at_ >= bytes_.size()) return false;
    const std::string_view rest = bytes_.substr(at_);
    if (at_ >= end_) return found(Piece::Kind::rest, bytes_.size());
    if (rest[0] != '<') return text(piece);
    if (rest.starts_with("</") && open_ != 0) {
        open_ = parents_[open_];
        return found(Piece::Kind::endTag, behind(">", at_));
    }
    if (count_ < document_.size() && document_[count_].offset() == at_) return startTag(piece);
    piece.isFirstChild = takeFirstChild(open_);
    if (rest.starts_with("<!--")) return found(Piece::Kind::comment, behind("-->", at_ + 4));
    if (rest.starts_with("<![CDATA[")) return found(Piece::Kind::cdata, behind("]]>", at_ + 9));
    if (rest.starts_with("<?")) return found(Piece::Kind::instruction, behind(">", at_));
    return found(Piece::Kind::other, behind(">", at_));
}

bool Markup::text(Piece& piece) {
    const std::size_t end = std::min(bytes_.find('<', at_), end_);
    const std::string_view content = bytes_.substr(at_, end - at_);
    piece.kind = Piece::Kind::text;
    piece.length = content.size();
    piece.isFirstChild = !isBlank(content) && takeFirstChild(open_);
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
