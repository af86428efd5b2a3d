/// @file allocation_watch.h
/// Watches what the program and all libraries in it allocate with operator new, and lets an allocation fail.
#ifndef KVJXML_TESTS_HOSTILE_ALLOCATION_WATCH_H
#define KVJXML_TESTS_HOSTILE_ALLOCATION_WATCH_H

#include <cstddef>
#include <limits>
#include <new>

namespace kvj::tests {

enum class Failing { once, fromThenOn };

/// Only one at a time, in a program with one thread.
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

inline constexpr Failing bothWays[] = {Failing::once, Failing::fromThenOn};

/// Whether an action ends in std::bad_alloc when its allocations fail after so many of them.
template <class Action>
bool throwsAfter(std::size_t allowed, Failing failing, AllocationWatch& watch, Action action) {
    watch.fail(allowed, failing);
    bool thrown = false;
    try {
        action();
    } catch (const std::bad_alloc&) {
        thrown = true;
    }
    watch.failNoMore();
    return thrown;
}

}  // namespace kvj::tests

#endif
