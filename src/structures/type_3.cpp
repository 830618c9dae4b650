#include "structures/type_3.h"

#include <algorithm>
#include <span>
#include <utility>

#include "manager/board_type_names.h"
#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Manager::kBoardTypeNames;
using Type3::Types::ContainedElements;
using Type3::Types::Type3Struct;

namespace {

constexpr Gate kGates[] = {
    {LengthAtLeast(0x0A), VersionExactly(v2_0_0), "v2.1.0 structure or later in a v2.0.0 BIOS"},
    {LengthAtLeast(0x0E), VersionBelow(v2_3_0), "v2.3.0 structure or later in a v2.2.0 BIOS or older"},
};

constexpr auto kChassisTypeNames = ByteTable({
    {3, "Desktop"},
    {4, "Low Profile Desktop"},
    {5, "Pizza Box"},
    {6, "Mini Tower"},
    {7, "Tower"},
    {8, "Portable"},
    {9, "Laptop"},
    {10, "Notebook"},
    {11, "Hand Held"},
    {12, "Docking Station"},
    {13, "All in One"},
    {14, "Sub Notebook"},
    {15, "Space-saving"},
    {16, "Lunch Box"},
    {17, "Main Server Chassis"},
    {18, "Expansion Chassis"},
    {19, "SubChassis"},
    {20, "Bus Expansion Chassis"},
    {21, "Peripheral Chassis"},
    {22, "RAID Chassis"},
    {23, "Rack Mount Chassis"},
    {24, "Sealed-case PC"},
    {25, "Multi-system chassis"},
    {26, "Compact PCI"},
    {27, "Advanced TCA"},
    {28, "Blade"},
    {29, "Blade Enclosure"},
    {30, "Tablet"},
    {31, "Convertible"},
    {32, "Detachable"},
    {33, "IoT Gateway"},
    {34, "Embedded PC"},
    {35, "Mini PC"},
    {36, "Stick PC"},
});
static_assert(kChassisTypeNames.Rows().size() == 34);

constexpr auto kChassisStateNames = ByteTable({
    {3, "Safe"},
    {4, "Warning"},
    {5, "Critical"},
    {6, "Non-recoverable"},
});

constexpr auto kChassisSecurityStatusNames = ByteTable({
    {3, "None"},
    {4, "External interface locked out"},
    {5, "External interface enabled"},
});

constexpr std::size_t kElementsOffset = 0x15;
constexpr std::size_t kElementSize = 3;
constexpr std::uint8_t kLengthWithElements = 0x18;

constexpr std::uint8_t LowSevenBits(std::uint8_t byte) {
    return static_cast<std::uint8_t>(byte & 0x7FU);
}

constexpr bool HasTopBit(std::uint8_t byte) {
    return (byte & 0x80U) != 0;
}

constexpr std::size_t ValueOrDefault(std::uint8_t value, std::size_t defaultValue) {
    return value == 0 ? defaultValue : value;
}

/// Where the elements end. Departs from the standard: a count of 0 stands for 1, a record length of 0 for 3.
std::size_t SkuNumberOffset(const StructureReader& in) {
    const std::size_t count = ValueOrDefault(in.Byte(0x13), 1);
    const std::size_t recordLength = ValueOrDefault(in.Byte(0x14), kElementSize);
    return recordLength * count + kElementsOffset;
}

/// Departs from the standard: records are 3 bytes apart whatever the record length, even past the structure.
std::optional<ContainedElements> ContainedElementsOf(const StructureReader& in) {
    const std::size_t count = (SkuNumberOffset(in) - kElementsOffset) / kElementSize;
    if (in.Length() < kLengthWithElements || count == 0) {
        return std::nullopt;
    }
    const std::span<const std::uint8_t> bytes = in.ExistingBytes(kElementsOffset, count * kElementSize);
    return ContainedElements(count, {bytes.begin(), bytes.end()});
}

/// Departs from the standard: only where the structure has an element and ends with the number of this text.
std::string SkuNumberOf(const StructureReader& in) {
    const std::size_t offset = SkuNumberOffset(in);
    const bool isLastByte = in.Size() == offset + 1;
    return in.Length() >= kLengthWithElements && isLastByte ? in.String(offset) : std::string{};
}

}  // namespace

namespace Type3::Types {

ContainedElements::ContainedElements(std::size_t count, std::vector<std::uint8_t> bytes)
    : count_(count), bytes_(std::move(bytes)) {}

std::size_t ContainedElements::CountWithinStructure() const noexcept {
    return std::min(count_, (bytes_.size() + kElementSize - 1) / kElementSize);
}

ContainedElement ContainedElements::At(std::size_t index) const noexcept {
    const auto [type, minimum, maximum] = FormattedArea(bytes_).Bytes<kElementSize>(index * kElementSize);
    return {
        .typeValue = LowSevenBits(type),
        .typeSelect = HasTopBit(type) ? "Structure" : "Baseboard",
        .typeName = kBoardTypeNames[LowSevenBits(type)],  // departs from the standard: structure types too
        .minimum = minimum,
        .maximum = maximum,
    };
}

}  // namespace Type3::Types

constinit const ParseRules Type_3::kRules = {.lengths = LengthAtLeast(0x09), .gates = kGates};

void Type_3::DecodeFieldsInOrder(StructureReader& in, Type3Struct& record) {
    record.chassisTypeValue = LowSevenBits(in.Byte(0x05));
    record.chassisLock = HasTopBit(in.Byte(0x05));
    record.version = in.String(0x06);
    record.assetTag = in.String(0x08);
    record.chassisType = kChassisTypeNames[LowSevenBits(in.Byte(0x05))];
    record.manufacturer = in.String(0x04);
    record.serialNumber = in.String(0x07);

    if (in.VersionIsAtLeast(v2_1_0)) {
        record.thermalStateValue = in.Byte(0x0B);
        record.bootUpStateValue = in.Byte(0x09);
        record.securityStatusValue = in.Byte(0x0C);
        record.powerSupplyStateValue = in.Byte(0x0A);
        record.thermalState = kChassisStateNames[in.Byte(0x0B)];
        record.bootUpState = kChassisStateNames[in.Byte(0x09)];
        record.powerSupplyState = kChassisStateNames[in.Byte(0x0A)];
        record.securityStatus = kChassisSecurityStatusNames[in.Byte(0x0C)];
    }
    if (in.VersionIsAtLeast(v2_3_0)) {
        record.height = in.Byte(0x11);
        record.oemDefined = in.Dword(0x0D);
        record.numberOfPowerCords = in.Byte(0x12);
        record.containedElements = ContainedElementsOf(in);
    }
    if (in.VersionIsAtLeast(v2_7_0)) {
        record.skuNumber = SkuNumberOf(in);
    }
}

}  // namespace SMBIOS::Structures
