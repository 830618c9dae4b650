#pragma once

#include <cstddef>

namespace SMBIOS::Tests {

/// Handles this process has open, of the first four thousand.
[[nodiscard]] std::size_t OpenHandles();

/// Bytes of memory that belong to this process alone: "private bytes".
[[nodiscard]] std::size_t PrivateBytes();

/// Bytes of this process's heaps that are in use.
[[nodiscard]] std::size_t HeapBytesInUse();

}  // namespace SMBIOS::Tests
