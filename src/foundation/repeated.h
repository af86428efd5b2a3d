/// @file repeated.h
/// Which attribute of an element has a name that another before it has.
#ifndef KVJXML_FOUNDATION_REPEATED_H
#define KVJXML_FOUNDATION_REPEATED_H

#include <cstddef>
#include <span>

#include "foundation/document.h"

namespace kvjxml {

/// The index of the first attribute whose name stands before it; how many there are when there is none. The names are
/// offsets into `text`, terminated, and there is Text::padding behind the last. Takes time in proportion to the names'
/// lengths, whatever they are.
/// @throws std::bad_alloc  when there are many.
std::size_t firstRepeated(std::span<const Document::Attribute> attributes, const char* text);

}  // namespace kvjxml

#endif
