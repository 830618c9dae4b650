#pragma once

#include <cstddef>
#include <new>

namespace SMBIOS::Platform {

/// The one `T` of the process: made at its first use and never destroyed, so that it serves callers until the
/// very end of the process. Nothing runs at load time and nothing is taken from the heap.
template <typename T>
[[nodiscard]] T& NeverDestroyed() noexcept {
    alignas(T) static std::byte storage[sizeof(T)];
    static T* const object = ::new (static_cast<void*>(storage)) T;
    return *object;
}

}  // namespace SMBIOS::Platform
