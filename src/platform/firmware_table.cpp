#include "platform/firmware_table.h"

namespace SMBIOS::Platform {

namespace {

constinit FirmwareTable* replacement = nullptr;

}  // namespace

FirmwareTable& ActiveFirmwareTable() noexcept {
    return replacement != nullptr ? *replacement : MachineFirmwareTable();
}

void UseFirmwareTable(FirmwareTable* table) noexcept {
    replacement = table;
}

}  // namespace SMBIOS::Platform
