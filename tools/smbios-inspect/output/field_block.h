#pragma once

#include <iosfwd>
#include <string_view>
#include <vector>

#include "smbios-inspect/output/lines.h"
#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect {

/// A field as people read it. Texts of the firmware are as they are, not yet safe for a terminal.
struct FieldText {
    std::string_view label;
    Lines lines;
    bool isFailure;
    bool isMarked = false;  ///< with a star behind its first line
};

/// Prints fields: labels in one column, their lines in another, every text made safe for a terminal.
void PrintFields(const std::vector<FieldText>& fields, const OutputStyle& style, std::ostream& output);

/// Prints a heading and below it the fields.
void PrintFieldBlock(std::string_view heading,
                     const std::vector<FieldText>& fields,
                     const OutputStyle& style,
                     std::ostream& output);

}  // namespace SMBIOS::Inspect
