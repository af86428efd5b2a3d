/// @file field_comments.h
/// What the public headers say of records and their fields. The headers are part of the program as they are, so nothing
/// is said twice.
#ifndef KVJXML_TOOL_FIELD_COMMENTS_H
#define KVJXML_TOOL_FIELD_COMMENTS_H

#include <span>
#include <string>
#include <string_view>

namespace kvj::tool {

/// The comment of a field, "Kavrin::KVGeneralStatus" and "alarms", on one line; without a field that of the record
/// itself. Empty when there is none.
std::string_view commentOf(std::string_view record, std::string_view field = {});

/// The headers of all records, as they are installed.
std::span<const std::string_view> recordHeaders();

}  // namespace kvj::tool

#endif
