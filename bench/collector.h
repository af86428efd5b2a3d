/// @file collector.h
/// Collects what is measured; what it is compared with, and how it is printed, is for those who derive from it.
#ifndef KVJXML_BENCH_COLLECTOR_H
#define KVJXML_BENCH_COLLECTOR_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace kvj::bench {

class Collector : public benchmark::BenchmarkReporter {
public:
    /// @param time  the time that counts.
    explicit Collector(double (Run::*time)() const = &Run::GetAdjustedCPUTime) : time_(time) {}

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
                measured.times.push_back((run.*time_)());
                measured.counters = run.counters;
            }
        }
    }

    /// Whether a result was not what it should be.
    [[nodiscard]] bool failed() const { return failed_; }

protected:
    struct Measured {
        std::vector<double> times;  ///< of the repetitions
        benchmark::UserCounters counters;
    };

    /// What was measured under a name; null when that was filtered out.
    [[nodiscard]] const Measured* find(const std::string& name) const {
        const auto found = measured_.find(name);
        return found == measured_.end() ? nullptr : &found->second;
    }

private:
    double (Run::*time_)() const;
    std::map<std::string, Measured> measured_;
    bool failed_ = false;
};

}  // namespace kvj::bench

#endif
