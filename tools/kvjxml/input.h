/// @file input.h
/// A captured reply, as the readers take it: as bytes and as wide text.
#ifndef KVJXML_TOOL_INPUT_H
#define KVJXML_TOOL_INPUT_H

#include <cstdint>
#include <string>

namespace kvj::tool {

struct Input {
    std::string name;   ///< for messages: the file's name, or "standard input"
    std::string bytes;  ///< as captured
    /// The same text in wide characters, padded with zeros to as many as there are bytes: the readers take no more
    /// bytes than they are given characters, and a reply that is not all ASCII must not lose any.
    std::wstring text;
};

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

/// Reads a reply.
/// @throws Failure as readBytes does, and when it is not text in UTF-8.
Input readInput(const Source& source);

}  // namespace kvj::tool

#endif
