/// @file guarded_memory.h
/// Memory beside which nothing can be read or written: the attempt ends the process.
#ifndef KVJXML_TESTS_SUPPORT_GUARDED_MEMORY_H
#define KVJXML_TESTS_SUPPORT_GUARDED_MEMORY_H

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <system_error>

namespace kvj::tests {

enum class End { front, back };

/// Memory between two pages that cannot be touched.
class GuardedMemory {
public:
    explicit GuardedMemory(std::size_t size)
        : page_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))), size_((size + page_ - 1) / page_ * page_) {
        void* memory = mmap(nullptr, size_ + 2 * page_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED) throw std::system_error(errno, std::generic_category(), "mmap");
        first_ = static_cast<char*>(memory) + page_;
        allow(PROT_READ | PROT_WRITE);
    }
    ~GuardedMemory() { munmap(first_ - page_, size_ + 2 * page_); }
    GuardedMemory(const GuardedMemory&) = delete;
    GuardedMemory& operator=(const GuardedMemory&) = delete;

    /// This many bytes, which begin or end at a page that cannot be touched.
    [[nodiscard]] char* at(End end, std::size_t size) const {
        return end == End::front ? first_ : first_ + (size_ - size);
    }

    void allow(int access) const {
        if (mprotect(first_, size_, access) != 0) throw std::system_error(errno, std::generic_category(), "mprotect");
    }

private:
    std::size_t page_;
    std::size_t size_;
    char* first_ = nullptr;
};

}  // namespace kvj::tests

#endif
