/// @file KVJStatusParser.h
/// Reads the printer's status replies into plain records.
#ifndef KVJXML_KVJ_STATUS_PARSER_H
#define KVJXML_KVJ_STATUS_PARSER_H

#include "StatusRecords.h"
#include "kvjxml_export.h"

class TiXmlElement;

namespace Kavrin {

/// Stateless: one object serves any number of calls, in any number of threads, on separate records.
///
/// **Replies.** `reply` is the first character of the reply as wide text, `length` the number of its characters; a
/// terminator is not needed. The library converts it to multibyte text in the process's locale, and of that takes at
/// most `length` bytes: for a reply with characters beyond ASCII, append as many blanks or zeros as it has more bytes
/// than characters, and count them in `length`. With a `length` of zero or less the reply is not touched and the result
/// is false.
///
/// **Results.** True means that the reply holds the message and that the last element recognised in it had a value that
/// fits its field. False means that the message is not in the reply (the record is as it was), that it has no child
/// elements, or that its last recognised element had no text or a text too long; the record then holds all that could
/// be read. A reply that is cut or malformed is read as far as its text goes. Elements that are not known are skipped,
/// of repeated elements the last one counts, and names and words are compared with case.
///
/// **Ownership.** Nothing is kept and nothing allocated for the caller. std::bad_alloc is thrown when memory runs out.
class KVJXML_API KVJStatusParser {
public:
    /// Reads the reply "get_general_status".
    bool ParseStatus(const wchar_t& reply, int length, KVGeneralStatus& status);
    /// Reads the reply "get_job_status".
    bool ParseJobStatus(const wchar_t& reply, int length, KVJobStatus& status);
    /// Reads the reply "get_media_status".
    bool ParseMediaStatus(const wchar_t& reply, int length, MediaStatus& status);
    /// Reads the reply "get_job_list". Set `list.count` before, see KVJobList. A list without jobs is false, with a
    /// `count` of 0.
    bool ParseJobList(const wchar_t& reply, int length, KVJobList& list);
    /// Reads the card counters of the reply "get_count", which may carry the count of ParseCleanLogCount as well.
    bool ParseCardCount(const wchar_t& reply, int length, KVCardCount& counts);
    /// Reads the reply "get_laminator_up_times".
    bool ParseUpTime(const wchar_t& reply, int length, KVUpTimes& times);
    /// Reads the reply "get_free_ram".
    bool GetPrinterFreeSpace(const wchar_t& reply, int length, __MEMORY& memory);
    /// Reads the reply "get_free_flash".
    bool GetFlashFreeSpace(const wchar_t& reply, int length, __MEMORY& memory);
    /// Reads the reply "get_cleaning_status".
    bool ParseCleaningStatus(const wchar_t& reply, int length, KVCleaningStatus& status);
    /// Reads "total_cards_until_next_cleaning", a number of cards, from the reply "get_count".
    bool ParseCleanLogCount(const wchar_t& reply, int length, int& cards);
    /// Reads the reply "get_sensor_status"; KVJSensorParser reads other parts of the same reply.
    bool ParseSensorStatus(const wchar_t& reply, int length, _SENSOR& sensors);
    /// Reads the reply "get_wireless_status".
    bool ParseWirelessStatusXML(const wchar_t& reply, int length, _tagWirelessStatus& status);
    /// Reads the reply "get_wireless_radio_status".
    bool ParseWirlessRadioXML(const wchar_t& reply, int length, _tagWirelessRadioStatus& status);
    /// Reads the reply "AccessPoints", in two calls. With `list.accessPoints` null it sets `list.count` to the number
    /// of elements in the reply and is true. With an array, a count above 0 is its capacity: the entries are filled
    /// from index 0 on, and the result is that of the last one filled, false when there is none. A reply with more
    /// elements than that fills as many entries and leaves the count; otherwise the count becomes the number of
    /// elements.
    ///
    /// **With an array and a count of 0 the array is not measured**: it must then have as many entries as the reply has
    /// elements, which is certain only for the very reply that was counted.
    bool ParseAccessPoints(const wchar_t& reply, int length, _tagAccessPoints& list);

    // ---- Walkers: the same, for a host that holds the element already. A null element gives false. ----

    /// Reads the children of a "get_general_status" element.
    bool parseStatus(TiXmlElement* element, KVGeneralStatus& status);
    /// Reads the children of a "get_job_status" element.
    bool parseJobStatus(TiXmlElement* element, KVJobStatus& status);
    /// Reads the children of a "status_printing" element.
    bool parseJobPrinting(TiXmlElement* element, KVJobStatus& status);
    /// Reads the children of a "status_mag", "status_contact" or "status_contactless" element: any of "mag_state",
    /// "contact_state" and "contactless_state", whichever group it stands in.
    bool getStatus(TiXmlElement* element, KVJobStatus& status);
    /// Reads the children of a "get_media_status" element.
    bool parseMediaStatus(TiXmlElement* element, MediaStatus& status);
    /// Reads the children of a "ribbon" element into `status.ribbon`.
    bool getRibbonStatus(TiXmlElement* element, MediaStatus& status);
    /// Reads the children of a "film" element into `status.film`.
    bool getInTMStatus(TiXmlElement* element, MediaStatus& status);
    /// Reads the children of a "top_laminate" or "bottom_laminate" element. Its "type" goes to `laminate.code`.
    bool getLaminateStatus(TiXmlElement* element, _MediaStatusInfo& laminate);
    /// Appends the texts of the "panel" children of a "sequence" element, without a separator, to `description`.
    /// @param description  a terminated text in a buffer of 32 characters. What does not fit is cut, and the read of
    ///                     that panel is false; so is the whole when `description` is null.
    /// @return the result of the last panel; false when there is none.
    bool getRibbonDescription(TiXmlElement* element, char* description);
    /// Reads the children of a "get_job_list" element; see ParseJobList.
    bool parseJobList(TiXmlElement* element, KVJobList& list);
    /// Reads the children of a "job" element.
    bool parseJobInfo(TiXmlElement* element, _KVJobInfo& job);
    /// Reads the card counters among the children of a "get_count" element.
    bool parseCardCount(TiXmlElement* element, KVCardCount& counts);
    /// Reads the children of a "get_laminator_up_times" element.
    bool parseUpTime(TiXmlElement* element, KVUpTimes& times);
    /// Reads the children of a "get_free_ram" or "get_free_flash" element.
    bool getFreeSpace(TiXmlElement* element, __MEMORY& memory);
    /// Reads "total_cards_until_next_cleaning" among the children of a "get_count" element.
    bool parseCleanLog(TiXmlElement* element, int& cards);
    /// Reads the children of a "get_sensor_status" element.
    bool parseSensorStatus(TiXmlElement* element, _SENSOR& sensors);
    /// Reads the children of a "sensor_states" element.
    bool parseSensorState(TiXmlElement* element, _SENSOR& sensors);
    /// Reads the children of a "sensor_values" element.
    bool parseSensorValue(TiXmlElement* element, _SENSOR& sensors);
    /// Reads the children of a "get_wireless_status" element.
    bool parseWirelessStatus(TiXmlElement* element, _tagWirelessStatus& status);
    /// Reads the children of an "in" or "out" element.
    bool ParsePacketsInfo(TiXmlElement* element, _tagPackets& packets);
    /// Reads the children of a "get_wireless_radio_status" element.
    bool parseWirelessRadioStatus(TiXmlElement* element, _tagWirelessRadioStatus& status);
    /// Reads the children of an "AccessPoints" element; see ParseAccessPoints.
    bool parseAllWirelessAccessPoint(TiXmlElement* element, _tagAccessPoints& list);
    /// Reads the children of an "AccessPoint" element.
    bool parseWirelessAccessPoints(TiXmlElement* element, _tagAccessPoint& accessPoint);

    // ---- Elements whose words are combined ----
    // True when the element has text, whether or not its word is known. The code is OR-ed into `codes`, which the host
    // sets to zero first: a second reading into the same one combines the codes. Only these spellings are known.

    /// The security of a wireless network: "open" and "none" 0, "WEP", "wep", "WEP40" and "wep40" 1, "WEP104" and
    /// "wep104" 2, "WPA" and "wpa" 3, "WPA2" and "wpa2" 4, "WPA_WPA2", "WPA2_WPA", "wpa_wpa2" and "wpa2_wpa" 5; any
    /// other word adds nothing.
    bool GetSecurity(TiXmlElement* element, unsigned int& codes);
    /// The cipher of a wireless network: "none" 0, "RC4" and "rc4" 1, "TKIP" and "tkip" 2, "CCMP" and "ccmp" 3,
    /// "TKIP_CCMP", "CCMP_TKIP", "tkip_ccmp" and "ccmp_tkip" 4; any other word adds nothing.
    bool GetCrypto(TiXmlElement* element, unsigned int& codes);

    // ---- Words to codes: a NUL-terminated word, compared with case ----

    /// The state of the printer: "initializing" 1, "idle" 2, "xfer_rollers_heating" and "printing_heating" 3,
    /// "standby" 4, "printing" 5, "alarm_handling" 6, "offline" 7, "canceling" 8, "temp_out_of_range" 9, "mag_ops" 10,
    /// "contact_ops" 11, "contactless_ops" 12, "config_data" 13, "job_data" 14, "diagnostic_mode" 15,
    /// "xfer_rollers_cooling", "printing_cooling" and "laminating_cooling" 16, "insert_card" 17, "laminating" 18,
    /// "laminating_heating" 19, "cleaning" 26, "card_ready" 35; any other word 38.
    int printerStateToInt(char* word);
    /// The state of the laminator: "uninitialized" 1, "initializing" 2, "ready" 3, "standby" 4, "laminating" 5,
    /// "not_ready" 6, "not_used" 7, "init_error" 8, "comm_error" 9, "fault_error" 10, "door_open" 11; any other word 0.
    int lamStateToInt(char* word);
    /// The state of a job's printing or encoding, or the position of its card: "initializing" 0, "receiving" 1,
    /// "receive_ok" 2, "receive_error" 3, "receive_offline" 4, "parsed" 5, "in_progress" 6, "done_ok" 7, "done_error"
    /// 8, "cancelled_by_user" 9, "cancelled_by_error" 10, "yes" 11, "no" 12, "yellow" 13, "magenta" 14, "cyan" 15,
    /// "black" 16, "clear" 17, "cleaning_up" 18, "encoding" 19, "verifying" 20, "reading" and "mag_read" 21,
    /// "read_error" 22, "read_ein_error" 23, "write_error" 24, "retrace_error" 25, "at_station" 26,
    /// "smart_encode_error" 27, "contact_error" 28, "contactless_error" 29, "not_in_printer" 30, "feeding" 31,
    /// "in_process" 32, "ejecting_eject" 33, "ejecting_reject" 34, "ejecting_feeder" 35, "held" 36, "transfer_wait" 37,
    /// "transferring" 38, "laminate" 39, "laminate_insert" 40, "laminating" 41, "waiting_printer" 42, "printing" 43;
    /// any other word -1.
    int jobStatusToInt(char* word);
    /// The state of a cleaning: "cleaning" 0, "start_cleaning" 1, "remove_ribbon" 2, "remove_cards" 3,
    /// "remove_ribbon_and_cards" 4, "insert_cleaning_card" 5, "reload_ribbon" 6, "reload_ribbon_and_cards" 7,
    /// "cleaning_aborted" 8, "cleaning_not_in_progress" 9; any other word 10.
    int cleaningStateToInt(char* word);
    /// The state of the wireless link: "off" 0, "disconnected" 1, "inactive" 2, "scanning" 3, "associating" 4,
    /// "associated" 5, "handshake" 6, "connected" 7; any other word 0.
    int GetWirelessState(char* word);
};

}  // namespace Kavrin

#endif
