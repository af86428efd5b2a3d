/// @file kvjxml.hpp
/// libkvjxml for hosts of today, in C++17 and later: bytes in, values out, nothing hidden. It stands beside the named
/// operations of kvjxml.h, on the same tables; a host may use both. Each part can be included by itself:
///
/// - kvjxml_read.hpp reads replies, and says what was ignored, changed or lost in them;
/// - kvjxml_compose.hpp composes requests as text, and refuses what would arrive otherwise than it is asked for;
/// - kvjxml_words.hpp has names for the codes in records;
/// - kvjxml_version.h tells versions at compile and at run time.
///
/// What is in `kvjxml::detail`, and functions called kvjxml_v1_..., are not for hosts.
#ifndef KVJXML_HPP
#define KVJXML_HPP

#include "kvjxml_compose.hpp"
#include "kvjxml_messages.hpp"
#include "kvjxml_read.hpp"
#include "kvjxml_records.hpp"
#include "kvjxml_version.h"
#include "kvjxml_words.hpp"

#endif
