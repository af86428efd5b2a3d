/// @file allocation_watch.h
/// Watches what the program and all libraries in it allocate with operator new, and lets an allocation fail.
#ifndef KVJXML_TESTS_HOSTILE_ALLOCATION_WATCH_H
#define KVJXML_TESTS_HOSTILE_ALLOCATION_WATCH_H

#include <cstddef>
#include <limits>

namespace kvjxml::tests {

enum class Failing { once, fromThenOn };

/// One at a time, in a program with one thread.
class AllocationWatch {
public:
    AllocationWatch();
    /// Frees what was allocated since and is still there, so that a leak that is known does not fill the memory.
    ~AllocationWatch();
    AllocationWatch(const AllocationWatch&) = delete;
    AllocationWatch& operator=(const AllocationWatch&) = delete;

    /// Lets the allocation fail that comes after `allowed` more.
    void fail(std::size_t allowed, Failing failing);
    void failNoMore();

    [[nodiscard]] std::size_t made() const;   ///< allocations since the watch began, without those that failed
    [[nodiscard]] std::size_t alive() const;  ///< those of them that were not freed
};

}  // namespace kvjxml::tests

#endif
