#pragma once

#include <string>

#include "smbios-inspect/reports/request.h"

namespace SMBIOS::Inspect {

/// The option, with a blank in front, that reads the same table again; empty for the machine's own.
[[nodiscard]] std::string FromOption(const Request& request);

}  // namespace SMBIOS::Inspect
