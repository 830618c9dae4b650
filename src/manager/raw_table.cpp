#include "manager/raw_table.h"

#include <string>
#include <string_view>
#include <utility>

#include "common/message_exception.h"
#include "platform/firmware_table.h"
#include "platform/raw_table_header.h"

namespace SMBIOS::Manager {

namespace {

/// Callers know these failures as those of the load, wherever they come up.
[[noreturn]] void Fail(std::string_view message) {
    std::string text(message);
    text += "SMBIOS::Manager::SmbiosManager::UpdateBiosInfo";
    throw Common::MessageException(std::move(text));
}

}  // namespace

std::vector<std::uint8_t> ReadRawTable() {
    using namespace Platform;
    FirmwareTable& firmware = ActiveFirmwareTable();

    const std::uint32_t size = firmware.Read(kRawSmbiosProvider, kRawSmbiosTableId, {});
    if (size == 0) {
        Fail("Failed to get size of firmware table. Origin: ");
    }
    std::vector<std::uint8_t> rawTable(size);
    if (firmware.Read(kRawSmbiosProvider, kRawSmbiosTableId, rawTable) != size) {
        Fail("Failed to retrieve data from firmware table. Origin: ");
    }
    CheckRawTable(rawTable);
    return rawTable;
}

void CheckRawTable(std::span<const std::uint8_t> rawTable) {
    if (rawTable.size() <= Platform::RawTableHeader::kSize) {
        Fail("SMBIOS structure is corrupted. Origin: ");
    }
}

}  // namespace SMBIOS::Manager
