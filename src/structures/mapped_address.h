#pragma once

#include <cstddef>
#include <string>

#include "structures/structure_reader.h"

namespace SMBIOS::Structures {

/// The hexadecimal text of a mapped address: the DWORD at `offset` in kilobytes or, where that is 0xFFFFFFFF,
/// the QWORD at `extendedOffset` in bytes. The latter is empty in a table older than 2.7.0. Departs from the
/// standard: each address of a range has its own way, whatever the other one's.
[[nodiscard]] std::string MappedAddress(const StructureReader& in,
                                        std::size_t offset,
                                        std::size_t extendedOffset);

}  // namespace SMBIOS::Structures
