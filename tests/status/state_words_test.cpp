// The words that the printer uses for its states, each with the code that hosts compare with.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "KVJStatusParser.h"

namespace {

using WordsAndCodes = std::vector<std::pair<std::string, int>>;
using Reader = int (Kavrin::KVJStatusParser::*)(char*);

void expectCodes(Reader reader, WordsAndCodes words) {
    Kavrin::KVJStatusParser parser;
    for (auto& [word, code] : words) EXPECT_EQ((parser.*reader)(word.data()), code) << '"' << word << '"';
}

TEST(StateWords, EachPrinterStateHasItsCode) {
    expectCodes(&Kavrin::KVJStatusParser::printerStateToInt, {{"initializing", 1},
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
                                                              {"cleaning", 26}});
}

TEST(StateWords, AnyOtherPrinterStateIs38) {
    expectCodes(&Kavrin::KVJStatusParser::printerStateToInt,
                {{"", 38}, {"Idle", 38}, {"IDLE", 38}, {"idle ", 38}, {" idle", 38}, {"idl", 38}, {"ready", 38}});
}

TEST(StateWords, EachLaminatorStateHasItsCode) {
    expectCodes(&Kavrin::KVJStatusParser::lamStateToInt, {{"uninitialized", 1},
                                                          {"initializing", 2},
                                                          {"ready", 3},
                                                          {"standby", 4},
                                                          {"laminating", 5},
                                                          {"not_ready", 6},
                                                          {"not_used", 7},
                                                          {"init_error", 8},
                                                          {"comm_error", 9},
                                                          {"fault_error", 10},
                                                          {"door_open", 11}});
}

TEST(StateWords, AnyOtherLaminatorStateIs0) {
    expectCodes(&Kavrin::KVJStatusParser::lamStateToInt,
                {{"", 0}, {"Ready", 0}, {"readyy", 0}, {"idle", 0}, {"door open", 0}});
}

TEST(StateWords, EachJobStateHasItsCode) {
    expectCodes(&Kavrin::KVJStatusParser::jobStatusToInt, {{"initializing", 0},
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
                                                           {"mag_read", 21}});
}

TEST(StateWords, AnyOtherJobStateIsMinus1) {
    expectCodes(&Kavrin::KVJStatusParser::jobStatusToInt,
                {{"", -1}, {"Yes", -1}, {"laminat", -1}, {"laminating_", -1}, {"idle", -1}});
}

TEST(StateWords, NoWordAtAllIsAnUnknownWord) {
    Kavrin::KVJStatusParser parser;
    EXPECT_EQ(parser.printerStateToInt(nullptr), 38);
    EXPECT_EQ(parser.lamStateToInt(nullptr), 0);
    EXPECT_EQ(parser.jobStatusToInt(nullptr), -1);
}

}  // namespace
