#include "smbios-inspect/standard/decode.h"

#include "smbios-inspect/standard/row_visitor.h"
#include "smbios-inspect/standard/types.h"

namespace SMBIOS::Inspect::Standard {

namespace {

constexpr std::size_t kHeaderSize = 4;

/// Why a structure that is stored well has less than its type needs.
std::string ShortnessOf(const Structure& structure, const TypeDescription& description) {
    const std::size_t size = structure.bytes.size();
    if (size < description.leastLength) {
        return "it is shorter than the " + std::to_string(description.leastLength) +
               " bytes that its type needs";
    }
    for (const FieldRow& row : description.rows) {
        if (size < row.offset + row.width && row.offset < size) {
            return "it ends within the field " + std::string(row.name);
        }
    }
    return {};
}

}  // namespace

void VisitFields(const Structure& structure, FieldVisitor& visitor) {
    const TypeDescription* description = DescriptionOf(structure.Type());
    if (description == nullptr || structure.bytes.size() < kHeaderSize) {
        return;
    }
    RowVisitor rows(structure, visitor);
    rows.VisitRows(description->rows);
    if (description->visitGroups != nullptr) {
        description->visitGroups(rows);
    }
}

bool IsDescribed(std::uint8_t type) noexcept {
    return DescriptionOf(type) != nullptr;
}

std::string RemarkOn(const Structure& structure) {
    const TypeDescription* description = DescriptionOf(structure.Type());
    std::string remark;
    if (!structure.defect.empty()) {
        remark = structure.defect;
    } else if (description != nullptr) {
        remark = ShortnessOf(structure, *description);
    }
    if (!remark.empty()) {
        remark = "The structure is cut short: " + remark + ".";
    }
    return remark;
}

}  // namespace SMBIOS::Inspect::Standard
