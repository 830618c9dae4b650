#pragma once

#include <cstdint>

namespace SMBIOS::Manager::Types {

/// The keys that structures are filed under: the SMBIOS type number of the types that have a decoder of their
/// own, `Unknown` for every other type.
enum class StructureTypes : std::int32_t {
    BiosInformation = 0,
    SystemInformation = 1,
    BaseboardInformation = 2,
    SystemEnclosure = 3,
    ProcessorInformation = 4,
    CacheInformation = 7,
    PortConnectorInformation = 8,
    SystemSlots = 9,
    OemStrings = 11,
    PhysicalMemoryArray = 16,
    MemoryDevice = 17,
    MemoryErrorInformation32Bit = 18,
    MemoryArrayMappedAddress = 19,
    MemoryDeviceMappedAddress = 20,
    BuiltInPointingDevice = 21,
    PortableBattery = 22,
    VoltageProbe = 26,
    CoolingDevice = 27,
    TemperatureProbe = 28,
    ElectricalCurrentProbe = 29,
    SystemBootInformation = 32,
    MemoryErrorInformation64Bit = 33,
    SystemPowerSupply = 39,
    OnboardDevicesExtendedInformation = 41,
    TpmDevice = 43,
    Unknown = 128,
};

}  // namespace SMBIOS::Manager::Types
