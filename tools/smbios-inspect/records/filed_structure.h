#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>

#include "manager/decoded_table.h"
#include "smbios-inspect/output/json.h"
#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect {

/// A decoder that has processed its structure, and the key it is filed under.
using FiledStructure = Manager::FiledStructures::value_type;

/// The structure's type byte.
[[nodiscard]] std::uint8_t TypeOf(const FiledStructure& structure);

/// What failed when the structure was decoded; empty when nothing did.
[[nodiscard]] const std::string& ErrorOf(const FiledStructure& structure);

/// Key, type and record.
[[nodiscard]] Json StructureToJson(const FiledStructure& structure);

/// A heading and the fields of the record that have a value, one below the other.
void PrintStructure(const FiledStructure& structure, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
