#pragma once

#include "smbios-inspect/standard/words.h"

// What the codes of the system and its firmware mean.
namespace SMBIOS::Inspect::Standard {

inline constexpr auto kFirmwareCharacteristics = WordsOf({
    {3, "BIOS characteristics not supported"},
    {4, "ISA is supported"},
    {5, "MCA is supported"},
    {6, "EISA is supported"},
    {7, "PCI is supported"},
    {8, "PC Card (PCMCIA) is supported"},
    {9, "PNP is supported"},
    {10, "APM is supported"},
    {11, "BIOS is upgradeable"},
    {12, "BIOS shadowing is allowed"},
    {13, "VLB is supported"},
    {14, "ESCD support is available"},
    {15, "Boot from CD is supported"},
    {16, "Selectable boot is supported"},
    {17, "BIOS ROM is socketed"},
    {18, "Boot from PC Card (PCMCIA) is supported"},
    {19, "EDD is supported"},
    {20, "Japanese floppy for NEC 9800 1.2 MB is supported (int 13h)"},
    {21, "Japanese floppy for Toshiba 1.2 MB is supported (int 13h)"},
    {22, "5.25\"/360 kB floppy services are supported (int 13h)"},
    {23, "5.25\"/1.2 MB floppy services are supported (int 13h)"},
    {24, "3.5\"/720 kB floppy services are supported (int 13h)"},
    {25, "3.5\"/2.88 MB floppy services are supported (int 13h)"},
    {26, "Print screen service is supported (int 5h)"},
    {27, "8042 keyboard services are supported (int 9h)"},
    {28, "Serial services are supported (int 14h)"},
    {29, "Printer services are supported (int 17h)"},
    {30, "CGA/mono video services are supported (int 10h)"},
    {31, "NEC PC-98"},
});

inline constexpr auto kFirmwareCharacteristics1 = WordsOf({
    {0, "ACPI is supported"},
    {1, "USB legacy is supported"},
    {2, "AGP is supported"},
    {3, "I2O boot is supported"},
    {4, "LS-120 boot is supported"},
    {5, "ATAPI Zip drive boot is supported"},
    {6, "IEEE 1394 boot is supported"},
    {7, "Smart battery is supported"},
});

inline constexpr auto kFirmwareCharacteristics2 = WordsOf({
    {0, "BIOS boot spec is supported"},
    {1, "Function key-initiated network boot is supported"},
    {2, "Targeted content distribution is supported"},
    {3, "UEFI is supported"},
    {4, "System is a virtual machine"},
    {5, "Manufacturing mode is supported"},
    {6, "Manufacturing mode is enabled"},
});

inline constexpr auto kWakeUpTypes = WordsOf({
    {0x00, "Reserved"},
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "APM Timer"},
    {0x04, "Modem Ring"},
    {0x05, "LAN Remote"},
    {0x06, "Power Switch"},
    {0x07, "PCI PME#"},
    {0x08, "AC Power Restored"},
});

inline constexpr auto kLanguageFormats = WordsOf({
    {0x00, "Long"},
    {0x01, "Abbreviated"},
});

inline constexpr auto kLogAccessMethods = WordsOf({
    {0x00, "Indexed I/O, one 8-bit index port, one 8-bit data port"},
    {0x01, "Indexed I/O, two 8-bit index ports, one 8-bit data port"},
    {0x02, "Indexed I/O, one 16-bit index port, one 8-bit data port"},
    {0x03, "Memory-mapped physical 32-bit address"},
    {0x04, "General-purpose non-volatile data functions"},
});

inline constexpr auto kLogHeaderFormats = WordsOf({
    {0x00, "No Header"},
    {0x01, "Type 1"},
});

inline constexpr auto kLogTypes = WordsOf({
    {0x01, "Single-bit ECC memory error"},
    {0x02, "Multi-bit ECC memory error"},
    {0x03, "Parity memory error"},
    {0x04, "Bus timeout"},
    {0x05, "I/O channel block"},
    {0x06, "Software NMI"},
    {0x07, "POST memory resize"},
    {0x08, "POST error"},
    {0x09, "PCI parity error"},
    {0x0A, "PCI system error"},
    {0x0B, "CPU failure"},
    {0x0C, "EISA failsafe timer timeout"},
    {0x0D, "Correctable memory log disabled"},
    {0x0E, "Logging disabled"},
    {0x10, "System limit exceeded"},
    {0x11, "Asynchronous hardware timer expired"},
    {0x12, "System configuration information"},
    {0x13, "Hard disk information"},
    {0x14, "System reconfigured"},
    {0x15, "Uncorrectable CPU-complex error"},
    {0x16, "Log area reset/cleared"},
    {0x17, "System boot"},
    {0xFF, "End of log"},
});

inline constexpr auto kLogDataFormats = WordsOf({
    {0x00, "None"},
    {0x01, "Handle"},
    {0x02, "Multiple-event"},
    {0x03, "Multiple-event handle"},
    {0x04, "POST results bitmap"},
    {0x05, "System management"},
    {0x06, "Multiple-event system management"},
});

inline constexpr auto kPointingDeviceTypes = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Mouse"},
    {0x04, "Track Ball"},
    {0x05, "Track Point"},
    {0x06, "Glide Point"},
    {0x07, "Touch Pad"},
    {0x08, "Touch Screen"},
    {0x09, "Optical Sensor"},
});

inline constexpr auto kPointingDeviceInterfaces = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Serial"},
    {0x04, "PS/2"},
    {0x05, "Infrared"},
    {0x06, "HP-HIL"},
    {0x07, "Bus Mouse"},
    {0x08, "ADB (Apple Desktop Bus)"},
    {0xA0, "Bus Mouse DB-9"},
    {0xA1, "Bus Mouse Micro DIN"},
    {0xA2, "USB"},
    {0xA3, "I2C"},
    {0xA4, "SPI"},
});

inline constexpr auto kEnabled = WordsOf({
    {0x00, "Disabled"},
    {0x01, "Enabled"},
});

inline constexpr auto kPresent = WordsOf({
    {0x00, "Not Present"},
    {0x01, "Present"},
});

inline constexpr auto kBootOptions = WordsOf({
    {0x00, "<OUT OF SPEC>"},
    {0x01, "Operating System"},
    {0x02, "System Utilities"},
    {0x03, "Do Not Reboot"},
});

inline constexpr auto kSecuritySettings = WordsOf({
    {0x00, "Disabled"},
    {0x01, "Enabled"},
    {0x02, "Not Implemented"},
    {0x03, "Unknown"},
});

inline constexpr auto kBootStates = WordsOf({
    {0x00, "No errors detected"},
    {0x01, "No bootable media"},
    {0x02, "Operating system failed to load"},
    {0x03, "Firmware-detected hardware failure"},
    {0x04, "Operating system-detected hardware failure"},
    {0x05, "User-requested boot"},
    {0x06, "System security violation"},
    {0x07, "Previously-requested image"},
    {0x08, "System watchdog timer expired"},
});

}  // namespace SMBIOS::Inspect::Standard
