/// @file encodings.h
/// Captures in other encodings than the library reads.
#ifndef KVJXML_TOOL_ENCODINGS_H
#define KVJXML_TOOL_ENCODINGS_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kvj::tool {

enum class Encoding : std::uint8_t {
    utf8,
    utf16,  ///< in the order that its mark tells, or its first character
    utf16le,
    utf16be,
    latin1,
};

/// How many bytes are read together.
constexpr std::size_t unitOf(Encoding encoding) {
    return encoding == Encoding::utf8 || encoding == Encoding::latin1 ? 1 : 2;
}

/// What a capture says of its own encoding.
struct Recognised {
    Encoding encoding = Encoding::utf8;
    std::size_t markLength = 0;  ///< of the byte-order mark in front
    std::string note{};          ///< how that is known, for people; empty for UTF-8 without a mark
};
/// By a byte-order mark or, when there is none, by what the first character looks like in UTF-16.
Recognised recogniseMark(std::string_view bytes);
/// UTF-16 of either order becomes that of one.
Encoding withOrder(Encoding encoding, std::string_view bytes);
/// Whether a document in single bytes declares that they are Latin-1.
bool declaresLatin1(std::string_view document);

/// The text in UTF-8. What is no character in UTF-16 becomes bytes that are none in UTF-8 either, so that a reader
/// finds them in their place.
std::string toUtf8(std::string_view bytes, Encoding encoding);
/// How many bytes a text in UTF-8 takes in another encoding.
std::size_t sizeIn(Encoding encoding, std::string_view utf8);

}  // namespace kvj::tool

#endif
