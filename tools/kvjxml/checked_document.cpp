#include "checked_document.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <tuple>
#include <utility>

#include "face/nearest.h"
#include "foundation/document.h"
#include "foundation/element.h"
#include "reading.h"

namespace kvj::tool {

namespace {

using kvjxml::finding;
using kvjxml::finding_kind;

std::vector<std::string> rootsIn(std::string_view bytes) {
    const std::string_view content = bytes.substr(0, bytes.find('\0'));
    Text text(content.size());
    std::ranges::copy(content, text.bytes());
    const Document document(std::move(text), Manner::ofUtf8);
    std::vector<std::string> roots;
    if (!document.top()) return roots;
    for (const Element root : document.top().children()) roots.emplace_back(root.name());
    return roots;
}

std::vector<const Message*> readersOf(std::string_view root) {
    std::vector<const Message*> readers;
    for (const Message& message : messages()) {
        if (message.root == root || (!message.otherRoot.empty() && message.otherRoot == root)) {
            readers.push_back(&message);
        }
    }
    return readers;
}

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
CheckedDocument unknownDocument(std::string_view bytes, const std::vector<std::string>& roots) {
    const std::string first = roots.empty() ? std::string() : roots.front();
    const auto nearestRoot = nearest(first, messages(), [](const Message& message) { return message.root; });
    const bool isNear = !nearestRoot.empty();
    const Message& meant = isNear ? *readersOf(nearestRoot).front() : messages().front();
    Reading reading = readMessage(meant, bytes, Diagnosing::yes);
    if (!isNear) {
        for (finding& one : reading.findings) {
            if (one.kind != finding_kind::unknown_message) continue;
            one.detail = roots.empty() ? "there is no element" : "no known message has this name";
        }
    }
    return {
        .root = {}, .isWhole = reading.isWhole, .findings = std::move(reading.findings), .omitted = reading.omitted};
}

}  // namespace

CheckedDocument checkDocument(std::string_view bytes) {
    const auto roots = rootsIn(bytes);
    const auto root = std::ranges::find_if(roots, [](const std::string& name) { return !readersOf(name).empty(); });
    if (root == roots.end()) return unknownDocument(bytes, roots);
    CheckedDocument checked{.root = *root, .readers = readersOf(*root)};
    for (const Message* const reader : checked.readers) {
        Reading reading = readMessage(*reader, bytes, Diagnosing::yes);
        checked.isWhole = reading.isWhole;
        checked.omitted = std::max(checked.omitted, reading.omitted);
        add(checked.findings, std::move(reading.findings));
    }
    return checked;
}

}  // namespace kvj::tool
