#pragma once

#include <optional>
#include <span>
#include <vector>

#include "smbios-inspect/comparison/field_changes.h"

// What differs between two structures and that no field shows: it is a change, too.
namespace SMBIOS::Inspect::Comparing {

/// A structure with its fields and its handles. A view of its table.
struct DecodedStructure {
    DecodedStructure(const ComparedTable& table, Index index);

    Standard::Structure structure;
    std::span<const Reference> references;
    std::vector<KeptField> fields;
};

/// Bytes that differ and change none of the fields: those of a type that the standard does not define,
/// reserved bits, what stands behind the last field. `changes` are the fields that differ.
[[nodiscard]] std::optional<FieldChange> UnshownBytes(const DecodedStructure& before,
                                                      const DecodedStructure& after,
                                                      const std::vector<FieldChange>& changes);

/// Strings that differ and are not the value of any field.
[[nodiscard]] std::optional<FieldChange> UnshownStrings(const DecodedStructure& before,
                                                        const DecodedStructure& after);

/// What keeps the structures from being whole.
[[nodiscard]] std::optional<FieldChange> ChangedRemark(const DecodedStructure& before,
                                                       const DecodedStructure& after);

}  // namespace SMBIOS::Inspect::Comparing
