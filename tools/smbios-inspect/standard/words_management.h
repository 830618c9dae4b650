#pragma once

#include "smbios-inspect/standard/words.h"

// What the codes of management mean.
namespace SMBIOS::Inspect::Standard {

inline constexpr auto kManagementDeviceTypes = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "LM75"},
    {0x04, "LM78"},
    {0x05, "LM79"},
    {0x06, "LM80"},
    {0x07, "LM81"},
    {0x08, "ADM9240"},
    {0x09, "DS1780"},
    {0x0A, "MAX1617"},
    {0x0B, "GL518SM"},
    {0x0C, "W83781D"},
    {0x0D, "HT82H791"},
});

inline constexpr auto kManagementAddressTypes = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "I/O Port"},
    {0x04, "Memory"},
    {0x05, "SMBus"},
});

inline constexpr auto kIpmiInterfaces = WordsOf({
    {0x00, "Unknown"},
    {0x01, "KCS (Keyboard Control Style)"},
    {0x02, "SMIC (Server Management Interface Chip)"},
    {0x03, "BT (Block Transfer)"},
    {0x04, "SSIF (SMBus System Interface)"},
});

inline constexpr auto kRegisterSpacings = WordsOf({
    {0x00, "Successive Byte Boundaries"},
    {0x01, "32-bit Boundaries"},
    {0x02, "16-byte Boundaries"},
});

inline constexpr auto kInterruptPolarities = WordsOf({
    {0x00, "Active Low"},
    {0x01, "Active High"},
});

inline constexpr auto kInterruptTriggers = WordsOf({
    {0x00, "Edge"},
    {0x01, "Level"},
});

inline constexpr auto kHostInterfaces = WordsOf({
    {0x02, "KCS: Keyboard Controller Style"},
    {0x03, "8250 UART Register Compatible"},
    {0x04, "16450 UART Register Compatible"},
    {0x05, "16550/16550A UART Register Compatible"},
    {0x06, "16650/16650A UART Register Compatible"},
    {0x07, "16750/16750A UART Register Compatible"},
    {0x08, "16850/16850A UART Register Compatible"},
    {0x40, "Network"},
});

inline constexpr auto kHostDevices = WordsOf({
    {0x02, "USB"},
    {0x03, "PCI/PCIe"},
    {0x04, "USB v2"},
    {0x05, "PCI/PCIe v2"},
});

inline constexpr auto kHostProtocols = WordsOf({
    {0x00, "Reserved"},
    {0x01, "Reserved"},
    {0x02, "IPMI"},
    {0x03, "MCTP"},
    {0x04, "Redfish over IP"},
});

/// How an address is found.
inline constexpr auto kIpAssignments = WordsOf({
    {0x00, "Unknown"},
    {0x01, "Static"},
    {0x02, "DHCP"},
    {0x03, "AutoConf"},
    {0x04, "Host Selected"},
});

inline constexpr auto kIpFormats = WordsOf({
    {0x00, "Unknown"},
    {0x01, "IPv4"},
    {0x02, "IPv6"},
});

inline constexpr auto kTpmCharacteristics = WordsOf({
    {2, "TPM Device characteristics not supported"},
    {3, "Family configurable via firmware update"},
    {4, "Family configurable via platform software support"},
    {5, "Family configurable via OEM proprietary mechanism"},
});

inline constexpr auto kFirmwareVersionFormats = WordsOf({
    {0x00, "Free-form string"},
    {0x01, "Major.Minor"},
    {0x02, "32-bit hexadecimal string"},
    {0x03, "64-bit hexadecimal string"},
});

inline constexpr auto kFirmwareIdFormats = WordsOf({
    {0x00, "Free-form string"},
    {0x01, "UEFI ESRT FwClass GUID or UEFI Firmware Management Protocol ImageTypeId"},
});

inline constexpr auto kFirmwareStates = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Disabled"},
    {0x04, "Enabled"},
    {0x05, "Absent"},
    {0x06, "Stand-by Offline"},
    {0x07, "Stand-by Spare"},
    {0x08, "Unavailable Offline"},
});

inline constexpr auto kStringProperties = WordsOf({
    {0x00, "Reserved"},
    {0x01, "UEFI device path"},
});

}  // namespace SMBIOS::Inspect::Standard
