#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace SMBIOS::Platform {

/// What a verified entry point says of the table it points to.
struct EntryPoint {
    std::size_t size = 0;  // of the entry point itself
    std::uint8_t majorVersion = 0;
    std::uint8_t minorVersion = 0;
    std::uint8_t revision = 0;  // 0 for the 32-bit form, which has none
    std::uint64_t tableAddress = 0;
    std::uint32_t tableLength = 0;
    bool lengthIsMaximum = false;  // the 64-bit form states an upper bound only
};

/// Tells whether `bytes` start with the anchor of a 32-bit ("_SM_") or 64-bit ("_SM3_") entry point.
[[nodiscard]] bool StartsWithEntryPointAnchor(std::span<const std::uint8_t> bytes) noexcept;

/// Reads the entry point at the start of `bytes`; more bytes may follow it. Nothing when its anchors, its
/// length or its checksums are wrong.
[[nodiscard]] std::optional<EntryPoint> ParseEntryPoint(std::span<const std::uint8_t> bytes) noexcept;

/// Puts the 8-byte header in front of the table that `bytes` start with. Nothing when there are fewer bytes
/// than `entryPoint` states, or none at all.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> AssembleRawTable(const EntryPoint& entryPoint,
                                                                        std::span<const std::uint8_t> bytes);

}  // namespace SMBIOS::Platform
