/// @file IdentityRecords.h
/// Who a printer is, its logs, and what it read back from a card: the records that KVJPrinterIDParser, KVJLogParser and
/// KVJGetEIN fill.
///
/// Records are plain structures. The host owns them and sets them to zero before the first call; a reader never clears
/// one, so a field whose element is not in the reply keeps its value.
#ifndef KVJXML_IDENTITY_RECORDS_H
#define KVJXML_IDENTITY_RECORDS_H

namespace Kavrin {

// Host applications know these records by names with leading underscores.
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

/// Who a printer is: the reply "printer_id", read by KVJPrinterIDParser::ParsePrinterInfo and written by
/// KVJSetPrinterInfo. Texts are terminated; a longer one is cut to its field and that read reports false.
struct KVPrinterInfo {
    char vendor[32];                    ///< "vendor"
    char printer_model[32];             ///< "printer_model"
    unsigned int printer_serial;        ///< "printer_serial": decimal; a text that is no number leaves it alone.
    unsigned int laminator_serial;      ///< "laminator_serial": likewise.
    unsigned char physical_address[6];  ///< "physical_address": hardware address, "00:1a:2b:3c:4d:5e".
    char printhead_serial[32];          ///< "printhead_serial"
    char oem_country[8];                ///< "oem_country"
    char firmware_version[32];          ///< "firmware_version"
    char laminator_fw_version[32];      ///< "laminator_fw_version". Never written.
    char lam_mab_fw_version[32];        ///< "lam_mab_fw_version". Never written.
    char reserved_version[32];          ///< Neither read nor written.
    char hcb_fw_version[32];            ///< "hcb_fw_version". Never written.
    char mab_fw_version[32];            ///< "mab_fw_version". Never written.
    char kavrin_version[32];            ///< "kavrin_version": of the printer's command-language firmware.
    char ethernet_deviceid[256];        ///< "ethernet_deviceid"
    /// "media_auth_cfg": setting of the media authentication, at most two hexadecimal digits after "0x", "0x1f" as 31;
    /// any other text leaves it alone. Written with at least two digits.
    unsigned int media_auth_cfg;
    unsigned int reserved;                       ///< Neither read nor written.
    unsigned char wireless_physical_address[6];  ///< "wireless_physical_address": as `physical_address`.
};

}  // namespace Kavrin

#endif
