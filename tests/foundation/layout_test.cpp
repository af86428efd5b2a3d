// The layout of the shared records is a contract with hosts that were built against an earlier release.
#include <cstddef>
#include <type_traits>

#include "FoundationRecords.h"

using Kavrin::_MinMaxVal;
using Kavrin::_MinMaxValFloat;

static_assert(sizeof(_MinMaxVal) == 12);
static_assert(alignof(_MinMaxVal) == 4);
static_assert(offsetof(_MinMaxVal, min) == 0);
static_assert(offsetof(_MinMaxVal, max) == 4);
static_assert(offsetof(_MinMaxVal, value) == 8);
static_assert(std::is_same_v<decltype(_MinMaxVal::value), int>);
static_assert(std::is_aggregate_v<_MinMaxVal> && std::is_trivial_v<_MinMaxVal>);

static_assert(sizeof(_MinMaxValFloat) == 12);
static_assert(alignof(_MinMaxValFloat) == 4);
static_assert(offsetof(_MinMaxValFloat, min) == 0);
static_assert(offsetof(_MinMaxValFloat, max) == 4);
static_assert(offsetof(_MinMaxValFloat, value) == 8);
static_assert(std::is_same_v<decltype(_MinMaxValFloat::value), float>);
static_assert(std::is_aggregate_v<_MinMaxValFloat> && std::is_trivial_v<_MinMaxValFloat>);
