/// @file allocations.h
/// Counts what this program and all libraries in it take from the heap, whichever way they ask for it.
#ifndef KVJXML_BENCH_ALLOCATIONS_H
#define KVJXML_BENCH_ALLOCATIONS_H

#include <cstddef>

namespace kvj::bench {

/// How often the calling thread took memory from the heap so far.
std::size_t allocations() noexcept;

/// While one lives, the bytes that its thread has on the heap are counted, those included that the heap rounds up.
/// Where times are measured there is none, since counting takes time.
class HeapUse {
public:
    HeapUse() noexcept;
    ~HeapUse();
    HeapUse(const HeapUse&) = delete;
    HeapUse& operator=(const HeapUse&) = delete;

    /// What was taken since the beginning and is there yet.
    [[nodiscard]] std::size_t kept() const noexcept;
    /// What was there at the same time, at most.
    [[nodiscard]] std::size_t peak() const noexcept;
};

}  // namespace kvj::bench

#endif
