#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace SMBIOS::Inspect {

/// Size of a memory device in bytes, for people: from the size that the library gives, which counts bytes or
/// kilobytes as the firmware does, and the raw bytes of the device's structure, which may be none. A device
/// of 32 GiB and more has its size elsewhere, where the library does not look for it.
[[nodiscard]] std::optional<std::uint64_t> MemoryDeviceBytes(std::optional<std::uint64_t> size,
                                                             std::span<const std::uint8_t> rawBytes) noexcept;

}  // namespace SMBIOS::Inspect
