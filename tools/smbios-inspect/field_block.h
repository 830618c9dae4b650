#pragma once

#include <cstddef>
#include <iosfwd>
#include <string_view>
#include <vector>

#include "smbios-inspect/field.h"
#include "smbios-inspect/output_style.h"
#include "smbios-inspect/record_text.h"

namespace SMBIOS::Inspect {

/// Prints a heading and below it the fields: labels in one column, their lines in another, every text made
/// safe for a terminal.
void PrintFieldBlock(std::string_view heading,
                     const std::vector<FieldText>& fields,
                     const OutputStyle& style,
                     std::ostream& output);

}  // namespace SMBIOS::Inspect
