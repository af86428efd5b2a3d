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

}  // namespace

bool KVJSetMedia::SetMedia(_KVMediaInfo& media, wchar_t* out, int outLen, char allCards, bool omitTransfer) {
    omitTransfer_ = omitTransfer;
    root_ = kvj::beginRequest(*this, "media");
    addMedia(media, allCards);
    return saveJob(out, outLen);
}

bool KVJSetMedia::addMedia(_KVMediaInfo& media, char allCards) {
    const tables::Cards cards =
        media.cards == nullptr ? tables::Cards{} : tables::Cards{media.cards->data(), media.cards->size()};
    return tables::addCards(rootIn(*this, root_), cards, allCards == 1, {.directToCard = omitTransfer_});
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
