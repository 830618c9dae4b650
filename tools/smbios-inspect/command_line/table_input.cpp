#include "smbios-inspect/command_line/table_input.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <stdexcept>
#include <vector>

#include "platform/raw_table_header.h"
#include "platform/saved_table.h"
#include "smbios-inspect/command_line/file_path.h"

namespace SMBIOS::Inspect {

namespace {

void RequireMachineTable() {
    switch (Platform::CheckMachineFirmwareTable()) {
        case Platform::FirmwareTableAccess::available:
            return;
        case Platform::FirmwareTableAccess::denied:
            throw std::runtime_error(
                "no permission to read this machine's SMBIOS table; run it as administrator or root");
        case Platform::FirmwareTableAccess::missing:
            throw std::runtime_error("this machine exposes no SMBIOS table");
    }
}

void RequirePlausibleVersion(const std::vector<std::uint8_t>& table, const std::filesystem::path& name) {
    const auto header = Platform::RawTableHeader::Of(table);
    if (!header.HasPlausibleVersion()) {
        throw Platform::SavedTableError::NotATable(name,
                                                   "its header gives the version " +
                                                       std::to_string(header.majorVersion) + "." +
                                                       std::to_string(header.minorVersion));
    }
}

std::vector<std::uint8_t> LoadTable(const std::string& from) {
    const bool isStandardInput = from == "-";
    const std::filesystem::path name = isStandardInput ? "standard input" : FilePath(from);
    std::vector<std::uint8_t> table =
        isStandardInput ? Platform::LoadSavedTable(stdin, name) : Platform::LoadSavedTable(name);
    RequirePlausibleVersion(table, name);
    return table;
}

}  // namespace

std::uint32_t SavedFirmwareTable::Read(std::uint32_t provider,
                                       std::uint32_t tableId,
                                       std::span<std::uint8_t> buffer) {
    if (provider != Platform::kRawSmbiosProvider || tableId != Platform::kRawSmbiosTableId) {
        return 0;
    }
    if (buffer.size() >= rawTable_.size()) {
        std::ranges::copy(rawTable_, buffer.begin());
    }
    return static_cast<std::uint32_t>(rawTable_.size());
}

TableInput::TableInput(const std::optional<std::string>& from) {
    if (!from) {
        RequireMachineTable();
        return;
    }
    saved_.emplace(LoadTable(*from));
    Platform::UseFirmwareTable(&*saved_);
    Platform::UseCommandRunner(&noCommands_);
}

TableInput::~TableInput() {
    if (saved_) {
        Platform::UseFirmwareTable(nullptr);
        Platform::UseCommandRunner(nullptr);
    }
}

}  // namespace SMBIOS::Inspect
