#include "allocations.h"

#include <malloc.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>

namespace {

// Plain values that exist before anything is allocated.
thread_local std::size_t count = 0;
thread_local bool measuring = false;
thread_local std::ptrdiff_t now = 0;
thread_local std::ptrdiff_t most = 0;

void* taken(void* memory) noexcept {
    ++count;
    if (measuring && memory != nullptr) {
        now += static_cast<std::ptrdiff_t>(malloc_usable_size(memory));
        most = std::max(most, now);
    }
    return memory;
}

void given(void* memory) noexcept {
    if (measuring && memory != nullptr) now -= static_cast<std::ptrdiff_t>(malloc_usable_size(memory));
}

}  // namespace

namespace kvj::bench {

std::size_t allocations() noexcept { return count; }

HeapUse::HeapUse() noexcept {
    now = most = 0;
    measuring = true;
}
HeapUse::~HeapUse() { measuring = false; }

// What was there before can be given back as well.
std::size_t HeapUse::kept() const noexcept { return static_cast<std::size_t>(std::max<std::ptrdiff_t>(now, 0)); }
std::size_t HeapUse::peak() const noexcept { return static_cast<std::size_t>(most); }

}  // namespace kvj::bench

// glibc's heap by its own names: what stands here takes the place of the usual ones, for C++'s operators too.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {

void* __libc_malloc(std::size_t size) noexcept;
void* __libc_calloc(std::size_t number, std::size_t size) noexcept;
void* __libc_realloc(void* memory, std::size_t size) noexcept;
void* __libc_memalign(std::size_t alignment, std::size_t size) noexcept;
void __libc_free(void* memory) noexcept;

void* malloc(std::size_t size) noexcept { return taken(__libc_malloc(size)); }
void* calloc(std::size_t number, std::size_t size) noexcept { return taken(__libc_calloc(number, size)); }
void* realloc(void* memory, std::size_t size) noexcept {
    given(memory);
    return taken(__libc_realloc(memory, size));
}
void* memalign(std::size_t alignment, std::size_t size) noexcept { return taken(__libc_memalign(alignment, size)); }
void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept { return memalign(alignment, size); }
int posix_memalign(void** memory, std::size_t alignment, std::size_t size) noexcept {
    *memory = memalign(alignment, size);
    return *memory == nullptr ? ENOMEM : 0;
}
void free(void* memory) noexcept {
    given(memory);
    __libc_free(memory);
}

}  // extern "C"
// NOLINTEND(bugprone-reserved-identifier)
