#include "smbios-inspect/command_line/table_file.h"

#include <cstdio>
#include <filesystem>

#include "platform/raw_table_header.h"
#include "platform/saved_table.h"
#include "smbios-inspect/command_line/file_path.h"

namespace SMBIOS::Inspect {

namespace {

void RequirePlausibleVersion(const std::vector<std::uint8_t>& table, const std::filesystem::path& name) {
    const auto header = Platform::RawTableHeader::Of(table);
    if (!header.HasPlausibleVersion()) {
        throw Platform::SavedTableError::NotATable(name,
                                                   "its header gives the version " +
                                                       std::to_string(header.majorVersion) + "." +
                                                       std::to_string(header.minorVersion));
    }
}

}  // namespace

std::vector<std::uint8_t> ReadTableFile(const std::string& from) {
    const bool isStandardInput = from == "-";
    const std::filesystem::path name = isStandardInput ? "standard input" : FilePath(from);
    std::vector<std::uint8_t> table =
        isStandardInput ? Platform::LoadSavedTable(stdin, name) : Platform::LoadSavedTable(name);
    RequirePlausibleVersion(table, name);
    return table;
}

}  // namespace SMBIOS::Inspect
