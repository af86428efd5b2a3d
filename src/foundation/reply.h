/// @file reply.h
/// The frame of every reader: a reply's text goes in, the root element of its message comes out.
#ifndef KVJXML_FOUNDATION_REPLY_H
#define KVJXML_FOUNDATION_REPLY_H

#include <tinyxml.h>

#include <cstdint>

#include "foundation/document.h"
#include "foundation/element.h"

namespace kvj {

/// A reply of `length` wide characters. It is converted in the process's locale, and of the multibyte text the first
/// `length` bytes are taken. Nothing is read for a length of zero or less.
Text copyOf(const wchar_t* reply, std::int64_t length);

/// A reply of narrow text, terminated by NUL; null is no text.
Text copyOf(const char* reply);

/// One reply. Where it is not XML, or stops being XML, it has what could be read up to there.
class Reply : public Document {
public:
    Reply(const wchar_t& first, std::int64_t length) : Document(copyOf(&first, length)) {}
    explicit Reply(const char* text) : Document(copyOf(text)) {}
};

/// Reports in a host's document what is wrong with a reply, as if that document had parsed it. Without a reply the
/// document keeps what it reported before.
void tellFault(const Document& reply, TiXmlDocument& host);

}  // namespace kvj

#endif
