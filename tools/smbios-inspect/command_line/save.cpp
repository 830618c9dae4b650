#include "smbios-inspect/command_line/save.h"

#include <cstdint>
#include <stdexcept>
#include <vector>

#include "platform/firmware_table.h"
#include "smbios-inspect/command_line/output_file.h"

namespace SMBIOS::Inspect {

namespace {

std::vector<std::uint8_t> ReadTable() {
    using namespace Platform;
    FirmwareTable& firmware = ActiveFirmwareTable();
    std::vector<std::uint8_t> table(firmware.Read(kRawSmbiosProvider, kRawSmbiosTableId, {}));
    if (table.empty() || firmware.Read(kRawSmbiosProvider, kRawSmbiosTableId, table) != table.size()) {
        throw std::runtime_error("the SMBIOS table cannot be read");
    }
    return table;
}

}  // namespace

void SaveTable(const std::string& target, bool force) {
    WriteOutputFile(target, ReadTable(), force);
}

}  // namespace SMBIOS::Inspect
