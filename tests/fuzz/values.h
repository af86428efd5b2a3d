/// @file values.h
/// An input of the fuzzer as the arguments of an operation: values, each ended by a NUL. Values past the end of the
/// input are null and zero.
#ifndef KVJXML_TESTS_FUZZ_VALUES_H
#define KVJXML_TESTS_FUZZ_VALUES_H

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "target.h"

namespace kvj::fuzz {

/// A text as operations take it, in memory of exactly its size; null for the word "null".
class Text {
public:
    Text() = default;
    explicit Text(std::string_view text) {
        if (text == "null") return;
        length_ = text.size();
        text_ = exactCopy(std::string(text).c_str(), length_ + 1);
    }
    [[nodiscard]] char* pointer() const { return text_.get(); }
    [[nodiscard]] std::size_t length() const { return length_; }

private:
    std::unique_ptr<char[]> text_;
    std::size_t length_ = 0;
};

class Values {
public:
    explicit Values(std::string_view input) : rest_(input) {}

    std::string next() {
        const std::size_t end = std::min(rest_.find('\0'), rest_.size());
        std::string value(rest_.substr(0, end));
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        return value;
    }
    Text text() { return rest_.empty() ? Text() : Text(next()); }
    /// A text in a record, or the bytes of an address. One that fills its field is not terminated there.
    void text(char* field, std::size_t size) {
        const std::string content = next();
        std::copy_n(content.data(), std::min(size, content.size()), field);
    }
    template <std::size_t N>
    void text(char (&field)[N]) {
        text(field, N);
    }
    int number() { return static_cast<int>(std::strtol(next().c_str(), nullptr, 10)); }
    float decimal() { return std::strtof(next().c_str(), nullptr); }
    bool flag() { return number() != 0; }

private:
    std::string_view rest_;
};

}  // namespace kvj::fuzz

#endif
