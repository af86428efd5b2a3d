#include "support/random_replies.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace kvj::tests {

namespace {

constexpr std::string_view starts[] = {"",
                                       "",
                                       "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n",
                                       "<?xml version='1.0'?>",
                                       "<!-- c -->",
                                       "<!DOCTYPE a>",
                                       "<other/>",
                                       " \n"};
constexpr std::string_view ends[] = {"", "", "\n", "<!-- c -->", "<?p x?>", "<other/>", "junk", "</b>", "<"};
constexpr std::string_view breaks[] = {"", "\n", "\n    ", " "};
constexpr std::string_view numbers[] = {"0",           "1",          "-1",         "7",
                                        "  12 ",       "+5",         "0x1F",       "0xfffffffff",
                                        "0xZ",         "255",        "256",        "65535",
                                        "65536",       "2147483647", "2147483648", "-2147483648",
                                        "-2147483649", "4294967295", "4294967296", "99999999999999999999",
                                        "1.5",         "1,5",        "1e9",        "1e40",
                                        "-1e-50",      ".5",         "5.",         "inf",
                                        "nan",         "12abc",      "abc",        "- 5",
                                        "0X10",        "00012",      "0x",         "3 4"};
constexpr std::string_view texts[] = {
    "text",
    "Custom 1",
    "Custom 2",
    "yes",
    "no",
    "enabled",
    "true",
    "Yes",
    "a long text that is certainly longer than any of the fields has room for, with "
    "sixty-four bytes, a hundred, or even a hundred and twenty-eight of them and more",
    "Caf\xC3\xA9 B\xC3\xBCro",
    "\xD0\x9F\xD1\x80\xD0\xB8\xD0\xBD\xD1\x82\xD0\xB5\xD1\x80 \xE2\x82\xAC \xF0\x9F\x96\xA8",
    "00:1b:54:A2:0C:7E",
    "001b54A20C7E",
    "192.168.40.21",
    "1.2.3",
    "300.1.1.1",
    "MONO BLACK",
    "BLACK MONO",
    "YMC",
    "K",
    "locked",
    "off",
    "&amp;",
    "a&#66;c",
    "a&#x20AC;c",
    "a & b",
    "a&#0;b",
    "&unknown;",
    "  two   blanks ",
    "<![CDATA[ <x> ]]>",
    "<!-- c -->5",
    "<b/>5",
    "5<b/>",
    "",
    ""};
constexpr std::string_view names[] = {"unknown", "a", "min", "Job", "description", "x-1"};

class Generator {
public:
    Generator(Random& random, std::string& text) : random_(random), text_(text) {}

    void document(const Message& message) {
        add(random_.oneOf(starts));
        const bool takesOther = !message.otherRoot.empty() && random_.oneIn(2);
        const std::string_view root = takesOther ? message.otherRoot : message.root;
        add("<").add(root).add(">");
        if (message.table.empty() || random_.oneIn(16)) value({});
        children(message.table);
        add("</").add(root).add(">").add(random_.oneOf(ends));
    }

private:
    Generator& add(std::string_view part) {
        text_ += part;
        return *this;
    }

    // Tables nest as deep as they are declared, so the recursion ends.
    // NOLINTBEGIN(misc-no-recursion)
    void children(std::span<const DescribedRow> rows) {
        for (std::size_t count = random_.below(8); count > 0; --count) {
            add(random_.oneOf(breaks));
            if (random_.oneIn(24)) add(random_.oneOf(texts));
            if (rows.empty() || random_.oneIn(16)) {
                element(random_.oneOf(names), {});
            } else {
                const DescribedRow& row = random_.oneOf(rows);
                element(row.name, row.description);
            }
        }
    }

    void element(std::string_view name, const Description& row) {
        add("<").add(name);
        attribute("min");
        attribute("max");
        if (!row.word.empty()) attribute(row.word);
        if (random_.oneIn(16)) return static_cast<void>(add("/>"));
        add(">");
        if (row.group.empty() || random_.oneIn(16)) value(row);
        if (!row.group.empty()) children(row.group);
        add("</").add(name).add(">");
    }
    // NOLINTEND(misc-no-recursion)

    void attribute(std::string_view name) {
        if (name.find_first_of(" \"") != std::string_view::npos || !random_.oneIn(2)) return;
        add(" ").add(name).add("=\"").add(random_.oneOf(numbers)).add("\"");
    }

    void value(const Description& row) {
        if (const auto words = row.words.words.rows; !words.empty() && !random_.oneIn(4)) {
            add(words[random_.below(words.size())].word);
        } else if (!row.word.empty() && random_.oneIn(2)) {
            add(row.word);
        } else {
            add(random_.oneIn(2) ? random_.oneOf(numbers) : random_.oneOf(texts));
        }
    }

    Random& random_;
    std::string& text_;
};

}  // namespace

std::string randomReply(Random& random, const Message& message) {
    std::string text;
    Generator(random, text).document(message);
    return text;
}

std::string spoiltReply(Random& random, const Message& message, const std::vector<std::string>& samples) {
    // Samples are long.
    std::string text = random.oneIn(16) ? random.oneOf(samples) : randomReply(random, message);
    if (random.oneIn(2)) tamper(random, text, samples);
    return text;
}

}  // namespace kvj::tests
