#include "decoded_document.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>

#include "face/diagnosis.h"
#include "face/findings.h"
#include "failure.h"
#include "foundation/rooms.h"
#include "foundation/watch.h"

namespace kvj::tool {

namespace {

bool hasRoot(const Message& message, std::string_view name) {
    return message.root == name || (!message.otherRoot.empty() && message.otherRoot == name);
}

/// The lists of the record, those that can be read entry by entry only where they are needed; a record that is a list
/// itself has that.
std::vector<GrownList> listsOf(const Message& message, bool areNeeded, Sent* sent) {
    std::vector<GrownList> lists;
    const Field& record = message.record;
    if (record.type == FieldType::list) lists.emplace_back(record, sent);
    if (record.record == nullptr) return lists;
    for (const Field& field : record.record->fields) {
        if (field.type != FieldType::list) continue;
        const bool isReadByEntry = std::ranges::find(message.lists, &field, &HostList::field) != message.lists.end();
        if (areNeeded || !isReadByEntry) lists.emplace_back(field, sent);
    }
    return lists;
}

/// Why a document has no known message.
std::string reasonIn(const Document& document, std::string_view text) {
    if (text.find_first_not_of(" \t\r\n") == std::string_view::npos) return "is empty";
    for (const Element first : document.top().children()) {
        return "the root element \"" + std::string(first.name()) + "\" is not that of a known message";
    }
    return "there is no XML element in it";
}

}  // namespace

// ---- Lists ----

void* GrownList::resize(std::size_t count) noexcept {
    if (count > capacity_) {
        const std::size_t capacity = std::max(count, capacity_ + capacity_ / 2);
        const auto before = reinterpret_cast<std::uintptr_t>(bytes_.get());
        auto* const more = static_cast<std::byte*>(std::malloc(capacity * entrySize()));
        if (more == nullptr) return nullptr;
        if (count_ != 0) std::memcpy(more, bytes_.get(), count_ * entrySize());
        bytes_.reset(more);
        capacity_ = capacity;
        if (sent_ != nullptr) sent_->move(before, count_ * entrySize(), more);
    }
    if (count < count_ && sent_ != nullptr) {
        sent_->forget(bytes_.get() + count * entrySize(), (count_ - count) * entrySize());
    }
    if (count > count_) std::memset(bytes_.get() + count_ * entrySize(), 0, (count - count_) * entrySize());
    count_ = count;
    return bytes_.get();
}

kvjxml_v1_list GrownList::asTarget() {
    return {.name = name_.c_str(), .list = this, .resize = [](void* list, std::size_t count) {
                return static_cast<GrownList*>(list)->resize(count);
            }};
}

// ---- Documents ----

DecodedDocument::DecodedDocument(std::string_view text, std::string_view root, Counting counting, Keeping keeping)
    : document_(text) {
    if (!document_.top() && !text.empty()) throw Failure(ExitCode::inputOutput, "is too large to be read");
    findReaders(text, root);
    for (DecodedMessage& reader : readers_) read(reader, text, counting, keeping);
}

void DecodedDocument::findReaders(std::string_view text, std::string_view root) {
    std::string_view name = root;
    if (name.empty()) {
        for (const Element element : document_.top().children()) {
            if (std::ranges::any_of(messages(), [&](const Message& each) { return hasRoot(each, element.name()); })) {
                name = element.name();
                break;
            }
        }
    }
    for (const Message& message : messages()) {
        if (name.empty() || !hasRoot(message, name)) continue;
        const Element element = document_.root(message.root.data(), message.otherRoot.data());
        if (element) readers_.push_back({.message = &message, .root = element});
    }
    if (!readers_.empty()) return;
    throw Failure(ExitCode::unknownMessage,
                  root.empty() ? reasonIn(document_, text) : "there is no \"" + std::string(root) + "\" in it");
}

void DecodedDocument::read(DecodedMessage& reader, std::string_view text, Counting counting, Keeping keeping) {
    const Message& message = *reader.message;
    reader.record.resize(message.record.size);
    if (keeping == Keeping::yes) reader.sent = std::make_unique<Sent>(message, reader.record.data());
    reader.lists = listsOf(message, counting == Counting::yes || keeping == Keeping::yes, reader.sent.get());
    std::vector<kvjxml_v1_list> lists;
    for (GrownList& list : reader.lists) lists.push_back(list.asTarget());
    std::vector<Room> rooms(lists.begin(), lists.end());
    Findings findings;
    std::optional<Diagnosis> diagnosis;
    if (counting == Counting::yes) diagnosis.emplace(document_, text, isWhole(), reader.root, message, findings);
    Watch::Diagnosis* told = diagnosis ? &*diagnosis : nullptr;
    if (reader.sent != nullptr) {
        reader.sent->passOnTo(told);
        told = reader.sent.get();
    }
    // Always watched: where nobody looks on, a configuration writes to the standard error stream.
    std::vector<unsigned char> carried((reader.record.size() + 7) / 8);
    Watch watch(reader.record.data(), reader.record.size(), carried.data(), told);
    document_.watchWith(&watch);
    message.readRoot(reader.root, reader.record.data(), rooms);
    document_.watchWith(nullptr);
    if (reader.sent != nullptr) reader.sent->passOnTo(nullptr);
    if (!diagnosis) return;
    if (readers_.size() == 1) {
        others_ = diagnosis->count();
        return;
    }
    diagnosis->finish();
    for (const kvjxml::finding& each : findings.all) {
        findings_.emplace(each.offset, each.kind, each.path, each.text);
    }
    others_ = std::max(others_, findings.omitted);
}

// ---- Damage ----

std::string damageIn(std::string_view text, std::size_t line) {
    // What breaks a document is the same for every message.
    const auto reading = kvjxml::read<kvjxml::messages::nonce>(text, kvjxml::diagnose);
    for (const kvjxml::finding& each : reading.findings()) {
        if (each.kind != kvjxml::finding_kind::malformed && each.kind != kvjxml::finding_kind::encoding) continue;
        return "line " + std::to_string(line + each.line) + ", column " + std::to_string(each.column) + ": " +
               each.detail;
    }
    return "there is more in it than one message";
}

}  // namespace kvj::tool
