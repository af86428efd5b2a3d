/// @file progress.h
/// How far the tool has come, for who waits at a terminal.
#ifndef KVJXML_TOOL_PROGRESS_H
#define KVJXML_TOOL_PROGRESS_H

#include <chrono>
#include <cstddef>

namespace kvj::tool {

/// Shows once a second, on standard error, how many documents there were and how many come in a second. Nothing is
/// shown in the first second, nor where standard error is no terminal or standard output is one: there the documents
/// show.
class Progress {
public:
    Progress();
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// One more document.
    void count();

private:
    using Clock = std::chrono::steady_clock;

    bool isShown_;
    std::size_t documents_ = 0;
    Clock::time_point begin_;
    Clock::time_point last_;
};

/// Takes what is shown away, before something else is written there.
void clearProgress();

}  // namespace kvj::tool

#endif
