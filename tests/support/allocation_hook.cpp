#include "tests/support/allocation_hook.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
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
