#include "common/dynamic_bitset.h"

#include <stdexcept>
#include <string_view>

namespace SMBIOS::Common {

namespace {

void CheckRange(const Dynamic_BitSet& set, std::size_t i) {
    if (i >= set.bitCount) {
        throw std::out_of_range("Bit index out of range for Dynamic_BitSet");
    }
    if (i / 8 >= set.bytes.size()) {
        throw std::out_of_range("Byte index out of range for Dynamic_BitSet");
    }
}

constexpr std::uint8_t MaskOf(std::size_t i) noexcept {
    return static_cast<std::uint8_t>(1U << (i % 8));
}

}  // namespace

void Dynamic_BitSet::Assign(std::uint64_t word, std::size_t nbits) {
    bitCount = nbits;
    bytes.SetToZeros((nbits + 7) / 8);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(word >> (8 * i % 64));
    }
    if (nbits % 8 != 0) {
        bytes[bytes.size() - 1] &= static_cast<std::uint8_t>(MaskOf(nbits) - 1);
    }
}

void Dynamic_BitSet::Set(std::size_t i, bool b) {
    CheckRange(*this, i);
    std::uint8_t& byte = bytes[i / 8];
    byte = static_cast<std::uint8_t>(b ? (byte | MaskOf(i)) : (byte & ~MaskOf(i)));
}

bool Dynamic_BitSet::Test(std::size_t i) const {
    CheckRange(*this, i);
    return (bytes[i / 8] & MaskOf(i)) != 0;
}

const char* Dynamic_BitSet::GetBitName(std::size_t i) const noexcept {
    if (i >= names.size()) {
        return nullptr;
    }
    const std::string_view name = names[i];
    return name == "dontCare" || name == "Unknown" ? nullptr : names[i];
}

Dynamic_BitSet MakeBitSet(std::uint64_t word, std::size_t bitCount, BitNames names) {
    Dynamic_BitSet set;
    set.names = names;
    set.Assign(word, bitCount);
    return set;
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
