// The layout of the catalogue's records is a contract with hosts that were built against an earlier release.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <type_traits>
#include <vector>

#include "MediaRecords.h"

using namespace Kavrin;

static_assert(sizeof(_CardInfo) == 228);
static_assert(alignof(_CardInfo) == 4);
static_assert(offsetof(_CardInfo, type) == 0);
static_assert(std::is_same_v<decltype(_CardInfo::type), int>);
static_assert(offsetof(_CardInfo, partNumber) == 4);
static_assert(sizeof(_CardInfo::partNumber) == 16);
static_assert(offsetof(_CardInfo, description) == 20);
static_assert(sizeof(_CardInfo::description) == 64);
static_assert(offsetof(_CardInfo, thickness) == 84);
static_assert(std::is_same_v<decltype(_CardInfo::thickness), float>);
static_assert(offsetof(_CardInfo, coercivity) == 88);
static_assert(std::is_same_v<decltype(_CardInfo::coercivity), unsigned char>);
// The byte 89 has the bits of magStripe, contactEncode and nonContactEncode; see below.
static_assert(offsetof(_CardInfo, transferTemps) == 92);
static_assert(sizeof(_CardInfo::transferTemps) == 48);
static_assert(std::is_same_v<decltype(_CardInfo::transferTemps), _TransferTempInfo>);
static_assert(offsetof(_CardInfo, transferSpeeds) == 140);
static_assert(sizeof(_CardInfo::transferSpeeds) == 48);
static_assert(std::is_same_v<decltype(_CardInfo::transferSpeeds), _TransferSpeedInfo>);
static_assert(offsetof(_CardInfo, laminationAdjustments) == 188);
static_assert(sizeof(_CardInfo::laminationAdjustments) == 36);
static_assert(std::is_same_v<decltype(_CardInfo::laminationAdjustments), _LaminationAdjustmentsNew>);
static_assert(offsetof(_CardInfo, calTable) == 224);
static_assert(std::is_same_v<decltype(_CardInfo::calTable), int>);
static_assert(std::is_aggregate_v<_CardInfo> && std::is_trivial_v<_CardInfo>);

static_assert(sizeof(_MediaRibbonInfo) == 80);
static_assert(offsetof(_MediaRibbonInfo, partNumber) == 0);
static_assert(sizeof(_MediaRibbonInfo::partNumber) == 16);
static_assert(offsetof(_MediaRibbonInfo, description) == 16);
static_assert(sizeof(_MediaRibbonInfo::description) == 64);
static_assert(std::is_aggregate_v<_MediaRibbonInfo> && std::is_trivial_v<_MediaRibbonInfo>);

static_assert(sizeof(_KVMediaInfo) == 32);
static_assert(offsetof(_KVMediaInfo, cards) == 0);
static_assert(std::is_same_v<decltype(_KVMediaInfo::cards), std::vector<_CardInfo*>*>);
static_assert(offsetof(_KVMediaInfo, films) == 8);
static_assert(std::is_same_v<decltype(_KVMediaInfo::films), std::vector<_MediaRibbonInfo*>*>);
static_assert(offsetof(_KVMediaInfo, ribbons) == 16);
static_assert(std::is_same_v<decltype(_KVMediaInfo::ribbons), std::vector<_MediaRibbonInfo*>*>);
static_assert(offsetof(_KVMediaInfo, laminates) == 24);
static_assert(std::is_same_v<decltype(_KVMediaInfo::laminates), std::vector<_MediaRibbonInfo*>*>);

// Two records would release the same lists.
static_assert(!std::is_copy_constructible_v<_KVMediaInfo> && !std::is_copy_assignable_v<_KVMediaInfo>);
static_assert(!std::is_move_constructible_v<_KVMediaInfo> && !std::is_move_assignable_v<_KVMediaInfo>);
static_assert(std::is_nothrow_destructible_v<_KVMediaInfo>);

namespace {

/// The byte after the coercivity, of a card that is zero but for its bits.
unsigned byteOfBits(bool magStripe, bool contactEncode, bool nonContactEncode) {
    _CardInfo card{};
    card.magStripe = magStripe;
    card.contactEncode = contactEncode;
    card.nonContactEncode = nonContactEncode;
    unsigned char bytes[sizeof card];
    std::memcpy(bytes, &card, sizeof card);
    return bytes[offsetof(_CardInfo, coercivity) + 1];
}

TEST(CardLayout, TheBitsShareTheByteBehindTheCoercivity) {
    EXPECT_EQ(byteOfBits(false, false, false), 0U);
    EXPECT_EQ(byteOfBits(true, false, false), 1U);
    EXPECT_EQ(byteOfBits(false, true, false), 2U);
    EXPECT_EQ(byteOfBits(false, false, true), 4U);
    EXPECT_EQ(byteOfBits(true, true, true), 7U);
}

}  // namespace
