#include "platform/dmi_tables.h"

#include <optional>
#include <utility>

#include "platform/entry_point.h"
#include "platform/file_bytes.h"
#include "platform/saved_table_error.h"

namespace SMBIOS::Platform {

namespace {

std::vector<std::uint8_t> ReadOrThrow(const std::filesystem::path& file) {
    FileBytes contents = ReadFileBytes(file);
    if (contents.error) {
        throw SavedTableError::Unreadable(file, contents.error);
    }
    return std::move(contents.bytes);
}

EntryPoint ReadEntryPoint(const std::filesystem::path& file) {
    const std::optional<EntryPoint> entryPoint = ParseEntryPoint(ReadOrThrow(file));
    if (!entryPoint) {
        throw SavedTableError::NotATable(file, "its entry point is damaged");
    }
    return *entryPoint;
}

}  // namespace

DmiTablesDirectory::DmiTablesDirectory(std::filesystem::path folder) : folder_(std::move(folder)) {}

std::vector<std::uint8_t> DmiTablesDirectory::Read() const {
    const EntryPoint entryPoint = ReadEntryPoint(folder_ / "smbios_entry_point");
    const std::filesystem::path tableFile = folder_ / "DMI";
    std::optional<std::vector<std::uint8_t>> raw = AssembleRawTable(entryPoint, ReadOrThrow(tableFile));
    if (!raw) {
        throw SavedTableError::Truncated(tableFile, "it is shorter than its entry point states");
    }
    return std::move(*raw);
}

}  // namespace SMBIOS::Platform
