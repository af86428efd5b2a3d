#include "source_line.h"

#include <algorithm>
#include <cwchar>

#include "visible_text.h"

namespace kvj::tool {

namespace {

bool isInsideCharacter(std::string_view bytes, std::size_t at) {
    return at < bytes.size() && (static_cast<unsigned char>(bytes[at]) & 0xC0U) == 0x80;
}

/// Tabs would reach another column for each terminal.
std::string withoutTabs(std::string_view text) {
    std::string spaced;
    for (const char c : text) {
        if (c == '\t') {
            spaced.append(4, ' ');
        } else {
            spaced += c;
        }
    }
    return spaced;
}

/// How many columns of a terminal a visible text takes: some characters take two, some none.
std::size_t columnsOf(std::string_view text) {
    std::size_t columns = 0;
    std::mbstate_t state{};
    for (std::size_t at = 0; at < text.size();) {
        wchar_t character = 0;
        const std::size_t used = std::mbrtowc(&character, text.data() + at, text.size() - at, &state);
        if (used == 0 || used > text.size() - at) {  // The locale does not know it.
            state = {};
            ++at;
            ++columns;
            continue;
        }
        at += used;
        columns += static_cast<std::size_t>(std::max(wcwidth(character), 0));
    }
    return columns;
}

}  // namespace

SourceLine sourceLine(std::string_view bytes, std::size_t offset, const HiddenText& hidden) {
    constexpr std::size_t before = 60;
    constexpr std::size_t behind = 100;
    constexpr std::string_view cut = "...";
    constexpr std::string_view ends = "\r\n";
    offset = std::min(offset, bytes.size());
    std::size_t first = offset > before ? offset - before : 0;
    while (isInsideCharacter(bytes, first)) --first;
    const std::size_t end = bytes.substr(first, offset - first).rfind('\n');
    const bool isBegun = end == std::string_view::npos && first > 0 && bytes[first - 1] != '\n';
    if (end != std::string_view::npos) first += end + 1;
    std::size_t last = std::min(offset + behind, bytes.size());
    while (last > offset && isInsideCharacter(bytes, last)) --last;
    const std::size_t length = bytes.substr(offset, last - offset).find_first_of(ends);
    const bool isUnfinished =
        length == std::string_view::npos && last < bytes.size() && ends.find(bytes[last]) == std::string_view::npos;
    if (length != std::string_view::npos) last = offset + length;

    const auto part = [&](std::size_t from, std::size_t to) {
        return visible(withoutTabs(hidden.shown(bytes, from, to)));
    };
    SourceLine line;
    if (isBegun) line.text = cut;
    line.text += part(first, offset);
    line.caret = std::string(columnsOf(line.text), ' ') + "^";
    line.text += part(offset, last);
    if (isUnfinished) line.text += cut;
    return line;
}

}  // namespace kvj::tool
