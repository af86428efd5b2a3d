#include "foundation/fitness.h"

#include <algorithm>
#include <cstddef>

#include "foundation/utf8.h"

namespace kvj {

namespace {

using kvjxml::problem_kind;

/// Most texts are of these bytes alone, each a character that arrives.
bool isPrintable(char c) { return c >= ' ' && c <= '~'; }

/// Whether UTF-8 has a control character, or one of the two at the end of the first plane that XML does not have.
bool holdsNoCharacter(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = [&](std::size_t further) { return static_cast<unsigned char>(text[i + further]); };
        if (byte(0) < 0x20 || byte(0) == 0x7F) return true;
        if (byte(0) == 0xC2 && byte(1) < 0xA0) return true;
        if (byte(0) == 0xEF && byte(1) == 0xBF && byte(2) >= 0xBE) return true;
    }
    return false;
}

/// Blanks at the ends are left out, and of several in a row all but one.
bool losesBlanks(std::string_view text) {
    return text.starts_with(' ') || text.ends_with(' ') || text.find("  ") != std::string_view::npos;
}

}  // namespace

std::optional<problem_kind> unfitness(std::string_view text, Stands where) {
    if (!std::ranges::all_of(text, isPrintable)) {
        if (firstOutsideUtf8(text) != text.size()) return problem_kind::not_utf8;
        if (holdsNoCharacter(text)) return problem_kind::no_character;
    }
    // A mark in front counts as a blank.
    const bool isShorter = losesBlanks(text) || text.starts_with("\xEF\xBB\xBF");
    if (where == Stands::inElement && isShorter) return problem_kind::read_otherwise;
    return {};
}

bool isName(std::string_view text) {
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_'; };
    const auto isInName = [=](char c) { return isLetter(c) || (c >= '0' && c <= '9') || c == '-' || c == '.'; };
    return !text.empty() && isLetter(text.front()) && std::ranges::all_of(text, isInName);
}

}  // namespace kvj
