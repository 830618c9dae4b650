#include "smbios-inspect/standard/types.h"

#include "smbios-inspect/standard/described_types.h"

namespace SMBIOS::Inspect::Standard {

namespace {

/// Types 47 and 48 have a name in the standard's list, but no table of fields.
constexpr const TypeDescription* kAllTypes[] = {
    &kFirmwareInformation,        // 0
    &kSystemInformation,          // 1
    &kBaseboard,                  // 2
    &kChassis,                    // 3
    &kProcessor,                  // 4
    &kMemoryController,           // 5
    &kMemoryModule,               // 6
    &kCache,                      // 7
    &kPortConnector,              // 8
    &kSystemSlots,                // 9
    &kOnBoardDevices,             // 10
    &kOemStrings,                 // 11
    &kConfigurationOptions,       // 12
    &kFirmwareLanguage,           // 13
    &kGroupAssociations,          // 14
    &kEventLog,                   // 15
    &kMemoryArray,                // 16
    &kMemoryDevice,               // 17
    &kMemoryError32,              // 18
    &kMemoryArrayMappedAddress,   // 19
    &kMemoryDeviceMappedAddress,  // 20
    &kPointingDevice,             // 21
    &kPortableBattery,            // 22
    &kSystemReset,                // 23
    &kHardwareSecurity,           // 24
    &kPowerControls,              // 25
    &kVoltageProbe,               // 26
    &kCoolingDevice,              // 27
    &kTemperatureProbe,           // 28
    &kCurrentProbe,               // 29
    &kOutOfBandRemoteAccess,      // 30
    &kBootIntegrityServices,      // 31
    &kSystemBoot,                 // 32
    &kMemoryError64,              // 33
    &kManagementDevice,           // 34
    &kManagementDeviceComponent,  // 35
    &kManagementDeviceThreshold,  // 36
    &kMemoryChannel,              // 37
    &kIpmiDevice,                 // 38
    &kPowerSupply,                // 39
    &kAdditionalInformation,      // 40
    &kOnboardDevicesExtended,     // 41
    &kHostInterface,              // 42
    &kTpmDevice,                  // 43
    &kProcessorAdditional,        // 44
    &kFirmwareInventory,          // 45
    &kStringProperty,             // 46
};

}  // namespace

std::span<const TypeDescription* const> AllTypes() noexcept {
    return kAllTypes;
}

const TypeDescription* DescriptionOf(std::uint8_t type) noexcept {
    return type < std::size(kAllTypes) ? kAllTypes[type] : nullptr;
}

}  // namespace SMBIOS::Inspect::Standard
