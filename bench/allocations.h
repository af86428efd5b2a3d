/// @file allocations.h
/// Counts what this program and all libraries in it allocate.
#ifndef KVJXML_BENCH_ALLOCATIONS_H
#define KVJXML_BENCH_ALLOCATIONS_H

#include <cstddef>

/// How often `operator new` was called so far. Of no use with more than one thread.
std::size_t allocations() noexcept;

#endif
