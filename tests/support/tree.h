/// @file tree.h
/// What readers can see of a document, written down: the library's own and TinyXML's, to be compared.
#ifndef KVJXML_TESTS_TREE_H
#define KVJXML_TESTS_TREE_H

#include <tinyxml.h>

#include <string>
#include <string_view>

#include "foundation/element.h"

namespace kvj::tests {

/// All elements below this one: `name "value of the first child" attribute="value" {children}`. Texts end at their
/// first NUL, since that is how they are read; marks of the notation itself are not escaped, as both sides are written
/// alike.
std::string treeOf(Element element);

/// The same of what TinyXML made, of a document or an element.
std::string treeOf(const TiXmlNode& node);

/// What TinyXML makes of a text, as it is called for a reply: without row tracking, of a copy that ends in four zeros.
struct Reference {
    explicit Reference(std::string_view text);
    TiXmlDocument document;
    int error;  ///< 0 for none
};

/// What the library makes of a text, up to its first NUL.
Document documentOf(std::string_view text);

}  // namespace kvj::tests

#endif
