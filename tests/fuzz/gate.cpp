// What is told of a reply before it is parsed, against the tree that TinyXML then makes of it.
#include <tinyxml.h>

#include <cstring>

#include "foundation/shape.h"
#include "support/tree_shape.h"
#include "target.h"

namespace {

using kvjxml::Shape;
using kvjxml::fuzz::require;

bool isWithinShape(Shape inner, Shape outer) {
    return inner.depth <= outer.depth && inner.attributes <= outer.attributes;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input = kvjxml::fuzz::textOf(data, size);
    const std::size_t length = std::strlen(input.c_str());
    const std::string padded = input.substr(0, length) + std::string(4, '\0');
    const auto text = kvjxml::fuzz::exactCopy(padded.data(), padded.size());

    const Shape told = kvjxml::shapeOf(text.get(), length);
    // Deeper than the stack is, and wider than there is time for: what the gate is there to keep from TinyXML.
    if (!isWithinShape(told, {1000, 2000})) return 0;

    TiXmlDocument document;
    document.SetTabSize(0);
    document.Parse(text.get(), nullptr, TIXML_ENCODING_UNKNOWN);
    const Shape tree = kvjxml::tests::shapeOfTree(document);
    require(isWithinShape(tree, told), "what is told is never less than the tree");
    require(document.Error() || isWithinShape(told, tree), "without an error, what is told is the tree's shape");

    for (const Shape limit : {Shape{2, 2}, Shape{8, 16}, kvjxml::largestShape}) {
        const bool admitted = kvjxml::isWithin(limit, text.get(), length);
        require(!admitted || isWithinShape(tree, limit), "what is admitted is within the limit");
        require(admitted || !isWithinShape(told, limit), "what is refused is not");
    }
    return 0;
}
