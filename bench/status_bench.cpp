// What reading a general-status reply costs, against TinyXML used by hand. See README.md.
#include <KVJStatusParser.h>
#include <benchmark/benchmark.h>
#include <tinyxml.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "allocations.h"

namespace {

// ---- Replies --------------------------------------------------------------------------------------------------------

struct Reply {
    const char* size;
    std::string narrow;
    std::wstring wide;
};

/// The texts here are plain ASCII, so each byte is a wide character.
Reply reply(const char* size, std::string narrow) {
    std::wstring wide(narrow.begin(), narrow.end());
    return {size, std::move(narrow), std::move(wide)};
}

std::string sample() {
    const char* path = KVJXML_REPLIES "/get_general_status.xml";
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error(std::string("cannot read ") + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// All elements of the message, and between them four that the library does not know, as the next firmware may send
/// them: one with a reference, one with attributes and one with children.
constexpr const char* elements[] = {
    "    <printer_state>printing</printer_state>\n",
    "    <alarms>0x8002</alarms>\n",
    "    <error>0</error>\n",
    "    <warning>41</warning>\n",
    "    <warning_text>Ribbon &amp; transfer film are low</warning_text>\n",
    "    <printer_lock>unlocked</printer_lock>\n",
    "    <num_jobs_receiving_or_pending>1</num_jobs_receiving_or_pending>\n",
    "    <num_jobs_inprogress>2</num_jobs_inprogress>\n",
    "    <num_jobs_done_ok>318</num_jobs_done_ok>\n",
    "    <num_jobs_done_error>4</num_jobs_done_error>\n",
    "    <num_jobs_total>325</num_jobs_total>\n",
    "    <action_id_next>1043</action_id_next>\n",
    "    <roller_temperature min=\"20\" max=\"185\">174</roller_temperature>\n",
    "    <door_state>closed</door_state>\n",
    R"(    <card_path>
        <input_hopper>not_empty</input_hopper>
        <output_tray>empty</output_tray>
    </card_path>
)",
    "    <laminator_state>ready</laminator_state>\n",
    "    <param_chg_counter>65539</param_chg_counter>\n",
};

/// A reply of `size` bytes, short of that by less than one element.
std::string synthetic(std::size_t size) {
    const std::string end = "</get_general_status>\n";
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<get_general_status>\n";
    for (std::size_t i = 0;; ++i) {
        const std::string element = elements[i % std::size(elements)];
        if (text.size() + element.size() + end.size() > size) return text + end;
        text += element;
    }
}

// ---- What is measured: each returns whether it came to the result that it has to ------------------------------------

bool library(const Reply& reply) {
    Kavrin::KVGeneralStatus status{};
    Kavrin::KVJStatusParser parser;
    const bool read = parser.ParseStatus(reply.wide.front(), static_cast<int>(reply.wide.size()), status);
    return read && status.printerState == 5 && status.alarms == 0x8002 && status.jobsTotal == 325;
}

bool parse(TiXmlDocument& document, const char* text) {
    document.Parse(text);
    return document.RootElement() != nullptr;
}

/// As little as a host's conversion can be: there is room for ASCII only, and it is not cleared before.
std::unique_ptr<char[]> narrow(const std::wstring& wide) {
    const std::size_t capacity = wide.size() + 1;
    auto text = std::make_unique_for_overwrite<char[]>(capacity);
    if (std::wcstombs(text.get(), wide.c_str(), capacity) != wide.size()) text[0] = '\0';
    return text;
}

bool bare(const Reply& reply) {
    const auto text = narrow(reply.wide);
    TiXmlDocument document;
    return parse(document, text.get());
}

bool bareNarrow(const Reply& reply) {
    TiXmlDocument document;
    return parse(document, reply.narrow.c_str());
}

bool withoutPositions(const Reply& reply) {
    const auto text = narrow(reply.wide);
    TiXmlDocument document;
    document.SetTabSize(0);
    return parse(document, text.get());
}

struct Contender {
    const char* name;
    bool (*read)(const Reply& reply);
};
constexpr Contender contenders[] = {
    {"library", library}, {"bare", bare}, {"bare_narrow", bareNarrow}, {"floor", withoutPositions}};

std::string nameOf(const Contender& contender, const Reply& reply) {
    return std::string(contender.name) + "/" + reply.size;
}

void measure(benchmark::State& state, const Contender& contender, const Reply& reply) {
    const std::size_t before = allocations();
    for ([[maybe_unused]] const auto iteration : state) {
        if (!contender.read(reply)) {
            state.SkipWithError("the reply was not read as it should be");
            return;
        }
    }
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(allocations() - before), benchmark::Counter::kAvgIterations);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(reply.narrow.size()));
}

// ---- What is reported -----------------------------------------------------------------------------------------------

double median(std::vector<double> values) {
    const auto middle = values.begin() + std::ssize(values) / 2;
    std::ranges::nth_element(values, middle);
    return *middle;
}

/// Half of the values lie within this share of their median, up or down.
double spread(const std::vector<double>& values) {
    const double center = median(values);
    std::vector<double> distances;
    std::ranges::transform(values, std::back_inserter(distances),
                           [=](double value) { return std::abs(value - center) / center; });
    return median(distances);
}

/// One line per reply and contender, with the median of the repetitions, and how the library's time compares with it.
class Report : public benchmark::BenchmarkReporter {
public:
    explicit Report(const std::vector<Reply>& replies) : replies_(&replies) {}

    bool ReportContext(const Context& context) override {
        PrintBasicContext(&GetErrorStream(), context);
        return true;
    }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.error_occurred) {
                GetErrorStream() << run.benchmark_name() << ": " << run.error_message << '\n';
                failed_ = true;
            } else if (run.run_type == Run::RT_Iteration) {
                Measured& measured = measured_[run.run_name.function_name];
                measured.times.push_back(run.GetAdjustedCPUTime());
                measured.allocations = run.counters.at("allocations");
            }
        }
    }

    void Finalize() override {
        std::printf("locale %s\n", std::setlocale(LC_CTYPE, nullptr));
        std::printf("reply     bytes  contender    CPU time  spread  allocations  library/this\n");
        for (const Reply& reply : *replies_) {
            const auto library = measured_.find(nameOf(contenders[0], reply));
            for (const Contender& contender : contenders) {
                const auto measured = measured_.find(nameOf(contender, reply));
                if (measured == measured_.end()) continue;
                const double time = median(measured->second.times);
                std::printf("%-7s %7zu  %-11s %7.2f us  %5.1f%% %12.0f", reply.size, reply.narrow.size(),
                            contender.name, time, 100 * spread(measured->second.times), measured->second.allocations);
                if (library != measured_.end()) std::printf(" %13.3f", median(library->second.times) / time);
                std::printf("\n");
            }
        }
    }

    [[nodiscard]] bool failed() const { return failed_; }

private:
    struct Measured {
        std::vector<double> times;
        double allocations;
    };

    const std::vector<Reply>* replies_;
    std::map<std::string, Measured> measured_;
    bool failed_ = false;
};

/// Many short repetitions in random order, so that whatever else the machine does hits all contenders alike. The
/// command line comes later and so prevails.
bool initialize(int argc, char** argv) {
    std::string defaults[] = {"--benchmark_repetitions=40", "--benchmark_min_time=0.02",
                              "--benchmark_enable_random_interleaving=true"};
    std::vector<char*> arguments(argv, argv + argc);
    for (std::string& argument : defaults) arguments.insert(arguments.begin() + 1, argument.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    return !benchmark::ReportUnrecognizedArguments(count, arguments.data());
}

}  // namespace

int main(int argc, char** argv) try {
    if (!initialize(argc, argv)) return EXIT_FAILURE;
    // The conversion to narrow text is a host's, in the locale of the environment.
    if (std::setlocale(LC_ALL, "") == nullptr) throw std::runtime_error("the locale of the environment is not there");

    const std::vector<Reply> replies{reply("sample", sample()), reply("8KiB", synthetic(8 << 10)),
                                     reply("256KiB", synthetic(256 << 10))};
    for (const Reply& reply : replies) {
        for (const Contender& contender : contenders) {
            benchmark::RegisterBenchmark(nameOf(contender, reply).c_str(), measure, contender, reply)
                ->Unit(benchmark::kMicrosecond);
        }
    }
    Report report(replies);
    benchmark::RunSpecifiedBenchmarks(&report);
    return report.failed() ? EXIT_FAILURE : EXIT_SUCCESS;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
}
