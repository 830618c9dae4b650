#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace SMBIOS::Structures {

/// The one place that reads the bytes of a structure. Values are little-endian; offsets count from the type
/// byte. A byte past the area reads as zero, so a structure that is shorter than its table's version implies
/// is still read safely. A view: valid only while its bytes are.
class FormattedArea {
public:
    explicit FormattedArea(std::span<const std::uint8_t> bytes) noexcept : bytes_(bytes) {}

    [[nodiscard]] std::uint8_t Type() const noexcept { return Byte(0x00); }

    /// The length byte of the header, which need not be the number of bytes there are.
    [[nodiscard]] std::uint8_t Length() const noexcept { return Byte(0x01); }

    [[nodiscard]] std::uint16_t Handle() const noexcept { return Word(0x02); }

    /// The number of bytes there are.
    [[nodiscard]] std::size_t Size() const noexcept { return bytes_.size(); }

    [[nodiscard]] std::uint8_t Byte(std::size_t offset) const noexcept {
        return offset < bytes_.size() ? bytes_[offset] : std::uint8_t{0};
    }
    [[nodiscard]] std::uint16_t Word(std::size_t offset) const noexcept {
        return static_cast<std::uint16_t>(LittleEndian(offset, std::make_index_sequence<2>()));
    }
    [[nodiscard]] std::uint32_t Dword(std::size_t offset) const noexcept {
        return static_cast<std::uint32_t>(LittleEndian(offset, std::make_index_sequence<4>()));
    }
    [[nodiscard]] std::uint64_t Qword(std::size_t offset) const noexcept {
        return LittleEndian(offset, std::make_index_sequence<8>());
    }

    /// `Count` bytes from `offset` on.
    template <std::size_t Count>
    [[nodiscard]] std::array<std::uint8_t, Count> Bytes(std::size_t offset) const noexcept {
        std::array<std::uint8_t, Count> bytes{};
        std::ranges::copy(ExistingBytes(offset, Count), bytes.begin());
        return bytes;
    }

    /// Those of the `count` bytes from `offset` on that there are.
    [[nodiscard]] std::span<const std::uint8_t> ExistingBytes(std::size_t offset,
                                                              std::size_t count) const noexcept {
        const auto rest = bytes_.subspan(std::min(offset, bytes_.size()));
        return rest.first(std::min(count, rest.size()));
    }

private:
    /// Checked once where all bytes are there, which makes it a single load.
    template <std::size_t... Index>
    [[nodiscard]] std::uint64_t LittleEndian(std::size_t offset,
                                             std::index_sequence<Index...>) const noexcept {
        const auto bytes = ExistingBytes(offset, sizeof...(Index));
        if (bytes.size() == sizeof...(Index)) {
            return ((std::uint64_t{bytes[Index]} << (8 * Index)) | ...);
        }
        return ((std::uint64_t{Byte(offset + Index)} << (8 * Index)) | ...);
    }

    std::span<const std::uint8_t> bytes_;
};

}  // namespace SMBIOS::Structures
