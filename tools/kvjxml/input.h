/// @file input.h
/// A file that is read as a whole.
#ifndef KVJXML_TOOL_INPUT_H
#define KVJXML_TOOL_INPUT_H

#include <cstdint>
#include <string>

namespace kvj::tool {

/// Where input comes from, and how much of it is taken: a pipe may never end.
struct Source {
    std::string path = "-";                           ///< of a file; "-" for standard input
    std::uint64_t maxSize = std::uint64_t{64} << 20;  ///< in bytes
    /// What messages call it.
    [[nodiscard]] std::string name() const { return path == "-" ? "standard input" : path; }
};

/// All bytes of a source.
/// @throws Failure when it cannot be read, or as soon as it turns out to be larger than it may be.
std::string readBytes(const Source& source);

}  // namespace kvj::tool

#endif
