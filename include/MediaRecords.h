/// @file MediaRecords.h
/// The media that a printer knows: a catalogue of card types, films, ribbons and laminates, which, unlike the other
/// records of the library, owns memory on the heap, because its lists grow with the reply.
///
/// The life of a catalogue:
///
///     _KVMediaInfo* media = GetKVMedia();                    // created: four null fields
///     BuildKVMedia(media);                                   // built: four empty lists
///     KVJMediaParser().GetMedia(text[0], length, *media);    // filled: each call appends
///     for (const _CardInfo* card : *media->cards) use(*card);
///     DestroyKVMedia(media);                                 // released, the record and all that is in it
///
/// or, with a smart pointer that does all of it, even when an exception passes:
///
///     const KVMediaPointer media = MakeKVMedia();
///     KVJMediaParser().GetMedia(text[0], length, *media);
#ifndef KVJXML_MEDIA_RECORDS_H
#define KVJXML_MEDIA_RECORDS_H

#include <memory>
#include <vector>

#include "ConfigurationRecords.h"
#include "kvjxml_export.h"

namespace Kavrin {

// Host applications know these records by names with leading underscores and capitals.
// NOLINTBEGIN(bugprone-reserved-identifier)

/// A type of card. The first eight elements stand in its "information". Of its settings only the values are read, as
/// they are; their ranges stay 0. Settings with a fraction are written with their maximum as text.
struct _CardInfo {
    int type;                                         ///< "type"
    char partNumber[16];                              ///< "vessa_part_number"
    char description[64];                             ///< "description"
    float thickness;                                  ///< "thickness"
    unsigned char coercivity;                         ///< "coercivity": code of the word, see COERCIVITYTYPES.
    unsigned char magStripe : 1;                      ///< "mag_stripe": 1 for "yes" and "enabled".
    unsigned char contactEncode : 1;                  ///< "contact_encode": likewise.
    unsigned char nonContactEncode : 1;               ///< "non_contact_encode": likewise.
    _TransferTempInfo transferTemps;                  ///< "transfer_temps"
    _TransferSpeedInfo transferSpeeds;                ///< "transfer_speeds"
    _LaminationAdjustmentsNew laminationAdjustments;  ///< "laminator_adjustments"
    int calTable;                                     ///< "cal_table": number of the calibration table.
};

/// A film, a ribbon or a laminate. A field whose element is missing is empty. Texts are terminated; a longer one is
/// cut.
struct _MediaRibbonInfo {
    char partNumber[16];   ///< "vessa_part_number"
    char description[64];  ///< "description"
};

/// The catalogue: the reply "media", read by KVJMediaParser::GetMedia. The lists, and the entries that they point to,
/// are the catalogue's own; a host that takes an entry out of a list takes it over.
struct _KVMediaInfo {
    std::vector<_CardInfo*>* cards = nullptr;           ///< "cards" / "card"
    std::vector<_MediaRibbonInfo*>* films = nullptr;    ///< "films" / "film"
    std::vector<_MediaRibbonInfo*>* ribbons = nullptr;  ///< Never filled by reading a reply.
    /// "laminates" / "laminate", and "ribbons" / "laminate" as well.
    std::vector<_MediaRibbonInfo*>* laminates = nullptr;

    _KVMediaInfo() = default;
    /// Releases the lists that are not empty, with their entries. **An empty list stays allocated**: only
    /// DestroyKVMedia releases everything. Of the fields only `laminates` is null afterwards, and only where it was
    /// released.
    KVJXML_API ~_KVMediaInfo();
    // Two records would release the same lists.
    _KVMediaInfo(const _KVMediaInfo&) = delete;
    _KVMediaInfo& operator=(const _KVMediaInfo&) = delete;
};

// NOLINTEND(bugprone-reserved-identifier)

/// Creates a record with four null fields, a new one each time, which the caller owns: release it with DestroyKVMedia.
KVJXML_API _KVMediaInfo* GetKVMedia();

/// Gives a fresh record four empty lists. What its fields held before is overwritten **without being released**, so it
/// is called once for each record. Null is left alone.
KVJXML_API void BuildKVMedia(_KVMediaInfo* media);

/// Releases a record that came from GetKVMedia, built or not, with its lists and all their entries. Null is left alone.
KVJXML_API void DestroyKVMedia(_KVMediaInfo* media);

/// For std::unique_ptr: releases a record with DestroyKVMedia.
struct KVMediaDeleter {
    void operator()(_KVMediaInfo* media) const { DestroyKVMedia(media); }
};
using KVMediaPointer = std::unique_ptr<_KVMediaInfo, KVMediaDeleter>;

/// Creates and builds a record that releases itself.
inline KVMediaPointer MakeKVMedia() {
    KVMediaPointer media(GetKVMedia());
    BuildKVMedia(media.get());
    return media;
}

}  // namespace Kavrin

#endif
