#include "structures/type_27.h"

#include "structures/decoding.h"
#include "structures/probe.h"

namespace SMBIOS::Structures {

using Type27::Types::Type27Struct;

namespace {

constexpr std::uint8_t kLengthWithDescription = 0x0F;

constexpr Gate kGates[] = {
    {LengthAtLeast(kLengthWithDescription),
     VersionBelow(v2_7_0),
     "BIOS structure of version 2.7.0 or later in BIOS that is 2.6.1 or older"},
};

constexpr auto kCoolingDeviceTypeNames = ByteTable({
    {0x03, "Fan"},
    {0x04, "Centrifugal blower"},
    {0x05, "Chip Fan"},
    {0x06, "Cabinet Fan"},
    {0x07, "Power Supply Fan"},
    {0x08, "Heat Pipe"},
    {0x09, "Integrated Refrigeration"},
    {0x10, "Active Cooling"},
    {0x11, "Passive Cooling"},
});

}  // namespace

constinit const ParseRules Type_27::kRules = {
    .versions = VersionAtLeast(v2_2_0),
    .gates = kGates,
};

void Type_27::DecodeFieldsInOrder(StructureReader& in, Type27Struct& record) {
    const auto deviceType = static_cast<std::uint8_t>(in.Byte(0x06) & 0x1F);
    const auto status = static_cast<std::uint8_t>(in.Byte(0x06) >> 5);

    record.oemDefined = in.Dword(0x08);
    record.deviceTypeAndStatus = in.Byte(0x06);
    record.coolingUnitGroup = in.Byte(0x07);
    record.temperatureProbeHandle = in.Word(0x04);
    record.deviceType = kCoolingDeviceTypeNames[deviceType];
    record.status = kProbeStatusNames[status];

    if (in.VersionIsAtLeast(v2_7_0) && in.Length() >= kLengthWithDescription) {
        record.description = in.String(0x0E);
    }
}

}  // namespace SMBIOS::Structures
