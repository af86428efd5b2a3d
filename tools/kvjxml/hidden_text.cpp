#include "hidden_text.h"

#include <algorithm>
#include <span>
#include <utility>

#include "face/markup.h"
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
        look(document, root.number(), tables);
    }

    [[nodiscard]] bool operator[](std::size_t node) const { return shown_[node]; }
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
};

/// How much of the place where a document breaks is shown: an end tag, and of a message without secrets what looks like
/// the rest of a tag.
std::size_t shownOfRest(std::string_view rest, bool isSafe) {
    const std::size_t end = rest.find('>');
    if (end == std::string_view::npos) return 0;
    const bool isEndTag = rest.starts_with("</") && rest.find('<', 2) > end;
    return isEndTag || isSafe ? end + 1 : 0;
}

}  // namespace

HiddenText::HiddenText(std::string_view bytes, const CheckedDocument& checked) {
    const std::string_view content = bytes.substr(0, bytes.find('\0'));
    Text text(content.size());
    std::ranges::copy(content, text.bytes());
    const Document document(std::move(text), Manner::ofUtf8);
    if (!document.top()) return;
    const ShownElements isShown(document, checked);
    const auto parents = parentsIn(document);
    Markup markup(document, bytes, parents);
    for (Piece piece{}; markup.next(piece);) {
        std::size_t skipped = 0;
        switch (piece.kind) {
            case Piece::Kind::startTag:
                if (isShown[piece.node]) continue;
                elements_.push_back(piece.offset);
                skipped = document[piece.node].name().size() + 1;
                break;
            case Piece::Kind::endTag:
                continue;
            case Piece::Kind::instruction:
                if (piece.node == 0 || isShown[piece.node]) continue;
                break;
            case Piece::Kind::rest:
                skipped = shownOfRest(bytes.substr(piece.offset, piece.length), isShown.isSafe());
                break;
            default:
                if (isShown[piece.node]) continue;
                skipped = blanksIn(bytes.substr(piece.offset, piece.length));
                break;
        }
        std::size_t last = piece.offset + piece.length;
        if (piece.kind == Piece::Kind::startTag && bytes[last - 1] == '>') {
            --last;
            if (bytes[last - 1] == '/') --last;
        }
        if (piece.offset + skipped < last) ranges_.push_back({piece.offset + skipped, last});
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
