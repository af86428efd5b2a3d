#include "foundation/request_text.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>

#include "foundation/problems.h"

namespace kvj {

namespace {

/// Whether a byte stands for itself in a text and in an attribute.
constexpr auto isPlain = [] {
    std::array<bool, 256> table{};
    for (std::size_t byte = 0x20; byte < table.size(); ++byte) table[byte] = true;
    for (const char c : {'&', '<', '>', '"', '\''}) table[static_cast<unsigned char>(c)] = false;
    return table;
}();

/// What stands for a byte that cannot stand for itself.
struct Reference {
    explicit Reference(char c) {
        constexpr char digits[] = "0123456789ABCDEF";
        const auto byte = static_cast<unsigned char>(c);
        characters[3] = digits[byte / 16];
        characters[4] = digits[byte % 16];
    }
    char characters[6] = {'&', '#', 'x', '0', '0', ';'};
};

}  // namespace

inline void RequestText::put(std::string_view characters) {
    if (characters.size() > static_cast<std::size_t>(end_ - at_)) return putWhereThereIsNoRoom(characters);
    at_ = std::copy_n(characters.data(), characters.size(), at_);
}

void RequestText::putWhereThereIsNoRoom(std::string_view characters) {
    if (room_.more == nullptr) {
        const auto fitting = std::min(characters.size(), static_cast<std::size_t>(end_ - at_));
        at_ = std::copy_n(characters.data(), fitting, at_);
        beyond_ += characters.size() - fitting;
        return;
    }
    const auto size = static_cast<std::size_t>(at_ - room_.characters);
    room_.capacity = std::max(2 * room_.capacity, size + characters.size());
    room_.characters = room_.more(room_.host, room_.capacity);
    if (room_.characters == nullptr) throw std::bad_alloc();
    at_ = std::copy_n(characters.data(), characters.size(), room_.characters + size);
    end_ = room_.characters + room_.capacity;
}

void RequestText::putEncoded(std::string_view characters) {
    const char* at = characters.data();
    const char* const end = at + characters.size();
    while (true) {
        const char* const special =
            std::find_if_not(at, end, [](char c) { return isPlain[static_cast<unsigned char>(c)]; });
        put({at, static_cast<std::size_t>(special - at)});
        if (special == end) return;
        switch (*special) {
            case '&':
                put("&amp;");
                break;
            case '<':
                put("&lt;");
                break;
            case '>':
                put("&gt;");
                break;
            case '"':
                put("&quot;");
                break;
            case '\'':
                put("&apos;");
                break;
            default: {
                const Reference reference(*special);
                put({reference.characters, sizeof reference.characters});
            }
        }
        at = special + 1;
    }
}

void RequestText::indent(std::size_t depth) {
    static constexpr std::string_view blanks = "                                ";
    for (std::size_t wanted = 4 * depth; wanted > 0;) {
        const std::size_t some = std::min(wanted, blanks.size());
        put(blanks.substr(0, some));
        wanted -= some;
    }
}

void RequestText::closeTo(std::size_t depth) {
    while (open_.size() > depth) {
        if (behind_ == Behind::startTag) {
            put(" />\n");
        } else {
            if (behind_ == Behind::elements) indent(open_.size() - 1);
            put("</");
            put(open_.back());
            put(">\n");
        }
        behind_ = Behind::elements;
        open_.pop_back();
    }
}

Parent RequestText::begin(const char* rootName) {
    constexpr std::size_t usualDepth = 8;
    open_.reserve(usualDepth);
    put("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n");
    open(0, rootName);
    return {*this, 1};
}

std::size_t RequestText::end() {
    closeTo(0);
    return static_cast<std::size_t>(at_ - room_.characters) + beyond_;
}

void RequestText::open(std::size_t depth, const char* name) {
    closeTo(depth);
    if (behind_ == Behind::startTag) put(">\n");
    indent(depth);
    open_.emplace_back(name);
    put("<");
    put(open_.back());
    behind_ = Behind::startTag;
    if (problems_ != nullptr) problems_->opened({open_.back(), depth, row_, entry_});
    row_ = nullptr;
    entry_ = -1;
}

void RequestText::attribute(const char* name, const char* value) {
    const std::string_view characters = value;
    const std::string_view quote = characters.find('"') == std::string_view::npos ? "\"" : "'";
    put(" ");
    put(name);
    put("=");
    put(quote);
    putEncoded(characters);
    put(quote);
}

void RequestText::text(const char* value) {
    put(">");
    putEncoded(value);
    behind_ = Behind::text;
}

}  // namespace kvj
