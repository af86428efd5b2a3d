/// @file contest.h
/// Runs contenders for the same task against each other and reports how the first one's time compares with the others',
/// within one run, so that the ratios hold on a busy machine too. And what the contenders have in common.
#ifndef KVJXML_BENCH_CONTEST_H
#define KVJXML_BENCH_CONTEST_H

#include <tinyxml.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kvj::bench {

struct Contender {
    const char* name;
    std::function<bool()> run;  ///< whether it came to the result that it has to
    double limit = 0;           ///< the part of its time that the first may take; 0 for none
};

/// Contenders for one task; the first is the one that the others are compared with.
struct Task {
    std::string name;
    std::size_t bytes;  ///< of the document that is read or written
    std::vector<Contender> contenders;
    /// Compares what the contenders make with what the first one does.
    /// @throws std::runtime_error, saying what differs.
    std::function<void()> check = [] {};
};

/// Checks and runs all tasks, in the locale of the environment, and prints a line for each contender. With the
/// arguments
/// `--repeat CONTENDER/TASK TIMES` there is no more than that many runs, in the function `repeat`, for a profiler.
/// @return an exit code: not 0 when a contender came to a wrong result.
int runContest(int argc, char** argv, const std::function<std::vector<Task>()>& tasks);

// ---- For a program with a report of its own ----

/// Many short repetitions in random order, so that whatever else the machine does hits all alike. The command line
/// comes later and so prevails. The locale becomes that of the environment.
bool initialize(int argc, char** argv, int repetitions);

double median(std::vector<double> values);

// ---- Replies ----

/// A sample reply of examples/replies.
std::string sample(const std::string& name);

/// The texts here are plain ASCII, so each byte is a wide character.
inline std::wstring wide(const std::string& text) { return {text.begin(), text.end()}; }

// ---- TinyXML by hand ----

/// As little as a host's conversion can be: there is room for ASCII only, and it is not cleared before.
std::unique_ptr<char[]> narrow(const std::wstring& wide);

/// Parses a text as TinyXML comes, rows and columns included, and lets it go again.
bool parse(const char* text);

/// Composes a given document once more with nothing but TinyXML's own calls, and prints it.
class ByHand {
public:
    explicit ByHand(const TiXmlDocument& model) : model_(model) {}
    /// Whether the document was printed to `out` as wide text.
    bool compose(std::vector<wchar_t>& out) const;

private:
    TiXmlDocument model_;
};

/// Prints a document with the library's indent as wide text.
bool print(const TiXmlDocument& document, std::vector<wchar_t>& out);

}  // namespace kvj::bench

#endif
