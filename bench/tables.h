#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace SMBIOS::Bench {

/// The table that is measured: raw, its header included. Read once.
[[nodiscard]] const std::vector<std::uint8_t>& MeasuredTable();

/// The structures of a raw table as often as that, one behind the other, in one table.
[[nodiscard]] std::vector<std::uint8_t> Repeated(const std::vector<std::uint8_t>& rawTable,
                                                 std::size_t times);

/// As many structures of a type as that, each of `length` bytes with a text; of a decoded type, or of none.
[[nodiscard]] std::vector<std::uint8_t> TableOf(std::uint8_t type, std::uint8_t length, std::size_t count);

}  // namespace SMBIOS::Bench
