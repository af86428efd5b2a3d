/// @file lines.h
/// What stands in the lines of a file.
#ifndef KVJXML_TESTS_SUPPORT_LINES_H
#define KVJXML_TESTS_SUPPORT_LINES_H

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kvj::tests {

/// Of each line that a regular expression matches as a whole, what its groups match.
std::vector<std::vector<std::string>> linesLike(const std::string& pattern, const std::filesystem::path& file);

/// The names of the operations that the library exports: the first group of a pattern for their signatures.
std::vector<std::string> exported(const std::string& pattern);

/// A name with namespaces as a test can have it.
std::string identifierOf(std::string_view name);

}  // namespace kvj::tests

#endif
