#pragma once

#include "smbios-inspect/standard/words.h"

// What the codes of processors and caches mean.
namespace SMBIOS::Inspect::Standard {

inline constexpr auto kProcessorTypes = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Central Processor"},
    {0x04, "Math Processor"},
    {0x05, "DSP Processor"},
    {0x06, "Video Processor"},
});

/// Bits of the feature register that stands in the upper half of the processor's ID.
inline constexpr auto kProcessorFlags = WordsOf({
    {0, "FPU (Floating-point unit on-chip)"},
    {1, "VME (Virtual mode extension)"},
    {2, "DE (Debugging extension)"},
    {3, "PSE (Page size extension)"},
    {4, "TSC (Time stamp counter)"},
    {5, "MSR (Model specific registers)"},
    {6, "PAE (Physical address extension)"},
    {7, "MCE (Machine check exception)"},
    {8, "CX8 (CMPXCHG8 instruction supported)"},
    {9, "APIC (On-chip APIC hardware supported)"},
    {11, "SEP (Fast system call)"},
    {12, "MTRR (Memory type range registers)"},
    {13, "PGE (Page global enable)"},
    {14, "MCA (Machine check architecture)"},
    {15, "CMOV (Conditional move instruction supported)"},
    {16, "PAT (Page attribute table)"},
    {17, "PSE-36 (36-bit page size extension)"},
    {18, "PSN (Processor serial number present and enabled)"},
    {19, "CLFSH (CLFLUSH instruction supported)"},
    {21, "DS (Debug store)"},
    {22, "ACPI (ACPI supported)"},
    {23, "MMX (MMX technology supported)"},
    {24, "FXSR (FXSAVE and FXSTOR instructions supported)"},
    {25, "SSE (Streaming SIMD extensions)"},
    {26, "SSE2 (Streaming SIMD extensions 2)"},
    {27, "SS (Self-snoop)"},
    {28, "HTT (Multi-threading)"},
    {29, "TM (Thermal monitor supported)"},
    {31, "PBE (Pending break enabled)"},
});

inline constexpr auto kProcessorStates = WordsOf({
    {0x00, "Unknown"},
    {0x01, "Enabled"},
    {0x02, "Disabled By User"},
    {0x03, "Disabled By BIOS"},
    {0x04, "Idle"},
    {0x07, "Other"},
});

inline constexpr auto kProcessorUpgrades = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Daughter Board"},
    {0x04, "ZIF Socket"},
    {0x05, "Replaceable Piggy Back"},
    {0x06, "None"},
    {0x07, "LIF Socket"},
    {0x08, "Slot 1"},
    {0x09, "Slot 2"},
    {0x0A, "370-pin Socket"},
    {0x0B, "Slot A"},
    {0x0C, "Slot M"},
    {0x0D, "Socket 423"},
    {0x0E, "Socket A (Socket 462)"},
    {0x0F, "Socket 478"},
    {0x10, "Socket 754"},
    {0x11, "Socket 940"},
    {0x12, "Socket 939"},
    {0x13, "Socket mPGA604"},
    {0x14, "Socket LGA771"},
    {0x15, "Socket LGA775"},
    {0x16, "Socket S1"},
    {0x17, "Socket AM2"},
    {0x18, "Socket F (1207)"},
    {0x19, "Socket LGA1366"},
    {0x1A, "Socket G34"},
    {0x1B, "Socket AM3"},
    {0x1C, "Socket C32"},
    {0x1D, "Socket LGA1156"},
    {0x1E, "Socket LGA1567"},
    {0x1F, "Socket PGA988A"},
    {0x20, "Socket BGA1288"},
    {0x21, "Socket rPGA988B"},
    {0x22, "Socket BGA1023"},
    {0x23, "Socket BGA1224"},
    {0x24, "Socket LGA1155"},
    {0x25, "Socket LGA1356"},
    {0x26, "Socket LGA2011"},
    {0x27, "Socket FS1"},
    {0x28, "Socket FS2"},
    {0x29, "Socket FM1"},
    {0x2A, "Socket FM2"},
    {0x2B, "Socket LGA2011-3"},
    {0x2C, "Socket LGA1356-3"},
    {0x2D, "Socket LGA1150"},
    {0x2E, "Socket BGA1168"},
    {0x2F, "Socket BGA1234"},
    {0x30, "Socket BGA1364"},
    {0x31, "Socket AM4"},
    {0x32, "Socket LGA1151"},
    {0x33, "Socket BGA1356"},
    {0x34, "Socket BGA1440"},
    {0x35, "Socket BGA1515"},
    {0x36, "Socket LGA3647-1"},
    {0x37, "Socket SP3"},
    {0x38, "Socket SP3r2"},
    {0x39, "Socket LGA2066"},
    {0x3A, "Socket BGA1392"},
    {0x3B, "Socket BGA1510"},
    {0x3C, "Socket BGA1528"},
    {0x3D, "Socket LGA4189"},
    {0x3E, "Socket LGA1200"},
    {0x3F, "Socket LGA4677"},
    {0x40, "Socket LGA1700"},
    {0x41, "Socket BGA1744"},
    {0x42, "Socket BGA1781"},
    {0x43, "Socket BGA1211"},
    {0x44, "Socket BGA2422"},
    {0x45, "Socket LGA1211"},
    {0x46, "Socket LGA2422"},
    {0x47, "Socket LGA5773"},
    {0x48, "Socket BGA5773"},
    {0x49, "Socket AM5"},
    {0x4A, "Socket SP5"},
    {0x4B, "Socket SP6"},
    {0x4C, "Socket BGA883"},
    {0x4D, "Socket BGA1190"},
    {0x4E, "Socket BGA4129"},
    {0x4F, "Socket LGA4710"},
    {0x50, "Socket LGA7529"},
    {0x51, "Socket BGA1964"},
    {0x52, "Socket BGA1792"},
    {0x53, "Socket BGA2049"},
    {0x54, "Socket BGA2551"},
    {0x55, "Socket LGA1851"},
    {0x56, "Socket BGA2114"},
    {0x57, "Socket BGA2833"},
});

inline constexpr auto kProcessorVoltages = WordsOf({
    {0, "5.0 V"},
    {1, "3.3 V"},
    {2, "2.9 V"},
});

inline constexpr auto kProcessorCharacteristics = WordsOf({
    {1, "Unknown"},
    {2, "64-bit capable"},
    {3, "Multi-Core"},
    {4, "Hardware Thread"},
    {5, "Execute Protection"},
    {6, "Enhanced Virtualization"},
    {7, "Power/Performance Control"},
    {8, "128-bit Capable"},
    {9, "Arm64 SoC ID"},
});

inline constexpr auto kCacheModes = WordsOf({
    {0x00, "Write Through"},
    {0x01, "Write Back"},
    {0x02, "Varies With Memory Address"},
    {0x03, "Unknown"},
});

inline constexpr auto kCacheLocations = WordsOf({
    {0x00, "Internal"},
    {0x01, "External"},
    {0x03, "Unknown"},
});

inline constexpr auto kSramTypes = WordsOf({
    {0, "Other"},
    {1, "Unknown"},
    {2, "Non-burst"},
    {3, "Burst"},
    {4, "Pipeline Burst"},
    {5, "Synchronous"},
    {6, "Asynchronous"},
});

inline constexpr auto kCacheErrorCorrections = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "None"},
    {0x04, "Parity"},
    {0x05, "Single-bit ECC"},
    {0x06, "Multi-bit ECC"},
});

inline constexpr auto kCacheTypes = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Instruction"},
    {0x04, "Data"},
    {0x05, "Unified"},
});

inline constexpr auto kCacheAssociativities = WordsOf({
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "Direct Mapped"},
    {0x04, "2-way Set-associative"},
    {0x05, "4-way Set-associative"},
    {0x06, "Fully Associative"},
    {0x07, "8-way Set-associative"},
    {0x08, "16-way Set-associative"},
    {0x09, "12-way Set-associative"},
    {0x0A, "24-way Set-associative"},
    {0x0B, "32-way Set-associative"},
    {0x0C, "48-way Set-associative"},
    {0x0D, "64-way Set-associative"},
    {0x0E, "20-way Set-associative"},
});

/// Kinds of processor-specific blocks.
inline constexpr auto kProcessorArchitectures = WordsOf({
    {0x00, "Reserved"},
    {0x01, "IA32 (x86)"},
    {0x02, "x64 (x86-64, Intel64, AMD64, EM64T)"},
    {0x03, "Intel Itanium architecture"},
    {0x04, "32-bit ARM (Aarch32)"},
    {0x05, "64-bit ARM (Aarch64)"},
    {0x06, "32-bit RISC-V (RV32)"},
    {0x07, "64-bit RISC-V (RV64)"},
    {0x08, "128-bit RISC-V (RV128)"},
    {0x09, "32-bit LoongArch (LoongArch32)"},
    {0x0A, "64-bit LoongArch (LoongArch64)"},
});

/// Widths of a RISC-V register.
inline constexpr auto kRiscvWidths = WordsOf({
    {0x00, "Unsupported"},
    {0x01, "32 bits"},
    {0x02, "64 bits"},
    {0x03, "128 bits"},
});

inline constexpr auto kRiscvPrivilegeLevels = WordsOf({
    {0, "Machine Mode"},
    {2, "Supervisor Mode"},
    {3, "User Mode"},
    {7, "Debug Mode"},
});

inline constexpr auto kRiscvBootHart = WordsOf({
    {0x00, "Not the boot hart"},
    {0x01, "Boot hart"},
});

}  // namespace SMBIOS::Inspect::Standard
