// The tables that the other sources spoil, as they have to be.
#include "StatusRecords.h"
#include "foundation/read_rules.h"

using namespace kvj;
using Kavrin::KVGeneralStatus;
using Kavrin::KVJobStatus;

constexpr WordTable states{0, {{"off", 0}, {"on", 1}}};

constexpr auto printing = rows<KVJobStatus>({
    {"copies_done", number<&KVJobStatus::copiesDone>},
    {"print_state", word<&KVJobStatus::printState, states>},
});
constexpr auto job = rows<KVJobStatus>({
    {"uuid", text<&KVJobStatus::uuid>},
    {"ready_for_next_job", is<&KVJobStatus::readyForNextJob, "yes">},
    {"status_printing", group<printing>},
});
constexpr auto general = rows<KVGeneralStatus>({
    {"alarms", prefixedHex<&KVGeneralStatus::alarms>},
    {"warning", number<&KVGeneralStatus::warning>},
});
