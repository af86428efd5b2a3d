/// @file KVJLogParser.h
/// Reads the printer's service history and cleaning history.
#ifndef KVJXML_KVJ_LOG_PARSER_H
#define KVJXML_KVJ_LOG_PARSER_H

#include "IdentityRecords.h"
#include "kvjxml_export.h"

class TiXmlElement;

namespace Kavrin {

/// Stateless. Replies, results and ownership are as for KVJStatusParser.
class KVJXML_API KVJLogParser {
public:
    /// Reads the reply "get_log_service_history", in two calls. With `log.entries` null it sets `log.count` to the
    /// number of elements in the reply and is true. With an array it fills at most `log.count` entries from index 0 on
    /// and leaves the count; further ones are ignored, and the result is that of the last entry filled, false when
    /// there is none. A history without elements is false and untouched either way.
    bool ParseLogServiceXML(const wchar_t& reply, unsigned long length, _tagLogServiceXML& log);
    /// Reads the reply "get_log_cleaning_history" into the entries from index 0 on; a 33rd and later ones are ignored.
    /// How many were filled is not reported: set the array to zero first.
    bool ParseCleaningLog(const wchar_t& reply, unsigned long length, _tagCleaningLogEntry (&entries)[32]);

    // ---- Walkers: the same, for a host that holds the element already. A null element gives false. ----

    /// Reads the children of a "get_log_service_history" element; see ParseLogServiceXML.
    bool parseServiceHistoryValues(TiXmlElement* element, _tagLogServiceXML& log);
    /// Reads the children of a "service" element.
    bool getServiceValues(TiXmlElement* element, _tagLogServiceValues& entry);
    /// Reads the "cleaning" children of a "get_log_cleaning_history" element; see ParseCleaningLog.
    bool getCleaningLogValues(TiXmlElement* element, _tagCleaningLogEntry (&entries)[32]);
    /// Reads the children of a "cleaning" element.
    bool getCleaningLogEntry(TiXmlElement* element, _tagCleaningLogEntry& entry);
};

}  // namespace Kavrin

#endif
