#pragma once

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "manager/smbios_manager.h"
#include "manager/structure_types.h"
#include "smbios-inspect/getter_values.h"
#include "smbios-inspect/output_style.h"
#include "structures/base_structure.h"

namespace SMBIOS::Inspect {

/// A decoder that has processed its structure, and the key it is filed under.
struct FiledStructure {
    Manager::Types::StructureTypes key;
    std::shared_ptr<const Structures::BaseStructure> decoder;
};

/// Every structure of the table in ascending order of the keys, in table order below one key.
[[nodiscard]] std::vector<FiledStructure> FiledStructures(const Manager::SmbiosManager& manager);

/// The structure's type byte.
[[nodiscard]] std::uint8_t TypeOf(const FiledStructure& structure);

/// What failed when the structure was decoded; empty when nothing did.
[[nodiscard]] std::string ErrorOf(const FiledStructure& structure);

/// Key, type and record.
[[nodiscard]] Json StructureToJson(const FiledStructure& structure);

/// A heading and the fields of the record that have a value, one below the other.
void PrintStructure(const FiledStructure& structure, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
