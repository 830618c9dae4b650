#pragma once

#include <cstddef>

namespace SMBIOS::Inspect {

/// How text is laid out for who reads it.
struct OutputStyle {
    std::size_t width = 0;  ///< columns of the terminal; 0 for no terminal, and so no limit
    bool colour = false;
};

}  // namespace SMBIOS::Inspect
