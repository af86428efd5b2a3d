/// @file operations.h
/// The public operations that look a word or a code up, with the table that each of them looks into.
#ifndef KVJXML_TESTS_WORDS_OPERATIONS_H
#define KVJXML_TESTS_WORDS_OPERATIONS_H

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace kvj::tests {

struct ReadingOperation {
    std::string_view name;  ///< with its class
    std::string_view table;
    int (*codeOf)(const char* text);
    /// The code in a field before its element is read into it; none for an operation that takes the word itself.
    std::optional<int> before{};
};

struct WritingOperation {
    std::string_view name;
    std::string_view table;
    std::string (*wordOf)(int code, bool& result);
    std::string_view otherWord{};  ///< that of a code without a word
    bool otherResult{};            ///< the result for such a code
};

std::span<const ReadingOperation> readingOperations();
std::span<const WritingOperation> writingOperations();

}  // namespace kvj::tests

#endif
