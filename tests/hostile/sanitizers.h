/// @file sanitizers.h
/// Which sanitizer the tests run under.
#ifndef KVJXML_TESTS_HOSTILE_SANITIZERS_H
#define KVJXML_TESTS_HOSTILE_SANITIZERS_H

#if defined(__has_feature)
#define KVJXML_HAS(feature) __has_feature(feature)
#else
#define KVJXML_HAS(feature) 0
#endif

namespace kvj::tests {

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

}  // namespace kvj::tests

#endif
