/// @file shell.h
/// Commands of the shell, and what they print.
#ifndef KVJXML_TESTS_SUPPORT_SHELL_H
#define KVJXML_TESTS_SUPPORT_SHELL_H

#include <sys/wait.h>

#include <cstdlib>
#include <string>

#include "support/files.h"

namespace kvj::tests {

struct Outcome {
    int code;
    std::string out;
    std::string error;
};

/// Runs a command of the shell, with `input` on its standard input.
inline Outcome runShell(const std::string& command, const std::string& input = {}) {
    const TemporaryFolder folder;
    write(folder / "in", input);
    const std::string whole = "{ " + command + "\n} <" + (folder / "in").string() + " >" + (folder / "out").string() +
                              " 2>" + (folder / "error").string();
    const int status = std::system(whole.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentOf(folder / "out"), contentOf(folder / "error")};
}

}  // namespace kvj::tests

#endif
