// How much more two threads read than one, each replies of its own into a record of its own. See README.md.
#include <KVJMediaParser.h>
#include <KVJStatusParser.h>
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>

#include "collector.h"
#include "contest.h"

namespace {

void readStatus(benchmark::State& state) {
    const std::wstring reply = kvj::bench::wide(kvj::bench::sample("get_general_status"));
    for ([[maybe_unused]] const auto iteration : state) {
        Kavrin::KVGeneralStatus status{};
        Kavrin::KVJStatusParser().ParseStatus(reply.front(), static_cast<int>(reply.size()), status);
        if (status.jobsTotal != 325) return state.SkipWithError("the reply was not read as it should be");
    }
}

void readCatalogue(benchmark::State& state) {
    const std::string reply = kvj::bench::sample("media");
    for ([[maybe_unused]] const auto iteration : state) {
        const auto media = Kavrin::MakeKVMedia();
        Kavrin::KVJMediaParser().GetMedia(reply.front(), 0, *media);
        if (media->cards->empty()) return state.SkipWithError("the reply was not read as it should be");
    }
}

struct Job {
    const char* name;
    void (*run)(benchmark::State& state);
};
constexpr Job jobs[] = {{"get_general_status", readStatus}, {"media", readCatalogue}};

std::string nameOf(const Job& job, int threads) { return std::string(job.name) + "/" + std::to_string(threads); }

class Report : public kvj::bench::Collector {
public:
    Report() : Collector(&Run::GetAdjustedRealTime) {}

    void Finalize() override {
        constexpr double limit = 1.9;
        std::printf("reply                time a reply, 1 thread   2 threads   1/2 threads  limit\n");
        for (const Job& job : jobs) {
            const Measured* one = find(nameOf(job, 1));
            const Measured* two = find(nameOf(job, 2));
            if (one == nullptr || two == nullptr) continue;
            const double alone = kvj::bench::median(one->times);
            const double together = kvj::bench::median(two->times);
            std::printf("%-20s %20.3f us %8.3f us %13.2f  %.2f %s\n", job.name, alone, together, alone / together,
                        limit, alone / together >= limit ? "met" : "MISSED");
        }
    }
};

}  // namespace

int main(int argc, char** argv) try {
    constexpr int repetitions = 40;
    if (!kvj::bench::initialize(argc, argv, repetitions)) return EXIT_FAILURE;
    for (const Job& job : jobs) {
        for (const int threads : {1, 2}) {
            benchmark::RegisterBenchmark(nameOf(job, threads).c_str(), job.run)
                ->Unit(benchmark::kMicrosecond)
                ->Threads(threads)
                ->UseRealTime();
        }
    }
    Report report;
    benchmark::RunSpecifiedBenchmarks(&report);
    return report.failed() ? EXIT_FAILURE : EXIT_SUCCESS;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
}
