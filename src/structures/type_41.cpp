#include "structures/type_41.h"

#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type41::Types::Type41Struct;

namespace {

constexpr auto kOnboardDeviceTypeNames = ByteTable({
    {0x03, "Video"},
    {0x04, "SCSI Controller"},
    {0x05, "Ethernet"},
    {0x06, "Token Ring"},
    {0x07, "Sound"},
    {0x08, "PATA Controller"},
    {0x09, "SATA Controller"},
    {0x0A, "SAS Controller"},
    {0x0B, "Wireless LAN"},
    {0x0C, "Bluetooth"},
    {0x0D, "WWAN"},
    {0x0E, "eMMC (embedded Multi-Media Controller)"},
    {0x0F, "NVMe Controller"},
    {0x10, "UFS Controller"},
});

}  // namespace

constinit const ParseRules Type_41::kRules = {.versions = VersionAtLeast(v2_6_0)};

void Type_41::DecodeFieldsInOrder(StructureReader& in, Type41Struct& record) {
    const auto deviceType = static_cast<std::uint8_t>(in.Byte(0x05) & 0x7F);

    record.deviceNumber = static_cast<std::uint8_t>(in.Byte(0x0A) >> 3);
    record.busNumber = in.Byte(0x09);
    record.functionNumber = static_cast<std::uint8_t>(in.Byte(0x0A) & 0x07);
    record.segmentGroupNumber = in.Word(0x07);
    record.isEnabled = (in.Byte(0x05) & 0x80) != 0;
    record.deviceTypeInstance = in.Byte(0x06);
    record.deviceType = kOnboardDeviceTypeNames[deviceType];
    record.referenceDesignation = in.String(0x04);
}

}  // namespace SMBIOS::Structures
