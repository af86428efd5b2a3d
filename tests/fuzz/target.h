/// @file target.h
/// What every fuzz target is made with. A target is a program around LLVMFuzzerTestOneInput: built for the fuzzer it
/// gets inputs without end, built as a test it gets those that are kept.
#ifndef KVJXML_TESTS_FUZZ_TARGET_H
#define KVJXML_TESTS_FUZZ_TARGET_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace kvj::fuzz {

/// Ends the program when something that must hold does not: that is how the fuzzer learns that an input is worth
/// keeping.
void require(bool holds, const char* what);

inline std::string textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// A copy in memory of exactly its size, where the sanitizers see every step beside it.
template <class Character>
std::unique_ptr<Character[]> exactCopy(const Character* text, std::size_t length) {
    auto copy = std::make_unique<Character[]>(length);
    std::char_traits<Character>::copy(copy.get(), text, length);
    return copy;
}

}  // namespace kvj::fuzz

#endif
