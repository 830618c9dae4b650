#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace SMBIOS::Platform {

/// A folder that holds the files `smbios_entry_point` and `DMI`: the one in which the Linux kernel exposes
/// the machine's table, or a copy of it, which can be read on any system.
class DmiTablesDirectory {
public:
    explicit DmiTablesDirectory(std::filesystem::path folder);

    /// Reads and verifies both files. Returns the 8-byte header and the table.
    /// Throws SavedTableError and std::bad_alloc.
    [[nodiscard]] std::vector<std::uint8_t> Read() const;

private:
    std::filesystem::path folder_;
};

}  // namespace SMBIOS::Platform
