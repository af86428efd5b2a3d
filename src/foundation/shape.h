/// @file shape.h
/// How deep and how wide a reply is, told before it is parsed. TinyXML calls itself for each level of elements and
/// compares each attribute with all before it, so a few kilobytes of markup could otherwise take the host's stack or
/// its afternoon.
#ifndef KVJXML_FOUNDATION_SHAPE_H
#define KVJXML_FOUNDATION_SHAPE_H

#include <cstddef>

namespace kvjxml {

struct Shape {
    std::size_t depth = 0;       ///< levels of elements
    std::size_t attributes = 0;  ///< the most attributes in one element
};

/// No message of the printer comes near these.
inline constexpr Shape largestShape{64, 256};

/// The shape of the tree that TinyXML would make of `text`, which has to end in at least four zero bytes: never less,
/// and exactly that where TinyXML finds no error. One pass, no recursion, nothing allocated.
Shape shapeOf(const char* text, std::size_t length) noexcept;

/// Whether that shape is within a limit.
bool isWithin(Shape limit, const char* text, std::size_t length) noexcept;

}  // namespace kvjxml

#endif
