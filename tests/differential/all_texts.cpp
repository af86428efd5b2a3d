#include <array>
#include <string_view>

#include "texts.h"

using std::string_view_literals::operator""sv;

namespace kvj::differential {

namespace {

/// Together they have every character that means something, one each of those that mean the same, and the lead bytes of
/// two, three and four bytes followed by the bytes of a mark. 01 is a letter in some locales.
constexpr std::string_view alphabets[] = {
    "<>/=\"'a:.1 \t"sv,
    "<>!?-[]&;#x1"sv,
    "<>/_a\n\x01\xC3\xEF\xBB\xBF\xF0\xBE"sv,
};

struct Frame {
    std::string_view first;
    std::string_view last;
};
constexpr Frame frames[] = {
    {"", ""},
    {"\xEF\xBB\xBF", ""},
    {"<?xml encoding='UTF-8'?>", ""},
    {"<?xml encoding='ISO-8859-1'?>", ""},
    {"<a>", "</a>"},
    {"\xEF\xBB\xBF<a>", "</a>"},
    {"<a ", "><b/></a>"},
    {"\xEF\xBB\xBF<a ", "><b/></a>"},
    {"<a b='", "'><b/></a>"},
    {"\xEF\xBB\xBF<a b='", "'><b/></a>"},
};

constexpr std::string_view tokens[] = {
    "<a>",
    "</a>",
    "<b",
    "/>",
    ">",
    "<!--",
    "-->",
    "<![CDATA[",
    "]]>",
    "&amp;",
    "&#x41;",
    "&#",
    ";",
    "x",
    " ",
    " b=\"1\"",
    " c='",
    "'",
    "<?xml encoding=\"latin1\"?>",
    "<?xml?>",
    "\xC3",
    "\xEF\xBB\xBF",
};

/// Calls `use` for each text that is made of so many of the `parts`, in the order of an odometer.
template <class Parts, class Use>
void forEachOf(const Parts& parts, unsigned length, std::string& text, const Use& use) {
    if (length == 0) return use(text);
    const std::size_t before = text.size();
    for (const auto part : parts) {
        text += part;
        forEachOf(parts, length - 1, text, use);
        text.resize(before);
    }
}

}  // namespace

void compareAllOfCharacters(Comparison& compare, unsigned length) {
    std::string whole;
    for (const auto& [first, last] : frames) {
        for (const auto alphabet : alphabets) {
            for (unsigned n = 0; n <= length; ++n) {
                std::string text(first);
                forEachOf(alphabet, n, text, [&, behind = last](const std::string& made) {
                    whole.assign(made).append(behind);
                    compare(whole);
                });
            }
        }
    }
}

void compareAllOfTokens(Comparison& compare, unsigned length) {
    for (unsigned n = 0; n <= length; ++n) {
        std::string text;
        forEachOf(tokens, n, text, [&](const std::string& made) { compare(made); });
    }
}

}  // namespace kvj::differential
