#include "smbios-inspect/records/structure_heading.h"

#include "manager/structure_type_names.h"
#include "structures/formatted_area.h"

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
    TextPage page;
    AppendStructureHeading(type, rawBytes, page);
    return std::string(page.Text());
}

void AppendStructureHeading(std::uint8_t type, std::span<const std::uint8_t> rawBytes, TextPage& page) {
    constexpr std::size_t kHandleDigits = 4;
    const std::string_view name = StructureName(type);
    page.Append("Type ");
    page.AppendNumber(type);
    page.Append(name.empty() ? "" : ": ");
    page.Append(name);
    page.Append(", handle ");
    page.AppendHexadecimal(Structures::FormattedArea(rawBytes).Handle(), kHandleDigits);
    page.Append(", ");
    page.AppendNumber(rawBytes.size());
    page.Append(" bytes");
}

}  // namespace SMBIOS::Inspect
