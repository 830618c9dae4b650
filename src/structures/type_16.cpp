#include "structures/type_16.h"

#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type16::Types::Type16Struct;

namespace {

constexpr Gate kGates[] = {
    {LengthExactly(0x17), VersionBelow(v2_7_0), "v2.7.0 structure in a v2.6.1 BIOS or older"},
    // Departs from the standard: a structure that a later version made longer is refused.
    {LengthAbove(0x17), kAnyVersion, "Unsupported BIOS structure."},
};

constexpr auto kLocationNames = ByteTable({
    {0x03, "System board or motherboard"},
    {0x04, "ISA add-on card"},
    {0x05, "EISA add-on card"},
    {0x06, "PCI add-on card"},
    {0x07, "MCA add-on card"},
    {0x08, "PCMCIA add-on card"},
    {0x09, "Proprietary add-on card"},
    {0x0A, "NuBus"},
    {0xA0, "PC-98/C20 add-on card"},
    {0xA1, "PC-98/C24 add-on card"},
    {0xA2, "PC-98/E add-on card"},
    {0xA3, "PC-98/Local bus add-on card"},
    {0xA4, "CXL add-on card"},
});

constexpr auto kUseNames = ByteTable({
    {0x03, "System memory"},
    {0x04, "Video memory"},
    {0x05, "Flash memory"},
    {0x06, "Non-volatile RAM"},
    {0x07, "Cache memory"},
});

constexpr auto kMemoryErrorCorrectionNames = ByteTable({
    {0x03, "None"},
    {0x04, "Parity"},
    {0x05, "Single-bit ECC"},
    {0x06, "Multi-bit ECC"},
    {0x07, "CRC"},
});

std::optional<std::uint64_t> MaximumCapacityOf(const StructureReader& in) {
    const std::uint32_t capacity = in.Dword(0x07);
    // Departs from the standard: 0 and not 0x80000000 calls for the extended capacity, which stays in bytes.
    if (capacity != 0) {
        return capacity;
    }
    return in.VersionIsAtLeast(v2_7_0) ? std::optional(in.Qword(0x0F)) : std::nullopt;
}

}  // namespace

constinit const ParseRules Type_16::kRules = {
    .lengths = LengthAtLeast(0x0F),
    .versions = VersionAtLeast(v2_1_0),
    .gates = kGates,
    .strings = StringSetRule::onSuccess,
};

void Type_16::DecodeFieldsInOrder(StructureReader& in, Type16Struct& record) {
    record.use = in.Byte(0x05);
    record.location = in.Byte(0x04);
    record.memoryErrorCorrection = in.Byte(0x06);
    record.numberOfMemoryDevices = in.Word(0x0D);
    record.memoryErrorInformationHandle = in.Word(0x0B);
    record.useName = kUseNames[in.Byte(0x05)];
    record.locationName = kLocationNames[in.Byte(0x04)];
    record.memoryErrorCorrectionName = kMemoryErrorCorrectionNames[in.Byte(0x06)];
    record.maximumCapacity = MaximumCapacityOf(in);
}

}  // namespace SMBIOS::Structures
