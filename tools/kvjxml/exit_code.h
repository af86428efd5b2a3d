/// @file exit_code.h
/// The exit codes of the tool.
#ifndef KVJXML_TOOL_EXIT_CODE_H
#define KVJXML_TOOL_EXIT_CODE_H

#include <array>
#include <string>
#include <string_view>

namespace kvj::tool {

enum class ExitCode { done, inputOutput, usage, unknownMessage, readerFailed, badJson };

/// In the order of ExitCode.
inline constexpr std::array<std::string_view, 6> exitCodes{
    "done",
    "a file cannot be read or written",
    "wrong use",
    "not a document of a known message",
    "the reader reported failure; what was read is printed all the same",
    "the JSON is not what the request takes; nothing is composed",
};

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
