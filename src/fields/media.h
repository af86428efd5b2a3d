/// @file fields/media.h
/// The fields of the records of media.
#ifndef KVJXML_FIELDS_MEDIA_H
#define KVJXML_FIELDS_MEDIA_H

#include <MediaRecords.h>

#include "fields/configuration.h"

namespace kvj {

// clang-format off

template <>
inline constexpr FieldList<
    &Kavrin::_CardInfo::type,
    &Kavrin::_CardInfo::partNumber,
    &Kavrin::_CardInfo::description,
    &Kavrin::_CardInfo::thickness,
    &Kavrin::_CardInfo::coercivity,
    bitField<Kavrin::_CardInfo, MagStripe>,
    bitField<Kavrin::_CardInfo, ContactEncode>,
    bitField<Kavrin::_CardInfo, NonContactEncode>,
    &Kavrin::_CardInfo::transferTemps,
    &Kavrin::_CardInfo::transferSpeeds,
    &Kavrin::_CardInfo::laminationAdjustments,
    &Kavrin::_CardInfo::calTable>
    fields<Kavrin::_CardInfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::_MediaRibbonInfo::partNumber,
    &Kavrin::_MediaRibbonInfo::description>
    fields<Kavrin::_MediaRibbonInfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::_KVMediaInfo::cards,
    &Kavrin::_KVMediaInfo::films,
    &Kavrin::_KVMediaInfo::ribbons,
    &Kavrin::_KVMediaInfo::laminates>
    fields<Kavrin::_KVMediaInfo>{};

// clang-format on

}  // namespace kvj

#endif
