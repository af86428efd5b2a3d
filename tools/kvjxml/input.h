/// @file input.h
/// A captured reply, as the readers take it: as bytes and as wide text.
#ifndef KVJXML_TOOL_INPUT_H
#define KVJXML_TOOL_INPUT_H

#include <string>

namespace kvjxml::tool {

struct Input {
    std::string name;   ///< for messages: the file's name, or "standard input"
    std::string bytes;  ///< as captured
    /// The same text in wide characters, filled up with zeros to as many as there are bytes: the readers take no more
    /// bytes than they are given characters, and nothing of a reply that is not all ASCII shall be lost.
    std::wstring text;
};

/// The bytes of a file, or of standard input for "-".
/// @throws Failure when it cannot be read.
std::string readBytes(const std::string& path);

/// What messages call a file, or standard input for "-".
std::string sourceName(const std::string& path);

/// Reads a reply from a file, or from standard input for "-".
/// @throws Failure when it cannot be read, or is not text in UTF-8.
Input readInput(const std::string& path);

}  // namespace kvjxml::tool

#endif
