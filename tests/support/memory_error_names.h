#pragma once

#include <utility>

namespace SMBIOS::Tests {

// The codes of a memory error, whether its addresses have 32 or 64 bits.

inline constexpr std::pair<int, const char*> kErrorTypes[] = {
    {0x03, "OK"},
    {0x04, "Bad read"},
    {0x05, "Parity error"},
    {0x06, "Single-bit error"},
    {0x07, "Double-bit error"},
    {0x08, "Multi-bit error"},
    {0x09, "Nibble error"},
    {0x0A, "Checksum error"},
    {0x0B, "CRC error"},
    {0x0C, "Corrected single-bit error"},
    {0x0D, "Corrected error"},
    {0x0E, "Uncorrectable error"},
};

inline constexpr std::pair<int, const char*> kErrorGranularities[] = {
    {0x03, "Device level"},
    {0x04, "Memory partition level"},
};

inline constexpr std::pair<int, const char*> kErrorOperations[] = {
    {0x03, "Read"},
    {0x04, "Write"},
    {0x05, "Partial Write"},
};

}  // namespace SMBIOS::Tests
