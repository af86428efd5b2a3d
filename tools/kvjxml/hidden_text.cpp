#include "hidden_text.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

#include "face/markup.h"
#include "face/utf8_reply.h"
#include "foundation/document.h"
#include "foundation/element.h"
#include "secrets.h"

namespace kvj::tool {

namespace {

using kvjxml::finding_kind;
using Rows = std::vector<const DescribedRow*>;

bool isSecretRow(const DescribedRow& row) {
    const auto is = [](const FieldName& field) { return isSecret(field.record, field.name); };
    return is(row.description.field) || is(row.description.otherField);
}

// Groups nest as deep as the tables are written, so the recursion ends.
// NOLINTNEXTLINE(misc-no-recursion)
bool haveSecrets(std::span<const DescribedRow> rows) {
    return std::ranges::any_of(rows, [](const DescribedRow& row) {  // NOLINT(misc-no-recursion): likewise
        return isSecretRow(row) || haveSecrets(row.description.group);
    });
}

/// Whether a message is a secret text, without elements.
bool isSecretText(const Message& message) {
    return message.table.empty() && message.record.record != nullptr &&
           isSecret(message.record.record->name, message.record.name);
}

bool hasSecrets(const Message& message) { return isSecretText(message) || haveSecrets(message.table); }

/// Whether the text of each element of a document may be shown.
class ShownElements {
public:
    ShownElements(const Document& document, const CheckedDocument& checked)
        : readers_(checked.readers),
          isSafe_(!checked.readers.empty() && std::ranges::none_of(checked.readers, hasSecretsOf)) {
        shown_.resize(document.size() + 1);
        nameless_.resize(document.size() + 1);
        const Element root = checked.root.empty() ? Element() : document.root(checked.root.c_str());
        if (!root) return;
        if (isSafe_) {
            std::fill(shown_.begin() + static_cast<std::ptrdiff_t>(root.number()),
                      shown_.begin() + static_cast<std::ptrdiff_t>(document.endOf(root.number())), true);
            return;
        }
        std::vector<std::span<const DescribedRow>> tables;
        for (const Message* const reader : readers_) tables.push_back(reader->table);
        const bool isText = std::ranges::all_of(tables, [](const auto& table) { return table.empty(); });
        shown_[root.number()] = isText && std::ranges::none_of(readers_, isSecretTextOf);
        if (std::ranges::any_of(readers_, isSecretTextOf)) hideNamesIn(document, root.number());
        look(document, root.number(), tables);
    }

    [[nodiscard]] bool operator[](std::size_t node) const { return shown_[node]; }
    /// Whether an element's own name may be shown: in the place of a value it is read as one.
    [[nodiscard]] bool isNameShown(std::size_t node) const { return !nameless_[node]; }
    /// Whether the message is known to have no secrets.
    [[nodiscard]] bool isSafe() const { return isSafe_; }

private:
    static bool hasSecretsOf(const Message* message) { return hasSecrets(*message); }
    static bool isSecretTextOf(const Message* message) { return isSecretText(*message); }

    using Tables = std::vector<std::span<const DescribedRow>>;

    /// An element that is read, and the rows for what is in it.
    struct Open {
        std::size_t end;
        Tables inside;
    };

    void hideNamesIn(const Document& document, std::size_t node) {
        for (std::size_t inside = node + 1; inside < document.endOf(node); ++inside) nameless_[inside] = true;
    }

    void look(const Document& document, std::size_t root, const Tables& tables) {
        std::vector<Open> open{{document.endOf(root), tables}};
        for (std::size_t node = root + 1; node < document.endOf(root);) {
            while (node >= open.back().end) open.pop_back();
            Rows rows;
            for (const auto& table : open.back().inside) {
                const auto row = std::ranges::find(table, document[node].name(), &DescribedRow::name);
                if (row != table.end()) rows.push_back(&*row);
            }
            shown_[node] = !rows.empty() && std::ranges::all_of(rows, [](const DescribedRow* row) {
                return hasOwnValue(row->description.kind) && !isSecretRow(*row);
            });
            Tables inside;
            for (const DescribedRow* const row : rows) {
                if (isSecretRow(*row)) hideNamesIn(document, node);
                if (!row->description.group.empty()) inside.push_back(row->description.group);
            }
            // What is in an element without rows stays hidden.
            if (inside.empty()) {
                node = document.endOf(node);
            } else {
                open.push_back({document.endOf(node), std::move(inside)});
                ++node;
            }
        }
    }

    std::span<const Message* const> readers_;
    bool isSafe_;
    std::vector<bool> shown_;
    std::vector<bool> nameless_;
};

/// How much of the place where a document breaks is shown: an end tag, and of a message without secrets what looks like
/// the rest of a tag.
std::size_t shownOfRest(std::string_view rest, bool isSafe) {
    const std::size_t end = rest.find('>');
    if (end == std::string_view::npos) return 0;
    const bool isEndTag = rest.starts_with("</") && rest.find('<', 2) > end;
    return isEndTag || isSafe ? end + 1 : 0;
}

/// How much at the beginning of a piece is shown; nothing for one that is shown as it is.
std::optional<std::size_t> shownInFront(const Piece& piece, std::string_view text, const Document& document,
                                        const ShownElements& isShown) {
    const bool isNameShown = isShown.isNameShown(piece.node);
    switch (piece.kind) {
        case Piece::Kind::startTag:
            if (isShown[piece.node]) return std::nullopt;
            return isNameShown ? document[piece.node].name().size() + 1 : 0;
        case Piece::Kind::endTag:
            return isNameShown ? std::nullopt : std::optional<std::size_t>(0);
        case Piece::Kind::instruction:
            return piece.node == 0 || isShown[piece.node] ? std::nullopt : std::optional<std::size_t>(0);
        case Piece::Kind::rest:
            return shownOfRest(text, isShown.isSafe());
        default:
            return isShown[piece.node] ? std::nullopt : std::optional(blanksIn(text));
    }
}

/// How much at the end of a start tag is shown with its name.
std::size_t shownBehind(std::string_view tag) { return tag.ends_with("/>") ? 2 : tag.ends_with('>') ? 1 : 0; }

}  // namespace

HiddenText::HiddenText(std::string_view bytes, const CheckedDocument& checked) {
    const Utf8Reply document(bytes);
    if (!document.top()) return;
    const ShownElements isShown(document, checked);
    const auto parents = parentsIn(document);
    Markup markup(document, bytes, parents);
    for (Piece piece{}; markup.next(piece);) {
        const std::string_view text = bytes.substr(piece.offset, piece.length);
        const auto inFront = shownInFront(piece, text, document, isShown);
        if (!inFront) continue;
        const bool isTag = piece.kind == Piece::Kind::startTag;
        if (isTag) elements_.push_back(piece.offset);
        hide(piece.offset + *inFront, piece.offset + piece.length - (isTag && *inFront != 0 ? shownBehind(text) : 0));
    }
}

void HiddenText::hide(std::size_t first, std::size_t last) {
    if (first >= last) return;
    if (!ranges_.empty() && ranges_.back().last == first) {
        ranges_.back().last = last;
    } else {
        ranges_.push_back({first, last});
    }
}

std::string HiddenText::shown(std::string_view bytes, std::size_t first, std::size_t last) const {
    std::string text;
    auto range = std::ranges::upper_bound(ranges_, first, {}, &Range::last);
    for (; range != ranges_.end() && range->first < last; ++range) {
        if (range->first > first) text += bytes.substr(first, range->first - first);
        text += masked;
        first = range->last;
    }
    if (first < last) text += bytes.substr(first, last - first);
    return text;
}

kvjxml::finding HiddenText::shown(kvjxml::finding finding) const {
    const auto range = std::ranges::upper_bound(ranges_, finding.offset, {}, &Range::last);
    const bool overlaps = range != ranges_.end() && range->first < finding.offset + finding.length;
    const bool isAboutHidden = std::ranges::binary_search(elements_, finding.offset) ||
                               (overlaps && finding.kind != finding_kind::unknown_element);
    // Its text is the element's own name.
    const bool isName = finding.kind == finding_kind::unknown_element || finding.kind == finding_kind::unknown_message;
    if (!isAboutHidden || isName) return finding;
    if (!finding.text.empty()) finding.text = masked;
    if (!finding.became.empty()) finding.became = masked;
    // What is quoted may be a part of it.
    if (finding.detail.find('"') != std::string::npos) finding.detail = masked;
    return finding;
}

}  // namespace kvj::tool
