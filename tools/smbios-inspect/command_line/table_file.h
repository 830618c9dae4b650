#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace SMBIOS::Inspect {

/// The raw table, 8-byte header and structures, of the saved one that `from` names, "-" for standard input.
/// Touches nothing process-wide. Throws an exception whose text is for a person when it cannot be read.
[[nodiscard]] std::vector<std::uint8_t> ReadTableFile(const std::string& from);

}  // namespace SMBIOS::Inspect
