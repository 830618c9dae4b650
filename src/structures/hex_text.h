#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

namespace SMBIOS::Structures {

/// "0x" and the value in upper-case hexadecimal, with leading zeros up to `leastDigits`.
[[nodiscard]] std::string PaddedHexText(std::uint64_t value, std::size_t leastDigits);

/// The same without "0x".
[[nodiscard]] std::string HexDigits(std::uint64_t value, std::size_t leastDigits);

/// The first for a field. Kept for compatibility with callers: the least number of digits is the size of the
/// value in bytes, not twice that.
template <class Value>
[[nodiscard]] std::string HexText(Value value) {
    static_assert(std::is_unsigned_v<Value>);
    return PaddedHexText(value, sizeof(Value));
}

}  // namespace SMBIOS::Structures
