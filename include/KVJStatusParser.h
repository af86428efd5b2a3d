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
/// most `length` bytes: for a reply with characters beyond ASCII, append as many blanks or zeros as it has bytes more
/// than characters and count them in. With a `length` of zero or less the reply is not touched and the result is false.
///
/// **Results.** True means that the reply holds the message and that the last element recognised in it had a value that
/// fits its field. False means that the message is not in the reply (the record is as it was), that it has no child
/// elements, or that its last recognised element had no text or a text too long; the record then holds all that could
/// be read. A reply that is cut or malformed is read as far as its text goes; one nested deeper than 64 levels, or with
/// more than 256 attributes in one element, counts as one without the message. Elements that are not known are skipped,
/// of repeated elements the last one counts, and names and words are compared with case.
///
/// **Ownership.** Nothing is kept and nothing allocated for the caller. std::bad_alloc is thrown when memory runs out.
class KVJXML_API KVJStatusParser {
public:
    /// Reads the reply "get_general_status".
    bool ParseStatus(const wchar_t& reply, int length, KVGeneralStatus& status);
    /// Reads the reply "get_job_status".
    bool ParseJobStatus(const wchar_t& reply, int length, KVJobStatus& status);

    // ---- Walkers: the same, for a host that holds the element already. A null element gives false. ------------------

    /// Reads the children of a "get_general_status" element.
    bool parseStatus(TiXmlElement* element, KVGeneralStatus& status);
    /// Reads the children of a "get_job_status" element.
    bool parseJobStatus(TiXmlElement* element, KVJobStatus& status);
    /// Reads the children of a "status_printing" element.
    bool parseJobPrinting(TiXmlElement* element, KVJobStatus& status);
    /// Reads the children of a "status_mag", "status_contact" or "status_contactless" element: any of "mag_state",
    /// "contact_state" and "contactless_state", whichever group it stands in.
    bool getStatus(TiXmlElement* element, KVJobStatus& status);

    // ---- Words to codes: a NUL-terminated word, compared with case
    // ---------------------------------------------------

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
};

}  // namespace Kavrin

#endif
