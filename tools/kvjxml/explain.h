/// @file explain.h
/// The verb that says what a name, a code or a word means.
#ifndef KVJXML_TOOL_EXPLAIN_H
#define KVJXML_TOOL_EXPLAIN_H

#include <string>

#include "exit_code.h"

namespace kvj::tool {

/// Prints what a message, request, record, field, element, table or word is; without a name what there is.
/// @param value  a code or a word of that field, element or table, of which the meaning is printed; empty for none.
/// @throws Failure for a name that nothing has.
ExitCode explain(const std::string& name, const std::string& value);

}  // namespace kvj::tool

#endif
