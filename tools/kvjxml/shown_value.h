/// @file shown_value.h
/// A value of a record as it is shown: codes with their words, secrets masked.
#ifndef KVJXML_TOOL_SHOWN_VALUE_H
#define KVJXML_TOOL_SHOWN_VALUE_H

#include <nlohmann/json.hpp>
#include <string>

#include "fields/field.h"

namespace kvj::tool {

/// A field of a record that is read; a value that stands for itself has no record around it.
struct ShownField {
    const RecordType* around;  ///< null for none
    const Field* field;
};

/// As decode prints it, but a code that has words as {"code": 5, "word": "printing"}, and a secret masked if that is
/// wanted.
nlohmann::ordered_json shownValue(const ShownField& shown, const void* record, bool isMasked);

/// The same for eyes, on one line: `5 (printing)`; nothing in it that a terminal would obey.
std::string inText(const nlohmann::ordered_json& value);

/// JSON on one line, in ASCII alone where a terminal gets it.
std::string inJson(const nlohmann::ordered_json& value);

}  // namespace kvj::tool

#endif
