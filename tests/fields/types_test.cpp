// What hosts make objects of, or hand over, and what is no record: its size is a contract with those that were built
// against an earlier release.
#include <tinyxml.h>

#include <type_traits>

#include "kvjxml.h"

namespace types_test {

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

// Two catalogues would release the same lists.
static_assert(!std::is_copy_constructible_v<_KVMediaInfo> && !std::is_copy_assignable_v<_KVMediaInfo>);
static_assert(!std::is_move_constructible_v<_KVMediaInfo> && !std::is_move_assignable_v<_KVMediaInfo>);
static_assert(std::is_nothrow_destructible_v<_KVMediaInfo>);

template <class... Codes>
constexpr bool areAsLargeAsInt = (std::is_enum_v<Codes> && ...) && ((sizeof(Codes) == sizeof(int)) && ...);
static_assert(areAsLargeAsInt<USB_Speed, ErrorControl, _eFeedMode, WirelessSecurity, WirelessCrypto, _laminatorType>);

static_assert(sizeof(szRibbonName) == 32);
static_assert(KVJOBLIST_CAPACITY == 64);

}  // namespace types_test
