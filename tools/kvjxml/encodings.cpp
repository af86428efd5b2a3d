#include "encodings.h"

#include <algorithm>
#include <array>

namespace kvj::tool {

namespace {

unsigned byteAt(std::string_view bytes, std::size_t at) { return static_cast<unsigned char>(bytes[at]); }

void append(std::string& text, unsigned character) {
    const auto add = [&](unsigned byte) { text.push_back(static_cast<char>(byte)); };
    const auto addRest = [&](unsigned shift) { add(0x80U | (character >> shift & 0x3FU)); };
    if (character < 0x80) return add(character);
    if (character < 0x800) {
        add(0xC0U | character >> 6);
    } else {
        if (character < 0x10000) {
            add(0xE0U | character >> 12);
        } else {
            add(0xF0U | character >> 18);
            addRest(12);
        }
        addRest(6);
    }
    addRest(0);
}

std::string fromLatin1(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (std::size_t at = 0; at < bytes.size(); ++at) append(text, byteAt(bytes, at));
    return text;
}

constexpr bool isHighSurrogate(unsigned unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool isLowSurrogate(unsigned unit) { return unit >= 0xDC00 && unit < 0xE000; }

std::string fromUtf16(std::string_view bytes, bool isLittleEndian) {
    const auto unitAt = [&](std::size_t at) {
        const unsigned first = byteAt(bytes, at);
        const unsigned second = byteAt(bytes, at + 1);
        return isLittleEndian ? second << 8 | first : first << 8 | second;
    };
    std::string text;
    text.reserve(bytes.size());
    std::size_t at = 0;
    while (at + 2 <= bytes.size()) {
        unsigned character = unitAt(at);
        at += 2;
        if (isHighSurrogate(character) && at + 2 <= bytes.size() && isLowSurrogate(unitAt(at))) {
            character = 0x10000 + ((character - 0xD800) << 10) + (unitAt(at) - 0xDC00);
            at += 2;
        }
        append(text, character);  // A surrogate without its other half is no UTF-8 this way.
    }
    if (at < bytes.size()) text.push_back('\xFF');  // Half a unit is not either.
    return text;
}

struct Mark {
    std::string_view bytes;
    Encoding encoding;
    const char* note;
    bool isCharacter = false;  ///< no mark, but what a document begins with
};
constexpr Mark marks[] = {
    {"\xEF\xBB\xBF", Encoding::utf8, "begins with a byte order mark"},
    {"\xFF\xFE", Encoding::utf16le, "is UTF-16, little-endian, by its byte order mark"},
    {"\xFE\xFF", Encoding::utf16be, "is UTF-16, big-endian, by its byte order mark"},
    {{"<\0", 2}, Encoding::utf16le, "is UTF-16, little-endian, by its first character", true},
    {{"\0<", 2}, Encoding::utf16be, "is UTF-16, big-endian, by its first character", true},
};

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

std::string_view withoutBlanks(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    return text;
}

}  // namespace

Recognised recogniseMark(std::string_view bytes) {
    const auto* const mark =
        std::ranges::find_if(marks, [&](const Mark& each) { return bytes.starts_with(each.bytes); });
    if (mark == std::end(marks)) return {};
    return {mark->encoding, mark->isCharacter ? 0 : mark->bytes.size(), mark->note};
}

Encoding withOrder(Encoding encoding, std::string_view bytes) {
    if (encoding != Encoding::utf16) return encoding;
    // Without any sign it is big-endian, as Unicode has it.
    return recogniseMark(bytes).encoding == Encoding::utf16le ? Encoding::utf16le : Encoding::utf16be;
}

bool declaresLatin1(std::string_view document) {
    document = withoutBlanks(document);
    if (!document.starts_with("<?xml")) return false;
    std::string_view declaration = document.substr(0, document.find("?>"));
    constexpr std::string_view attribute = "encoding";
    const std::size_t at = declaration.find(attribute);
    if (at == std::string_view::npos) return false;
    declaration = withoutBlanks(declaration.substr(at + attribute.size()));
    if (!declaration.starts_with('=')) return false;
    declaration = withoutBlanks(declaration.substr(1));
    if (declaration.empty()) return false;
    const char quote = declaration.front();
    if (quote != '"' && quote != '\'') return false;
    std::string name(declaration.substr(1, declaration.find(quote, 1) - 1));
    std::ranges::transform(name, name.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    constexpr std::array<std::string_view, 6> names{"iso-8859-1", "iso_8859-1", "iso8859-1", "latin1", "latin-1", "l1"};
    return std::ranges::find(names, name) != names.end();
}

std::string toUtf8(std::string_view bytes, Encoding encoding) {
    switch (encoding) {
        case Encoding::utf8:
            return std::string(bytes);
        case Encoding::latin1:
            return fromLatin1(bytes);
        case Encoding::utf16:
            return toUtf8(bytes, withOrder(encoding, bytes));  // NOLINT(misc-no-recursion): once, it has an order then
        case Encoding::utf16le:
        case Encoding::utf16be:
            return fromUtf16(bytes, encoding == Encoding::utf16le);
    }
    return {};
}

std::size_t sizeIn(Encoding encoding, std::string_view utf8) {
    if (encoding == Encoding::utf8) return utf8.size();
    std::size_t units = 0;
    for (std::size_t at = 0; at < utf8.size(); ++at) {
        const unsigned byte = byteAt(utf8, at);
        if ((byte & 0xC0U) == 0x80) continue;
        // A character of four bytes is a pair in UTF-16.
        units += unitOf(encoding) == 2 && byte >= 0xF0 && byte < 0xF8 ? 2 : 1;
    }
    return units * unitOf(encoding);
}

}  // namespace kvj::tool
