#pragma once

#include "smbios-inspect/picture/drawing.h"
#include "smbios-inspect/picture/machine.h"

namespace SMBIOS::Inspect::Picture {

/// The page with everything on it.
[[nodiscard]] Box LayOut(const Machine& machine);

}  // namespace SMBIOS::Inspect::Picture
