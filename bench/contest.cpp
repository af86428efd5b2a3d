#include "contest.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

#include "allocations.h"
#include "collector.h"

namespace kvj::bench {

namespace {

void useLocaleOfEnvironment() {
    // The conversion to narrow text is a host's, in the locale of the environment.
    if (std::setlocale(LC_ALL, "") == nullptr) throw std::runtime_error("the locale of the environment is not there");
}

std::string nameOf(const Contender& contender, const Task& task) {
    return std::string(contender.name) + "/" + task.name;
}

void measure(benchmark::State& state, const Contender& contender, std::size_t bytes) {
    const std::size_t before = allocations();
    for ([[maybe_unused]] const auto iteration : state) {
        if (!contender.run()) {
            state.SkipWithError("the result is not what it should be");
            return;
        }
    }
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(allocations() - before), benchmark::Counter::kAvgIterations);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

/// Half of the values lie within this share of their median, up or down.
double spread(const std::vector<double>& values) {
    const double center = median(values);
    std::vector<double> distances;
    std::ranges::transform(values, std::back_inserter(distances),
                           [=](double value) { return std::abs(value - center) / center; });
    return median(distances);
}

/// One line per task and contender, with the median of the repetitions, and how the first contender's time compares.
class Report : public Collector {
public:
    explicit Report(const std::vector<Task>& tasks) : tasks_(&tasks) {}

    void Finalize() override {
        std::printf("locale %s\n", std::setlocale(LC_CTYPE, nullptr));
        std::printf("task         bytes  contender       CPU time  spread  allocations  first/this  limit\n");
        for (const Task& task : *tasks_) {
            const Measured* first = find(nameOf(task.contenders.front(), task));
            for (const Contender& contender : task.contenders) {
                const Measured* measured = find(nameOf(contender, task));
                if (measured == nullptr) continue;
                const double time = median(measured->times);
                std::printf("%-9s %8zu  %-13s %8.2f us  %5.1f%% %12.0f", task.name.c_str(), task.bytes, contender.name,
                            time, 100 * spread(measured->times), measured->counters.at("allocations").value);
                if (first != nullptr) printRatio(median(first->times) / time, contender.limit);
                std::printf("\n");
            }
        }
    }

private:
    static void printRatio(double ratio, double limit) {
        std::printf(" %11.3f", ratio);
        if (limit > 0) std::printf("  %.2f %s", limit, ratio <= limit ? "met" : "MISSED");
    }

    const std::vector<Task>* tasks_;
};

/// A function of its own, for a profiler to find. Everything has been run once before.
[[gnu::noinline]] bool repeat(const Contender& contender, int times) {
    bool right = true;
    for (int i = 0; i < times; ++i) right = contender.run() && right;
    return right;
}

int repeat(const std::vector<Task>& tasks, const std::string& name, int times) {
    for (const Task& task : tasks) {
        for (const Contender& contender : task.contenders) {
            if (nameOf(contender, task) != name) continue;
            return contender.run() && repeat(contender, times) ? EXIT_SUCCESS : EXIT_FAILURE;
        }
    }
    throw std::runtime_error("there is no " + name);
}

}  // namespace

bool initialize(int argc, char** argv, int repetitions) {
    std::string defaults[] = {"--benchmark_repetitions=" + std::to_string(repetitions), "--benchmark_min_time=0.02",
                              "--benchmark_enable_random_interleaving=true"};
    std::vector<char*> arguments(argv, argv + argc);
    for (std::string& argument : defaults) arguments.insert(arguments.begin() + 1, argument.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    useLocaleOfEnvironment();
    return !benchmark::ReportUnrecognizedArguments(count, arguments.data());
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + std::ssize(values) / 2;
    std::ranges::nth_element(values, middle);
    return *middle;
}

int runContest(int argc, char** argv, const std::function<std::vector<Task>()>& tasks) try {
    constexpr int repetitions = 40;
    if (argc == 4 && std::strcmp(argv[1], "--repeat") == 0) {
        useLocaleOfEnvironment();
        return repeat(tasks(), argv[2], std::atoi(argv[3]));
    }
    if (!initialize(argc, argv, repetitions)) return EXIT_FAILURE;
    const std::vector<Task> all = tasks();
    for (const Task& task : all) {
        task.check();
        for (const Contender& contender : task.contenders) {
            benchmark::RegisterBenchmark(nameOf(contender, task).c_str(), measure, contender, task.bytes)
                ->Unit(benchmark::kMicrosecond);
        }
    }
    Report report(all);
    benchmark::RunSpecifiedBenchmarks(&report);
    return report.failed() ? EXIT_FAILURE : EXIT_SUCCESS;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
}

std::string sample(const std::string& name) {
    const std::string path = std::string(KVJXML_REPLIES "/") + name + ".xml";
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::unique_ptr<char[]> narrow(const std::wstring& wide) {
    const std::size_t capacity = wide.size() + 1;
    auto text = std::make_unique_for_overwrite<char[]>(capacity);
    if (std::wcstombs(text.get(), wide.c_str(), capacity) != wide.size()) text[0] = '\0';
    return text;
}

bool parse(const char* text) {
    TiXmlDocument document;
    document.Parse(text);
    return document.RootElement() != nullptr;
}

// ---- ByHand ----

namespace {

/// Adds to `parent` what `model` has in it, by the calls that a host would make.
// As deep as a request is. NOLINTNEXTLINE(misc-no-recursion)
void addLike(const TiXmlElement& model, TiXmlNode& parent) {
    auto* element = new TiXmlElement(model.Value());
    for (const auto* attribute = model.FirstAttribute(); attribute != nullptr; attribute = attribute->Next()) {
        element->SetAttribute(attribute->Name(), attribute->Value());
    }
    for (const auto* child = model.FirstChild(); child != nullptr; child = child->NextSibling()) {
        if (child->ToElement() != nullptr) {
            addLike(*child->ToElement(), *element);
        } else {
            element->LinkEndChild(new TiXmlText(child->Value()));
        }
    }
    parent.LinkEndChild(element);
}

}  // namespace

bool ByHand::compose(std::vector<wchar_t>& out) const {
    TiXmlDocument document;
    document.LinkEndChild(new TiXmlDeclaration("1.0", "UTF-8", ""));
    addLike(*model_.RootElement(), document);
    return print(document, out);
}

bool print(const TiXmlDocument& document, std::vector<wchar_t>& out) {
    TiXmlPrinter printer;
    printer.SetIndent("    ");
    return document.Accept(&printer) && std::mbstowcs(out.data(), printer.CStr(), out.size()) < out.size();
}

}  // namespace kvj::bench
