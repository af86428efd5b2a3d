/// @file outcome.h
/// What a reader makes of a text, wherever the text and the record are in memory.
#ifndef KVJXML_TESTS_HOSTILE_OUTCOME_H
#define KVJXML_TESTS_HOSTILE_OUTCOME_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "support/readers.h"

namespace kvj::tests {

/// A text in both forms, each byte as one wide character. Each lies in memory of its exact size, so that a sanitizer
/// sees whatever reads past its end.
class ExactText {
public:
    explicit ExactText(std::string_view bytes)
        : narrow_(std::make_unique<char[]>(bytes.size() + 1)),
          wide_(std::make_unique<wchar_t[]>(bytes.size())),
          length_(bytes.size()) {
        std::ranges::copy(bytes, narrow_.get());
        std::ranges::transform(bytes, wide_.get(), [](char c) { return static_cast<unsigned char>(c); });
    }

    operator Text() const { return {narrow_.get(), wide_.get(), length_}; }

private:
    std::unique_ptr<char[]> narrow_;
    std::unique_ptr<wchar_t[]> wide_;
    std::size_t length_;
};

/// The memory of a record, between bytes that no reader may touch.
class FramedRecord {
public:
    explicit FramedRecord(std::size_t size) : memory_(frame + std::string(size, '\0') + frame) {}

    [[nodiscard]] char* first() { return memory_.data() + frame.size(); }
    [[nodiscard]] std::string content() const {
        return memory_.substr(frame.size(), memory_.size() - 2 * frame.size());
    }
    [[nodiscard]] bool isFramed() const { return memory_.starts_with(frame) && memory_.ends_with(frame); }

private:
    inline static const std::string frame = std::string(256, '\xA5');  ///< as long as a multiple of any alignment
    std::string memory_;
};

struct Outcome {
    bool result;
    std::string record;
    bool isSound;  ///< whether the record is valid, and nothing around it was touched
    bool operator==(const Outcome&) const = default;
};

inline Outcome outcomeOf(const Reader& reader, std::string_view bytes) {
    FramedRecord record(reader.recordSize);
    const bool result = reader.read(ExactText(bytes), record.first());
    return {result, record.content(), reader.isValid(record.first()) && record.isFramed()};
}

/// For messages.
inline void PrintTo(const Reader& reader, std::ostream* out) { *out << reader.name; }
inline void PrintTo(const Outcome& outcome, std::ostream* out) {
    *out << std::boolalpha << outcome.result << (outcome.isSound ? " " : ", not sound ")
         << testing::PrintToString(outcome.record);
}

/// A test for each reader, where one for all of them would be long.
class EachReader : public testing::TestWithParam<Reader> {
public:
    static std::string nameOf(const testing::TestParamInfo<Reader>& info) { return std::string(info.param.name); }
};

/// Runs a short check with each reader in turn.
template <class Check>
void withEachReader(Check check) {
    for (const Reader& reader : readers()) {
        SCOPED_TRACE(std::string(reader.name) + " of " + reader.root);
        check(reader);
    }
}

}  // namespace kvj::tests

#endif
