/// @file random_texts.h
/// Documents that are almost right, and right ones made wrong. The same seed makes the same ones.
#ifndef KVJXML_TESTS_SUPPORT_RANDOM_TEXTS_H
#define KVJXML_TESTS_SUPPORT_RANDOM_TEXTS_H

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

namespace kvj::tests {

/// A generator that is cheap to seed, so that each document has its own and can be made again alone.
class Random {
public:
    explicit Random(std::uint64_t seed) noexcept : state_(seed) {}

    std::uint64_t next() noexcept {
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t bits = state_;
        bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9U;
        bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EBU;
        return bits ^ (bits >> 31);
    }
    std::size_t below(std::size_t limit) noexcept { return static_cast<std::size_t>(next() % limit); }
    bool oneIn(std::size_t times) noexcept { return below(times) == 0; }
    template <class Choices>
    auto oneOf(const Choices& choices) noexcept {
        return std::data(choices)[below(std::size(choices))];
    }

private:
    std::uint64_t state_;
};

/// A small document with all that is right and wrong in XML.
std::string randomDocument(Random& random);

/// What a disturbed line, a cut text and someone who means harm make of a reply.
void tamper(Random& random, std::string& text, const std::vector<std::string>& samples);

}  // namespace kvj::tests

#endif
