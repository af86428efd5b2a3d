/// @file tree_shape.h
/// The shape of the tree that TinyXML made, to compare with what is told of a reply before it is parsed.
#ifndef KVJXML_TESTS_TREE_SHAPE_H
#define KVJXML_TESTS_TREE_SHAPE_H

#include <tinyxml.h>

#include <algorithm>
#include <cstddef>

#include "foundation/shape.h"

namespace kvjxml::tests {

inline Shape shapeOfTree(const TiXmlDocument& document) {
    struct Measure : TiXmlVisitor {
        bool VisitEnter(const TiXmlElement& /*element*/, const TiXmlAttribute* first) override {
            shape.depth = std::max(shape.depth, ++depth);
            std::size_t attributes = 0;
            for (; first != nullptr; first = first->Next()) ++attributes;
            shape.attributes = std::max(shape.attributes, attributes);
            return true;
        }
        bool VisitExit(const TiXmlElement& /*element*/) override {
            --depth;
            return true;
        }
        Shape shape;
        std::size_t depth = 0;
    };
    Measure measure;
    document.Accept(&measure);
    return measure.shape;
}

}  // namespace kvjxml::tests

#endif
