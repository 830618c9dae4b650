#include "structures/type_21.h"

#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type21::Types::Type21Struct;

namespace {

constexpr auto kPointingDeviceTypeNames = ByteTable({
    {0x03, "Mouse"},
    {0x04, "Track Ball"},
    {0x05, "Track Point"},
    {0x06, "Glide Point"},
    {0x07, "Touch Pad"},
    {0x08, "Touch Screen"},
    {0x09, "Optical Sensor"},
});

constexpr auto kPointingDeviceInterfaceNames = ByteTable({
    {0x03, "Serial"},
    {0x04, "PS/2"},
    {0x05, "Infrared"},
    {0x06, "Vantor-HIL"},
    {0x07, "Bus mouse"},
    {0x08, "ADB (Apple Desktop Bus)"},
    {0xA0, "Bus mouse DB-9"},
    {0xA1, "Bus mouse micro-DIN"},
    {0xA2, "USB"},
    {0xA3, "I2C"},
    {0xA4, "SPI"},
});

}  // namespace

constinit const ParseRules Type_21::kRules = {
    .lengths = LengthExactly(0x07),
    .versions = VersionExactly(v2_1_0),  // departs from the standard: later versions have the structure too
};

void Type_21::DecodeFieldsInOrder(StructureReader& in, Type21Struct& record) {
    record.typeValue = in.Byte(0x04);
    record.interfaceValue = in.Byte(0x05);
    record.numberOfButtons = in.Byte(0x06);
    record.type = kPointingDeviceTypeNames[in.Byte(0x04)];
    record.interface = kPointingDeviceInterfaceNames[in.Byte(0x05)];
}

}  // namespace SMBIOS::Structures
