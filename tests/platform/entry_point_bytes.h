#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace SMBIOS::Tests {

using Bytes = std::vector<std::uint8_t>;

inline constexpr std::size_t kChecksum32 = 0x04;
inline constexpr std::size_t kIntermediateChecksum = 0x15;
inline constexpr std::size_t kChecksum64 = 0x05;

/// A 32-bit entry point: version 2.8, 6 bytes of table at address 0x20.
inline Bytes EntryPoint32() {
    return {0x5F, 0x53, 0x4D, 0x5F, 0x79, 0x1F, 0x02, 0x08, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
            0x5F, 0x44, 0x4D, 0x49, 0x5F, 0x19, 0x06, 0x00, 0x20, 0x00, 0x00, 0x00, 0x01, 0x00, 0x28};
}

/// A 64-bit entry point: version 3.5.1, at most 16 bytes of table at address 0x20.
inline Bytes EntryPoint64() {
    return {0x5F, 0x53, 0x4D, 0x33, 0x5F, 0x1D, 0x18, 0x03, 0x05, 0x01, 0x01, 0x00,
            0x10, 0x00, 0x00, 0x00, 0x20, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00};
}

/// The shortest table: an end-of-table structure of handle 0xFEFF with an empty string set.
inline Bytes EndOfTable() {
    return {0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00};
}

/// Changes one byte and keeps the sum over the checksum's range at zero.
inline void ChangeByte(Bytes& bytes, std::size_t offset, std::uint8_t value, std::size_t checksumOffset) {
    bytes[checksumOffset] = static_cast<std::uint8_t>(bytes[checksumOffset] + bytes[offset] - value);
    bytes[offset] = value;
}

/// The entry point and, at offset 0x20, the table: what a capture of a machine looks like.
inline Bytes Capture(Bytes entryPoint, std::span<const std::uint8_t> table) {
    entryPoint.resize(0x20);
    entryPoint.insert(entryPoint.end(), table.begin(), table.end());
    return entryPoint;
}

}  // namespace SMBIOS::Tests
