#pragma once

#include <string>

namespace SMBIOS::Inspect {

/// Writes the raw table in use, 8-byte header and structures, to the file `target`, whole or not at all. With
/// `force` it replaces a file, or the one that a symbolic link leads to. Throws an exception whose text is
/// for a person when the table cannot be read, the file cannot be written, or something of that name exists
/// and `force` is not set.
void SaveTable(const std::string& target, bool force);

}  // namespace SMBIOS::Inspect
