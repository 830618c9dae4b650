#pragma once

#include "smbios-inspect/standard/words.h"

// What the codes of memory mean.
namespace SMBIOS::Inspect::Standard {

inline constexpr auto kErrorDetectingMethods = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "None"},
    {0x04, "8-bit Parity"},
    {0x05, "32-bit ECC"},
    {0x06, "64-bit ECC"},
    {0x07, "128-bit ECC"},
    {0x08, "CRC"},
});

inline constexpr auto kErrorCorrectingCapabilities = WordsOf({
    {0, "Other"},
    {1, "Unknown"},
    {2, "None"},
    {3, "Single-bit Error Correcting"},
    {4, "Double-bit Error Correcting"},
    {5, "Error Scrubbing"},
});

inline constexpr auto kInterleaves = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "One-way Interleave"},
    {0x04, "Two-way Interleave"},
    {0x05, "Four-way Interleave"},
    {0x06, "Eight-way Interleave"},
    {0x07, "Sixteen-way Interleave"},
});

inline constexpr auto kModuleSpeeds = WordsOf({
    {0, "Other"},
    {1, "Unknown"},
    {2, "70 ns"},
    {3, "60 ns"},
    {4, "50 ns"},
});

inline constexpr auto kModuleTypes = WordsOf({
    {0, "Other"},
    {1, "Unknown"},
    {2, "Standard"},
    {3, "FPM"},
    {4, "EDO"},
    {5, "Parity"},
    {6, "ECC"},
    {7, "SIMM"},
    {8, "DIMM"},
    {9, "Burst EDO"},
    {10, "SDRAM"},
});

inline constexpr auto kModuleVoltages = WordsOf({
    {0, "5.0 V"},
    {1, "3.3 V"},
    {2, "2.9 V"},
});

inline constexpr auto kModuleErrors = WordsOf({
    {0x00, "OK"},
    {0x01, "Uncorrectable Errors"},
    {0x02, "Correctable Errors"},
    {0x03, "Correctable and Uncorrectable Errors"},
});

inline constexpr auto kArrayLocations = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "System Board Or Motherboard"},
    {0x04, "ISA Add-on Card"},
    {0x05, "EISA Add-on Card"},
    {0x06, "PCI Add-on Card"},
    {0x07, "MCA Add-on Card"},
    {0x08, "PCMCIA Add-on Card"},
    {0x09, "Proprietary Add-on Card"},
    {0x0A, "NuBus"},
    {0xA0, "PC-98/C20 Add-on Card"},
    {0xA1, "PC-98/C24 Add-on Card"},
    {0xA2, "PC-98/E Add-on Card"},
    {0xA3, "PC-98/Local Bus Add-on Card"},
    {0xA4, "CXL Flexbus 1.0"},
});

inline constexpr auto kArrayUses = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "System Memory"},
    {0x04, "Video Memory"},
    {0x05, "Flash Memory"},
    {0x06, "Non-volatile RAM"},
    {0x07, "Cache Memory"},
});

inline constexpr auto kArrayErrorCorrections = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "None"},
    {0x04, "Parity"},
    {0x05, "Single-bit ECC"},
    {0x06, "Multi-bit ECC"},
    {0x07, "CRC"},
});

/// Numbers of an error information handle that are none.
inline constexpr auto kErrorHandles = WordsOf({
    {0xFFFE, "Not Provided"},
    {0xFFFF, "No Error"},
});

inline constexpr auto kFormFactors = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "SIMM"},
    {0x04, "SIP"},
    {0x05, "Chip"},
    {0x06, "DIP"},
    {0x07, "ZIP"},
    {0x08, "Proprietary Card"},
    {0x09, "DIMM"},
    {0x0A, "TSOP"},
    {0x0B, "Row Of Chips"},
    {0x0C, "RIMM"},
    {0x0D, "SODIMM"},
    {0x0E, "SRIMM"},
    {0x0F, "FB-DIMM"},
    {0x10, "Die"},
    {0x11, "CAMM"},
});

/// Zero is no width that a device in its place can have.
inline constexpr auto kUnknownWidths = WordsOf({
    {0x0000, "Unknown"},
    {0xFFFF, "Unknown"},
});

inline constexpr auto kDeviceSets = WordsOf({
    {0x00, "None"},
    {0xFF, "Unknown"},
});

inline constexpr auto kMemoryTypes = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "DRAM"},
    {0x04, "EDRAM"},
    {0x05, "VRAM"},
    {0x06, "SRAM"},
    {0x07, "RAM"},
    {0x08, "ROM"},
    {0x09, "Flash"},
    {0x0A, "EEPROM"},
    {0x0B, "FEPROM"},
    {0x0C, "EPROM"},
    {0x0D, "CDRAM"},
    {0x0E, "3DRAM"},
    {0x0F, "SDRAM"},
    {0x10, "SGRAM"},
    {0x11, "RDRAM"},
    {0x12, "DDR"},
    {0x13, "DDR2"},
    {0x14, "DDR2 FB-DIMM"},
    {0x15, "Reserved"},
    {0x16, "Reserved"},
    {0x17, "Reserved"},
    {0x18, "DDR3"},
    {0x19, "FBD2"},
    {0x1A, "DDR4"},
    {0x1B, "LPDDR"},
    {0x1C, "LPDDR2"},
    {0x1D, "LPDDR3"},
    {0x1E, "LPDDR4"},
    {0x1F, "Logical non-volatile device"},
    {0x20, "HBM"},
    {0x21, "HBM2"},
    {0x22, "DDR5"},
    {0x23, "LPDDR5"},
    {0x24, "HBM3"},
});

inline constexpr auto kTypeDetails = WordsOf({
    {1, "Other"},
    {2, "Unknown"},
    {3, "Fast-paged"},
    {4, "Static Column"},
    {5, "Pseudo-static"},
    {6, "RAMBus"},
    {7, "Synchronous"},
    {8, "CMOS"},
    {9, "EDO"},
    {10, "Window DRAM"},
    {11, "Cache DRAM"},
    {12, "Non-Volatile"},
    {13, "Registered (Buffered)"},
    {14, "Unbuffered (Unregistered)"},
    {15, "LRDIMM"},
});

inline constexpr auto kMemoryTechnologies = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "DRAM"},
    {0x04, "NVDIMM-N"},
    {0x05, "NVDIMM-F"},
    {0x06, "NVDIMM-P"},
    {0x07, "Intel Optane DC persistent memory"},
    {0x08, "MRDIMM"},
});

inline constexpr auto kOperatingModes = WordsOf({
    {1, "Other"},
    {2, "Unknown"},
    {3, "Volatile memory"},
    {4, "Byte-accessible persistent memory"},
    {5, "Block-accessible persistent memory"},
});

inline constexpr auto kErrorTypes = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "OK"},
    {0x04, "Bad Read"},
    {0x05, "Parity Error"},
    {0x06, "Single-bit Error"},
    {0x07, "Double-bit Error"},
    {0x08, "Multi-bit Error"},
    {0x09, "Nibble Error"},
    {0x0A, "Checksum Error"},
    {0x0B, "CRC Error"},
    {0x0C, "Corrected Single-bit Error"},
    {0x0D, "Corrected Error"},
    {0x0E, "Uncorrectable Error"},
});

inline constexpr auto kErrorGranularities = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Device Level"},
    {0x04, "Memory Partition Level"},
});

inline constexpr auto kErrorOperations = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Read"},
    {0x04, "Write"},
    {0x05, "Partial Write"},
});

inline constexpr auto kUnknownAddress32 = WordsOf({
    {0x80000000, "Unknown"},
});

inline constexpr auto kUnknownAddress64 = WordsOf({
    {0x8000000000000000, "Unknown"},
});

inline constexpr auto kPortionSizes = WordsOf({
    {0xFFFFFFFFFFFFFFFF, "Unknown"},
});

inline constexpr auto kRowPositions = WordsOf({
    {0x00, "<OUT OF SPEC>"},
    {0xFF, "Unknown"},
});

inline constexpr auto kInterleavePositions = WordsOf({
    {0x00, "Non-interleaved"},
    {0xFF, "Unknown"},
});

inline constexpr auto kChannelTypes = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "RamBus"},
    {0x04, "SyncLink"},
});

}  // namespace SMBIOS::Inspect::Standard
