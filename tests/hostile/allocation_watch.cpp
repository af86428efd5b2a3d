#include "hostile/allocation_watch.h"

#include <cstdlib>
#include <new>

namespace kvj::tests {

namespace {

/// Stands in front of each block. Those that are watched are in a ring.
struct alignas(std::max_align_t) Header {
    Header* previous = nullptr;
    Header* next = nullptr;
};

Header ring{&ring, &ring};

constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

struct {
    bool watching = false;
    std::size_t made = 0;
    std::size_t alive = 0;
    std::size_t untilFailure = never;
    Failing failing = Failing::once;
} state;

bool failsNow() {
    if (state.untilFailure == never) return false;
    if (state.untilFailure > 0) {
        --state.untilFailure;
        return false;
    }
    if (state.failing == Failing::once) state.untilFailure = never;
    return true;
}

void watch(Header& block) {
    block = {&ring, ring.next};
    ring.next->previous = &block;
    ring.next = &block;
    ++state.made;
    ++state.alive;
}

void unwatch(Header& block) {
    block.previous->next = block.next;
    block.next->previous = block.previous;
    --state.alive;
}

void* allocate(std::size_t size) {
    if (failsNow()) throw std::bad_alloc();
    void* memory = std::malloc(sizeof(Header) + size);
    if (memory == nullptr) throw std::bad_alloc();
    auto* block = new (memory) Header;
    if (state.watching) watch(*block);
    return block + 1;
}

void release(void* memory) {
    if (memory == nullptr) return;
    Header* block = static_cast<Header*>(memory) - 1;
    if (block->next != nullptr) unwatch(*block);
    std::free(block);
}

}  // namespace

AllocationWatch::AllocationWatch() {
    state = {};
    state.watching = true;
}

AllocationWatch::~AllocationWatch() {
    state.watching = false;
    failNoMore();
    while (ring.next != &ring) release(ring.next + 1);
}

void AllocationWatch::fail(std::size_t allowed, Failing failing) {
    state.untilFailure = allowed;
    state.failing = failing;
}

void AllocationWatch::failNoMore() { state.untilFailure = never; }

std::size_t AllocationWatch::made() const { return state.made; }
std::size_t AllocationWatch::alive() const { return state.alive; }

}  // namespace kvj::tests

void* operator new(std::size_t size) { return kvj::tests::allocate(size); }
void* operator new[](std::size_t size) { return kvj::tests::allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t& /*nothrow*/) noexcept {
    try {
        return kvj::tests::allocate(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
void operator delete(void* memory, const std::nothrow_t& /*nothrow*/) noexcept { kvj::tests::release(memory); }
void operator delete(void* memory) noexcept { kvj::tests::release(memory); }
void operator delete[](void* memory) noexcept { kvj::tests::release(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { kvj::tests::release(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { kvj::tests::release(memory); }
