/// @file identity/logs.h
/// The service and cleaning histories and the tracks read back from a card, element by element.
#ifndef KVJXML_IDENTITY_LOGS_H
#define KVJXML_IDENTITY_LOGS_H

#include "IdentityRecords.h"
#include "foundation/read_rules.h"
#include "foundation/rows.h"

namespace kvj::identity {

using namespace Kavrin;  // the records

// clang-format off

/// "service" in "get_log_service_history"
inline constexpr auto serviceEntry = rows<_tagLogServiceValues>({
    {"number",     number<&_tagLogServiceValues::number>},
    {"code",       number<&_tagLogServiceValues::code>},
    {"year",       number<&_tagLogServiceValues::year>},
    {"month",      number<&_tagLogServiceValues::month>},
    {"card_count", number<&_tagLogServiceValues::card_count>},
});

/// "get_log_service_history"
inline constexpr auto serviceHistory = rows<List<_tagLogServiceValues>>({
    {"service", entry<serviceEntry>},
});

/// "cleaning" in "get_log_cleaning_history"
inline constexpr auto cleaningEntry = rows<_tagCleaningLogEntry>({
    {"number", number<&_tagCleaningLogEntry::number>},
    {"cards",  number<&_tagCleaningLogEntry::cards>},
    {"type",   number<&_tagCleaningLogEntry::type>},
});

/// "get_log_cleaning_history"
inline constexpr auto cleaningHistory = rows<List<_tagCleaningLogEntry>>({
    {"cleaning", entry<cleaningEntry>},
});

/// "mag" in "data"
inline constexpr auto track = rows<__GETTRACK>({
    {"track1", text<&__GETTRACK::track1>},
    {"track2", text<&__GETTRACK::track2>},
    {"track3", text<&__GETTRACK::track3>},
});

/// "data"
inline constexpr auto magneticTracks = rows<__GETTRACK>({
    {"mag", group<track>},
});

// clang-format on

}  // namespace kvj::identity

#endif
