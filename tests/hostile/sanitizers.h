/// @file sanitizers.h
/// Which sanitizer the tests run under, and how much they can do under it.
#ifndef KVJXML_TESTS_HOSTILE_SANITIZERS_H
#define KVJXML_TESTS_HOSTILE_SANITIZERS_H

#include <cstddef>
#include <cstdlib>

#if defined(__has_feature)
#define KVJXML_HAS(feature) __has_feature(feature)
#else
#define KVJXML_HAS(feature) 0
#endif

namespace kvjxml::tests {

#if defined(__SANITIZE_ADDRESS__) || KVJXML_HAS(address_sanitizer)
inline constexpr bool hasAddressSanitizer = true;
#else
inline constexpr bool hasAddressSanitizer = false;
#endif
#if defined(__SANITIZE_THREAD__) || KVJXML_HAS(thread_sanitizer)
inline constexpr bool hasThreadSanitizer = true;
#else
inline constexpr bool hasThreadSanitizer = false;
#endif

/// How many bytes one test has each reader read, a second's worth with a sanitizer. All variants of the short replies
/// are within it everywhere, those of the long ones where no sanitizer slows them down; the thread sanitizer has little
/// to see in one thread.
inline constexpr std::size_t bytesPerReader = hasThreadSanitizer    ? 5'000'000
                                              : hasAddressSanitizer ? 30'000'000
                                                                    : 2'000'000'000;

/// Of so many variants of a text, one in how many is read. With KVJXML_EVERY_VARIANT in the environment all are,
/// however long it takes.
inline std::size_t stride(std::size_t variants, std::size_t textSize) {
    static const bool isEveryWanted = std::getenv("KVJXML_EVERY_VARIANT") != nullptr;
    return isEveryWanted ? 1 : variants * textSize / bytesPerReader + 1;
}

}  // namespace kvjxml::tests

#endif
