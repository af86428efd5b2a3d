#include "allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t count = 0;

void* counted(void* memory) {
    ++count;
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

}  // namespace

std::size_t allocations() noexcept { return count; }

// The forms for arrays and those that do not throw end in these.

void* operator new(std::size_t size) { return counted(std::malloc(size == 0 ? 1 : size)); }

void* operator new(std::size_t size, std::align_val_t alignment) {
    const auto unit = static_cast<std::size_t>(alignment);
    return counted(std::aligned_alloc(unit, (size + unit) / unit * unit));
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
void operator delete(void* memory, std::align_val_t /*alignment*/) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept { std::free(memory); }
