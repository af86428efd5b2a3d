/// @file StatusRecords.h
/// What the printer reports about itself: the records that KVJStatusParser fills.
///
/// Records are plain structures. The host owns them and sets them to zero before the first call; a reader never clears
/// one, so a field whose element the reply does not carry keeps the value that it had.
#ifndef KVJXML_STATUS_RECORDS_H
#define KVJXML_STATUS_RECORDS_H

namespace Kavrin {

/// What the printer as a whole is doing: the reply "get_general_status", read by KVJStatusParser::ParseStatus.
struct KVGeneralStatus {
    /// "printer_state": code of the word, see KVJStatusParser::printerStateToInt; 38 for an unknown word.
    int printerState;
    /// "alarms": alarm bits, the printer's own. Read only from a text that begins with "0x", "0x8000" as 32768.
    unsigned int alarms;
    /// "error": the printer's error number, decimal.
    int error;
    /// "printer_lock": true for exactly "locked".
    bool printerLock;
    /// "num_jobs_receiving_or_pending": count of jobs.
    int jobsReceivingOrPending;
    /// "num_jobs_inprogress": count of jobs.
    int jobsInProgress;
    /// "num_jobs_done_ok": count of jobs.
    int jobsDoneOk;
    /// "num_jobs_done_error": count of jobs.
    int jobsDoneError;
    /// "num_jobs_total": count of jobs.
    int jobsTotal;
    /// "action_id_next": the action id that the next job will get.
    int actionIdNext;
    /// "warning": the printer's warning number, decimal.
    int warning;
    /// "laminator_state": code of the word, see KVJStatusParser::lamStateToInt; 0 for an unknown word.
    int laminatorState;
    /// "param_chg_counter": how often a setting was changed; a 16-bit counter, 65537 reads as 1.
    unsigned long paramChangeCounter;
};

/// How far one job has come: the reply "get_job_status", read by KVJStatusParser::ParseJobStatus.
struct KVJobStatus {
    /// "action_id": the job's action id, a 16-bit number, 70000 reads as 4464.
    unsigned long actionId;
    /// "uuid": the job's identifier, terminated. A longer text is cut to 39 characters and that read reports false.
    char uuid[40];
    /// "ready_for_next_job": true for exactly "yes".
    bool readyForNextJob;
    /// "status_printing" / "copies_done": cards printed of this job.
    int copiesDone;
    /// "status_printing" / "copies_total_specified": cards that the job asks for.
    int copiesTotalSpecified;
    /// "status_printing" / "error_code": the printer's error number, its low 16 bits.
    unsigned short errorCode;
    /// "status_printing" / "print_state": code of the word, see KVJStatusParser::jobStatusToInt; -1 for an unknown one.
    int printState;
    /// "mag_state" in any of the groups "status_mag", "status_contact" and "status_contactless": state of the magnetic
    /// encoding, see KVJStatusParser::jobStatusToInt; -1 for an unknown word.
    int magState;
    /// "contact_state" in any of those groups: state of the contact chip's encoding, codes as for magState.
    int contactState;
    /// "contactless_state" in any of those groups: state of the contactless chip's encoding, codes as for magState.
    int contactlessState;
    /// "status_printing" / "position_in_transport": where the card is, codes as for printState.
    int positionInTransport;
    /// "status_printing" / "laminator_state": code of the word, see KVJStatusParser::lamStateToInt; 0 for an unknown
    /// one.
    int laminatorState;
};

}  // namespace Kavrin

#endif
