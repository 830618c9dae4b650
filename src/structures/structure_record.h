#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace SMBIOS::Structures {

/// What every decoded record has. A fresh record has every optional empty, every number 0, every text empty.
/// Records are shared between their decoder and the readers that asked for them.
struct StructureRecord {
    std::uint16_t handle = 0;                         ///< 0 while the structure is not accepted
    std::optional<std::vector<std::string>> strings;  ///< the string set; string number 1 is element 0
    std::vector<std::uint8_t> rawBytes;               ///< the whole formatted area, header included
    std::string error;                                ///< empty when decoding succeeded, else what failed
};

}  // namespace SMBIOS::Structures
