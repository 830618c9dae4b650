#pragma once

#include "smbios-inspect/standard/words.h"

// What the codes of boards, chassis and ports mean.
namespace SMBIOS::Inspect::Standard {

inline constexpr auto kBoardFeatures = WordsOf({
    {0, "Board is a hosting board"},
    {1, "Board requires at least one daughter board"},
    {2, "Board is removable"},
    {3, "Board is replaceable"},
    {4, "Board is hot swappable"},
});

inline constexpr auto kBoardTypes = WordsOf({
    {0x01, "Unknown"},
    {0x02, "Other"},
    {0x03, "Server Blade"},
    {0x04, "Connectivity Switch"},
    {0x05, "System Management Module"},
    {0x06, "Processor Module"},
    {0x07, "I/O Module"},
    {0x08, "Memory Module"},
    {0x09, "Daughter Board"},
    {0x0A, "Motherboard"},
    {0x0B, "Processor+Memory Module"},
    {0x0C, "Processor+I/O Module"},
    {0x0D, "Interconnect Board"},
});

inline constexpr auto kChassisTypes = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Desktop"},
    {0x04, "Low Profile Desktop"},
    {0x05, "Pizza Box"},
    {0x06, "Mini Tower"},
    {0x07, "Tower"},
    {0x08, "Portable"},
    {0x09, "Laptop"},
    {0x0A, "Notebook"},
    {0x0B, "Hand Held"},
    {0x0C, "Docking Station"},
    {0x0D, "All In One"},
    {0x0E, "Sub Notebook"},
    {0x0F, "Space-saving"},
    {0x10, "Lunch Box"},
    {0x11, "Main Server Chassis"},
    {0x12, "Expansion Chassis"},
    {0x13, "Sub Chassis"},
    {0x14, "Bus Expansion Chassis"},
    {0x15, "Peripheral Chassis"},
    {0x16, "RAID Chassis"},
    {0x17, "Rack Mount Chassis"},
    {0x18, "Sealed-case PC"},
    {0x19, "Multi-system"},
    {0x1A, "CompactPCI"},
    {0x1B, "AdvancedTCA"},
    {0x1C, "Blade"},
    {0x1D, "Blade Enclosing"},
    {0x1E, "Tablet"},
    {0x1F, "Convertible"},
    {0x20, "Detachable"},
    {0x21, "IoT Gateway"},
    {0x22, "Embedded PC"},
    {0x23, "Mini PC"},
    {0x24, "Stick PC"},
});

inline constexpr auto kPresence = WordsOf({
    {0x00, "Not Present"},
    {0x01, "Present"},
});

inline constexpr auto kChassisStates = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Safe"},
    {0x04, "Warning"},
    {0x05, "Critical"},
    {0x06, "Non-recoverable"},
});

inline constexpr auto kSecurityStates = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "None"},
    {0x04, "External Interface Locked Out"},
    {0x05, "External Interface Enabled"},
});

inline constexpr auto kUnspecifiedIfZero = WordsOf({
    {0x00, "Unspecified"},
});

inline constexpr auto kConnectorTypes = WordsOf({
    {0x00, "None"},
    {0x01, "Centronics"},
    {0x02, "Mini Centronics"},
    {0x03, "Proprietary"},
    {0x04, "DB-25 male"},
    {0x05, "DB-25 female"},
    {0x06, "DB-15 male"},
    {0x07, "DB-15 female"},
    {0x08, "DB-9 male"},
    {0x09, "DB-9 female"},
    {0x0A, "RJ-11"},
    {0x0B, "RJ-45"},
    {0x0C, "50 Pin MiniSCSI"},
    {0x0D, "Mini DIN"},
    {0x0E, "Micro DIN"},
    {0x0F, "PS/2"},
    {0x10, "Infrared"},
    {0x11, "HP-HIL"},
    {0x12, "Access Bus (USB)"},
    {0x13, "SSA SCSI"},
    {0x14, "Circular DIN-8 male"},
    {0x15, "Circular DIN-8 female"},
    {0x16, "On Board IDE"},
    {0x17, "On Board Floppy"},
    {0x18, "9 Pin Dual Inline (pin 10 cut)"},
    {0x19, "25 Pin Dual Inline (pin 26 cut)"},
    {0x1A, "50 Pin Dual Inline"},
    {0x1B, "68 Pin Dual Inline"},
    {0x1C, "On Board Sound Input From CD-ROM"},
    {0x1D, "Mini Centronics Type-14"},
    {0x1E, "Mini Centronics Type-26"},
    {0x1F, "Mini Jack (headphones)"},
    {0x20, "BNC"},
    {0x21, "IEEE 1394"},
    {0x22, "SAS/SATA Plug Receptacle"},
    {0x23, "USB Type-C Receptacle"},
    {0xA0, "PC-98"},
    {0xA1, "PC-98 Hireso"},
    {0xA2, "PC-H98"},
    {0xA3, "PC-98 Note"},
    {0xA4, "PC-98 Full"},
    {0xFF, "Other"},
});

inline constexpr auto kPortTypes = WordsOf({
    {0x00, "None"},
    {0x01, "Parallel Port XT/AT Compatible"},
    {0x02, "Parallel Port PS/2"},
    {0x03, "Parallel Port ECP"},
    {0x04, "Parallel Port EPP"},
    {0x05, "Parallel Port ECP/EPP"},
    {0x06, "Serial Port XT/AT Compatible"},
    {0x07, "Serial Port 16450 Compatible"},
    {0x08, "Serial Port 16550 Compatible"},
    {0x09, "Serial Port 16550A Compatible"},
    {0x0A, "SCSI Port"},
    {0x0B, "MIDI Port"},
    {0x0C, "Joystick Port"},
    {0x0D, "Keyboard Port"},
    {0x0E, "Mouse Port"},
    {0x0F, "SSA SCSI"},
    {0x10, "USB"},
    {0x11, "Firewire (IEEE P1394)"},
    {0x12, "PCMCIA Type I"},
    {0x13, "PCMCIA Type II"},
    {0x14, "PCMCIA Type III"},
    {0x15, "Cardbus"},
    {0x16, "Access Bus Port"},
    {0x17, "SCSI II"},
    {0x18, "SCSI Wide"},
    {0x19, "PC-98"},
    {0x1A, "PC-98 Hireso"},
    {0x1B, "PC-H98"},
    {0x1C, "Video Port"},
    {0x1D, "Audio Port"},
    {0x1E, "Modem Port"},
    {0x1F, "Network Port"},
    {0x20, "SATA"},
    {0x21, "SAS"},
    {0x22, "MFDP (Multi-Function Display Port)"},
    {0x23, "Thunderbolt"},
    {0xA0, "8251 Compatible"},
    {0xA1, "8251 FIFO Compatible"},
    {0xFF, "Other"},
});

inline constexpr auto kOnBoardDeviceTypes = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
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
    {0x0E, "eMMC"},
    {0x0F, "NVMe Controller"},
    {0x10, "UFS Controller"},
});

inline constexpr auto kOnBoardDeviceStates = WordsOf({
    {0x00, "Disabled"},
    {0x01, "Enabled"},
});

}  // namespace SMBIOS::Inspect::Standard
