/// @file references.h
/// "&amp;" and "&#65;": what a reference in a text or a value stands for.
#ifndef KVJXML_FOUNDATION_REFERENCES_H
#define KVJXML_FOUNDATION_REFERENCES_H

namespace kvjxml {

/// Decodes the reference that `from` begins with, an ampersand, to `to`, which moves behind what was written. It may be
/// `from` itself: what a reference stands for is never longer.
/// @return what follows the reference; null for a numbered one without an end or with other characters than digits.
char* decodeReference(char* from, char*& to, bool utf8) noexcept;

}  // namespace kvjxml

#endif
