/// @file terminal.h
/// Runs the tool as a user at a terminal does.
#ifndef KVJXML_TESTS_TOOL_TERMINAL_H
#define KVJXML_TESTS_TOOL_TERMINAL_H

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "support/shell.h"

namespace kvj::tests {

/// Why a test is skipped where there are no pseudo-terminals, as in some containers; empty where there are.
inline std::string whyNoTerminal() {
    int terminal = -1;
    int program = -1;
    if (openpty(&terminal, &program, nullptr, nullptr, nullptr) == -1) return "there are no pseudo-terminals here";
    close(terminal);
    close(program);
    return {};
}

/// Runs the tool with these words of a command line on a pseudo-terminal. What it prints there, on either stream, has
/// its lines ended by a carriage return and a line feed, as terminals want it.
inline Outcome runOnTerminal(const std::string& words, const std::string& environment = {}) {
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == -1) throw std::runtime_error("no pseudo-terminal");
    if (child == 0) {
        const std::string command = "exec env " + environment + " " + KVJXML_TOOL + " " + words;
        execl("/bin/sh", "sh", "-c", command.c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    Outcome outcome{-1, {}, {}};
    std::array<char, 4096> block{};
    // When the last program at a terminal has ended, reading from it fails.
    for (ssize_t count = 0; (count = read(terminal, block.data(), block.size())) > 0;) {
        outcome.out.append(block.data(), static_cast<std::size_t>(count));
    }
    int status = 0;
    waitpid(child, &status, 0);
    close(terminal);
    if (WIFEXITED(status)) outcome.code = WEXITSTATUS(status);
    return outcome;
}

}  // namespace kvj::tests

#endif
