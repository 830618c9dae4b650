#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "platform/saved_table_error.h"

namespace SMBIOS::Platform {

/// Loads a saved table and returns it in its raw form: the 8-byte header and the table. `path` is
/// - a file that starts with an entry point, the table standing where the entry point's address says; or
/// - a file in the raw form, taken as it stands, whatever length its header states; or
/// - a folder that holds the files `smbios_entry_point` and `DMI`.
/// Throws SavedTableError and std::bad_alloc.
[[nodiscard]] std::vector<std::uint8_t> LoadSavedTable(const std::filesystem::path& path);

/// Reads such a file from `stream`, which is binary, until its end; errors call it `name`.
[[nodiscard]] std::vector<std::uint8_t> LoadSavedTable(std::FILE* stream, const std::filesystem::path& name);

}  // namespace SMBIOS::Platform
