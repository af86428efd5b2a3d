/// @file asked_record.h
/// Reads the JSON of a request into the record that the request is composed from.
#ifndef KVJXML_TOOL_ASKED_RECORD_H
#define KVJXML_TOOL_ASKED_RECORD_H

#include <cstddef>
#include <deque>
#include <memory>

#include "changes.h"
#include "messages/request.h"
#include "needed.h"
#include "place.h"

namespace kvj::tool {

/// Keeps the arrays that a record's lists point to.
using Arrays = std::deque<std::shared_ptr<std::byte[]>>;

/// Reads what the JSON gives, whose names are those of the members. A code is a number, a word or what `decode --words`
/// prints for it, {"code": 5, "word": "printing"}; any value may stand as {"value": 318, "sent": "318abc"}. A field
/// that is not there is refused when it is needed, else it stays as it was; one that is there has to be right in any
/// case.
/// @param record   all zero but for what a host does before.
/// @param changes  get what is not sent as the JSON asks because it was not read so.
/// @throws Failure
void readAsked(const Place& place, const Request& request, const Needed& needed, void* record, Arrays& arrays,
               Changes& changes);

}  // namespace kvj::tool

#endif
