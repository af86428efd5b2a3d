/// @file sample.h
/// The verb that shows what a message can look like.
#ifndef KVJXML_TOOL_SAMPLE_H
#define KVJXML_TOOL_SAMPLE_H

#include <ostream>
#include <string_view>

#include "exit_code.h"

namespace kvj::tool {

/// Writes a document of that root with every element that a reader knows. Each has a value that fits, and another than
/// the elements beside it as far as words and truth allow, so that a host sees which is which.
void writeSample(std::ostream& out, std::string_view root);

ExitCode printSample(std::string_view root);

}  // namespace kvj::tool

#endif
