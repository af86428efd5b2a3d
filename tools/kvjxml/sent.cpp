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

bool hasLists(const Field& record) {
    return record.type == FieldType::record &&
           std::ranges::find(record.record->fields, FieldType::list, &Field::type) != record.record->fields.end();
}

}  // namespace

void Sent::read(const Read& read) {
    keep(read);
    if (next_ != nullptr) next_->read(read);
}

void Sent::keep(const Read& read) {
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
    const Field& whole = message_->record;
    const auto offset = reinterpret_cast<std::uintptr_t>(record) - reinterpret_cast<std::uintptr_t>(record_);
    if (offset >= whole.size && whole.type != FieldType::list && !hasLists(whole)) {
        // It is read into a record that several messages share, and copied from there. What is no field of a host's
        // record is then the value that stands for itself.
        record = record_;
        if (!knownField(value.row->field)) field = whole.name;
    }
    SentValue& known = values_[key(record, field)];
    if (known.isChanged && adds(value.row->kind) && !value.isChanged) return;
    known = std::move(value);
}

const SentValue* Sent::find(const void* record, std::string_view field) const {
    const auto found = values_.find(key(record, field));
    return found == values_.end() ? nullptr : &found->second;
}

bool Sent::knows(const void* memory, std::size_t size) const {
    const auto first = key(memory, {});
    const auto found = values_.lower_bound(first);
    return found != values_.end() && found->first.first < first.first + size;
}

void Sent::move(std::uintptr_t from, std::size_t size, const void* to) {
    const Key end{from + size, {}};
    std::map<Key, SentValue> moved;
    for (auto at = values_.lower_bound({from, {}}); at != values_.end() && at->first < end;) {
        auto node = values_.extract(at++);
        node.key().first = node.key().first - from + reinterpret_cast<std::uintptr_t>(to);
        moved.insert(moved.end(), std::move(node));
    }
    values_.merge(moved);
}

void Sent::forget(const void* first, std::size_t size) {
    const Key begin = key(first, {});
    values_.erase(values_.lower_bound(begin), values_.lower_bound({begin.first + size, {}}));
}

}  // namespace kvj::tool
