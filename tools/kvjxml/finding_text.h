/// @file finding_text.h
/// A finding in a sentence.
#ifndef KVJXML_TOOL_FINDING_TEXT_H
#define KVJXML_TOOL_FINDING_TEXT_H

#include <kvjxml_read.hpp>
#include <string>

namespace kvj::tool {

/// Where it is, what is there, and what became of it: `/a/b "x5", read as "0" (it counts as 0)`.
std::string told(const kvjxml::finding& one);

}  // namespace kvj::tool

#endif
