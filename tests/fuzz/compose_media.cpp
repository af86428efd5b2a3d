// The card types of a media catalogue.
#include <KVJSetMedia.h>

#include "composing.h"
#include "fields/media.h"
#include "records.h"

namespace {

using Composer = Kavrin::KVJSetMedia;
using kvj::fuzz::Values;

void media(Values& values) {
    const auto allCards = static_cast<char>(values.number());
    const bool omitTransfer = values.flag();
    const int cards = std::min(values.number(), 8);
    kvj::fuzz::Arrays arrays;
    const Kavrin::KVMediaPointer media(Kavrin::GetKVMedia());
    if (cards >= 0) Kavrin::BuildKVMedia(media.get());  // else it has no list
    for (int i = 0; i < cards; ++i) {
        const bool missing = values.flag();
        auto card = kvj::fuzz::recordOf<Kavrin::_CardInfo>(values, arrays);
        media->cards->push_back(missing ? nullptr : card.release());
    }
    kvj::fuzz::checkWide<Composer>(values, [&](Composer& composer, wchar_t* out, int capacity) {
        return composer.SetMedia(*media, out, capacity, allCards, omitTransfer);
    });
}

constexpr kvj::fuzz::Operation operations[] = {{"SetMedia", media}};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kvj::fuzz::run(operations, data, size);
}
