#pragma once

#include <cstddef>
#include <set>

#include "manager/smbios_manager.h"

namespace SMBIOS::Inspect {

/// How many structures the table holds, and how many of them could not be decoded.
struct StructureCount {
    std::size_t total = 0;
    std::size_t failed = 0;
    std::set<unsigned> failedTypes;
};

[[nodiscard]] StructureCount CountStructures(const Manager::SmbiosManager& manager);

}  // namespace SMBIOS::Inspect
