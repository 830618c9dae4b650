#include <algorithm>
#include <cstddef>
#include <limits>

#include "platform/firmware_table.h"
#include "platform/windows_api.h"

namespace SMBIOS::Platform {

namespace {

class WindowsFirmwareTable final : public FirmwareTable {
public:
    // Called through the import table, so that a host process can put its own function there.
    std::uint32_t Read(std::uint32_t provider,
                       std::uint32_t tableId,
                       std::span<std::uint8_t> buffer) override {
        const std::size_t size = std::min<std::size_t>(buffer.size(), std::numeric_limits<DWORD>::max());
        return ::GetSystemFirmwareTable(provider, tableId, buffer.data(), static_cast<DWORD>(size));
    }
};

constinit WindowsFirmwareTable machineFirmwareTable;

}  // namespace

FirmwareTable& MachineFirmwareTable() noexcept {
    return machineFirmwareTable;
}

FirmwareTableAccess CheckMachineFirmwareTable() noexcept {
    if (::GetSystemFirmwareTable(kRawSmbiosProvider, kRawSmbiosTableId, nullptr, 0) != 0) {
        return FirmwareTableAccess::available;
    }
    return ::GetLastError() == ERROR_ACCESS_DENIED ? FirmwareTableAccess::denied
                                                   : FirmwareTableAccess::missing;
}

}  // namespace SMBIOS::Platform
