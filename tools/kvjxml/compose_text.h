/// @file compose_text.h
/// Has the library compose a request, as hosts do.
#ifndef KVJXML_TOOL_COMPOSE_TEXT_H
#define KVJXML_TOOL_COMPOSE_TEXT_H

#include <string>

#include "asked.h"
#include "changes.h"

namespace kvj::tool {

/// The text of a request, as the printer would take it.
/// @param changes  get what the library finds sent otherwise than asked.
/// @throws Failure for what cannot be sent at all.
std::string composeText(const Asked& asked, Changes& changes);

}  // namespace kvj::tool

#endif
