#include "checked_document.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <tuple>
#include <utility>

#include "face/utf8_reply.h"
#include "failure.h"
#include "foundation/element.h"
#include "known_root.h"
#include "merged_rows.h"
#include "messages/any_reading.h"

namespace kvj::tool {

namespace {

using kvjxml::finding;
using kvjxml::finding_kind;

/// Adds what one reader found. Several readers may read the same element, each into a field of its own: a fault in it
/// is told once, for the first of them that has a field.
void add(std::vector<finding>& all, std::vector<finding> found) {
    const auto isLess = [](const finding* one, const finding* other) {
        const auto key = [](const finding& it) { return std::tie(it.offset, it.kind, it.path, it.text); };
        return key(*one) < key(*other);
    };
    std::set<finding*, decltype(isLess)> known(isLess);
    for (finding& one : all) known.insert(&one);
    std::vector<finding> more;
    for (finding& one : found) {
        const auto same = known.find(&one);
        if (same == known.end()) {
            more.push_back(std::move(one));
        } else if ((*same)->field.empty()) {
            **same = std::move(one);  // Its key is the same.
        }
    }
    std::ranges::move(more, std::back_inserter(all));
    std::ranges::stable_sort(all, {}, &finding::offset);
}

/// A document of no known message is read as the one that may have been meant: what is wrong with it otherwise is the
/// same for all.
CheckedDocument unknownDocument(std::string_view bytes, std::string_view root) {
    const std::string_view near = nearestRoot(root);
    const Message& meant = near.empty() ? messages().front() : *messagesWithRoot(near).front();
    AnyReading reading = readAny(meant, bytes, kvjxml::diagnose);
    if (near.empty()) {
        for (finding& one : reading.findings) {
            if (one.kind != finding_kind::unknown_message) continue;
            one.detail = root.empty() ? "there is no element" : "no known message has this name";
        }
    }
    return {.root = {}, .isWhole = reading.whole, .findings = std::move(reading.findings), .omitted = reading.omitted};
}

}  // namespace

CheckedDocument checkDocument(std::string_view bytes) {
    CheckedDocument checked;
    {
        const Utf8Reply document(bytes);
        if (!document.top() && !bytes.empty()) throw Failure(ExitCode::inputOutput, "is too large to be read");
        auto [root, readers] = knownRootIn(document);
        if (!root) return unknownDocument(bytes, firstRootIn(document));
        checked.root = root.name();
        checked.readers = std::move(readers);
    }
    for (const Message* const reader : checked.readers) {
        AnyReading reading = readAny(*reader, bytes, kvjxml::diagnose);
        checked.isWhole = reading.whole;
        checked.omitted = std::max(checked.omitted, reading.omitted);
        add(checked.findings, std::move(reading.findings));
    }
    return checked;
}

}  // namespace kvj::tool
