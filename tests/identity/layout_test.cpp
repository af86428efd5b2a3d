// The layout of the logs and read-backs is a contract with hosts that were built against an earlier release.
#include <cstddef>

#include "IdentityRecords.h"

using Kavrin::__GETTRACK;
using Kavrin::_tagCleaningLogEntry;
using Kavrin::_tagLogServiceValues;
using Kavrin::_tagLogServiceXML;

static_assert(sizeof(_tagLogServiceValues) == 24);
static_assert(offsetof(_tagLogServiceValues, number) == 0);
static_assert(offsetof(_tagLogServiceValues, code) == 4);
static_assert(offsetof(_tagLogServiceValues, year) == 8);
static_assert(offsetof(_tagLogServiceValues, month) == 12);
static_assert(offsetof(_tagLogServiceValues, reserved) == 16);
static_assert(offsetof(_tagLogServiceValues, card_count) == 20);

static_assert(sizeof(_tagLogServiceXML) == 16);
static_assert(offsetof(_tagLogServiceXML, count) == 0);
static_assert(offsetof(_tagLogServiceXML, entries) == 8);

static_assert(sizeof(_tagCleaningLogEntry) == 12);
static_assert(offsetof(_tagCleaningLogEntry, number) == 0);
static_assert(offsetof(_tagCleaningLogEntry, cards) == 4);
static_assert(offsetof(_tagCleaningLogEntry, type) == 8);

static_assert(sizeof(__GETTRACK) == 768);
static_assert(offsetof(__GETTRACK, track1) == 0);
static_assert(offsetof(__GETTRACK, track2) == 256);
static_assert(offsetof(__GETTRACK, track3) == 512);
