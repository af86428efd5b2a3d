/// @file reply.h
/// The frame of every reader: a reply's text goes in, the root element of its message comes out.
#ifndef KVJXML_FOUNDATION_REPLY_H
#define KVJXML_FOUNDATION_REPLY_H

#include <tinyxml.h>

#include <cstdint>

namespace kvjxml {

/// Parses a reply of `length` wide characters into `document`. It is converted in the process's locale, and of the
/// multibyte text the first `length` bytes are taken. Nothing is read, and nothing parsed, for a length of zero or
/// less.
void parse(TiXmlDocument& document, const wchar_t* reply, std::int64_t length);

/// Parses a reply of narrow text, terminated by NUL; null is no text. A `tabSize` above zero makes TinyXML keep the row
/// and column of each node and of an error, which costs a third more time.
void parse(TiXmlDocument& document, const char* reply, int tabSize = 0);

/// One reply, parsed. A reply that is no XML, or only to a point, has the tree that TinyXML made of it until then.
class Reply {
public:
    Reply(const wchar_t& first, std::int64_t length) { parse(document_, &first, length); }
    explicit Reply(const char* text, int tabSize = 0) { parse(document_, text, tabSize); }

    /// The first element of that name at the top level of the reply, owned by this object; null when there is none.
    TiXmlElement* root(const char* name) { return document_.FirstChildElement(name); }

    [[nodiscard]] const TiXmlDocument& document() const { return document_; }

private:
    TiXmlDocument document_;
};

}  // namespace kvjxml

#endif
