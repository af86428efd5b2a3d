/// @file repeated.h
/// Finds an attribute whose name an earlier attribute of the same element has.
#ifndef KVJXML_FOUNDATION_REPEATED_H
#define KVJXML_FOUNDATION_REPEATED_H

#include <cstddef>
#include <span>

#include "foundation/document.h"

namespace kvj {

/// The index of the first attribute whose name has come before; the number of attributes when no name comes twice. The
/// names are offsets into `text`; they are terminated, and Text::padding follows the last. The time is in proportion to
/// the lengths of the names, whatever they are.
/// @throws std::bad_alloc  when there are many.
std::size_t firstRepeated(std::span<const Document::Attribute> attributes, const char* text);

}  // namespace kvj

#endif
