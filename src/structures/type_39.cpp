#include "structures/type_39.h"

#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type39::Types::Type39Struct;

namespace {

constexpr auto kPowerSupplyTypeNames = ByteTable({
    {0x03, "Linear"},
    {0x04, "Switching"},
    {0x05, "Battery"},
    {0x06, "UPS"},
    {0x07, "Converter"},
    {0x08, "Regulator"},
});

constexpr auto kPowerSupplyStatusNames = ByteTable({
    {0x03, "OK"},
    {0x04, "Non-critical"},
    {0x05, "Critical; power supply has failed and has been taken off-line."},
});

constexpr auto kInputVoltageRangeSwitchingNames = ByteTable({
    {0x03, "Manual"},
    {0x04, "Auto-switch"},
    {0x05, "Wide range"},
    {0x06, "Not applicable"},
});

/// The code that stands in the bits `last` to `first` of the characteristics.
constexpr std::uint8_t CodeInBits(std::uint16_t characteristics, unsigned last, unsigned first) {
    const unsigned mask = (1U << (last - first + 1)) - 1;
    return static_cast<std::uint8_t>((characteristics >> first) & mask);
}

}  // namespace

constinit const ParseRules Type_39::kRules = {.versions = VersionAtLeast(v2_4_0)};

void Type_39::DecodeFieldsInOrder(StructureReader& in, Type39Struct& record) {
    const std::uint16_t characteristics = in.Word(0x0F);  // departs from the standard: one byte further on

    record.powerUnitGroup = in.Byte(0x04);
    record.characteristics = characteristics;
    record.isPresent = (characteristics & 0x0002) != 0;
    record.isHotReplaceable = (in.Byte(0x0F) & 0x01) != 0;
    record.isUnplugged = (characteristics & 0x0004) != 0;
    // Departs from the standard: one byte further on.
    record.maxPowerCapacity = ValueUnless(0x8000, in.Word(0x0D));
    record.location = in.String(0x05);
    record.assetTagNumber = in.String(0x09);
    record.deviceName = in.String(0x06);
    record.manufacturer = in.String(0x07);
    record.serialNumber = in.String(0x08);
    record.revisionLevel = in.String(0x0B);
    record.modelPartNumber = in.String(0x0A);
    record.dmtfType = kPowerSupplyTypeNames[CodeInBits(characteristics, 13, 10)];
    record.status = kPowerSupplyStatusNames[CodeInBits(characteristics, 9, 7)];
    record.inputVoltageRangeSwitching = kInputVoltageRangeSwitchingNames[CodeInBits(characteristics, 6, 3)];
}

}  // namespace SMBIOS::Structures
