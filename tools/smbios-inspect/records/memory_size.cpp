#include "smbios-inspect/records/memory_size.h"

#include <cstddef>

#include "structures/formatted_area.h"

namespace SMBIOS::Inspect {

namespace {

constexpr std::uint64_t kMegabyte = std::uint64_t{1} << 20;
constexpr std::size_t kSizeOffset = 0x0C;
constexpr std::size_t kExtendedSizeOffset = 0x1C;
constexpr std::uint64_t kSizeIsExtended = 0x7FFF;
constexpr std::uint64_t kCountsKilobytes = 0x8000;
constexpr std::uint64_t kUnknown = 0xFFFF;

}  // namespace

std::optional<std::uint64_t> MemoryDeviceBytes(std::optional<std::uint64_t> size,
                                               std::span<const std::uint8_t> rawBytes) noexcept {
    const Structures::FormattedArea area(rawBytes);
    const std::uint64_t word = area.Word(kSizeOffset);
    const std::uint64_t extendedSize = area.Dword(kExtendedSizeOffset) & 0x7FFFFFFFU;
    if (word == kSizeIsExtended && size == kSizeIsExtended * kMegabyte && extendedSize != 0) {
        return extendedSize * kMegabyte;
    }
    if (word != kUnknown && (word & kCountsKilobytes) != 0 && size == (word & ~kCountsKilobytes)) {
        return *size * 1024;
    }
    return size;
}

}  // namespace SMBIOS::Inspect
