/// @file counted_allocations.h
/// Counts what a test program and all libraries in it allocate.
#ifndef KVJXML_TESTS_FOUNDATION_COUNTED_ALLOCATIONS_H
#define KVJXML_TESTS_FOUNDATION_COUNTED_ALLOCATIONS_H

#include <cstddef>

/// How often operator new has been called so far.
std::size_t allocations() noexcept;

#endif
