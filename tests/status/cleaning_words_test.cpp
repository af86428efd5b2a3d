// The words that the printer uses for the steps of a cleaning, each with the code that hosts compare with.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "KVJStatusParser.h"

namespace {

using Kavrin::KVJStatusParser;

TEST(CleaningWords, EachHasItsCode) {
    KVJStatusParser parser;
    std::pair<std::string, int> words[] = {{"cleaning", 0},
                                           {"start_cleaning", 1},
                                           {"remove_ribbon", 2},
                                           {"remove_cards", 3},
                                           {"remove_ribbon_and_cards", 4},
                                           {"insert_cleaning_card", 5},
                                           {"reload_ribbon", 6},
                                           {"reload_ribbon_and_cards", 7},
                                           {"cleaning_aborted", 8},
                                           {"cleaning_not_in_progress", 9}};
    for (auto& [word, code] : words) EXPECT_EQ(parser.cleaningStateToInt(word.data()), code) << word;
}

TEST(CleaningWords, AnyOtherIs10) {
    KVJStatusParser parser;
    for (std::string word : {"", "Cleaning", "CLEANING", "cleaning_", "clean", " cleaning", "remove_Cards",
                             "remove_ribbon_and_card", "reload_cards", "done"}) {
        EXPECT_EQ(parser.cleaningStateToInt(word.data()), 10) << '"' << word << '"';
    }
}

TEST(CleaningWords, NoWordAtAllIsAnUnknownWord) {
    KVJStatusParser parser;
    EXPECT_EQ(parser.cleaningStateToInt(nullptr), 10);
}

}  // namespace
