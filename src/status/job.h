/// @file status/job.h
/// The general status, the status of a job and the list of jobs, element by element.
#ifndef KVJXML_STATUS_JOB_H
#define KVJXML_STATUS_JOB_H

#include "StatusRecords.h"
#include "foundation/read_rules.h"
#include "foundation/rows.h"
#include "foundation/words.h"

namespace kvj::status {

using namespace Kavrin;  // the records

/// The codes are the ones that hosts compare with; no word has a code in the gaps.
inline constexpr WordTable printerStates{38,
                                         {{"initializing", 1},
                                          {"idle", 2},
                                          {"xfer_rollers_heating", 3},
                                          {"printing_heating", 3},
                                          {"standby", 4},
                                          {"printing", 5},
                                          {"alarm_handling", 6},
                                          {"offline", 7},
                                          {"canceling", 8},
                                          {"temp_out_of_range", 9},
                                          {"mag_ops", 10},
                                          {"contact_ops", 11},
                                          {"contactless_ops", 12},
                                          {"config_data", 13},
                                          {"job_data", 14},
                                          {"diagnostic_mode", 15},
                                          {"xfer_rollers_cooling", 16},
                                          {"printing_cooling", 16},
                                          {"laminating_cooling", 16},
                                          {"insert_card", 17},
                                          {"laminating", 18},
                                          {"laminating_heating", 19},
                                          {"card_ready", 35},
                                          {"cleaning", 26}}};

inline constexpr WordTable laminatorStates{0,
                                           {{"uninitialized", 1},
                                            {"initializing", 2},
                                            {"ready", 3},
                                            {"standby", 4},
                                            {"laminating", 5},
                                            {"not_ready", 6},
                                            {"not_used", 7},
                                            {"init_error", 8},
                                            {"comm_error", 9},
                                            {"fault_error", 10},
                                            {"door_open", 11}}};

/// One table for the state of the printing, of the three encodings and for the card's position.
inline constexpr WordTable jobStates{-1,
                                     {{"initializing", 0},
                                      {"receiving", 1},
                                      {"receive_ok", 2},
                                      {"receive_error", 3},
                                      {"receive_offline", 4},
                                      {"parsed", 5},
                                      {"in_progress", 6},
                                      {"done_ok", 7},
                                      {"done_error", 8},
                                      {"cancelled_by_user", 9},
                                      {"cancelled_by_error", 10},
                                      {"cleaning_up", 18},
                                      {"yes", 11},
                                      {"no", 12},
                                      {"yellow", 13},
                                      {"magenta", 14},
                                      {"cyan", 15},
                                      {"black", 16},
                                      {"clear", 17},
                                      {"encoding", 19},
                                      {"verifying", 20},
                                      {"reading", 21},
                                      {"at_station", 26},
                                      {"smart_encode_error", 27},
                                      {"contact_error", 28},
                                      {"contactless_error", 29},
                                      {"read_error", 22},
                                      {"read_ein_error", 23},
                                      {"write_error", 24},
                                      {"retrace_error", 25},
                                      {"not_in_printer", 30},
                                      {"feeding", 31},
                                      {"in_process", 32},
                                      {"ejecting_eject", 33},
                                      {"ejecting_reject", 34},
                                      {"ejecting_feeder", 35},
                                      {"held", 36},
                                      {"laminating", 41},
                                      {"transferring", 38},
                                      {"transfer_wait", 37},
                                      {"waiting_printer", 42},
                                      {"printing", 43},
                                      {"laminate", 39},
                                      {"laminate_insert", 40},
                                      {"mag_read", 21}}};

// clang-format off

/// "get_general_status"
inline constexpr auto generalStatus = rows<KVGeneralStatus>({
    {"printer_state",                 word<&KVGeneralStatus::printerState, printerStates>},
    {"alarms",                        prefixedHex<&KVGeneralStatus::alarms>},
    {"error",                         number<&KVGeneralStatus::error>},
    {"printer_lock",                  is<&KVGeneralStatus::printerLock, "locked">},
    {"num_jobs_receiving_or_pending", number<&KVGeneralStatus::jobsReceivingOrPending>},
    {"num_jobs_inprogress",           number<&KVGeneralStatus::jobsInProgress>},
    {"num_jobs_done_ok",              number<&KVGeneralStatus::jobsDoneOk>},
    {"num_jobs_done_error",           number<&KVGeneralStatus::jobsDoneError>},
    {"num_jobs_total",                number<&KVGeneralStatus::jobsTotal>},
    {"action_id_next",                number<&KVGeneralStatus::actionIdNext>},
    {"warning",                       number<&KVGeneralStatus::warning>},
    {"laminator_state",               word<&KVGeneralStatus::laminatorState, laminatorStates>},
    {"param_chg_counter",             number<&KVGeneralStatus::paramChangeCounter>},
});

/// "status_printing" in "get_job_status"
inline constexpr auto jobPrinting = rows<KVJobStatus>({
    {"copies_done",            number<&KVJobStatus::copiesDone>},
    {"copies_total_specified", number<&KVJobStatus::copiesTotalSpecified>},
    {"error_code",             number<&KVJobStatus::errorCode>},
    {"print_state",            word<&KVJobStatus::printState, jobStates>},
    {"position_in_transport",  word<&KVJobStatus::positionInTransport, jobStates>},
    {"laminator_state",        word<&KVJobStatus::laminatorState, laminatorStates>},
});

/// "status_mag", "status_contact" and "status_contactless" in "get_job_status": the printer puts any of the three
/// states into any of the three groups.
inline constexpr auto jobEncoding = rows<KVJobStatus>({
    {"mag_state",         word<&KVJobStatus::magState, jobStates>},
    {"contact_state",     word<&KVJobStatus::contactState, jobStates>},
    {"contactless_state", word<&KVJobStatus::contactlessState, jobStates>},
});

/// "get_job_status"
inline constexpr auto jobStatus = rows<KVJobStatus>({
    {"action_id",          number<&KVJobStatus::actionId>},
    {"uuid",               text<&KVJobStatus::uuid>},
    {"ready_for_next_job", is<&KVJobStatus::readyForNextJob, "yes">},
    {"status_printing",    group<jobPrinting>},
    {"status_mag",         group<jobEncoding>},
    {"status_contact",     group<jobEncoding>},
    {"status_contactless", group<jobEncoding>},
});

/// "job" in "get_job_list"
inline constexpr auto jobInfo = rows<_KVJobInfo>({
    {"action_id",   number<&_KVJobInfo::actionId>},
    {"uuid",        text<&_KVJobInfo::uuid>},
    {"print_state", word<&_KVJobInfo::printState, jobStates>},
});

/// "get_job_list"
inline constexpr auto jobList = rows<List<_KVJobInfo>>({
    {"job", entry<jobInfo>},
});

// clang-format on

}  // namespace kvj::status

#endif
