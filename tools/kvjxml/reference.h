/// @file reference.h
/// The verb that shows the vocabulary: the tables that the library reads with, for people.
#ifndef KVJXML_TOOL_REFERENCE_H
#define KVJXML_TOOL_REFERENCE_H

#include "exit_code.h"

namespace kvj::tool {

/// Prints every known message, element by element, and the words with their codes, as Markdown.
/// @throws Failure
ExitCode printReference();

}  // namespace kvj::tool

#endif
