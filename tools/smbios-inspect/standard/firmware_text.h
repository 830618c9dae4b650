#pragma once

#include <cstdint>
#include <iosfwd>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Standard {

/// How much people see of a structure.
enum class Detail : std::uint8_t {
    values,  ///< what is no value is left out: handles, bytes and remarks
    fields,  ///< bytes and strings are shown where the standard has no fields
    bytes,   ///< they are always shown
};

/// Prints a structure for people: a heading, and below it a line "Label: value" a field with its items below
/// that.
void PrintStructure(const Structure& structure,
                    Detail detail,
                    const OutputStyle& style,
                    std::ostream& output);

/// Whether a structure has something to say when only values are asked for: not when it is inactive, an
/// OEM's, or the end of the table.
[[nodiscard]] bool HasValues(const Structure& structure) noexcept;

}  // namespace SMBIOS::Inspect::Standard
