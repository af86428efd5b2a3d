#include "foundation/fitness.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kvj {

namespace {

using kvjxml::problem_kind;

constexpr char32_t invalid = 0xFFFFFFFF;
constexpr char32_t mark = 0xFEFF;

unsigned byteOf(char c) { return static_cast<unsigned char>(c); }

/// The character that a text begins with, which is removed from it.
char32_t takeCharacter(std::string_view& text) {
    const unsigned first = byteOf(text.front());
    text.remove_prefix(1);
    if (first < 0x80) return first;
    const std::size_t more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC2 || first > 0xF4 || text.size() < more) return invalid;
    char32_t code = first & (0x3FU >> more);
    for (std::size_t i = 0; i < more; ++i) {
        if ((byteOf(text[i]) & 0xC0U) != 0x80) return invalid;
        code = code << 6U | (byteOf(text[i]) & 0x3FU);
    }
    text.remove_prefix(more);
    constexpr std::array<char32_t, 4> least{0, 0x80, 0x800, 0x10000};  // A longer form than needed is not valid.
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    return code < least[more] || code > 0x10FFFF || isSurrogate ? invalid : code;
}

/// A control character, or one that XML does not have.
constexpr bool isNoCharacter(char32_t code) {
    return code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0xFFFE || code == 0xFFFF;
}

/// Most texts are of these bytes, each a character that arrives.
bool isPrintable(char c) { return c >= ' ' && c <= '~'; }

/// Blanks at the ends are left out, and of several in a row all but one.
bool losesBlanks(std::string_view text) {
    return text.starts_with(' ') || text.ends_with(' ') || text.find("  ") != std::string_view::npos;
}

}  // namespace

std::optional<problem_kind> unfitness(std::string_view text, Stands where) {
    std::optional<problem_kind> found;
    if (!std::ranges::all_of(text, isPrintable)) {
        for (std::string_view rest = text; !rest.empty();) {
            const bool isFirst = rest.size() == text.size();
            const char32_t code = takeCharacter(rest);
            if (code == invalid) return problem_kind::not_utf8;
            if (isNoCharacter(code)) found = problem_kind::no_character;
            if (code == mark && isFirst && !found && where == Stands::inElement) found = problem_kind::read_otherwise;
        }
    }
    if (!found && where == Stands::inElement && losesBlanks(text)) return problem_kind::read_otherwise;
    return found;
}

bool isName(std::string_view text) {
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_'; };
    const auto isInName = [=](char c) { return isLetter(c) || (c >= '0' && c <= '9') || c == '-' || c == '.'; };
    return !text.empty() && isLetter(text.front()) && std::ranges::all_of(text, isInName);
}

}  // namespace kvj
