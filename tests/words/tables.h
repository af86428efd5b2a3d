/// @file tables.h
/// All tables of words that the library has.
#ifndef KVJXML_TESTS_WORDS_TABLES_H
#define KVJXML_TESTS_WORDS_TABLES_H

#include <span>

#include "foundation/kinds.h"

namespace kvj::tests {

std::span<const NamedWords> wordTables();

}  // namespace kvj::tests

#endif
