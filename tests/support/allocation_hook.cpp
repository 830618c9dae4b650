#include "tests/support/allocation_hook.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <utility>

namespace SMBIOS::Tests {
namespace {

constinit thread_local AllocationHook* currentHook = nullptr;

void RunHook(std::size_t size) {
    AllocationHook* const hook = std::exchange(currentHook, nullptr);
    if (hook == nullptr) {
        return;
    }
    try {
        hook->BeforeAllocation(size);
    } catch (...) {
        currentHook = hook;
        throw;
    }
    currentHook = hook;
}

void* Allocate(std::size_t size) {
    constexpr int kRubbish = 0xA5;
    RunHook(size);
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return std::memset(memory, kRubbish, size);
}

void* AllocateOrNull(std::size_t size) noexcept {
    try {
        return Allocate(size);
    } catch (...) {
        return nullptr;
    }
}

/// The alignment of all memory, which asking for it does not change.
constexpr std::align_val_t kUsual{alignof(std::max_align_t)};

/// Memory of a wider alignment has the start of what it was taken from right in front of it.
void* AllocateAligned(std::size_t size, std::align_val_t alignment) {
    if (alignment <= kUsual) {
        return Allocate(size);
    }
    const auto width = static_cast<std::size_t>(alignment);
    void* const start = Allocate(size + width + sizeof(void*));
    void* place = static_cast<void**>(start) + 1;
    std::size_t space = size + width;
    std::align(width, size, place, space);
    static_cast<void**>(place)[-1] = start;
    return place;
}

void FreeAligned(void* memory, std::align_val_t alignment) noexcept {
    std::free(memory == nullptr || alignment <= kUsual ? memory : static_cast<void**>(memory)[-1]);
}

}  // namespace

AllocationHook::AllocationHook() noexcept : former_(std::exchange(currentHook, this)) {}

AllocationHook::~AllocationHook() {
    currentHook = former_;
}

}  // namespace SMBIOS::Tests

void* operator new(std::size_t size) {
    return SMBIOS::Tests::Allocate(size);
}

void* operator new[](std::size_t size) {
    return SMBIOS::Tests::Allocate(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return SMBIOS::Tests::AllocateOrNull(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return SMBIOS::Tests::AllocateOrNull(size);
}

void* operator new(std::size_t size, std::align_val_t alignment) {
    return SMBIOS::Tests::AllocateAligned(size, alignment);
}

void operator delete(void* memory, std::align_val_t alignment) noexcept {
    SMBIOS::Tests::FreeAligned(memory, alignment);
}

void operator delete(void* memory, std::size_t, std::align_val_t alignment) noexcept {
    SMBIOS::Tests::FreeAligned(memory, alignment);
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete[](void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}

void operator delete[](void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}
