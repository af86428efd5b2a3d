// No byte beside a reply or a record is touched: both lie next to pages that cannot be touched.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "hostile/outcome.h"
#include "hostile/samples.h"
#include "support/guarded_memory.h"
#include "support/readers.h"

namespace guard_pages_test {

namespace {

using namespace kvj::tests;

/// A text that ends or begins at such a page, and cannot be written to.
class GuardedText {
public:
    GuardedText(std::string_view bytes, End end)
        : narrow_(bytes.size() + 1), wide_(bytes.size() * sizeof(wchar_t)), end_(end), length_(bytes.size()) {
        *std::ranges::copy(bytes, narrow()).out = '\0';
        std::ranges::transform(bytes, wide(), [](char c) { return static_cast<unsigned char>(c); });
        narrow_.allow(PROT_READ);
        wide_.allow(PROT_READ);
    }

    operator Text() const { return {narrow(), wide(), length_}; }

private:
    [[nodiscard]] char* narrow() const { return narrow_.at(end_, length_ + 1); }
    [[nodiscard]] wchar_t* wide() const {
        return reinterpret_cast<wchar_t*>(wide_.at(end_, length_ * sizeof(wchar_t)));
    }

    GuardedMemory narrow_;
    GuardedMemory wide_;
    End end_;
    std::size_t length_;
};

TEST(GuardedMemory, EndsTheProgramThatGoesBesideIt) {
    const GuardedMemory memory(1);
    EXPECT_DEATH(*(memory.at(End::front, 1) - 1) = 1, "");
    EXPECT_DEATH(*(memory.at(End::back, 1) + 1) = 1, "");
    memory.allow(PROT_READ);
    EXPECT_DEATH(*memory.at(End::front, 1) = 1, "");
}

/// Reads a text at each end of its memory into a record at each end of its own.
void expectUntouched(const Reader& reader, std::string_view bytes) {
    const Outcome expected = outcomeOf(reader, bytes);
    ASSERT_TRUE(expected.isSound);
    const GuardedMemory records(reader.recordSize);
    for (const End textEnd : {End::front, End::back}) {
        const GuardedText text(bytes, textEnd);
        for (const End recordEnd : {End::front, End::back}) {
            char* record = records.at(recordEnd, reader.recordSize);
            std::fill_n(record, reader.recordSize, '\0');
            const bool result = reader.read(text, record);
            const Outcome outcome{result, {record, reader.recordSize}, reader.isValid(record)};
            ASSERT_EQ(outcome, expected) << bytes;
        }
    }
}

TEST(GuardPages, AreNotTouchedByAnyReply) {
    withEachReader([](const Reader& reader) { expectUntouched(reader, sampleOf(reader.root)); });
}

TEST(GuardPages, AreNotTouchedByAReplyThatSaysAllManyTimes) {
    withEachReader([](const Reader& reader) {
        const std::string sample = sampleOf(reader.root);
        const std::size_t begin = sample.find('>', sample.find(std::string("<").append(reader.root))) + 1;
        const std::size_t end = sample.rfind("</");
        for (const std::size_t count : {2U, 20U, 100U}) {
            std::string text = sample;
            for (std::size_t i = 1; i < count; ++i) text.insert(begin, sample, begin, end - begin);
            expectUntouched(reader, text);
        }
    });
}

// With this step all kinds of places come up: in names, in values, in texts and between them.
constexpr std::size_t step = 13;

TEST(GuardPages, AreNotTouchedByAReplyThatIsCut) {
    withEachReader([](const Reader& reader) {
        const std::string sample = sampleOf(reader.root);
        for (std::size_t length = 0; length < sample.size(); length += step) {
            expectUntouched(reader, sample.substr(0, length));
        }
    });
}

TEST(GuardPages, AreNotTouchedByACharacterThatIsCut) {
    withEachReader([](const Reader& reader) {
        const std::string sample = sampleOf(reader.root);
        // F0 is the first of four bytes, and a parser may look for the other three.
        for (std::size_t length = 0; length < sample.size(); length += step) {
            expectUntouched(reader, sample.substr(0, length) + '\xF0');
        }
    });
}

}  // namespace

}  // namespace guard_pages_test
