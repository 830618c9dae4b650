#include "smbios-inspect/records/structure_heading.h"

#include "manager/structure_type_names.h"
#include "structures/formatted_area.h"
#include "structures/hex_text.h"

namespace SMBIOS::Inspect {

std::string_view StructureName(std::uint8_t type) {
    constexpr std::uint8_t kInactive = 126;
    constexpr std::uint8_t kEndOfTable = 127;
    if (type > kEndOfTable) {
        return "OEM-specific";
    }
    if (type >= kInactive) {
        return type == kInactive ? "Inactive" : "End of Table";
    }
    return Manager::kStructureTypeNames[type];
}

std::string StructureHeading(std::uint8_t type, std::span<const std::uint8_t> rawBytes) {
    constexpr std::size_t kHandleDigits = 4;
    constexpr std::size_t kUsualLength = 80;
    const std::string_view name = StructureName(type);
    const std::uint16_t handle = Structures::FormattedArea(rawBytes).Handle();
    std::string heading;
    heading.reserve(kUsualLength);
    heading.append("Type ").append(std::to_string(type)).append(name.empty() ? "" : ": ").append(name);
    heading.append(", handle ").append(Structures::PaddedHexText(handle, kHandleDigits));
    heading.append(", ").append(std::to_string(rawBytes.size())).append(" bytes");
    return heading;
}

}  // namespace SMBIOS::Inspect
