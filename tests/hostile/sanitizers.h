/// @file sanitizers.h
/// Which sanitizer the tests run under, and how much they can do under it.
#ifndef KVJXML_TESTS_HOSTILE_SANITIZERS_H
#define KVJXML_TESTS_HOSTILE_SANITIZERS_H

#include <cstddef>

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

/// Of so many variants of a text, one in how many is read. All are, but under the thread sanitizer, which has little to
/// see in one thread: there only a few seconds' worth.
constexpr std::size_t stride(std::size_t variants, std::size_t textSize) {
    constexpr std::size_t bytes = 5'000'000;
    return hasThreadSanitizer ? variants * textSize / bytes + 1 : 1;
}

}  // namespace kvjxml::tests

#endif
