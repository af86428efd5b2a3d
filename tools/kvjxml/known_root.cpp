#include "known_root.h"

#include <utility>

#include "face/nearest.h"
#include "merged_rows.h"
#include "suggestion.h"

namespace kvj::tool {

KnownRoot knownRootIn(const Document& document) {
    for (const Element root : document.top().children()) {
        auto readers = messagesWithRoot(root.name());
        if (!readers.empty()) return {root, std::move(readers)};
    }
    return {};
}

std::string_view firstRootIn(const Document& document) {
    for (const Element root : document.top().children()) return root.name();
    return {};
}

std::string_view nearestRoot(std::string_view root) {
    return nearest(root, messages(), [](const Message& message) { return message.root; });
}

std::string describeUnknown(const Document& document) {
    const std::string_view root = firstRootIn(document);
    if (root.empty()) return "there is no XML element in it";
    return "the root element \"" + std::string(root) + "\" is not that of a known message" + meant(nearestRoot(root));
}

}  // namespace kvj::tool
