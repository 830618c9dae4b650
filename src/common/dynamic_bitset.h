#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <stdexcept>
#include <vector>

namespace SMBIOS::Common {

/// One name per bit, bit 0 first; "dontCare" and "Unknown" mark bits that are not reported. The names are
/// constants of the program and end with a NUL.
using BitNames = std::span<const char* const>;

/// The bytes of a flag word. Eight of them, the most that a word of the firmware has, take no memory of their
/// own.
class FlagBytes {
public:
    FlagBytes() = default;
    FlagBytes(std::initializer_list<std::uint8_t> bytes) {
        SetToZeros(bytes.size());
        std::ranges::copy(bytes, begin());
    }

    void SetToZeros(std::size_t size) {
        const bool isFew = size <= few_.size();
        few_ = {};
        fewCount_ = isFew ? size : 0;
        many_.assign(isFew ? 0 : size, 0);
    }

    [[nodiscard]] std::size_t size() const noexcept { return many_.empty() ? fewCount_ : many_.size(); }
    [[nodiscard]] std::uint8_t* begin() noexcept { return many_.empty() ? few_.data() : many_.data(); }
    [[nodiscard]] const std::uint8_t* begin() const noexcept {
        return many_.empty() ? few_.data() : many_.data();
    }
    [[nodiscard]] std::uint8_t* end() noexcept { return begin() + size(); }
    [[nodiscard]] const std::uint8_t* end() const noexcept { return begin() + size(); }
    [[nodiscard]] std::uint8_t& operator[](std::size_t i) noexcept { return begin()[i]; }
    [[nodiscard]] std::uint8_t operator[](std::size_t i) const noexcept { return begin()[i]; }

    bool operator==(const FlagBytes& other) const noexcept { return std::ranges::equal(*this, other); }

private:
    std::array<std::uint8_t, 8> few_ = {};
    std::size_t fewCount_ = 0;
    std::vector<std::uint8_t> many_;  // all of them when `few_` has no room for them, else empty
};

/// A flag word of any width together with the names of its bits.
struct Dynamic_BitSet {
    std::size_t bitCount = 0;  ///< number of valid bits
    FlagBytes bytes;           ///< bit i is bit (i mod 8), least significant first, of byte i / 8
    BitNames names;            ///< may be shorter than `bitCount`

    Dynamic_BitSet() = default;

    /// The set of the low `nbits` bits of `word`.
    Dynamic_BitSet(std::uint64_t word, std::size_t nbits, BitNames bitNames) : names(bitNames) {
        Assign(word, nbits);
    }

    /// Makes the set `nbits` wide and copies bit (i mod 64) of `word` into every bit i. `names` stays as it
    /// is.
    void Assign(std::uint64_t word, std::size_t nbits);

    /// Both throw std::out_of_range when the bit is past `bitCount`, or its byte past the storage.
    void Set(std::size_t i, bool b);
    [[nodiscard]] bool Test(std::size_t i) const {
        CheckRange(i);
        return (bytes[i / 8] >> (i % 8) & 1U) != 0;
    }

    /// The name of bit i; nullptr when it has none or the name marks a bit that is not reported.
    [[nodiscard]] const char* GetBitName(std::size_t i) const noexcept;

    [[nodiscard]] std::size_t GetBitCount() const noexcept { return bitCount; }
    [[nodiscard]] std::size_t GetByteCount() const noexcept { return bytes.size(); }

private:
    void CheckRange(std::size_t i) const {
        if (i >= bitCount) {
            throw std::out_of_range("Bit index out of range for Dynamic_BitSet");
        }
        if (i / 8 >= bytes.size()) {
            throw std::out_of_range("Byte index out of range for Dynamic_BitSet");
        }
    }
};

/// The flags as a number, bit i for flag i; of a set of more than 64 the first ones.
[[nodiscard]] std::uint64_t WordOf(const Dynamic_BitSet& set) noexcept;

/// The name of the lowest set bit: "the" value of a flag word. nullptr when no bit is set or the lowest set
/// bit has no reported name, even if higher bits have one. Throws like `Test`.
[[nodiscard]] const char* LowestSetBitName(const Dynamic_BitSet& set);

}  // namespace SMBIOS::Common
