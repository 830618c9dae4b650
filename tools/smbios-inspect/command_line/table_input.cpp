#include "smbios-inspect/command_line/table_input.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>

#include "smbios-inspect/command_line/table_file.h"

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
    saved_.emplace(ReadTableFile(*from));
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
