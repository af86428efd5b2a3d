/// @file random_records.h
/// Records as a host could fill them, by the lists of their fields; samples; and what the named operations print of
/// them.
#ifndef KVJXML_TESTS_FACE_RANDOM_RECORDS_H
#define KVJXML_TESTS_FACE_RANDOM_RECORDS_H

#include <cstddef>
#include <deque>
#include <memory>
#include <random>
#include <string>

#include "messages/request.h"
#include "messages/zeroed_record.h"

namespace kvj::tests {

using Random = std::mt19937_64;

/// Keeps what records point to.
using Kept = std::deque<std::shared_ptr<std::byte[]>>;

/// Any value for each field: codes with and without a word, texts with every kind of character that the process's
/// locale has, also unterminated ones, lists that are empty.
void fill(const RecordType& type, void* record, Random& random, Kept& kept);

/// What a host could choose beside it.
Choices anyChoices(const Request& request, Random& random);

/// The sample of a request, and what it is composed with.
Choices readSample(const Request& request, void* record, Kept& kept);

/// What the named operation prints, in UTF-8; empty when it prints nothing.
std::string printed(const Request& request, const void* record, const Choices& choices);

}  // namespace kvj::tests

#endif
