#pragma once

#include <iosfwd>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Standard {

/// Prints a structure for people: a heading, and below it a line "Label: value" a field with its items below
/// that. `isQuiet` leaves out what is no value: handles, bytes and remarks.
void PrintStructure(const Structure& structure, bool isQuiet, const OutputStyle& style, std::ostream& output);

/// Whether a structure has something to say when only values are asked for: not when it is inactive, an
/// OEM's, or the end of the table.
[[nodiscard]] bool HasValues(const Structure& structure) noexcept;

}  // namespace SMBIOS::Inspect::Standard
