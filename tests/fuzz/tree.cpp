// What the library makes of any text, against the tree and the error of TinyXML.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "support/tree.h"
#include "target.h"

using kvj::Document;
using kvj::Element;
using kvj::fuzz::require;
using kvj::tests::documentOf;
using kvj::tests::Reference;
using kvj::tests::treeOf;

namespace {

/// How deep a tree is. Elements lie in document order, but only the children of one are to be had.
std::size_t depthOf(Element element) {
    std::vector<Element::Iterator> open{element.children().begin()};
    std::vector<Element::Iterator> ends{element.children().end()};
    std::size_t depth = 0;
    while (!open.empty()) {
        if (open.back() == ends.back()) {
            open.pop_back();
            ends.pop_back();
            continue;
        }
        const Element child = *open.back();
        ++open.back();
        open.push_back(child.children().begin());
        ends.push_back(child.children().end());
        depth = std::max(depth, open.size() - 1);
    }
    return depth;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input = kvj::fuzz::textOf(data, size);
    const std::string_view text(input.c_str());
    const Document document = documentOf(text);
    require(document.fault().offset <= text.size(), "a fault is within the text");
    require(document.hasByteOrderMark() == text.starts_with("\xEF\xBB\xBF"), "a byte-order mark is known as one");

    // TinyXML recurses at each level, and a sanitizer's stack is soon full.
    if (depthOf(document.top()) > 1000) return 0;
    for (const bool condense : {true, false}) {
        TiXmlBase::SetCondenseWhiteSpace(condense);
        const Reference reference(text);
        const Document ours = documentOf(text);
        require(treeOf(ours.top()) == treeOf(reference.document), "the tree is TinyXML's");
        require(ours.fault().id == reference.error, "the error is TinyXML's");
    }
    TiXmlBase::SetCondenseWhiteSpace(true);
    return 0;
}
