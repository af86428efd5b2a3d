#include <kvjxml_v1.h>

#include <algorithm>
#include <new>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "face/diagnosis.h"
#include "face/findings.h"
#include "face/utf8_reply.h"
#include "foundation/document.h"
#include "foundation/element.h"
#include "foundation/rooms.h"
#include "foundation/watch.h"
#include "messages/message.h"

namespace kvj {

namespace {

void tellRoot(const Document& document, const kvjxml_v1_target& target) {
    std::string_view name;
    for (const Element element : document.top().children()) {
        name = element.name();
        break;
    }
    target.root[name.copy(target.root, target.root_size - 1)] = '\0';
}

int read(const Message& message, std::string_view bytes, const kvjxml_v1_target& target, Findings* findings) {
    Utf8Reply document(bytes);
    const bool isWhole = document.isWholeReply();
    const Element root = document.root(message.root.data(), message.otherRoot.data());
    if (root) {
        std::optional<Diagnosis> diagnosis;
        if (findings != nullptr) diagnosis.emplace(document, bytes, isWhole, root, message, *findings);
        Watch watch(target.record, target.size, target.carried, diagnosis ? &*diagnosis : nullptr);
        document.watchWith(&watch);
        std::vector<Room> rooms(target.lists, target.lists + target.lists_count);
        message.readRoot(root, target.record, rooms);
        if (diagnosis) diagnosis->finish();
    } else {
        tellRoot(document, target);
        if (findings != nullptr) diagnoseWithout(document, bytes, message, *findings);
    }
    const bool isTooLarge = !document.top();
    return (root ? kvjxml_v1_found : 0) | (isWhole ? kvjxml_v1_whole : 0) | (isTooLarge ? kvjxml_v1_too_large : 0);
}

}  // namespace

}  // namespace kvj

int kvjxml_v1_read(int message, const char* text, size_t length, const kvjxml_v1_target* target,
                   kvjxml_v1_findings** findings) {
    try {
        const auto all = kvj::messages();
        const auto number = static_cast<std::size_t>(message);
        if (number >= all.size()) {  // The host is newer than the library.
            *target->root = '\0';
            return 0;
        }
        const kvj::Message& row = all[number];
        if (findings == nullptr) return kvj::read(row, {text, length}, *target, nullptr);
        kvj::Findings found;
        const int result = kvj::read(row, {text, length}, *target, &found);
        *findings = kvj::handOver(std::move(found));
        return result;
    } catch (const std::bad_alloc&) {
        return kvjxml_v1_no_memory;
    }
}
