#include "sent.h"

#include <algorithm>

#include "face/value_check.h"

namespace kvj::tool {

namespace {

using kvjxml::finding_kind;

/// Whether a field has another value than the text or attribute that it was read from.
bool saysChanged(const Candidate& found, const Description& row) {
    switch (found.kind) {
        case finding_kind::unknown_word:
        case finding_kind::not_a_number:
        case finding_kind::trailing_text:
        case finding_kind::out_of_range:
        case finding_kind::clamped:
        case finding_kind::text_cut:
            return true;
        case finding_kind::attribute:
            return row.kind == Kind::attribute;
        default:
            return false;
    }
}

/// Whether a second element adds to what came of the first.
bool adds(Kind kind) { return kind == Kind::bits || kind == Kind::combinedCodes || kind == Kind::appendedText; }

bool isSetting(const FieldName& name) {
    const KnownField known = knownField(name);
    return known && known.field->type == FieldType::record;
}

}  // namespace

void Sent::read(const Read& read) {
    const Description& row = read.row;
    if (read.record == nullptr || !hasOwnValue(row.kind)) return;
    Candidates found;
    checkValue(read, found);
    const bool isWithRange = !row.field.empty() && isSetting(row.field);
    const void* const setting = isWithRange ? row.field.at(read.record) : nullptr;
    for (const Candidate& each : found.all) {
        if (setting == nullptr || each.kind != finding_kind::attribute) continue;
        if (const char* const limit = read.element.attribute(each.name.data()))
            add(setting, each.name, {&row, limit, true});
    }

    const bool isAttribute = row.kind == Kind::attribute;
    const char* const text = isAttribute ? read.element.attribute(row.word.data()) : read.element.text();
    if (text == nullptr) return;
    SentValue value{&row, {}};
    // The text of panels is what their elements make together.
    if (!row.words.name.empty() && row.kind != Kind::wordOfPanels) value.text = text;
    const auto change = std::ranges::find_if(found.all, [&](const Candidate& each) { return saysChanged(each, row); });
    if (change != found.all.end()) {
        value.isChanged = true;
        value.text = change->text;
    }

    if (setting != nullptr) return add(setting, "value", std::move(value));
    if (row.kind == Kind::wordOrNext && read.again) return add(read.record, row.otherField.name, std::move(value));
    if (row.kind == Kind::textAndCode) {
        const bool isCut = value.isChanged && change->kind == finding_kind::text_cut;
        add(read.record, row.otherField.name, value);
        if (!isCut) value = {&row, {}};
    }
    add(read.record, row.field.name, std::move(value));
}

void Sent::add(const void* record, std::string_view field, SentValue value) {
    SentValue& known = values_[{static_cast<const std::byte*>(record), field}];
    if (known.isChanged && adds(value.row->kind) && !value.isChanged) return;
    known = std::move(value);
}

const SentValue* Sent::find(const void* record, std::string_view field) const {
    const auto found = values_.find({static_cast<const std::byte*>(record), field});
    return found == values_.end() ? nullptr : &found->second;
}

bool Sent::knows(const void* memory, std::size_t size) const {
    const auto* const first = static_cast<const std::byte*>(memory);
    const auto found = values_.lower_bound({first, {}});
    return found != values_.end() && found->first.first < first + size;
}

void Sent::move(const std::byte* from, std::size_t size, const std::byte* to) {
    auto at = values_.lower_bound({from, {}});
    while (at != values_.end() && at->first.first < from + size) {
        auto node = values_.extract(at++);
        node.key().first = to + (node.key().first - from);
        values_.insert(std::move(node));
    }
}

void Sent::forget(const std::byte* from, std::size_t size) {
    values_.erase(values_.lower_bound({from, {}}), values_.lower_bound({from + size, {}}));
}

}  // namespace kvj::tool
