/// @file IdentityRecords.h
/// The printer's logs and what it read back from a card: the records that KVJLogParser and KVJGetEIN fill.
///
/// Records are plain structures. The host owns them and sets them to zero before the first call; a reader never clears
/// one, so a field whose element the reply does not carry keeps the value that it had.
#ifndef KVJXML_IDENTITY_RECORDS_H
#define KVJXML_IDENTITY_RECORDS_H

namespace Kavrin {

// The leading underscores are the names that host applications know these records by.
// NOLINTBEGIN(bugprone-reserved-identifier)

/// One entry of the service history.
struct _tagLogServiceValues {
    int number;      ///< "number": number of the entry.
    int code;        ///< "code": the printer's service code.
    int year;        ///< "year"
    int month;       ///< "month"
    int reserved;    ///< Never written.
    int card_count;  ///< "card_count": cards made until that service.
};

/// The service history: the reply "get_log_service_history", read by KVJLogParser::ParseLogServiceXML in two calls.
struct _tagLogServiceXML {
    /// In, with an array: how many entries it holds. Out, without one: how many elements the reply has, of whatever
    /// name.
    int count;
    /// "service": an array of the host's with at least `count` entries, or null to ask for its size only.
    _tagLogServiceValues* entries;
};

/// One entry of the cleaning history: the reply "get_log_cleaning_history", read by KVJLogParser::ParseCleaningLog.
struct _tagCleaningLogEntry {
    int number;  ///< "number": number of the entry.
    int cards;   ///< "cards": cards made until that cleaning.
    int type;    ///< "type": the printer's cleaning type.
};

/// The tracks that the magnetic encoder read from a card: the reply "data", read by KVJGetEIN::GetMagneticTracks. Texts
/// are terminated; a longer one is cut to 255 characters and that read reports false.
struct __GETTRACK {
    char track1[256];  ///< "mag" / "track1"
    char track2[256];  ///< "mag" / "track2"
    char track3[256];  ///< "mag" / "track3"
};

// NOLINTEND(bugprone-reserved-identifier)

}  // namespace Kavrin

#endif
