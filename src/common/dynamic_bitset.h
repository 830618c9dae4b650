#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace SMBIOS::Common {

/// One name per bit, bit 0 first; "dontCare" and "Unknown" mark bits that are not reported. The names are
/// constants of the program and end with a NUL.
using BitNames = std::span<const char* const>;

/// A flag word of any width together with the names of its bits.
struct Dynamic_BitSet {
    std::size_t bitCount = 0;         ///< number of valid bits
    std::vector<std::uint8_t> bytes;  ///< bit i is bit (i mod 8), least significant first, of byte i / 8
    BitNames names;                   ///< may be shorter than `bitCount`

    /// Makes the set `nbits` wide and copies bit (i mod 64) of `word` into every bit i. `names` stays as it
    /// is.
    void Assign(std::uint64_t word, std::size_t nbits);

    /// Both throw std::out_of_range when the bit is past `bitCount`, or its byte past the storage.
    void Set(std::size_t i, bool b);
    [[nodiscard]] bool Test(std::size_t i) const;

    /// The name of bit i; nullptr when it has none or the name marks a bit that is not reported.
    [[nodiscard]] const char* GetBitName(std::size_t i) const noexcept;

    [[nodiscard]] std::size_t GetBitCount() const noexcept { return bitCount; }
    [[nodiscard]] std::size_t GetByteCount() const noexcept { return bytes.size(); }
};

/// The set of the low `bitCount` bits of `word`, named by `names`.
[[nodiscard]] Dynamic_BitSet MakeBitSet(std::uint64_t word, std::size_t bitCount, BitNames names);

/// The flags as a number, bit i for flag i; of a set of more than 64 the first ones.
[[nodiscard]] std::uint64_t WordOf(const Dynamic_BitSet& set) noexcept;

/// The name of the lowest set bit: "the" value of a flag word. nullptr when no bit is set or the lowest set
/// bit has no reported name, even if higher bits have one. Throws like `Test`.
[[nodiscard]] const char* LowestSetBitName(const Dynamic_BitSet& set);

}  // namespace SMBIOS::Common
