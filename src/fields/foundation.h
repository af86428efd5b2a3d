/// @file fields/foundation.h
/// The fields of the records of the foundation.
#ifndef KVJXML_FIELDS_FOUNDATION_H
#define KVJXML_FIELDS_FOUNDATION_H

#include <FoundationRecords.h>

#include "fields/list.h"

namespace kvj {

// clang-format off

template <>
inline constexpr FieldList<
    &Kavrin::_MinMaxVal::min,
    &Kavrin::_MinMaxVal::max,
    &Kavrin::_MinMaxVal::value>
    fields<Kavrin::_MinMaxVal>{};

template <>
inline constexpr FieldList<
    &Kavrin::_MinMaxValFloat::min,
    &Kavrin::_MinMaxValFloat::max,
    &Kavrin::_MinMaxValFloat::value>
    fields<Kavrin::_MinMaxValFloat>{};

// clang-format on

}  // namespace kvj

#endif
