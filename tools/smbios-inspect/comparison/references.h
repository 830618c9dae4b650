#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Comparing {

/// A handle of another structure, and where it stands.
struct Reference {
    std::uint16_t offset;
    std::uint16_t handle;
};

/// Appends the handles that a structure's fields have, in the order of the fields; none where a field says
/// that there is nothing. Decodes no other field.
void AppendReferences(const Standard::Structure& structure, std::vector<Reference>& references);

/// The structure's bytes with zeros for its own handle and those of others: what they say however a firmware
/// numbers its structures.
[[nodiscard]] std::vector<std::uint8_t> BytesWithoutHandles(const Standard::Structure& structure,
                                                            std::span<const Reference> references);

}  // namespace SMBIOS::Inspect::Comparing
