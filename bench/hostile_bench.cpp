// What the worst replies cost, against an ordinary one of the same size. A printer that sends them, by fault or by
// design, must not hold its host up.
#include <KVJStatusParser.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <clocale>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "collector.h"
#include "contest.h"

namespace {

// ---- Replies --------------------------------------------------------------------------------------------------------

std::string times(std::size_t count, const std::string& text) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += text;
    return all;
}

/// The text as often as it fits, but at least once, behind what begins it.
std::string filled(std::size_t size, const std::string& text, const std::string& begin = {}) {
    return begin + times(std::max<std::size_t>(size / text.size(), 1), text);
}

std::string attributes(std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += " n" + std::to_string(i) + "=''";
    return all;
}

/// Elements in each other, the root above them not counted.
std::string nested(std::size_t levels, const std::string& inside, const std::string& attributes = {}) {
    return times(levels, "<a" + attributes + ">") + inside + times(levels, "</a>");
}

/// The elements of a general status.
std::string ordinary(std::size_t size) {
    const std::string sample = kvjxml::bench::sample("get_general_status");
    const std::size_t first = sample.find("    <printer_state>");
    const std::size_t last = sample.rfind("</get_general_status>");
    if (first == std::string::npos || last == std::string::npos)
        throw std::runtime_error("the sample has no such elements");
    return filled(size, sample.substr(first, last - first));
}

constexpr std::size_t depth = 63;  ///< with the root as many levels as a reply may have
constexpr std::size_t width = 256;

struct Shape {
    const char* name;
    bool isRead;  ///< else the reply is refused
    std::string (*fill)(std::size_t size);
};

// clang-format off
constexpr Shape shapes[] = {
    {"ordinary",             true,  ordinary},
    {"siblings",             true,  [](std::size_t size) { return filled(size, "<b/>"); }},
    {"siblings with text",   true,  [](std::size_t size) { return filled(size, "<b>x</b>"); }},
    {"deep",                 true,  [](std::size_t size) { return filled(size, nested(depth, "")); }},
    {"siblings, deep",       true,  [](std::size_t size) { return nested(depth - 1, filled(size, "<b/>")); }},
    {"unknowns, deep",       true,  [](std::size_t size) { return nested(depth, filled(size, "<>")); }},
    {"texts, deep",          true,  [](std::size_t size) { return nested(depth, filled(size, "x<>")); }},
    {"wide",                 true,  [](std::size_t size) { return filled(size, nested(1, "", attributes(width))); }},
    {"wide and deep",        true,  [](std::size_t size) { return filled(size, nested(depth, "", attributes(width))); }},
    {"too deep",             false, [](std::size_t size) { return filled(size, "<a>"); }},
    {"too deep, closed",     false, [](std::size_t size) { return nested(size / 7, ""); }},
    {"too wide",             false, [](std::size_t size) { return nested(1, "", attributes(size / 9)); }},
    {"names of references",  true,  [](std::size_t size) { return filled(size, "&amp;", "<b>"); }},
    {"numbered references",  true,  [](std::size_t size) { return filled(size, "&#x41;", "<b>"); }},
    {"ampersands",           true,  [](std::size_t size) { return filled(size, "&", "<b>"); }},
    {"open references",      true,  [](std::size_t size) { return filled(size, "&#", "<b>"); }},
    {"characters not ASCII", true,  [](std::size_t size) { return filled(size, "\xE9", "<b>"); }},
    {"comments",             true,  [](std::size_t size) { return filled(size, "<!---->"); }},
    {"unclosed comment",     true,  [](std::size_t size) { return filled(size, "x", "<!--"); }},
    {"unclosed CDATA",       true,  [](std::size_t size) { return filled(size, "x", "<![CDATA["); }},
    {"unclosed text",        true,  [](std::size_t size) { return filled(size, "x", "<b>"); }},
    {"unclosed value",       true,  [](std::size_t size) { return filled(size, "x", "<b a=\""); }},
    {"unclosed name",        true,  [](std::size_t size) { return filled(size, "x", "<"); }},
};
// clang-format on

struct Size {
    const char* name;
    std::size_t bytes;
};
constexpr Size sizes[] = {{"64 KiB", 64 << 10}, {"1 MiB", 1 << 20}, {"4 MiB", 4 << 20}};

/// A reply with such a shape between two elements that the library knows. It reads both, or where the shape does not
/// end the first alone; each character is a byte of the shape.
std::wstring reply(const Shape& shape, std::size_t size) {
    const std::string known = "<error>7</error>";
    const std::string text =
        "<?xml version=\"1.0\"?>\n<get_general_status>" + known + shape.fill(size) + known + "</get_general_status>\n";
    std::wstring wide;
    std::ranges::transform(text, std::back_inserter(wide), [](char c) { return static_cast<unsigned char>(c); });
    return wide;
}

// ---- What is measured -----------------------------------------------------------------------------------------------

void measure(benchmark::State& state, const Shape& shape, std::size_t size) {
    const std::wstring text = reply(shape, size);
    for ([[maybe_unused]] const auto iteration : state) {
        Kavrin::KVGeneralStatus status{};
        const bool isRead = Kavrin::KVJStatusParser().ParseStatus(text[0], static_cast<int>(text.size()), status);
        if (isRead != shape.isRead || status.error != (shape.isRead ? 7 : 0)) {
            state.SkipWithError("the reply was not read as it should be");
            return;
        }
    }
    state.counters["bytes"] = static_cast<double>(text.size());
}

std::string nameOf(const Shape& shape, const Size& size) { return std::string(shape.name) + "/" + size.name; }

// ---- What is reported -----------------------------------------------------------------------------------------------

/// One line per shape: for each size the time, and how often an ordinary reply's time per byte that is.
class Report : public kvjxml::bench::Collector {
public:
    void Finalize() override {
        std::printf("locale %s\n%-21s", std::setlocale(LC_CTYPE, nullptr), "CPU time, ratio");
        for (const Size& size : sizes) std::printf("%22s", size.name);
        std::printf("\n");
        for (const Shape& shape : shapes) {
            std::printf("%-21s", shape.name);
            for (const Size& size : sizes) print(nameOf(shape, size), nameOf(shapes[0], size));
            std::printf("\n");
        }
    }

private:
    static double perByte(const Measured& measured) {
        return kvjxml::bench::median(measured.times) / measured.counters.at("bytes");
    }

    void print(const std::string& name, const std::string& ordinary) const {
        const Measured* measured = find(name);
        const Measured* reference = find(ordinary);
        if (measured == nullptr || reference == nullptr) {
            std::printf("%22s", "-");
        } else {
            std::printf("%12.3f ms %6.2f", kvjxml::bench::median(measured->times),
                        perByte(*measured) / perByte(*reference));
        }
    }
};

}  // namespace

int main(int argc, char** argv) try {
    constexpr int repetitions = 7;
    if (!kvjxml::bench::initialize(argc, argv, repetitions)) return EXIT_FAILURE;
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
