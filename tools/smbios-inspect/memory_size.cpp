#include "smbios-inspect/memory_size.h"

#include <cstddef>

namespace SMBIOS::Inspect {

namespace {

constexpr std::uint64_t kMegabyte = std::uint64_t{1} << 20;
constexpr std::size_t kSizeOffset = 0x0C;
constexpr std::size_t kExtendedSizeOffset = 0x1C;
constexpr std::uint64_t kSizeIsExtended = 0x7FFF;
constexpr std::uint64_t kCountsKilobytes = 0x8000;
constexpr std::uint64_t kUnknown = 0xFFFF;

/// 0 past the end of the structure.
std::uint64_t LittleEndian(std::span<const std::uint8_t> bytes, std::size_t offset, std::size_t width) {
    std::uint64_t value = 0;
    for (std::size_t i = width; i > 0 && offset + width <= bytes.size(); --i) {
        value = value << 8 | bytes[offset + i - 1];
    }
    return value;
}

}  // namespace

std::optional<std::uint64_t> MemoryDeviceBytes(std::optional<std::uint64_t> size,
                                               std::span<const std::uint8_t> rawBytes) noexcept {
    const std::uint64_t word = LittleEndian(rawBytes, kSizeOffset, 2);
    const std::uint64_t extendedSize = LittleEndian(rawBytes, kExtendedSizeOffset, 4) & 0x7FFFFFFFU;
    if (word == kSizeIsExtended && size == kSizeIsExtended * kMegabyte && extendedSize != 0) {
        return extendedSize * kMegabyte;
    }
    if (word != kUnknown && (word & kCountsKilobytes) != 0 && size == (word & ~kCountsKilobytes)) {
        return *size * 1024;
    }
    return size;
}

}  // namespace SMBIOS::Inspect
