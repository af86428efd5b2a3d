#include "MediaRecords.h"

#include <utility>

namespace Kavrin {

namespace {

/// Releases a list's entries, its storage and the list.
template <class Entry>
void release(std::vector<Entry*>* list) {
    for (Entry* entry : *list) delete entry;
    delete list;
}

}  // namespace

_KVMediaInfo::~_KVMediaInfo() {
    const auto releaseFilled = [](auto* list) {
        if (list != nullptr && !list->empty()) release(list);
    };
    releaseFilled(cards);
    releaseFilled(films);
    releaseFilled(ribbons);
    releaseFilled(laminates);
    laminates = nullptr;
}

_KVMediaInfo* GetKVMedia() { return new _KVMediaInfo; }

void BuildKVMedia(_KVMediaInfo* media) {
    if (media == nullptr) return;
    // All null before anything can fail, so that what is there can be released whatever happens.
    media->cards = nullptr;
    media->films = media->ribbons = media->laminates = nullptr;
    media->cards = new std::vector<_CardInfo*>;
    media->films = new std::vector<_MediaRibbonInfo*>;
    media->ribbons = new std::vector<_MediaRibbonInfo*>;
    media->laminates = new std::vector<_MediaRibbonInfo*>;
}

void DestroyKVMedia(_KVMediaInfo* media) {
    if (media == nullptr) return;
    const auto releaseAny = [](auto*& list) {
        if (list != nullptr) release(std::exchange(list, nullptr));
    };
    releaseAny(media->cards);
    releaseAny(media->films);
    releaseAny(media->ribbons);
    releaseAny(media->laminates);
    delete media;
}

}  // namespace Kavrin
