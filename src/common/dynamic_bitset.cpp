#include "common/dynamic_bitset.h"

#include <string_view>

namespace SMBIOS::Common {

namespace {

constexpr std::uint8_t MaskOf(std::size_t i) noexcept {
    return static_cast<std::uint8_t>(1U << (i % 8));
}

}  // namespace

void Dynamic_BitSet::Assign(std::uint64_t word, std::size_t nbits) {
    bitCount = nbits;
    bytes.SetToZeros((nbits + 7) / 8);
    std::size_t shift = 0;
    for (std::uint8_t& byte : bytes) {
        byte = static_cast<std::uint8_t>(word >> (shift % 64));
        shift += 8;
    }
    if (nbits % 8 != 0) {
        bytes[bytes.size() - 1] &= static_cast<std::uint8_t>(MaskOf(nbits) - 1);
    }
}

void Dynamic_BitSet::Set(std::size_t i, bool b) {
    CheckRange(i);
    std::uint8_t& byte = bytes[i / 8];
    byte = static_cast<std::uint8_t>(b ? (byte | MaskOf(i)) : (byte & ~MaskOf(i)));
}

const char* Dynamic_BitSet::GetBitName(std::size_t i) const noexcept {
    if (i >= names.size()) {
        return nullptr;
    }
    const std::string_view name = names[i];
    return name == "dontCare" || name == "Unknown" ? nullptr : names[i];
}

std::uint64_t WordOf(const Dynamic_BitSet& set) noexcept {
    constexpr std::size_t kBytes = sizeof(std::uint64_t);
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < set.bytes.size() && i < kBytes; ++i) {
        word |= std::uint64_t{set.bytes[i]} << (8 * i);
    }
    return word;
}

const char* LowestSetBitName(const Dynamic_BitSet& set) {
    for (std::size_t i = 0; i < set.bitCount; ++i) {
        if (set.Test(i)) {
            return set.GetBitName(i);
        }
    }
    return nullptr;
}

}  // namespace SMBIOS::Common
