#pragma once

#include <cstdint>

#include "table_builder.h"

// The structures of a believable workstation with two processors, part by part: every type that a machine of
// today has, and those that the library decodes besides.
namespace SMBIOS::Samples {

// Handles, so that structures can refer to one another.
inline constexpr std::uint16_t kNone = 0xFFFF;
inline constexpr std::uint16_t kFirmware = 0x0000;
inline constexpr std::uint16_t kBoard = 0x0002;
inline constexpr std::uint16_t kChassis = 0x0003;
inline constexpr std::uint16_t kProcessors[] = {0x0010, 0x0011};
inline constexpr std::uint16_t kCaches[][3] = {{0x0020, 0x0021, 0x0022}, {0x0030, 0x0031, 0x0032}};
inline constexpr std::uint16_t kMemoryArray = 0x0040;
inline constexpr std::uint16_t kDeviceError = 0x0048;
inline constexpr std::uint16_t kArrayError = 0x0049;
inline constexpr std::uint16_t kFirstDevice = 0x0050;
inline constexpr std::uint16_t kArrayAddress = 0x0060;
inline constexpr std::uint16_t kProcessorTemperature = 0x0090;
inline constexpr std::uint16_t kProcessorFan = 0x0091;
inline constexpr std::uint16_t kProcessorVoltage = 0x0092;
inline constexpr std::uint16_t kBoardTemperature = 0x0095;
inline constexpr std::uint16_t kSupplyFan = 0x0097;

/// The firmware, the system, its board and chassis, and what the firmware is set to.
void AddSystem(TableBuilder& table);

/// Processors and their caches.
void AddProcessors(TableBuilder& table);

/// Connectors, slots and what is on board.
void AddBoardParts(TableBuilder& table);

/// Slots of memory, two of them empty, their addresses and errors.
void AddMemory(TableBuilder& table);

/// Battery, power supplies, probes and fans.
void AddPowerAndCooling(TableBuilder& table);

/// The monitor of probes and fans, the TPM, firmware components and what has no meaning of its own.
void AddManagement(TableBuilder& table);

}  // namespace SMBIOS::Samples
