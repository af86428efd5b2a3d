#include "comparison.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "foundation/document.h"
#include "foundation/element.h"
#include "support/tree.h"

namespace kvj::differential {

namespace {

bool sameValue(const char* ours, const TiXmlNode* first) {
    if (ours == nullptr || first == nullptr) return ours == nullptr && first == nullptr;
    return std::strcmp(ours, first->Value()) == 0;
}

bool sameAttributes(Element ours, const TiXmlElement& theirs) {
    const TiXmlAttribute* their = theirs.FirstAttribute();
    for (const auto& [name, value] : ours.attributes()) {
        if (their == nullptr || std::strcmp(name, their->Name()) != 0) return false;
        if (std::strcmp(value, their->Value()) != 0) return false;
        their = their->Next();
    }
    return their == nullptr;
}

/// The children of both, and that each of ours has its place in the text.
bool sameChildren(Element ours, const TiXmlNode& theirs, std::string_view text) {
    const TiXmlElement* their = theirs.FirstChildElement();
    std::size_t before = ours.offset();
    for (const Element our : ours.children()) {
        if (their == nullptr || our.name() != their->Value()) return false;
        if (!sameValue(our.text(), their->FirstChild()) || !sameAttributes(our, *their)) return false;
        const std::size_t offset = our.offset();
        if (offset < before || offset >= text.size() || text[offset] != '<') return false;
        if (!sameChildren(our, *their, text)) return false;
        before = offset + 1;
        their = their->NextSiblingElement();
    }
    return their == nullptr;
}

[[noreturn]] void tellDifference(std::string_view text, const Document& ours, const TiXmlDocument& theirs) {
    std::printf("These differ for the text");
    for (const char c : text) std::printf(" %02X", static_cast<unsigned char>(c));
    std::printf("\n%.*s\n", static_cast<int>(text.size()), text.data());
    std::printf("library: error %d at %zu, %s\n", ours.fault().id, ours.fault().offset,
                tests::treeOf(ours.top()).c_str());
    std::printf("TinyXML: error %d, %s\n", theirs.Error() ? theirs.ErrorId() : 0, tests::treeOf(theirs).c_str());
    std::fflush(stdout);
    std::_Exit(1);
}

}  // namespace

void Comparison::operator()(std::string_view text) {
    if ((number_++ >> runBits) % of_ != share_) return;
    ++count_;

    text = text.substr(0, text.find('\0'));
    padded_.assign(text);
    padded_.append(4, '\0');
    reference_.Clear();
    reference_.Parse(padded_.c_str(), nullptr, TIXML_ENCODING_UNKNOWN);

    const Document ours = tests::documentOf(text);
    if (ours.fault().id != (reference_.Error() ? reference_.ErrorId() : 0) || ours.fault().offset > text.size() ||
        ours.hasByteOrderMark() != text.starts_with("\xEF\xBB\xBF") || !sameChildren(ours.top(), reference_, text)) {
        tellDifference(text, ours, reference_);
    }
}

}  // namespace kvj::differential
