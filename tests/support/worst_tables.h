#pragma once

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <span>
#include <vector>

namespace SMBIOS::Tests {

/// A kind of table that costs more than any machine's own.
struct WorstTable {
    const char* name;

    /// A raw table of about `size` bytes.
    std::vector<std::uint8_t> (*make)(std::size_t size);
};

[[nodiscard]] std::span<const WorstTable> WorstTables();

/// How GoogleTest names it.
inline void PrintTo(const WorstTable& table, std::ostream* output) {
    *output << table.name;
}

}  // namespace SMBIOS::Tests
