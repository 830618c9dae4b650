#include "structures/type_2.h"

#include "manager/board_type_names.h"
#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Manager::kBoardTypeNames;
using Type2::Types::BoardFeatureFlags;
using Type2::Types::Type2Struct;

namespace {

constexpr BoardFeatureFlags FeatureFlagsOf(std::uint8_t flags) {
    const bool hotSwappable = (flags & 0x10U) != 0;
    const bool replaceable = (flags & 0x08U) != 0 || hotSwappable;
    return {
        .hotSwappable = hotSwappable,
        .removable = (flags & 0x04U) != 0 || replaceable,
        .replaceable = replaceable,
        .hostingBoard = (flags & 0x01U) != 0,
        .requiresDaughterBoard = (flags & 0x02U) != 0,
        .raw = flags,
    };
}

std::optional<std::vector<std::uint16_t>> ContainedObjectHandlesOf(const StructureReader& in) {
    const std::size_t count = in.Byte(0x0E);
    if (count == 0) {
        return std::nullopt;
    }
    std::vector<std::uint16_t> handles;
    // Departs from the standard: the bound counts from the type byte, so the last 7 handles are not read.
    for (std::size_t offset = 0x0F; offset < 2 * count; offset += 2) {
        handles.push_back(in.Word(offset));
    }
    return handles;
}

}  // namespace

constinit const ParseRules Type_2::kRules = {.lengths = LengthAtLeast(0x08)};

void Type_2::DecodeFieldsInOrder(StructureReader& in, Type2Struct& record) {
    record.boardTypeValue = in.Byte(0x0D);
    record.chassisHandle = in.Word(0x0B);
    record.featureFlags = FeatureFlagsOf(in.Byte(0x09));
    record.product = in.String(0x05);
    record.version = in.String(0x06);
    record.locationInChassis = in.String(0x0A);
    record.assetTag = in.String(0x08);
    record.manufacturer = in.String(0x04);
    record.serialNumber = in.String(0x07);
    record.boardType = kBoardTypeNames[in.Byte(0x0D)];
    record.containedObjectHandles = ContainedObjectHandlesOf(in);
}

}  // namespace SMBIOS::Structures
