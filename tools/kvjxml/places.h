/// @file places.h
/// Where each row of the tables stands in a document.
#ifndef KVJXML_TOOL_PLACES_H
#define KVJXML_TOOL_PLACES_H

#include <span>
#include <string>
#include <string_view>

#include "row_words.h"

namespace kvj::tool {

/// A row, with the path of its element.
struct ElementPlace {
    std::string path;  ///< "/get_job_list/job/uuid"
    const DescribedRow* row;
    Direction direction;
    std::string_view operation;  ///< that reads or writes it
};

/// All places of all messages, then those of all requests, each in the order of its tables.
std::span<const ElementPlace> elementPlaces();

}  // namespace kvj::tool

#endif
