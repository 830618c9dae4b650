#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace SMBIOS::Platform {

/// The header in front of the structures of a raw table, and the one place that knows its layout:
///
///     0  calling method, not used
///     1  major version
///     2  minor version
///     3  revision
///     4  length of the structures, a little-endian DWORD; never trusted when read
struct RawTableHeader {
    static constexpr std::size_t kSize = 8;

    std::uint8_t majorVersion = 0;
    std::uint8_t minorVersion = 0;
    std::uint8_t revision = 0;

    /// The header of a raw table; `rawTable` must be at least as long as one.
    [[nodiscard]] static constexpr RawTableHeader Of(std::span<const std::uint8_t> rawTable) noexcept {
        return {rawTable[1], rawTable[2], rawTable[3]};
    }

    /// The structures behind the header; none in a table that has nothing behind it.
    [[nodiscard]] static constexpr std::span<const std::uint8_t> StructuresOf(
        std::span<const std::uint8_t> rawTable) noexcept {
        return rawTable.size() > kSize ? rawTable.subspan(kSize) : std::span<const std::uint8_t>();
    }

    /// The header's bytes, for structures of `length` bytes.
    [[nodiscard]] constexpr std::array<std::uint8_t, kSize> Bytes(std::uint32_t length) const noexcept {
        const auto lengthByte = [&](unsigned shift) { return static_cast<std::uint8_t>(length >> shift); };
        return {0,
                majorVersion,
                minorVersion,
                revision,
                lengthByte(0),
                lengthByte(8),
                lengthByte(16),
                lengthByte(24)};
    }

    /// Whether a table can have this version. Anything can pass for a raw table, whose header has no mark: a
    /// text, or the structures alone, too.
    [[nodiscard]] constexpr bool HasPlausibleVersion() const noexcept {
        return 1 <= majorVersion && majorVersion <= 9;
    }
};

}  // namespace SMBIOS::Platform
