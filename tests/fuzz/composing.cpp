#include "composing.h"

#include <cwchar>

namespace kvj::fuzz {

namespace {

/// The text with its terminator, or without one up to a byte that the locale does not know.
std::wstring wideOf(const std::string& text) {
    std::wstring wide(text.size() + 1, L'\0');
    std::mbstate_t state{};
    const char* from = text.c_str();
    const bool whole = std::mbsrtowcs(wide.data(), &from, wide.size(), &state) != static_cast<std::size_t>(-1);
    wide.resize(std::wcslen(wide.c_str()) + (whole ? 1 : 0));
    return wide;
}

/// Whether a name is one that the printer's elements could have.
bool isName(std::string_view name) {
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; };
    return !name.empty() && isLetter(name[0]) && std::ranges::all_of(name, [&](char c) {
        return isLetter(c) || (c >= '0' && c <= '9') || c == '-' || c == '.' || c == ':';
    });
}

bool hasNames(const TiXmlNode& node) {
    for (const auto* element = node.FirstChildElement(); element != nullptr; element = element->NextSiblingElement()) {
        if (!isName(element->Value()) || !hasNames(*element)) return false;
    }
    return true;
}

/// A text as it is read again: blanks in front and at the end are lost, and so are all but one of several. In front, a
/// byte-order mark and the two characters that are none count as blanks.
std::string condensed(std::string_view text) {
    const auto skip = [&](std::string_view blank) {
        const bool found = text.starts_with(blank);
        if (found) text.remove_prefix(blank.size());
        return found;
    };
    while (skip(" ") || skip("\xEF\xBB\xBF") || skip("\xEF\xBF\xBE") || skip("\xEF\xBF\xBF")) {
    }
    std::string result;
    for (const char c : text) {
        if (c != ' ' || !result.ends_with(' ')) result += c;
    }
    if (result.ends_with(' ')) result.pop_back();
    return result;
}

/// A text of nothing but white space is not read, however it is written.
const TiXmlNode* skipBlankTexts(const TiXmlNode* node) {
    const auto isBlank = [](const TiXmlNode& text) {
        return condensed(text.Value()).find_first_not_of(" \t\n\v\f\r") == std::string::npos;
    };
    while (node != nullptr && node->ToText() != nullptr && isBlank(*node)) node = node->NextSibling();
    return node;
}

bool haveSameAttributes(const TiXmlElement& composed, const TiXmlElement& read) {
    const TiXmlAttribute* one = composed.FirstAttribute();
    const TiXmlAttribute* other = read.FirstAttribute();
    for (; one != nullptr && other != nullptr; one = one->Next(), other = other->Next()) {
        if (one->NameTStr() != other->NameTStr() || one->ValueStr() != other->ValueStr()) return false;
    }
    return one == other;
}

bool areSame(const TiXmlNode& composed, const TiXmlNode& read) {
    if (composed.Type() != read.Type()) return false;
    if (composed.ToText() != nullptr) return condensed(composed.Value()) == read.Value();
    if (const TiXmlElement* element = composed.ToElement()) {
        if (element->ValueStr() != read.ValueStr() || !haveSameAttributes(*element, *read.ToElement())) return false;
    }
    const TiXmlNode* one = skipBlankTexts(composed.FirstChild());
    const TiXmlNode* other = read.FirstChild();
    for (; one != nullptr && other != nullptr; one = skipBlankTexts(one->NextSibling()), other = other->NextSibling()) {
        if (!areSame(*one, *other)) return false;
    }
    return one == other;
}

}  // namespace

std::string printed(const TiXmlDocument& document) {
    TiXmlPrinter printer;
    printer.SetIndent("    ");
    document.Accept(&printer);
    return printer.CStr();
}

std::wstring widePrinted(const TiXmlDocument& document) { return wideOf(printed(document)); }

void requireReadsAgain(const TiXmlDocument& document) {
    const std::string text = printed(document);
    const bool isText = wideOf(text).ends_with(L'\0');
    if (!isText || !hasNames(document)) return;
    TiXmlDocument read;
    read.SetTabSize(0);
    read.Parse(text.c_str(), nullptr, TIXML_ENCODING_UNKNOWN);
    require(!read.Error(), "what is composed is XML");
    require(areSame(document, read), "what is composed reads again");
}

}  // namespace kvj::fuzz
