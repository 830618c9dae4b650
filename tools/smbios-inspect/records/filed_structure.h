#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <span>
#include <string>
#include <string_view>

#include "manager/decoded_table.h"
#include "smbios-inspect/output/field_block.h"
#include "smbios-inspect/output/field_texts.h"
#include "smbios-inspect/output/json_writer.h"
#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/output/text_page.h"

namespace SMBIOS::Inspect {

using Manager::FiledStructure;

/// The structure's type byte.
[[nodiscard]] std::uint8_t TypeOf(const FiledStructure& structure);

/// What failed when the structure was decoded; empty when nothing did.
[[nodiscard]] const std::string& ErrorOf(const FiledStructure& structure);

/// Whether a structure that failed is itself at fault: too short for its header or for its type. Any other
/// that failed may be sound, of a length or a version that the library does not decode.
[[nodiscard]] bool IsDamaged(const FiledStructure& structure);

/// Key, type and record as an object.
void WriteStructure(const FiledStructure& structure, JsonWriter& json);

/// Prints structures for people: a heading, and below it the fields of the record that have a value. Keeps
/// the memory of one for the next.
class StructurePrinter {
public:
    StructurePrinter(const OutputStyle& style, std::ostream& output) noexcept : printer_(style, output) {}

    /// Lines with a label among `marks` are marked. Returns how many are.
    std::size_t Print(const FiledStructure& structure, std::span<const std::string_view> marks = {});

private:
    FieldPrinter printer_;
    TextPage heading_;
    FieldTexts texts_;
};

}  // namespace SMBIOS::Inspect
