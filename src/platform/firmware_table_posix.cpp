#include "platform/firmware_table_posix.h"

#include <algorithm>
#include <exception>
#include <system_error>

#include "platform/dmi_tables.h"
#include "platform/saved_table_error.h"

namespace SMBIOS::Platform {

namespace {

std::uint32_t Deliver(const std::vector<std::uint8_t>& table, std::span<std::uint8_t> buffer) {
    if (buffer.size() >= table.size()) {
        std::copy(table.begin(), table.end(), buffer.begin());
    }
    return static_cast<std::uint32_t>(table.size());
}

constinit PosixFirmwareTable machineFirmwareTable;

}  // namespace

std::uint32_t PosixFirmwareTable::Read(std::uint32_t provider,
                                       std::uint32_t tableId,
                                       std::span<std::uint8_t> buffer) {
    if (provider != kRawSmbiosProvider || tableId != kRawSmbiosTableId) {
        return 0;
    }
    try {
        return Deliver(ReadFolder(), buffer);
    } catch (const SavedTableError&) {
        return 0;
    }
}

FirmwareTableAccess PosixFirmwareTable::CheckAccess() const noexcept {
    try {
        (void)ReadFolder();
        return FirmwareTableAccess::available;
    } catch (const SavedTableError& error) {
        return error.SystemReason() == std::errc::permission_denied ? FirmwareTableAccess::denied
                                                                    : FirmwareTableAccess::missing;
    } catch (const std::exception&) {
        return FirmwareTableAccess::missing;
    }
}

std::vector<std::uint8_t> PosixFirmwareTable::ReadFolder() const {
    return DmiTablesDirectory(folder_).Read();
}

FirmwareTable& MachineFirmwareTable() noexcept {
    return machineFirmwareTable;
}

FirmwareTableAccess CheckMachineFirmwareTable() noexcept {
    return PosixFirmwareTable().CheckAccess();
}

}  // namespace SMBIOS::Platform
