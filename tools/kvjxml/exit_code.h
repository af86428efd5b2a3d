/// @file exit_code.h
/// The exit codes of the tool.
#ifndef KVJXML_TOOL_EXIT_CODE_H
#define KVJXML_TOOL_EXIT_CODE_H

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>
#include <string_view>

namespace kvj::tool {

enum class ExitCode { done, inputOutput, usage, unknownMessage, damaged, badJson, findings, different, wouldChange };

/// In the order of ExitCode.
inline constexpr std::array<std::string_view, 9> exitCodes{
    "done",
    "a file cannot be read or written",
    "wrong use",
    "not a document of a known message",
    "a document is damaged; what could be read is printed all the same",
    "the JSON is not what the request takes; nothing is composed",
    "check has findings",
    "diff has differences",
    "the printer would get something else than the JSON asks; nothing is composed",
};

/// Which code stands for several documents: the one that a script has to know first.
inline ExitCode worseOf(ExitCode one, ExitCode other) {
    for (const ExitCode code : {ExitCode::inputOutput, ExitCode::unknownMessage, ExitCode::damaged, ExitCode::findings,
                                ExitCode::different}) {
        if (one == code || other == code) return code;
    }
    return std::max(one, other);
}

/// The table as --help shows it.
inline std::string exitCodeTable() {
    std::string table = "Exit codes:\n";
    for (std::size_t code = 0; code < exitCodes.size(); ++code) {
        table.append("  ").append(std::to_string(code)).append("  ").append(exitCodes[code]).append("\n");
    }
    return table;
}

}  // namespace kvj::tool

#endif
