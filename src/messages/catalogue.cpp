#include "messages/catalogue.h"

#include <MediaRecords.h>

#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace kvj {

namespace {

template <class Entry>
void release(std::vector<Entry*>* list) {
    if (list == nullptr) return;
    for (Entry* entry : *list) std::default_delete<Entry>()(entry);
    std::default_delete<std::vector<Entry*>>()(list);
}

void releaseLists(Kavrin::_KVMediaInfo& media) {
    release(std::exchange(media.cards, nullptr));
    release(std::exchange(media.films, nullptr));
    release(std::exchange(media.ribbons, nullptr));
    release(std::exchange(media.laminates, nullptr));
}

}  // namespace

void beginCatalogue(void* media) {
    auto* const catalogue = new (media) Kavrin::_KVMediaInfo;
    try {
        Kavrin::BuildKVMedia(catalogue);
    } catch (...) {
        releaseLists(*catalogue);
        throw;
    }
}

void endCatalogue(void* media) {
    auto& catalogue = *static_cast<Kavrin::_KVMediaInfo*>(media);
    releaseLists(catalogue);
    std::destroy_at(&catalogue);
}

}  // namespace kvj
