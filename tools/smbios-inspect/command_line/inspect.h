#pragma once

#include <iosfwd>
#include <span>
#include <string_view>

#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect {

inline constexpr int kSuccess = 0;
inline constexpr int kUnreadable = 1;
inline constexpr int kWrongUsage = 2;
inline constexpr int kDifferent = 3;

/// The whole tool: does what `arguments`, without the program's name, ask for, prints the result on `output`
/// and what went wrong on `errors`, and returns the exit status. Once per process: the table is loaded once.
int Run(std::span<const std::string_view> arguments,
        const OutputStyle& style,
        std::ostream& output,
        std::ostream& errors);

}  // namespace SMBIOS::Inspect
