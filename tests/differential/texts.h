/// @file texts.h
/// The texts that are compared: all short ones, and any number of longer ones.
#ifndef KVJXML_TESTS_DIFFERENTIAL_TEXTS_H
#define KVJXML_TESTS_DIFFERENTIAL_TEXTS_H

#include <cstdint>
#include <string>
#include <vector>

#include "comparison.h"

namespace kvj::differential {

/// Every text of at most this many characters, in each of the places where characters have another meaning.
void compareAllOfCharacters(Comparison& compare, unsigned length);

/// Every text of at most this many tokens.
void compareAllOfTokens(Comparison& compare, unsigned length);

/// This many documents that are almost right, and samples that were tampered with. The same seed makes the same ones.
void compareRandom(Comparison& compare, std::uint64_t documents, std::uint64_t seed,
                   const std::vector<std::string>& samples);

}  // namespace kvj::differential

#endif
