// What the worst replies cost, in time and on the heap, against an ordinary one of the same size. A printer that sends
// them, by fault or by design, must not hold its host up.
#include <KVJStatusParser.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <clocale>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "allocations.h"
#include "collector.h"
#include "contest.h"

namespace {

// ---- Replies --------------------------------------------------------------------------------------------------------

std::string times(std::size_t count, std::string_view text) {
    std::string all;
    all.reserve(count * text.size());
    for (std::size_t i = 0; i < count; ++i) all += text;
    return all;
}

/// The text as often as it fits, but at least once.
std::string filled(std::size_t size, std::string_view text) {
    return times(std::max<std::size_t>(size / text.size(), 1), text);
}

std::string between(std::string_view begin, std::string_view inside, std::string_view end = {}) {
    std::string all(begin);
    all += inside;
    return all += end;
}

/// Elements in each other.
std::string nested(std::size_t levels, std::string_view inside) {
    return between(times(levels, "<a>"), inside, times(levels, "</a>"));
}

/// A short name that no other number has.
std::string nameOf(std::size_t number) {
    std::string name(1, static_cast<char>('a' + number % 26));
    for (number /= 26; number > 0; number /= 36) {
        const auto digit = static_cast<char>(number % 36);
        name += static_cast<char>(digit < 10 ? '0' + digit : 'a' + digit - 10);
    }
    return name;
}

/// An element with as many attributes as fit, all of different names that begin alike.
std::string attributes(std::size_t size, std::string_view beginning, std::string_view value) {
    std::string all = "<a";
    for (std::size_t i = 0; i == 0 || all.size() < size; ++i) {
        (((all += ' ') += beginning) += nameOf(i)) += '=';
        all += value;
    }
    return all + "/>";
}

/// The elements of a general status.
std::string ordinary(std::size_t size) {
    const std::string sample = kvj::bench::sample("get_general_status");
    const std::size_t first = sample.find("    <printer_state>");
    const std::size_t last = sample.rfind("</get_general_status>");
    if (first == std::string::npos || last == std::string::npos)
        throw std::runtime_error("the sample has no such elements");
    return filled(size, std::string_view(sample).substr(first, last - first));
}

struct Shape {
    const char* name;
    std::string (*fill)(std::size_t size);
};

/// As many levels as take a quarter of the reply, so that most of it lies below.
constexpr std::size_t levels(std::size_t size) { return size / 28; }

// clang-format off
constexpr Shape shapes[] = {
    {"ordinary",               ordinary},
    {"siblings",               [](std::size_t size) { return filled(size, "<b/>"); }},
    {"siblings, long name",    [](std::size_t size) { return filled(size, "<card/>"); }},
    {"siblings with text",     [](std::size_t size) { return filled(size, "<b>x</b>"); }},
    {"deep",                   [](std::size_t size) { return filled(size, "<a>"); }},
    {"deep, closed",           [](std::size_t size) { return nested(size / 7, ""); }},
    {"siblings, deep",         [](std::size_t size) { return nested(levels(size), filled(size / 4 * 3, "<b/>")); }},
    {"texts",                  [](std::size_t size) { return filled(size, "x<>"); }},
    {"texts, deep",            [](std::size_t size) { return nested(levels(size), filled(size / 4 * 3, "x<>")); }},
    {"unknowns",               [](std::size_t size) { return filled(size, "<>"); }},
    {"unknowns, deep",         [](std::size_t size) { return nested(levels(size), filled(size / 4 * 3, "<>")); }},
    {"256 attributes",         [](std::size_t size) { return filled(size, attributes(256UL * 6, "", "''")); }},
    {"256 without quotes",     [](std::size_t size) { return filled(size, attributes(256UL * 5, "", "1")); }},
    {"two attributes",         [](std::size_t size) { return filled(size, "<a b=1 c=1/>"); }},
    {"short attributes",       [](std::size_t size) { return attributes(size, "", "1"); }},
    {"names that begin alike", [](std::size_t size) { return attributes(size, times(64, "n"), "1"); }},
    {"long names alike",       [](std::size_t size) { return attributes(size, times(4096, "n"), "1"); }},
    {"the same name",          [](std::size_t size) { return between("<a", filled(size, " a=1"), "/>"); }},
    {"equals signs",           [](std::size_t size) { return between("<b ", filled(size, "=")); }},
    {"equals signs in text",   [](std::size_t size) { return between("<b>", filled(size, "="), "</b>"); }},
    {"tags in a comment",      [](std::size_t size) { return between("<!--", filled(size, "<a"), "-->"); }},
    {"tags in CDATA",          [](std::size_t size) { return between("<![CDATA[", filled(size, "<a"), "]]>"); }},
    {"tags in a value",        [](std::size_t size) { return between("<b a=\"", filled(size, "<a"), "\"/>"); }},
    {"tags and equals signs",  [](std::size_t size) { return between("<!--", filled(size, "<a="), "-->"); }},
    {"references by name",     [](std::size_t size) { return "<b>" + filled(size, "&amp;") + "</b>"; }},
    {"decimal references",     [](std::size_t size) { return "<b>" + filled(size, "&#65;") + "</b>"; }},
    {"hexadecimal references", [](std::size_t size) { return "<b>" + filled(size, "&#x41;") + "</b>"; }},
    {"long decimal number",    [](std::size_t size) { return between("<b>&#", filled(size, "1"), ";</b>"); }},
    {"long hexadecimal",       [](std::size_t size) { return between("<b>&#x", filled(size, "1"), ";</b>"); }},
    {"ampersands",             [](std::size_t size) { return between("<b>", filled(size, "&"), "</b>"); }},
    {"open references",        [](std::size_t size) { return between("<b>", filled(size, "&#")); }},
    {"references far from ;",  [](std::size_t size) { return between("<b>", filled(size, "&#"), ";</b>"); }},
    {"digits far from ;",      [](std::size_t size) { return between("<b>", filled(size, "&#1"), ";</b>"); }},
    {"lead bytes",             [](std::size_t size) { return between("<b>", filled(size, "\xF4"), "</b>"); }},
    {"characters not ASCII",   [](std::size_t size) { return between("<b>", filled(size, "\xE9"), "</b>"); }},
    {"marks",                  [](std::size_t size) { return between("<b>", filled(size, "\xEF\xBB\xBF"), "</b>"); }},
    {"blanks",                 [](std::size_t size) { return filled(size, " "); }},
    {"lines",                  [](std::size_t size) { return filled(size, "\n"); }},
    {"gaps",                   [](std::size_t size) { return between("<b>", filled(size, "x \n"), "</b>"); }},
    {"blanks in a tag",        [](std::size_t size) { return between("<b", filled(size, " "), "/>"); }},
    {"comments",               [](std::size_t size) { return filled(size, "<!---->"); }},
    {"declarations",           [](std::size_t size) { return filled(size, "<?xml?>"); }},
    {"unclosed comment",       [](std::size_t size) { return between("<!--", filled(size, "x")); }},
    {"unclosed comments",      [](std::size_t size) { return filled(size, "<!--"); }},
    {"unclosed CDATA",         [](std::size_t size) { return between("<![CDATA[", filled(size, "x")); }},
    {"unclosed text",          [](std::size_t size) { return between("<b>", filled(size, "x")); }},
    {"unclosed value",         [](std::size_t size) { return between("<b a=\"", filled(size, "x")); }},
    {"unclosed declaration",   [](std::size_t size) { return between("<?xml", filled(size, " x")); }},
    {"unclosed name",          [](std::size_t size) { return between("<", filled(size, "x")); }},
    {"unclosed tags",          [](std::size_t size) { return filled(size, "<b "); }},
};
// clang-format on

struct Size {
    const char* name;
    std::size_t bytes;
};
constexpr Size sizes[] = {{"64KiB", 64 << 10}, {"1MiB", 1 << 20}, {"4MiB", 4 << 20}, {"16MiB", 16 << 20}};

/// A reply with such a shape between two elements that the library knows. It reads both, or where the shape does not
/// end the first alone; each character is a byte of the shape. It says that it is UTF-8: that has more to look at.
std::wstring reply(const Shape& shape, std::size_t size) {
    const std::string known = "<error>7</error>";
    const std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<get_general_status>" + known +
                             shape.fill(size) + known + "</get_general_status>\n";
    std::wstring wide(text.size(), L'\0');
    std::ranges::transform(text, wide.begin(), [](char c) { return static_cast<unsigned char>(c); });
    return wide;
}

// ---- What is measured -----------------------------------------------------------------------------------------------

constexpr double timeLimit = 8;  ///< an ordinary reply's time per byte
constexpr double heapLimit = 16;
constexpr double ordinaryHeapLimit = 3;

bool read(const std::wstring& text) {
    Kavrin::KVGeneralStatus status{};
    return Kavrin::KVJStatusParser().ParseStatus(text[0], static_cast<int>(text.size()), status) && status.error == 7;
}

/// How many bytes of the heap are in use at most while a reply is read, for each of its bytes.
double heapPerByte(const std::wstring& text) {
    const kvj::bench::HeapUse use;
    read(text);
    return static_cast<double>(use.peak()) / static_cast<double>(text.size());
}

void measure(benchmark::State& state, const Shape& shape, std::size_t size) {
    const std::wstring text = reply(shape, size);
    const double heap = heapPerByte(text);
    // Other than time, this is the same in every run, so that a test can look at it.
    if (heap > (shape.name == shapes[0].name ? ordinaryHeapLimit : heapLimit)) {
        return state.SkipWithError("reading takes too much memory");
    }
    for ([[maybe_unused]] const auto iteration : state) {
        if (!read(text)) return state.SkipWithError("the reply was not read as it should be");
    }
    state.counters["bytes"] = static_cast<double>(text.size());
    state.counters["heap"] = heap;
}

std::string nameOf(const Shape& shape, const Size& size) { return std::string(shape.name) + "/" + size.name; }

// ---- What is reported -----------------------------------------------------------------------------------------------

/// One line per shape: for each size the time, and how often an ordinary reply's time per byte that is; and the heap,
/// of the size where it takes most.
class Report : public kvj::bench::Collector {
public:
    void Finalize() override {
        std::printf("locale %s\n%-23s", std::setlocale(LC_CTYPE, nullptr), "CPU time, ratio");
        for (const Size& size : sizes) std::printf("%20s", size.name);
        std::printf("  heap/byte\n");
        for (const Shape& shape : shapes) {
            std::printf("%-23s", shape.name);
            double heap = 0;
            for (const Size& size : sizes) heap = std::max(heap, print(nameOf(shape, size), nameOf(shapes[0], size)));
            std::printf("%11.2f\n", heap);
        }
        std::printf("worst ratio %.2f, limit %.0f %s\n", worst_, timeLimit, worst_ <= timeLimit ? "met" : "MISSED");
    }

private:
    static double perByte(const Measured& measured) {
        return kvj::bench::median(measured.times) / measured.counters.at("bytes");
    }

    /// @return the heap that was used.
    double print(const std::string& name, const std::string& ordinary) {
        const Measured* measured = find(name);
        const Measured* reference = find(ordinary);
        if (measured == nullptr || reference == nullptr) {
            std::printf("%20s", "-");
            return 0;
        }
        const double ratio = perByte(*measured) / perByte(*reference);
        worst_ = std::max(worst_, ratio);
        std::printf("%10.3f ms %6.2f", kvj::bench::median(measured->times), ratio);
        return measured->counters.at("heap");
    }

    double worst_ = 0;
};

}  // namespace

int main(int argc, char** argv) try {
    constexpr int repetitions = 7;
    if (!kvj::bench::initialize(argc, argv, repetitions)) return EXIT_FAILURE;
    for (const Shape& shape : shapes) {
        for (const Size& size : sizes) {
            benchmark::RegisterBenchmark(nameOf(shape, size).c_str(), measure, shape, size.bytes)
                ->Unit(benchmark::kMillisecond);
        }
    }
    Report report;
    benchmark::RunSpecifiedBenchmarks(&report);
    return report.failed() ? EXIT_FAILURE : EXIT_SUCCESS;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
}
