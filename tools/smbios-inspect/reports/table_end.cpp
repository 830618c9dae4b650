#include "smbios-inspect/reports/table_end.h"

#include "manager/structure_walk.h"
#include "platform/raw_table_header.h"

namespace SMBIOS::Inspect {

bool MayBeCutShort(std::span<const std::uint8_t> rawTable) {
    constexpr std::uint8_t kEndOfTable = 127;
    Manager::StructureWalk walk(Platform::RawTableHeader::StructuresOf(rawTable));
    while (const auto structure = walk.Next()) {
        if (structure->type == kEndOfTable) {
            return false;
        }
    }
    return true;
}

}  // namespace SMBIOS::Inspect
