/// @file status/counters.h
/// Card counters, up-times, free memory and the cleaning, element by element.
#ifndef KVJXML_STATUS_COUNTERS_H
#define KVJXML_STATUS_COUNTERS_H

#include "StatusRecords.h"
#include "foundation/read_rules.h"
#include "foundation/rows.h"
#include "foundation/words.h"

namespace kvj::status {

using namespace Kavrin;  // the records

inline constexpr WordTable cleaningStates{10,
                                          {{"cleaning", 0},
                                           {"start_cleaning", 1},
                                           {"remove_ribbon", 2},
                                           {"remove_cards", 3},
                                           {"remove_ribbon_and_cards", 4},
                                           {"insert_cleaning_card", 5},
                                           {"reload_ribbon", 6},
                                           {"reload_ribbon_and_cards", 7},
                                           {"cleaning_aborted", 8},
                                           {"cleaning_not_in_progress", 9}}};

// clang-format off

/// "get_count"
inline constexpr auto cardCount = rows<KVCardCount>({
    {"total_cards_done",          number<&KVCardCount::totalCardsDone>},
    {"laminator_cards_laminated", number<&KVCardCount::laminatorCardsLaminated>},
    {"laminator_cards_processed", number<&KVCardCount::laminatorCardsProcessed>},
});

/// "get_count" as well
inline constexpr auto cardsUntilCleaning = rows<int>({
    {"total_cards_until_next_cleaning", itself<int>},
});

/// "get_laminator_up_times"
inline constexpr auto upTimes = rows<KVUpTimes>({
    {"laminator_total_up_time",       number<&KVUpTimes::laminatorTotalUpTime>},
    {"laminator_top_bulb_on_time",    number<&KVUpTimes::laminatorTopBulbOnTime>},
    {"laminator_bottom_bulb_on_time", number<&KVUpTimes::laminatorBottomBulbOnTime>},
});

/// "get_free_ram" and "get_free_flash"
inline constexpr auto freeSpace = rows<__MEMORY>({
    {"bytes_free", number<&__MEMORY::bytesFree>},
});

/// "get_cleaning_status"
inline constexpr auto cleaningStatus = rows<KVCleaningStatus>({
    {"cleaning_status", word<&KVCleaningStatus::cleaningState, cleaningStates>},
});

// clang-format on

}  // namespace kvj::status

#endif
