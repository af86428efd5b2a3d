// The layout of the shared records, and the size of the classes, are a contract with hosts that were built against an
// earlier release.
#include <tinyxml.h>

#include <cstddef>
#include <type_traits>

#include "kvjxml.h"

using namespace Kavrin;

template <class... Readers>
constexpr bool areEmpty = (std::is_empty_v<Readers> && ...);

/// Whether these are documents, with this many bytes after them.
template <std::size_t Bytes, class... Classes>
constexpr bool areDocumentsWith =
    ((std::is_convertible_v<Classes*, TiXmlDocument*> && sizeof(Classes) == sizeof(TiXmlDocument) + Bytes) && ...);

static_assert(areEmpty<KVJStatusParser, KVJSensorParser, KVJCapsParser, KVJLogParser, KVJMediaParser, KVJNDC,
                       KVJSecAction, KVJGetEIN>);
static_assert(areDocumentsWith<0, KVJConfigParser, KVJPrinterIDParser, KVJSetPrinterInfo>);
// The root of the last request, and in requests that know both kinds of printing, one byte.
static_assert(areDocumentsWith<sizeof(void*), KVJSetSecActions, KVJDeviceControl>);
static_assert(areDocumentsWith<2 * sizeof(void*), KVJSetCaps, KVJSetConfig, KVJSetMedia>);

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
