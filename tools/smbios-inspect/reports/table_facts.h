#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <span>
#include <string>

namespace SMBIOS::Inspect {

/// Structures that have something in common.
struct StructureCount {
    std::size_t count = 0;
    std::set<std::uint8_t> types;
};

/// A table as such, and how much of it the library decodes.
struct TableFacts {
    std::string version;
    std::size_t structures = 0;
    StructureCount undecoded;  ///< sound ones that the library does not decode
    StructureCount malformed;
    bool mayBeCutShort = false;
};

/// The facts of a raw table, its header included. Throws what decoding throws.
[[nodiscard]] TableFacts TableFactsOf(std::span<const std::uint8_t> rawTable);

}  // namespace SMBIOS::Inspect
