#pragma once

// The one place that knows whether the toolchain has <format>.
#ifdef SMBIOS_USE_FMT
#include <fmt/format.h>
#else
#include <format>
#endif

namespace SMBIOS::Common {

#ifdef SMBIOS_USE_FMT
using fmt::format;
#else
using std::format;
#endif

}  // namespace SMBIOS::Common
