/// @file FoundationRecords.h
/// The records and words that several messages share: a setting with its permitted range, and the coercivity words.
///
/// Records are plain structures. The host owns them, sets them to zero before the first call and passes them by
/// reference; a reader fills them in place and allocates nothing.
#ifndef KVJXML_FOUNDATION_RECORDS_H
#define KVJXML_FOUNDATION_RECORDS_H

#include "kvjxml_export.h"

namespace Kavrin {

// Host applications know these records by names with a leading underscore and a capital.
// NOLINTBEGIN(bugprone-reserved-identifier)

/// An integer setting with its permitted range: an element with the attributes "min" and "max" and the value as text,
/// `<speed min="1" max="9">5</speed>`. The unit is that of the setting.
struct _MinMaxVal {
    int min;    ///< Attribute "min": the smallest value that the printer takes.
    int max;    ///< Attribute "max": the largest value that the printer takes.
    int value;  ///< The element's text: the value in force.
};

/// A setting with a fraction and its permitted range, in the same form as _MinMaxVal.
struct _MinMaxValFloat {
    float min;    ///< Attribute "min": the smallest value that the printer takes.
    float max;    ///< Attribute "max": the largest value that the printer takes.
    float value;  ///< The element's text: the value in force.
};

// NOLINTEND(bugprone-reserved-identifier)

/// The words of a "coercivity" element, indexed by the coercivity code: 0 "none", 1 "low", 2 "high".
/// KVJHelper::CoercivityToInt reads them back.
extern KVJXML_API const char* const COERCIVITYTYPES[3];

}  // namespace Kavrin

#endif
