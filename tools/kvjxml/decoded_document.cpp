#include "decoded_document.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "face/diagnosis.h"
#include "face/findings.h"
#include "failure.h"
#include "foundation/rooms.h"
#include "foundation/watch.h"
#include "known_root.h"
#include "merged_rows.h"
#include "messages/any_reading.h"
#include "xml_text.h"

namespace kvj::tool {

namespace {

/// Whether the entries of a list can be read one by one.
bool isReadByEntry(const Message& message, const Field& list) {
    return std::ranges::find(message.lists, &list, &HostList::field) != message.lists.end();
}

}  // namespace

// ---- Documents ----

DecodedDocument::DecodedDocument(std::string_view text, std::string_view root, Counting counting, Keeping keeping)
    : document_(text) {
    if (!document_.top() && !text.empty()) throw Failure(ExitCode::inputOutput, "is too large to be read");
    findReaders(text, root);
    for (DecodedMessage& reader : readers_) read(reader, text, counting, keeping);
}

void DecodedDocument::findReaders(std::string_view text, std::string_view root) {
    for (const Message* const message : root.empty() ? knownRootIn(document_).readers : messagesWithRoot(root)) {
        const Element element = document_.root(message->root.data(), message->otherRoot.data());
        if (element) readers_.push_back({.message = message, .root = element});
    }
    if (!readers_.empty()) return;
    if (!root.empty()) throw Failure(ExitCode::unknownMessage, "there is no \"" + std::string(root) + "\" in it");
    throw Failure(ExitCode::unknownMessage, isBlank(text) ? "is empty" : describeUnknown(document_));
}

void DecodedDocument::read(DecodedMessage& reader, std::string_view text, Counting counting, Keeping keeping) {
    const Message& message = *reader.message;
    reader.record.resize(message.record.size);
    if (keeping == Keeping::yes) reader.sent = std::make_unique<Sent>(message, reader.record.data());
    const bool needsAll = counting == Counting::yes || keeping == Keeping::yes;
    for (const Field* const list : listsOf(message.record)) {
        if (needsAll || !isReadByEntry(message, *list)) reader.lists.emplace_back(*list, reader.sent.get());
    }
    const std::vector<kvjxml_v1_list> lists = asTargets(reader.lists);
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

std::string damageIn(const Message& message, std::string_view text, std::size_t line) {
    using enum kvjxml::finding_kind;
    const auto findings = readAny(message, text, kvjxml::diagnose).findings;
    const auto breaks = [](const kvjxml::finding& each) { return each.kind == malformed || each.kind == encoding; };
    auto fault = std::ranges::find_if(findings, breaks);
    // Nothing breaks what stands behind the message, and is the last that nobody reads.
    const auto behind = std::ranges::find(findings.rbegin(), findings.rend(), ignored, &kvjxml::finding::kind);
    if (fault == findings.end() && behind != findings.rend()) fault = std::prev(behind.base());
    if (fault == findings.end()) return "there is more in it than one message";
    return "line " + std::to_string(line + fault->line) + ", column " + std::to_string(fault->column) + ": " +
           fault->detail;
}

}  // namespace kvj::tool
