/// @file references.h
/// "&amp;" and "&#65;": what a reference in a text or a value stands for.
#ifndef KVJXML_FOUNDATION_REFERENCES_H
#define KVJXML_FOUNDATION_REFERENCES_H

namespace kvj {

/// Decodes the reference at `from`, where its ampersand is, and writes it to `to`, which moves past what was written.
/// They may be the same place: what a reference stands for is never longer than the reference.
/// @return what follows the reference; null for a numbered one that has no end or contains anything but digits.
char* decodeReference(char* from, char*& to, bool utf8) noexcept;

}  // namespace kvj

#endif
