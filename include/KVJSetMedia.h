/// @file KVJSetMedia.h
/// Composes the card types of a media catalogue.
#ifndef KVJXML_KVJ_SET_MEDIA_H
#define KVJXML_KVJ_SET_MEDIA_H

#include <tinyxml.h>

#include "MediaRecords.h"
#include "kvjxml_export.h"

namespace Kavrin {

/// The object is the document that is composed. Composing appends to it: a second SetMedia gives a document with two
/// roots, so take **a fresh object for each request**, in one thread at a time.
///
/// Films, ribbons and laminates are never written. Texts of the records need not be terminated.
///
/// **Size.** Hosts are compiled with the size of the object, so it stays as it is.
class KVJXML_API KVJSetMedia : public TiXmlDocument {
public:
    /// Composes "media" / "cards" and prints it.
    /// @param media  a null list of cards counts as an empty one, a null entry is left out.
    /// @param out  room for `outLen` wide characters. The request is converted to them in the process's locale, and its
    ///             terminator is written when there is room for it. A request that fills the capacity, or that contains
    ///             a byte that the locale does not know, ends without one: leave room to spare, and set the buffer to
    ///             zero first.
    /// @param allCards      1 writes every card; any other value those of the types 0 and 1 only.
    /// @param omitTransfer  "transfer_temps" and "transfer_speeds" are left out: printing is direct to card.
    /// @return whether it was printed, even if it was cut; false, with nothing written, when `out` is null or `outLen`
    ///         negative.
    bool SetMedia(_KVMediaInfo& media, wchar_t* out, int outLen, char allCards, bool omitTransfer);

    /// Adds a further "cards" to the document that SetMedia composed. False when there is none, or no card is written;
    /// else the result of the last card.
    bool addMedia(_KVMediaInfo& media, char allCards);

    // ---- Parts of a card ----
    // Each adds its element to `under`. The result is that of the last element written; false for a null element.

    /// "card": "information", "transfer_temps" and "transfer_speeds" unless they are left out, "laminator_adjustments",
    /// "cal_table".
    bool addCardInfo(TiXmlElement* under, _CardInfo card);
    /// "information": "type", "vessa_part_number", "description", "thickness", "coercivity", "mag_stripe",
    /// "contact_encode", "non_contact_encode". A coercivity without a word is written empty.
    bool addCardInformation(TiXmlElement* under, const _CardInfo& card);
    bool addTransferTemps(TiXmlElement* under, const _TransferTempInfo& temperatures);  ///< "transfer_temps"
    bool addTransferSpeeds(TiXmlElement* under, const _TransferSpeedInfo& speeds);      ///< "transfer_speeds"
    /// "laminator_adjustments"
    bool addLaminationAdjustments(TiXmlElement* under, const _LaminationAdjustmentsNew& adjustments);

    /// Prints the document again; see SetMedia.
    bool saveJob(wchar_t* out, int outLen);
    /// Saves the document to the file `path`. False when that is null or cannot be written.
    bool saveJob(char* path);

private:
    TiXmlElement* root_ = nullptr;  ///< Of the last request; the document owns it.
    bool omitTransfer_ = false;
};

}  // namespace Kavrin

#endif
