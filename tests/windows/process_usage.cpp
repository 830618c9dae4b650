#include "tests/windows/process_usage.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

#include "tests/windows/windows_headers.h"

namespace SMBIOS::Tests {

namespace {

std::size_t BytesInUse(HANDLE heap) {
    std::size_t bytes = 0;
    PROCESS_HEAP_ENTRY entry = {};
    while (::HeapWalk(heap, &entry)) {
        if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) {
            bytes += entry.cbData;
        }
    }
    return bytes;
}

}  // namespace

// Tries every value a handle may have. Wine answers 0 to GetProcessHandleCount, and now and then its server
// crashes when asked for the list of all handles.
std::size_t OpenHandles() {
    constexpr std::uintptr_t kStep = 4;
    constexpr std::uintptr_t kEnd = 0x4000;
    std::size_t count = 0;
    for (std::uintptr_t value = kStep; value < kEnd; value += kStep) {
        DWORD flags = 0;
        count += ::GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) ? 1U : 0U;
    }
    return count;
}

// Not GetProcessMemoryInfo: Wine answers 0 for the private bytes.
std::size_t PrivateBytes() {
    std::size_t bytes = 0;
    MEMORY_BASIC_INFORMATION region = {};
    const std::byte* address = nullptr;
    while (::VirtualQuery(address, &region, sizeof(region)) != 0) {
        if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE) {
            bytes += region.RegionSize;
        }
        address = static_cast<const std::byte*>(region.BaseAddress) + region.RegionSize;
    }
    return bytes;
}

std::size_t HeapBytesInUse() {
    std::array<HANDLE, 64> heaps = {};
    const DWORD count = ::GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    std::size_t bytes = 0;
    for (const HANDLE heap : std::span(heaps).first(std::min<std::size_t>(count, heaps.size()))) {
        bytes += BytesInUse(heap);
    }
    return bytes;
}

}  // namespace SMBIOS::Tests
