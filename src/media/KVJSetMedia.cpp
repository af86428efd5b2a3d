#include "KVJSetMedia.h"

#include "foundation/request.h"
#include "media/tables.h"

namespace Kavrin {

using kvj::addGroup;
namespace tables = kvj::media;

namespace {

/// The root, while the document has it: a host may have cleared the document since, or copied it.
TiXmlElement* rootIn(TiXmlDocument& document, TiXmlElement* root) {
    for (TiXmlNode* node = document.FirstChild(); node != nullptr; node = node->NextSibling()) {
        if (node == root) return root;
    }
    return nullptr;
}

/// The card types that every printer takes.
bool isBasic(const _CardInfo& card) { return card.type == 0 || card.type == 1; }

}  // namespace

bool KVJSetMedia::SetMedia(_KVMediaInfo& media, wchar_t* out, int outLen, char allCards, bool omitTransfer) {
    omitTransfer_ = omitTransfer;
    root_ = kvj::beginRequest(*this, "media");
    addMedia(media, allCards);
    return saveJob(out, outLen);
}

bool KVJSetMedia::addMedia(_KVMediaInfo& media, char allCards) {
    TiXmlElement* cards = kvj::addTag(rootIn(*this, root_), "cards");
    if (cards == nullptr || media.cards == nullptr) return false;
    bool result = false;
    for (const _CardInfo* card : *media.cards) {
        if (card != nullptr && (allCards == 1 || isBasic(*card))) result = addCardInfo(cards, *card);
    }
    return result;
}

bool KVJSetMedia::addCardInfo(TiXmlElement* under, _CardInfo card) {
    return addGroup(under, "card", card, tables::cardTags, {.directToCard = omitTransfer_});
}

bool KVJSetMedia::addCardInformation(TiXmlElement* under, const _CardInfo& card) {
    return addGroup(under, "information", card, kvj::cardInformationTags<_CardInfo>);
}

bool KVJSetMedia::addTransferTemps(TiXmlElement* under, const _TransferTempInfo& temperatures) {
    return addGroup(under, "transfer_temps", temperatures, kvj::transferTemps);
}

bool KVJSetMedia::addTransferSpeeds(TiXmlElement* under, const _TransferSpeedInfo& speeds) {
    return addGroup(under, "transfer_speeds", speeds, kvj::transferSpeeds);
}

bool KVJSetMedia::addLaminationAdjustments(TiXmlElement* under, const _LaminationAdjustmentsNew& adjustments) {
    return addGroup(under, "laminator_adjustments", adjustments, kvj::laminatorAdjustments);
}

bool KVJSetMedia::saveJob(wchar_t* out, int outLen) { return kvj::print(*this, out, outLen); }

bool KVJSetMedia::saveJob(char* path) { return kvj::save(*this, path); }

}  // namespace Kavrin
