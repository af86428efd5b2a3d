/// @file chosen.h
/// A row of a table, chosen by an input.
#ifndef KVJXML_TESTS_FUZZ_CHOSEN_H
#define KVJXML_TESTS_FUZZ_CHOSEN_H

#include <algorithm>
#include <numeric>
#include <span>
#include <string_view>

namespace kvj::fuzz {

/// The row of that name, so that kept inputs keep their meaning when the table grows. Any other text is the name of
/// some row too: the fuzzer comes to all rows without guessing words.
template <class Row>
const Row& chosen(std::span<const Row> table, std::string_view name) {
    const auto row = std::ranges::find(table, name, &Row::name);
    if (row != table.end()) return *row;
    return table[std::accumulate(name.begin(), name.end(), std::size_t{0},
                                 [](std::size_t sum, char c) { return sum + static_cast<unsigned char>(c); }) %
                 table.size()];
}

}  // namespace kvj::fuzz

#endif
