/// @file shared/encoder.h
/// The built-in smart-card encoder, as capabilities and configuration have it: the same elements, with one difference
/// in reading and one in writing, which are the two parameters.
#ifndef KVJXML_SHARED_ENCODER_H
#define KVJXML_SHARED_ENCODER_H

#include "CapabilitiesRecords.h"
#include "foundation/read_rules.h"
#include "foundation/vocabulary.h"
#include "foundation/write_rules.h"

namespace kvj {

// clang-format off

/// "internal_encoder"
template <const auto& ContactlessEncoder>
inline constexpr auto internalEncoder = rows<Kavrin::_InternalEncoderInfo>({
    {"comms_channel",       word<&Kavrin::_InternalEncoderInfo::commsChannel, commsChannels>},
    {"contact_encoding",    flag<&Kavrin::_InternalEncoderInfo::contactEncoding>},
    {"contactless_encoder", ContactlessEncoder},
});

/// The printer takes the channel from the contactless encoder's code, whatever channel it reported itself.
template <const auto& Channels>
inline constexpr auto internalEncoderTags = tags<Kavrin::_InternalEncoderInfo>({
    {"comms_channel",       put::word<&Kavrin::_InternalEncoderInfo::contactlessEncoder, Channels>},
    {"contact_encoding",    put::yesOrNo<&Kavrin::_InternalEncoderInfo::contactEncoding>},
    {"contactless_encoder", put::word<&Kavrin::_InternalEncoderInfo::contactlessEncoder, contactlessEncodersWritten>},
});

// clang-format on

}  // namespace kvj

#endif
