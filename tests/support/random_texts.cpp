#include "support/random_texts.h"

#include <array>
#include <cstddef>
#include <string_view>

using std::string_view_literals::operator""sv;

namespace kvj::tests {

namespace {

constexpr std::string_view starts[] = {
    "",
    "",
    "",
    "\xEF\xBB\xBF",
    "<?xml version='1.0'?>",
    "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n",
    "<?xml version='1.0' encoding='ISO-8859-1'?>",
    "<!DOCTYPE a>",
    " ",
    "<!-- c -->",
    "\xEF\xBB\xBF ",
};
constexpr std::string_view names[] = {"a",   "b",        "a1",   "b:c",  "a.b",   "_",
                                      "a-b", "\xC3\xA4", "\xFF", "\x01", "x\x02", "aa"};
constexpr std::string_view blanks[] = {" ", "\t", "\r", "\n", "\v", "\f", "  ", "\r\n\t", "\xEF\xBB\xBF", ""};
constexpr std::string_view gaps[] = {"", "", "", "", " ", "\t", "\n", "\xEF\xBF\xBE"};
constexpr std::string_view values[] = {
    "",     "1",    "text", "a b",          " a ",          "a\t\n b", ">",
    "/",    "</a>", "\xC3", "\xC3\xA9",     "\xE2\x82\xAC", "\xF0",    "\xF4\x8F\xBF\xBF",
    "\xC1", "\xC2", "\xF5", "\xEF\xBB\xBF", "\xEF\xBF\xBF", "'",       "\"",
    "<",    "&",    "=",    "UTF-8",        "latin1",
};
constexpr std::string_view references[] = {
    "&amp;",
    "&lt;",
    "&gt;",
    "&quot;",
    "&apos;",
    "&amp",
    "&AMP;",
    "&am;",
    "&;",
    "&#65;",
    "&#x41;",
    "&#x4a;",
    "&#x4F;",
    "&#xf;",
    "&#X41;",
    "&#32;",
    "&#10;",
    "&#0;",
    "&#;",
    "&#x;",
    "&#",
    "&#x",
    "&#xE9;",
    "&#127;",
    "&#128;",
    "&#x7FF;",
    "&#x800;",
    "&#xD800;",
    "&#xFFFF;",
    "&#x10000;",
    "&#x1FFFFF;",
    "&#x200000;",
    "&#x100000041;",
    "&#4294967361;",
    "&#x1000000000000000041;",
    "&#1#66;",
    "&#xx41;",
    "&#6a;",
    "&#x4g;",
    "&#9",
    "&#99999999999999;",
    "&&amp;",
    "&lt;&gt;",
    "&lt;a&gt;",
    "&#60;",
    "&#x20;",
};
constexpr std::string_view markup[] = {
    "<!---->",
    "<!-- <b> -->",
    "<!--->",
    "<!-- - -- ->",
    "<!--",
    "-->",
    "<![CDATA[ <b> ]]>",
    "<![CDATA[]]>",
    "<![CDATA[",
    "]]>",
    "<![cdata[x]]>",
    "<!>",
    "<!x>",
    "<!",
    "<?p x?>",
    "<?",
    "<>",
    "< a>",
    "<1>",
    "</>",
    "</ a>",
    "<",
    ">",
    "/>",
    "</",
    "<\xEF\xBB\xBF/",
    "<\xEF\xBB\xBF"
    "a>",
    "<\xEF\xBF\xBF"
    "a/>",
    "<\xEF\xBF\xBE>",
    "<\xEF\xBB\xBF \xEF\xBB\xBF"
    "a>",
};
constexpr std::string_view declarationStarts[] = {"<?xml", "<?xml ", "<?XML ", "<?xml-x ", "<?xMl\t", "<?xm"};
constexpr std::string_view declarationNames[] = {
    "encoding",   "encoding",   "ENCODING",  "encod\xDDng", "encod\xC4\xB0ng", "version",   "VERSION",
    "vers\xDDon", "standalone", "encodings", "encodin",     "versio",          "standalon", "x",
};
constexpr std::string_view encodings[] = {
    "UTF-8", "utf8",      "Utf-8",     "UTF-8zzz", "UTF8x",  "UTF-",   "UTF",  "latin1",
    "",      "&#x55;TF8", "UTF&#45;8", "&#0;",     "&UTF-8", "UTF-8>", "\xC3",
};

class Generator {
public:
    Generator(Random& random, std::string& text) : random_(random), text_(text) {}

    void document() {
        add(random_.oneOf(starts));
        if (random_.oneIn(8)) declaration();
        for (std::size_t nodes = 1 + random_.below(3); nodes > 0; --nodes) node(1 + random_.below(4));
        if (random_.oneIn(16)) text_.resize(random_.below(text_.size() + 1));
    }

private:
    void add(std::string_view part) { text_ += part; }

    void node(std::size_t depth) {
        switch (random_.below(depth == 0 ? 4 : 8)) {
            case 0:
                return text();
            case 1:
                return add(random_.oneOf(blanks));
            case 2:
                return random_.oneIn(4) ? declaration() : add(random_.oneOf(markup));
            case 3:
                return text();
            default:
                return element(depth);
        }
    }

    void text() {
        for (std::size_t parts = 1 + random_.below(3); parts > 0; --parts) {
            switch (random_.below(3)) {
                case 0:
                    add(random_.oneOf(references));
                    break;
                case 1:
                    add(random_.oneOf(blanks));
                    break;
                default:
                    add(random_.oneOf(values));
            }
        }
    }

    void element(std::size_t depth) {
        const std::string_view name = random_.oneOf(names);
        add("<");
        add(name);
        for (std::size_t attributes = random_.below(4); attributes > 0; --attributes) {
            add(random_.oneOf(blanks));
            attribute(random_.oneOf(names), random_.oneOf(values));
        }
        add(random_.oneOf(gaps));
        if (random_.oneIn(4)) return add(random_.oneIn(16) ? "/" : "/>");
        if (!random_.oneIn(64)) add(">");
        for (std::size_t nodes = random_.below(4); nodes > 0; --nodes) node(depth - 1);
        add("</");
        add(random_.oneIn(32) ? random_.oneOf(names) : name);
        add(random_.oneOf(gaps));
        if (!random_.oneIn(64)) add(">");
    }

    void attribute(std::string_view name, std::string_view value) {
        add(name);
        add(random_.oneOf(gaps));
        if (!random_.oneIn(32)) add("=");
        add(random_.oneOf(gaps));
        const std::string_view mark = random_.oneOf(std::array{"'"sv, "\""sv, "\""sv, ""sv});
        add(mark);
        if (random_.oneIn(4)) add(random_.oneOf(references));
        add(value);
        if (!random_.oneIn(32)) add(mark);
    }

    void declaration() {
        add(random_.oneOf(declarationStarts));
        for (std::size_t attributes = random_.below(3); attributes > 0; --attributes) {
            attribute(random_.oneOf(declarationNames), random_.oneOf(encodings));
            add(random_.oneOf(blanks));
        }
        if (random_.oneIn(8)) add(random_.oneOf(values));
        if (!random_.oneIn(16)) add(random_.oneIn(2) ? "?>" : ">");
    }

    Random& random_;
    std::string& text_;
};

}  // namespace

std::string randomDocument(Random& random) {
    std::string text;
    Generator(random, text).document();
    return text;
}

void tamper(Random& random, std::string& text, const std::vector<std::string>& samples) {
    constexpr std::size_t farthest = 48;
    for (std::size_t changes = 1 + random.below(3); changes > 0 && !text.empty(); --changes) {
        const std::size_t at = random.below(text.size());
        switch (random.below(8)) {
            case 0:
                text[at] = static_cast<char>(static_cast<unsigned char>(text[at]) ^ (1U << random.below(8)));
                break;
            case 1:
                text[at] = static_cast<char>(random.below(256));
                break;
            case 2:
                text.erase(at, 1 + random.below(farthest));
                break;
            case 3:
                text.resize(at);
                break;
            case 4: {
                const std::string& other = random.oneOf(samples);
                text.insert(at, other, random.below(other.size()), random.below(farthest));
                break;
            }
            case 5:
                text.insert(at, random.oneOf(references));
                break;
            case 6:
                text.insert(at, random.oneOf(blanks));
                break;
            default:
                text.insert(at, random.oneOf(markup));
        }
    }
}

}  // namespace kvj::tests
