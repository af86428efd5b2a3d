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
        const bool isFilled = list != nullptr && !list->empty();
        if (isFilled) release(list);
        return isFilled;
    };
    releaseFilled(cards);
    releaseFilled(films);
    releaseFilled(ribbons);
    if (releaseFilled(laminates)) {
        // After a record has ended, hosts find its last list null. Compilers leave out a plain store to an object that
        // ends.
        std::vector<_MediaRibbonInfo*>* volatile& last = laminates;
        last = nullptr;
    }
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
