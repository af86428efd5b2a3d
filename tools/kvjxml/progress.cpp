#include "progress.h"

#include <unistd.h>

#include <iostream>

namespace kvj::tool {

namespace {

/// Whether there is something on the terminal's last line.
bool isDrawn = false;

}  // namespace

Progress::Progress()
    : isShown_(isatty(STDERR_FILENO) == 1 && isatty(STDOUT_FILENO) != 1), begin_(Clock::now()), last_(begin_) {}

Progress::~Progress() { clearProgress(); }

void Progress::count() {
    ++documents_;
    if (!isShown_) return;
    const auto now = Clock::now();
    if (now - last_ < std::chrono::seconds(1)) return;
    last_ = now;
    const std::chrono::duration<double> elapsed = now - begin_;
    const auto rate = static_cast<std::size_t>(static_cast<double>(documents_) / elapsed.count());
    clearProgress();
    std::cerr << documents_ << " documents, " << rate << " a second" << std::flush;
    isDrawn = true;
}

void clearProgress() {
    if (!isDrawn) return;
    std::cerr << "\r\033[K";
    isDrawn = false;
}

}  // namespace kvj::tool
