/// @file KVJGetEIN.h
/// Reads the magnetic tracks that the printer's encoder read back from a card.
#ifndef KVJXML_KVJ_GET_EIN_H
#define KVJXML_KVJ_GET_EIN_H

#include "IdentityRecords.h"
#include "kvjxml_export.h"

class TiXmlElement;

namespace Kavrin {

/// Stateless. Results and ownership are as for KVJStatusParser.
class KVJXML_API KVJGetEIN {
public:
    /// Reads the reply "data". Several "mag" elements overwrite each other's tracks; the last that carries a track
    /// counts.
    /// @param reply    the first character of narrow text that is **terminated by NUL**.
    /// @param ignored  has no effect.
    bool GetMagneticTracks(const char& reply, int ignored, __GETTRACK& tracks);

    // ---- Walkers: the same, for a host that holds the element already. A null element gives false. ----

    /// Reads the "mag" children of a "data" element.
    bool parseMag(TiXmlElement* element, __GETTRACK& tracks);
    /// Reads the children of a "mag" element.
    bool parseTrack(TiXmlElement* element, __GETTRACK& tracks);
};

}  // namespace Kavrin

#endif
