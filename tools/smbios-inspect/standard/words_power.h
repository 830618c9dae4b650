#pragma once

#include "smbios-inspect/standard/words.h"

// What the codes of power, cooling and probes mean.
namespace SMBIOS::Inspect::Standard {

inline constexpr auto kBatteryChemistries = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Lead Acid"},
    {0x04, "Nickel Cadmium"},
    {0x05, "Nickel Metal Hydride"},
    {0x06, "Lithium Ion"},
    {0x07, "Zinc Air"},
    {0x08, "Lithium Polymer"},
});

/// Places of voltage and current probes.
inline constexpr auto kProbeLocations = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Processor"},
    {0x04, "Disk"},
    {0x05, "Peripheral Bay"},
    {0x06, "System Management Module"},
    {0x07, "Motherboard"},
    {0x08, "Memory Module"},
    {0x09, "Processor Module"},
    {0x0A, "Power Unit"},
    {0x0B, "Add-in Card"},
});

inline constexpr auto kTemperatureProbeLocations = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Processor"},
    {0x04, "Disk"},
    {0x05, "Peripheral Bay"},
    {0x06, "System Management Module"},
    {0x07, "Motherboard"},
    {0x08, "Memory Module"},
    {0x09, "Processor Module"},
    {0x0A, "Power Unit"},
    {0x0B, "Add-in Card"},
    {0x0C, "Front Panel Board"},
    {0x0D, "Back Panel Board"},
    {0x0E, "Power System Board"},
    {0x0F, "Drive Back Plane"},
});

inline constexpr auto kProbeStates = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "OK"},
    {0x04, "Non-critical"},
    {0x05, "Critical"},
    {0x06, "Non-recoverable"},
});

inline constexpr auto kCoolingDeviceTypes = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Fan"},
    {0x04, "Centrifugal Blower"},
    {0x05, "Chip Fan"},
    {0x06, "Cabinet Fan"},
    {0x07, "Power Supply Fan"},
    {0x08, "Heat Pipe"},
    {0x09, "Integrated Refrigeration"},
    {0x10, "Active Cooling"},
    {0x11, "Passive Cooling"},
});

inline constexpr auto kSupplyTypes = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Linear"},
    {0x04, "Switching"},
    {0x05, "Battery"},
    {0x06, "UPS"},
    {0x07, "Converter"},
    {0x08, "Regulator"},
});

inline constexpr auto kSupplyStates = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "OK"},
    {0x04, "Non-critical"},
    {0x05, "Critical"},
});

inline constexpr auto kSupplyInputRanges = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Manual"},
    {0x04, "Auto-switch"},
    {0x05, "Wide Range"},
    {0x06, "N/A"},
});

inline constexpr auto kYesNo = WordsOf({
    {0x00, "No"},
    {0x01, "Yes"},
});

inline constexpr auto kNoYes = WordsOf({
    {0x00, "Yes"},
    {0x01, "No"},
});

}  // namespace SMBIOS::Inspect::Standard
