#include "structures/memory_error.h"

#include "structures/decoding.h"

namespace SMBIOS::Structures {

namespace {

constexpr auto kErrorTypeNames = ByteTable({
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
});

constexpr auto kErrorGranularityNames = ByteTable({
    {0x03, "Device level"},
    {0x04, "Memory partition level"},
});

constexpr auto kErrorOperationNames = ByteTable({
    {0x03, "Read"},
    {0x04, "Write"},
    {0x05, "Partial Write"},
});

}  // namespace

void DecodeErrorCodes(const StructureReader& in, MemoryErrorRecord& record) {
    record.errorType = in.Byte(0x04);
    record.errorOperation = in.Byte(0x06);
    record.errorGranularity = in.Byte(0x05);
    record.errorTypeName = kErrorTypeNames[in.Byte(0x04)];
    record.errorOperationName = kErrorOperationNames[in.Byte(0x06)];
    record.errorGranularityName = kErrorGranularityNames[in.Byte(0x05)];
}

}  // namespace SMBIOS::Structures
