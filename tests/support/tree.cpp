#include "support/tree.h"

#include <cstring>
#include <utility>
#include <vector>

namespace kvj::tests {

namespace {

/// The names and values of one element, and where its children end. Texts can be as deep as a stack is not.
void appendOpening(std::string& tree, std::string_view name, const char* value) {
    tree += name;
    if (value != nullptr) {
        tree += " \"";
        tree += value;
        tree += '"';
    }
}

void appendAttribute(std::string& tree, const char* name, const char* value) {
    tree += ' ';
    tree += name;
    tree += "=\"";
    tree += value;
    tree += '"';
}

}  // namespace

std::string treeOf(Element element) {
    struct Level {
        Element::Iterator next;
        Element::Iterator end;
    };
    std::string tree;
    std::vector<Level> open{{element.children().begin(), element.children().end()}};
    while (!open.empty()) {
        Level& level = open.back();
        if (level.next == level.end) {
            open.pop_back();
            if (!open.empty()) tree += '}';
            continue;
        }
        const Element child = *level.next;
        ++level.next;
        appendOpening(tree, child.name(), child.text());
        for (const auto& [name, value] : child.attributes()) appendAttribute(tree, name, value);
        tree += '{';
        open.push_back({child.children().begin(), child.children().end()});
    }
    return tree;
}

std::string treeOf(const TiXmlNode& node) {
    std::string tree;
    std::vector<const TiXmlElement*> open{node.FirstChildElement()};
    while (!open.empty()) {
        const TiXmlElement* element = open.back();
        if (element == nullptr) {
            open.pop_back();
            if (!open.empty()) tree += '}';
            continue;
        }
        open.back() = element->NextSiblingElement();
        const TiXmlNode* first = element->FirstChild();
        appendOpening(tree, element->Value(), first == nullptr ? nullptr : first->Value());
        for (const auto* attribute = element->FirstAttribute(); attribute != nullptr; attribute = attribute->Next()) {
            appendAttribute(tree, attribute->Name(), attribute->Value());
        }
        tree += '{';
        open.push_back(element->FirstChildElement());
    }
    return tree;
}

Reference::Reference(std::string_view text) : error(0) {
    const std::string padded = std::string(text.substr(0, text.find('\0'))) + std::string(4, '\0');
    document.SetTabSize(0);
    document.Parse(padded.c_str(), nullptr, TIXML_ENCODING_UNKNOWN);
    if (document.Error()) error = document.ErrorId();
}

Document documentOf(std::string_view text) {
    text = text.substr(0, text.find('\0'));
    Text copy(text.size());
    if (!text.empty()) std::memcpy(copy.bytes(), text.data(), text.size());
    return Document(std::move(copy));
}

}  // namespace kvj::tests
