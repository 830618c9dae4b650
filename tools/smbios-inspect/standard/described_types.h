#pragma once

#include "smbios-inspect/standard/description.h"

// The descriptions, one a type; `types.cpp` has them in one list.
namespace SMBIOS::Inspect::Standard {

// types_system.cpp
extern const TypeDescription kFirmwareInformation;
extern const TypeDescription kSystemInformation;
extern const TypeDescription kOemStrings;
extern const TypeDescription kConfigurationOptions;
extern const TypeDescription kFirmwareLanguage;
extern const TypeDescription kGroupAssociations;
extern const TypeDescription kSystemReset;
extern const TypeDescription kHardwareSecurity;
extern const TypeDescription kOutOfBandRemoteAccess;
extern const TypeDescription kBootIntegrityServices;
extern const TypeDescription kSystemBoot;

// types_event_log.cpp
extern const TypeDescription kEventLog;

// types_board.cpp
extern const TypeDescription kBaseboard;
extern const TypeDescription kChassis;
extern const TypeDescription kPortConnector;
extern const TypeDescription kOnBoardDevices;
extern const TypeDescription kPointingDevice;
extern const TypeDescription kOnboardDevicesExtended;

// types_slot.cpp
extern const TypeDescription kSystemSlots;

// types_processor.cpp
extern const TypeDescription kProcessor;
extern const TypeDescription kCache;
extern const TypeDescription kProcessorAdditional;

// types_memory_module.cpp
extern const TypeDescription kMemoryController;
extern const TypeDescription kMemoryModule;

// types_memory.cpp
extern const TypeDescription kMemoryArray;
extern const TypeDescription kMemoryDevice;
extern const TypeDescription kMemoryError32;
extern const TypeDescription kMemoryArrayMappedAddress;
extern const TypeDescription kMemoryDeviceMappedAddress;
extern const TypeDescription kMemoryError64;
extern const TypeDescription kMemoryChannel;

// types_power.cpp
extern const TypeDescription kPortableBattery;
extern const TypeDescription kPowerControls;
extern const TypeDescription kVoltageProbe;
extern const TypeDescription kCoolingDevice;
extern const TypeDescription kTemperatureProbe;
extern const TypeDescription kCurrentProbe;
extern const TypeDescription kPowerSupply;

// types_management.cpp
extern const TypeDescription kManagementDevice;
extern const TypeDescription kManagementDeviceComponent;
extern const TypeDescription kManagementDeviceThreshold;
extern const TypeDescription kIpmiDevice;
extern const TypeDescription kAdditionalInformation;
extern const TypeDescription kTpmDevice;
extern const TypeDescription kFirmwareInventory;
extern const TypeDescription kStringProperty;

// types_host_interface.cpp
extern const TypeDescription kHostInterface;

}  // namespace SMBIOS::Inspect::Standard
