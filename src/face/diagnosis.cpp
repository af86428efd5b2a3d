#include "face/diagnosis.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <set>
#include <span>
#include <utility>

#include "face/joined.h"
#include "face/markup.h"
#include "face/nearest.h"
#include "face/severity.h"
#include "face/value_check.h"
#include "foundation/characters.h"
#include "foundation/references.h"
#include "foundation/utf8.h"

namespace kvj {

namespace {

using kvjxml::finding;
using kvjxml::finding_kind;

Role roleOf(const Description& row) {
    if (row.kind == Kind::attribute || row.kind == Kind::givenAttributes) return Role::bare;
    return hasOwnValue(row.kind) && row.kind != Kind::wordOfPanels ? Role::value : Role::around;
}

/// How many entries the record of the named operation holds in an array of its own; 0 when it has none.
// Records nest as deep as they are declared, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
std::size_t roomIn(const Field& record) {
    if (record.type == FieldType::list && record.entries->storage == Storage::inRecord) return record.entries->room;
    if (record.type != FieldType::record || record.record->fields.size() != 1) return 0;
    return roomIn(record.record->fields.front());
}

/// A text as it is told of: no longer than a line.
std::string excerpt(std::string_view text) {
    std::size_t length = 60;
    if (text.size() <= length) return std::string(text);
    while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80) --length;  // inside a character
    return std::string(text.substr(0, length));
}

std::string quoted(std::string_view name) { return joined({"\"", name, "\""}); }

/// Values that have a record in kvjxml.hpp alone: the message, the name that its table has for the field, and the one
/// that hosts have.
constexpr struct {
    std::string_view message;
    std::string_view name;
    std::string_view own;
} ownFields[] = {
    {"cards_until_cleaning", "", "kvjxml::cleaning_count::cards"},
    {"laminator_response", "response", "kvjxml::laminator_answer::response"},
    {"nonce", "nonce", "kvjxml::nonce_text::nonce"},
    {"printer_key", "printer_interim_key", "kvjxml::printer_interim_key::key"},
};

// ---- Where things are ----

/// Finds out where candidates are, in one pass from the first to the last.
class Places {
public:
    Places(const Document& document, std::string_view bytes, std::span<const std::uint32_t> parents,
           const Message& message)
        : document_(document),
          bytes_(bytes),
          parents_(parents),
          message_(message),
          markLength_(document.hasByteOrderMark() ? characters::markLength : 0) {}

    finding place(Candidate&& candidate) {
        finding found;
        found.kind = candidate.kind;
        found.level = severityOf(candidate.kind);
        found.offset = candidate.offset;
        found.length = candidate.length;
        move(found);
        found.path = pathOf(candidate.node);
        if (!candidate.name.empty()) found.path += "/@" + std::string(candidate.name);
        if (candidate.row != nullptr) {
            found.field = nameOf(candidate.toOther ? candidate.row->otherField : candidate.row->field);
        }
        found.text = std::move(candidate.text);
        found.became = std::move(candidate.became);
        found.detail = std::move(candidate.detail);
        return found;
    }

    [[nodiscard]] std::string pathOf(std::size_t node) {
        constexpr std::size_t deepest = 64;
        std::string path;
        for (std::size_t depth = 0; node != 0 && depth < deepest; ++depth) {
            std::string step = "/" + std::string(document_[node].name());
            if (const std::size_t place = placeAmongSiblings(node)) step += "[" + std::to_string(place) + "]";
            path.insert(0, step);
            node = parents_[node];
        }
        return node == 0 && !path.empty() ? path : "/" + path;  // of one that is deeper the last steps
    }

private:
    [[nodiscard]] std::string nameOf(const FieldName& field) const {
        for (const auto& [message, name, own] : ownFields) {
            if (message == message_.name && name == field.name) return std::string(own);
        }
        const KnownField known = knownField(field);
        return known ? std::string(known.record->name).append("::").append(field.name) : std::string();
    }

    /// From 1, among those of the same name; 0 when there is no other.
    std::size_t placeAmongSiblings(std::size_t node) {
        const std::size_t parent = parents_[node];
        if (numbered_.empty()) {
            numbered_.resize(document_.size());
            places_.resize(document_.size());
        }
        if (!numbered_[parent]) {
            numbered_[parent] = true;
            std::map<std::string_view, std::pair<std::size_t, std::uint32_t>> seen;  // the first one, and how many
            for (const Element child : document_[parent].children()) {
                auto& [first, count] = seen[child.name()];
                if (++count == 1) {
                    first = child.number();
                } else {
                    places_[first] = 1;
                    places_[child.number()] = count;
                }
            }
        }
        return places_[node];
    }

    void move(finding& found) {
        for (; at_ < std::min(found.offset, bytes_.size()); ++at_) {
            if (bytes_[at_] == '\n') {
                ++line_;
                column_ = 1;
            } else if (at_ >= markLength_ && (static_cast<unsigned char>(bytes_[at_]) & 0xC0U) != 0x80) {
                ++column_;
            }
        }
        found.line = line_;
        found.column = column_;
    }

    const Document& document_;
    std::string_view bytes_;
    std::span<const std::uint32_t> parents_;
    const Message& message_;
    std::size_t markLength_;  ///< of the byte-order mark in front, which nobody sees
    std::size_t at_ = 0;
    std::size_t line_ = 1;
    std::size_t column_ = 1;
    std::vector<bool> numbered_;  ///< whether the places of an element's children are known
    std::vector<std::uint32_t> places_;
};

// ---- What the tables know ----

/// The rows inside an element of a message, by the names of the elements down to it; none where it is not known.
std::span<const DescribedRow> rowsInside(std::span<const DescribedRow> rows, std::span<const std::string_view> names) {
    for (const std::string_view name : names) {
        const auto row = std::ranges::find(rows, name, &DescribedRow::name);
        if (row == rows.end()) return {};
        rows = row->description.group;
    }
    return rows;
}

bool hasRoot(const Message& message, std::string_view name) {
    return message.root == name || (!message.otherRoot.empty() && message.otherRoot == name);
}

// ---- What stands between the elements ----

/// A reference is right when it names one of the five, or a character.
bool isRight(std::string_view reference) {
    for (const std::string_view name : {"&amp;", "&lt;", "&gt;", "&quot;", "&apos;"}) {
        if (reference.starts_with(name)) return true;
    }
    if (!reference.starts_with("&#")) return false;
    const bool isHexadecimal = reference.substr(2).starts_with("x");
    std::string_view digits = reference.substr(isHexadecimal ? 3 : 2);
    digits = digits.substr(0, digits.find(';'));
    if (digits.empty() || digits.size() > 10 || digits.size() == reference.size()) return false;
    unsigned long number = 0;
    for (const char c : digits) {
        const bool isDecimal = c >= '0' && c <= '9';
        const char lower = static_cast<char>(c | 0x20);
        if (!isDecimal && !(isHexadecimal && lower >= 'a' && lower <= 'f')) return false;
        number =
            number * (isHexadecimal ? 16 : 10) + static_cast<unsigned long>(isDecimal ? c - '0' : lower - 'a' + 10);
    }
    const bool isSurrogate = number >= 0xD800 && number <= 0xDFFF;
    return number != 0 && number <= 0x10FFFF && !isSurrogate && reference.find(';') != std::string_view::npos;
}

/// What the reading makes of a reference, in a text of its own.
std::string decoded(std::string_view reference) {
    std::vector<char> text(reference.begin(), reference.end());
    text.resize(text.size() + Text::padding);
    char* to = text.data();
    if (decodeReference(text.data(), to, true) == nullptr) return {};
    return {text.data(), to};
}

/// Looks at the pieces of a text.
class Between {
public:
    Between(const Document& document, std::string_view bytes, std::span<const std::uint32_t> parents,
            const Roles& roles, std::size_t root, Candidates& candidates)
        : document_(document),
          bytes_(bytes),
          parents_(parents),
          markup_(document, bytes, parents),
          roles_(roles),
          root_(root),
          candidates_(candidates) {}

    void all() {
        Piece piece{};
        while (markup_.next(piece)) {
            encoding(piece);
            look(piece);
        }
        fault(piece);
        if (const std::size_t nul = bytes_.find('\0'); nul != std::string_view::npos) {
            add(finding_kind::malformed, 0, nul, 1, "a NUL; nothing behind it was read");
        }
    }

private:
    [[nodiscard]] std::string_view textOf(const Piece& piece) const {
        return bytes_.substr(piece.offset, piece.length);
    }

    Candidate& add(finding_kind kind, std::size_t node, std::size_t offset, std::size_t length, std::string detail) {
        return candidates_.add({.kind = kind,
                                .node = node,
                                .text = excerpt(bytes_.substr(offset, length)),
                                .detail = std::move(detail),
                                .offset = offset,
                                .length = length});
    }

    void encoding(const Piece& piece) {
        const std::string_view whole = bytes_.substr(0, piece.offset + piece.length);
        for (std::size_t at = firstOutsideUtf8(whole, piece.offset); at < whole.size();) {
            std::size_t end = at + 1;
            while (end < whole.size() && firstOutsideUtf8(whole.substr(0, end + 1), end) == end) ++end;
            add(finding_kind::encoding, piece.node, at, end - at, "not UTF-8");
            at = firstOutsideUtf8(whole, end);
        }
    }

    void look(const Piece& piece) {
        switch (piece.kind) {
            case Piece::Kind::startTag:
                return startTag(piece);
            case Piece::Kind::text:
                return text(piece);
            case Piece::Kind::cdata:
                return cdata(piece);
            case Piece::Kind::comment:
            case Piece::Kind::instruction:
                return aside(piece);
            case Piece::Kind::other:
                return other(piece);
            case Piece::Kind::rest:
                return rest(piece);
            case Piece::Kind::endTag:
                return;
        }
    }

    void notText(const Piece& piece, std::size_t node, std::string_view what) {
        const char* const value = document_[node].text();
        candidates_.add({.kind = finding_kind::not_text,
                         .node = node,
                         .row = roles_.rowOf(node),
                         .text = excerpt(textOf(piece)),
                         .became = value == nullptr ? std::string() : excerpt(value),
                         .detail = std::string(what) + " was read as the value"});
    }

    void startTag(const Piece& piece) {
        const std::size_t parent = parents_[piece.node];
        if (parent == 0 && piece.node != root_) {
            add(finding_kind::ignored, piece.node, piece.offset, piece.length, "an element beside the message");
        } else if (roles_[parent] == Role::value) {
            if (piece.isFirstChild) {
                notText(piece, parent, "the name of an element");
            } else if (roles_[piece.node] == Role::unread) {
                add(finding_kind::ignored, piece.node, piece.offset, piece.length, "an element beside a value");
            }
        }
        if (roles_[piece.node] != Role::unread && roles_[piece.node] != Role::skipped) references(piece);
    }

    void text(const Piece& piece) {
        if (roles_[piece.node] == Role::value && piece.isFirstChild) return references(piece);
        beside(piece);
    }

    /// A text that is not the value of an element.
    void beside(const Piece& piece) {
        const Role role = roles_[piece.node];
        const std::string_view text = textOf(piece);
        const std::size_t blanks = blanksIn(text);
        if (blanks == text.size()) return;
        if (piece.node != 0 && role != Role::around && role != Role::value && role != Role::bare) return;
        add(finding_kind::ignored, piece.node, piece.offset + blanks, piece.length - blanks,
            role == Role::bare ? "a text where only attributes are read" : "a text beside elements");
    }

    void cdata(const Piece& piece) {
        if (roles_[piece.node] == Role::value && piece.isFirstChild) return;
        beside(piece);
    }

    void aside(const Piece& piece) {
        if (roles_[piece.node] != Role::value || !piece.isFirstChild) return;
        notText(piece, piece.node, piece.kind == Piece::Kind::comment ? "a comment" : "an instruction");
    }

    void other(const Piece& piece) {
        const std::string_view text = textOf(piece);
        const bool isInFront = document_.size() < 2 || piece.offset < document_[1].offset();
        if (text.starts_with("<!DOCTYPE") && isInFront) return;
        if (roles_[piece.node] == Role::value && piece.isFirstChild) notText(piece, piece.node, "what is no text");
        add(finding_kind::malformed, piece.node, piece.offset, piece.length,
            text.starts_with("</") ? "an end tag, and nothing is open" : "no markup");
    }

    /// The reading stopped without an error at the top level, at what is no markup.
    void rest(const Piece& piece) {
        if (document_.fault() || textOf(piece).find_first_not_of('\0') == std::string_view::npos) return;
        if (textOf(piece).starts_with('\0')) return;
        beside(piece);
    }

    void references(const Piece& piece) {
        const std::string_view text = textOf(piece);
        for (std::size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1)) {
            constexpr std::size_t longest = 64;
            const std::string_view reference = text.substr(at, longest);
            if (isRight(reference)) continue;
            const std::size_t semicolon = reference.substr(0, 16).find(';');
            const std::size_t length = semicolon == std::string_view::npos ? 1 : semicolon + 1;
            Candidate& found = add(finding_kind::reference, piece.node, piece.offset + at, length, {});
            found.row = roles_.rowOf(piece.node);
            found.offset = Candidate::atElement;
            found.became = decoded(reference);
            found.detail = found.became.empty() ? "nothing became of it" : "it is no reference to a character";
        }
    }

    void fault(const Piece& last) {
        // At the top level what is cut is no fault to the reader.
        if (!document_.fault()) {
            if (last.isCut) add(finding_kind::malformed, 0, last.offset, last.length, "it does not end");
            return;
        }
        const std::size_t open = document_.openAtEnd();
        const std::string within = open != 0 ? quoted(document_[open].name()) : "nothing";
        const std::size_t at = std::min(markup_.end(), bytes_.size());
        const std::string_view text = bytes_.substr(at);
        std::string detail = text.empty() ? "the reply ends here" : "the reply breaks here";
        if (open != 0) detail += ", while " + within + " is open";
        if (text.starts_with("</")) {
            const std::string_view name = text.substr(2, text.find('>', 2) - 2);
            detail = "the end of " + quoted(excerpt(name)) + ", while " + within + " is open";
        }
        add(finding_kind::malformed, open, at, std::min<std::size_t>(text.size(), 1), std::move(detail));
    }

    const Document& document_;
    std::string_view bytes_;
    std::span<const std::uint32_t> parents_;
    Markup markup_;
    const Roles& roles_;
    std::size_t root_;
    Candidates& candidates_;
};

/// Of a value that is no text only that is told: what it became is a matter of luck.
void dropValuesOf(std::vector<Candidate>& candidates) {
    std::set<std::size_t> notText;
    for (const Candidate& candidate : candidates) {
        if (candidate.kind == finding_kind::not_text) notText.insert(candidate.node);
    }
    std::erase_if(candidates, [&](const Candidate& candidate) {
        switch (candidate.kind) {
            case finding_kind::unknown_word:
            case finding_kind::not_a_number:
            case finding_kind::trailing_text:
            case finding_kind::out_of_range:
            case finding_kind::clamped:
            case finding_kind::text_cut:
                return notText.contains(candidate.node);
            default:
                return false;
        }
    });
}

/// Sorts what was found by its place, and tells where that is.
void tell(Candidates& candidates, Places& places, const Document& document, std::string_view bytes,
          Findings& findings) {
    // A long tag may be what many are about.
    std::size_t node = 0;
    std::size_t offset = 0;
    std::size_t length = 0;
    for (Candidate& candidate : candidates.all) {
        if (candidate.offset != Candidate::atElement) continue;
        if (candidate.node != node) {
            node = candidate.node;
            offset = document[node].offset();
            length = node != 0 ? endOfTag(bytes, offset) - offset : 0;
        }
        candidate.offset = offset;
        candidate.length = length;
    }
    std::ranges::stable_sort(candidates.all, {}, &Candidate::offset);
    const std::size_t told = std::min(candidates.all.size(), Findings::most);
    findings.omitted = candidates.omitted + candidates.all.size() - told;
    findings.all.reserve(told);
    for (Candidate& candidate : std::span(candidates.all).first(told)) {
        findings.all.push_back(places.place(std::move(candidate)));
    }
}

}  // namespace

const std::vector<Readers::Rows>& Readers::inside(std::size_t node, std::span<const std::uint32_t> parents) {
    if (tables_.empty()) {
        for (const Message& message : messages()) {
            if (hasRoot(message, root_.name())) tables_.push_back(message.table);
        }
    }
    if (node_ == node) return inside_;
    node_ = node;
    std::vector<std::string_view> names;
    for (std::size_t at = node; at != 0 && at != root_.number(); at = parents[at])
        names.push_back(document_[at].name());
    std::ranges::reverse(names);
    inside_.clear();
    for (const Rows table : tables_) inside_.push_back(rowsInside(table, names));
    return inside_;
}

Diagnosis::Diagnosis(const Document& document, std::string_view bytes, bool isWhole, Element root,
                     const Message& message, Findings& findings)
    : document_(document),
      bytes_(bytes),
      root_(root),
      message_(message),
      findings_(findings),
      isPlain_(document.isPlain() && isWhole && (root.text() == nullptr || !root.children().empty())),
      readers_(document, root),
      room_(roomIn(message.record)) {}

void Diagnosis::read(const Read& read) {
    const Role role = roleOf(read.row);
    const bool hasElements = !read.element.children().empty();
    isPlain_ &= role == Role::value ? !hasElements : hasElements || read.element.text() == nullptr;
    if (!isPlain_) roles().set(read.element.number(), role, &read.row);
    checkValue(read, candidates_);
    if (read.row.kind == Kind::entry && room_ != 0) countEntry(read.element);
}

void Diagnosis::countEntry(Element element) {
    if (++entries_ <= room_) return;
    candidates_.add({.kind = finding_kind::beyond_capacity,
                     .node = element.number(),
                     .detail = "the record of the named operation has room for " + std::to_string(room_)});
}

void Diagnosis::skip(Element element) {
    if (!isPlain_) roles().set(element.number(), Role::skipped);
    const std::string_view name = element.name();
    for (const auto rows : rowsBeside(element.number())) {
        if (std::ranges::find(rows, name, &DescribedRow::name) != rows.end()) return;
    }
    candidates_.add({.kind = finding_kind::unknown_element, .node = element.number(), .text = excerpt(name)});
}

void Diagnosis::finish() {
    settle();
    if (candidates_.all.empty()) return;
    suggest();
    Places places(document_, bytes_, parents(), message_);
    tell(candidates_, places, document_, bytes_, findings_);
}

std::size_t Diagnosis::count() {
    settle();
    return candidates_.all.size() + candidates_.omitted;
}

void Diagnosis::settle() {
    if (!isPlain_) Between(document_, bytes_, parents(), roles(), root_.number(), candidates_).all();
    dropValuesOf(candidates_.all);
}

void Diagnosis::suggest() {
    for (Candidate& candidate : candidates_.all) {
        if (candidate.kind != finding_kind::unknown_element) continue;
        const std::string_view name = document_[candidate.node].name();
        std::string_view best;
        for (const auto rows : rowsBeside(candidate.node)) {
            if (best.empty()) best = nearest(name, rows, [](const DescribedRow& row) { return row.name; });
        }
        if (!best.empty()) candidate.detail = "did you mean " + quoted(best) + "?";
    }
}

Roles& Diagnosis::roles() {
    if (!roles_) roles_.emplace(document_).set(root_.number(), Role::around);
    return *roles_;
}

const std::vector<std::uint32_t>& Diagnosis::parents() {
    if (parents_.empty()) parents_ = parentsIn(document_);
    return parents_;
}

const std::vector<Readers::Rows>& Diagnosis::rowsBeside(std::size_t node) {
    return readers_.inside(parents()[node], parents());
}

void diagnoseWithout(const Document& document, std::string_view bytes, const Message& message, Findings& findings) {
    Candidates candidates;
    const Roles roles(document);
    const auto parents = parentsIn(document);
    Between(document, bytes, parents, roles, 0, candidates).all();
    // Elements beside the message are all there are.
    std::erase_if(candidates.all, [](const Candidate& candidate) { return candidate.kind == finding_kind::ignored; });
    std::string_view first;
    std::size_t node = 0;
    for (const Element element : document.top().children()) {
        first = element.name();
        node = element.number();
        break;
    }
    const auto best = nearest(first, std::span(&message, 1), [](const Message& one) { return one.root; });
    candidates.add({.kind = finding_kind::unknown_message,
                    .node = node,
                    .text = excerpt(first),
                    .detail = best.empty() || best == first ? quoted(message.root) + " is not in the reply"
                                                            : "did you mean " + quoted(best) + "?"});
    Places places(document, bytes, parents, message);
    tell(candidates, places, document, bytes, findings);
}

}  // namespace kvj
