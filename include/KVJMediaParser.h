/// @file KVJMediaParser.h
/// Reads the catalogue of the media that a printer knows.
#ifndef KVJXML_KVJ_MEDIA_PARSER_H
#define KVJXML_KVJ_MEDIA_PARSER_H

#include "MediaRecords.h"
#include "kvjxml_export.h"

class TiXmlElement;

namespace Kavrin {

/// Stateless. One catalogue is read into, written from or released by one thread at a time.
///
/// **Memory.** When it runs out, std::bad_alloc propagates. The catalogue then holds the entries that were read until
/// then. It can still be used, and DestroyKVMedia releases all of it.
class KVJXML_API KVJMediaParser {
public:
    /// Reads the reply "media" and appends what it holds to the lists of the catalogue: nothing is cleared, and reading
    /// twice doubles the entries. There is no limit to their number.
    /// @param text    the first character of the reply as multibyte text, terminated by NUL.
    /// @param length  is ignored.
    /// @param media   prepared with BuildKVMedia. A list that is null is not filled.
    /// @return **always false**: hosts see in the lists what was read.
    bool GetMedia(const char& text, int length, _KVMediaInfo& media);

    // ---- Walkers ----
    // The same, for a host that holds the element already. Each is false for a null element and one that has no child
    // element, else the result of the last child element that it knows.

    /// Reads the children of a "media" element. The result is that of the last section in it.
    bool parseMedia(TiXmlElement* root, _KVMediaInfo& media);

    /// Each reads one section, and appends an entry for every element in it that it knows.
    bool getCardsInfo(TiXmlElement* section, _KVMediaInfo& media);    ///< "cards": "card".
    bool getFilmsInfo(TiXmlElement* section, _KVMediaInfo& media);    ///< "films": "film".
    bool getRibbonsInfo(TiXmlElement* section, _KVMediaInfo& media);  ///< "ribbons": **"laminate"**, to the laminates.
    bool getLaminatesInfo(TiXmlElement* section, _KVMediaInfo& media);  ///< "laminates": "laminate".

    /// Each reads one entry and appends it, also when there is nothing in it. A null element appends nothing.
    bool getCardInfo(TiXmlElement* entry, _KVMediaInfo& media);      ///< To the cards.
    bool getFilmInfo(TiXmlElement* entry, _KVMediaInfo& media);      ///< To the films.
    bool getRibbonInfo(TiXmlElement* entry, _KVMediaInfo& media);    ///< To the ribbons. No section calls it.
    bool getLaminateInfo(TiXmlElement* entry, _KVMediaInfo& media);  ///< To the laminates.

    /// Each reads one part of a card. Of settings only the value is read, and it is not brought into any range.
    bool getCardInformation(TiXmlElement* element, _CardInfo& card);               ///< "information"
    bool getTransferTemp(TiXmlElement* element, _TransferTempInfo& temperatures);  ///< "transfer_temps"
    bool getTransferSpeed(TiXmlElement* element, _TransferSpeedInfo& speeds);      ///< "transfer_speeds"
    /// "laminator_adjustments"
    bool getLaminationAdjustments(TiXmlElement* element, _LaminationAdjustmentsNew& adjustments);
};

}  // namespace Kavrin

#endif
