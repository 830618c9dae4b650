#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace SMBIOS::Inspect {

/// Writes `bytes` to the file `target`, whole or not at all; on Linux a new file is its owner's alone to
/// read, as it may hold serial numbers. With `force` it replaces a file, or the one that a symbolic link
/// leads to. Throws an exception whose text is for a person when the file cannot be written, or something of
/// that name exists and `force` is not set.
void WriteOutputFile(const std::string& target, std::span<const std::uint8_t> bytes, bool force);

}  // namespace SMBIOS::Inspect
