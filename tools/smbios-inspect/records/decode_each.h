#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "smbios-inspect/records/filed_structure.h"

namespace SMBIOS::Inspect {

/// Decodes the structures of a raw table in the order in which the library files them, and hands each to
/// `visit`: one is held at a time, however long the table. Those under a key that is not `isWanted` are
/// passed over. Throws std::bad_alloc, also when a decoder recorded it, and what `visit` throws.
void DecodeEach(std::span<const std::uint8_t> rawTable,
                const std::function<bool(Manager::Types::StructureTypes)>& isWanted,
                const std::function<void(const FiledStructure&)>& visit);

}  // namespace SMBIOS::Inspect
