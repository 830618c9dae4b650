#pragma once

#include <cstddef>

#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect {

/// What standard output is, and what the environment wishes for it.
struct Terminal {
    std::size_t columns = 0;  ///< 0 for no terminal
    bool takesEscapeSequences = false;
    const char* noColour = nullptr;  ///< NO_COLOR: any text asks for none
    const char* kind = nullptr;      ///< TERM
};

[[nodiscard]] OutputStyle StyleFor(const Terminal& terminal) noexcept;

}  // namespace SMBIOS::Inspect
