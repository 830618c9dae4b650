#include "structures/type_17.h"

#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type17::Types::Type17Struct;

namespace {

// Deliberately refuses single versions, not every older one: versions between two rows accept the structure.
constexpr Gate kGates[] = {
    {LengthAbove(0x15), VersionExactly(v2_1_0), "v2.3.0 structure or later in a v2.1.0 BIOS"},
    {LengthAbove(0x1B), VersionExactly(v2_3_0), "v2.6.0 structure or later in a v2.3.0 BIOS"},
    {LengthAbove(0x1C), VersionExactly(v2_6_0), "v2.7.0 structure or later in a v2.6.0 BIOS"},
    {LengthAbove(0x22), VersionExactly(v2_7_0), "v2.8.0 structure or later in a v2.7.0 BIOS"},
    {LengthAbove(0x28), VersionExactly(v2_8_0), "v3.2.0 structure or later in a v2.8.0 BIOS"},
    {LengthAbove(0x54), VersionExactly(v3_2_0), "v3.3.0 structure or later in a v3.2.0 BIOS"},
    {LengthAbove(0x5C), VersionExactly(v3_3_0), "v3.7.0 structure or later in a v3.3.0 BIOS"},
};

constexpr auto kFormFactorNames = ByteTable({
    {0x03, "SIMM"},
    {0x04, "SIP"},
    {0x05, "Chip"},
    {0x06, "DIP"},
    {0x07, "ZIP"},
    {0x08, "Proprietary Card"},
    {0x09, "DIMM"},
    {0x0A, "TSOP"},
    {0x0B, "Row of chips"},
    {0x0C, "RIMM"},
    {0x0D, "SODIMM"},
    {0x0E, "SRIMM"},
    {0x0F, "FB-DIMM"},
    {0x10, "Die"},
    {0x11, "CAMM"},
});

constexpr auto kMemoryTypeNames = ByteTable({
    {0x03, "DRAM"},
    {0x04, "EDRAM"},
    {0x05, "VRAM"},
    {0x06, "SRAM"},
    {0x07, "RAM"},
    {0x08, "ROM"},
    {0x09, "FLASH"},
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
    {0x18, "DDR3"},
    {0x19, "FBD2"},
    {0x1A, "DDR4"},
    {0x1B, "LPDDR"},
    {0x1C, "LPDDR2"},
    {0x1D, "LPDDR3"},
    {0x1E, "LPDDR4"},
    {0x1F, "Logical non-volatile device"},
    {0x20, "HBM (High Bandwidth Memory)"},
    {0x21, "HBM2 (High Bandwidth Memory Generation 2)"},
    {0x22, "DDR5"},
    {0x23, "LPDDR5"},
    {0x24, "HBM3 (High Bandwidth Memory Generation 3)"},
});

constexpr const char* kTypeDetailNames[] = {
    "dontCare",
    "dontCare",
    "dontCare",
    "Fast-paged",
    "Static column",
    "Pseudo-static",
    "RAMBUS",
    "Synchronous",
    "CMOS",
    "EDO",
    "Window DRAM",
    "Cache DRAM",
    "Non-volatile",
    "Registered (Buffered)",
    "Unbuffered (Unregistered)",
    "LRDIMM",
};

constexpr const char* kOperatingModeCapabilityNames[] = {
    "dontCare",
    "dontCare",
    "dontCare",
    "Volatile Memory",
    "Byte-accessible persistent memory",
    "Block-accessible persistent memory",
};

constexpr const char* kMemoryTechnologyNames[] = {
    "dontCare",
    "dontCare",
    "DRAM",
    "NVDIMM-N",
    "NVDIMM-F",
    "NVDIMM-P",
    "Intel(R) Optane(TM) persistent memory",
    "MRDIMM",
};

constexpr std::uint64_t kUnknownSize = 0xFFFFFFFFFFFFFFFF;

/// Size in bytes, or in kilobytes where bit 15 says so.
std::optional<std::uint64_t> SizeOf(const StructureReader& in) {
    constexpr std::uint64_t kMegabyte = std::uint64_t{1} << 20;
    const std::uint16_t word = in.Word(0x0C);
    std::uint64_t size = 0;
    if (word != 0xFFFF) {
        const std::uint64_t count =
            word & 0x7FFFU;  // departs from the standard: 0x7FFF is a size like any other
        const bool inKilobytes = (word & 0x8000U) != 0;
        size = inKilobytes ? count : count * kMegabyte;  // departs from the standard: kilobytes stay unscaled
    } else if (in.VersionIsAtLeast(v2_7_0)) {
        size = (in.Dword(0x1C) & 0xFFFFU) * kMegabyte;  // departs from the standard: upper half ignored
    }
    return size == 0 ? std::nullopt : std::optional(size);
}

std::optional<std::uint32_t> SpeedOf(const StructureReader& in) {
    const std::uint16_t speed = in.Word(0x15);
    if (speed == 0) {
        return std::nullopt;
    }
    if (speed != 0xFFFF) {
        return speed;
    }
    // Departs from the standard: bit 31, which is reserved, counts.
    return in.VersionIsAtLeast(v3_3_0) ? std::optional(in.Dword(0x54)) : std::nullopt;
}

std::optional<std::uint32_t> ConfiguredSpeedOf(const StructureReader& in) {
    const std::uint16_t speed = in.Word(0x20);
    if (speed != 0xFFFF) {
        return speed;
    }
    // Departs from the standard: only the low half of the extended value is taken.
    return in.VersionIsAtLeast(v3_3_0) ? std::optional(in.Dword(0x58) & 0xFFFFU) : std::nullopt;
}

/// The low word of the byte-reversed 64-bit value. Departs from the standard: 0 for every identifier.
constexpr std::uint16_t SwappedIdentifier(std::uint16_t identifier) {
    const std::uint64_t widened = identifier;
    std::uint64_t reversed = 0;
    for (unsigned shift = 0; shift < 64; shift += 8) {
        reversed = (reversed << 8) | ((widened >> shift) & 0xFFU);
    }
    return static_cast<std::uint16_t>(reversed);
}

}  // namespace

constinit const ParseRules Type_17::kRules = {
    .lengths = LengthAtLeast(0x15),
    .versions = VersionAtLeast(v2_1_0),
    .gates = kGates,
};

void Type_17::DecodeFieldsInOrder(StructureReader& in, Type17Struct& record) {
    record.size = SizeOf(in);
    record.bankLocator = in.String(0x11);
    record.deviceSet = in.Byte(0x0F);
    record.typeDetail = in.Word(0x13);
    record.memoryType = in.Byte(0x12);
    record.formFactor = in.Byte(0x0E);
    record.physicalMemoryArrayHandle = in.Word(0x04);
    record.dataWidth = ValueUnless(0xFFFF, in.Word(0x0A));
    record.totalWidth = ValueUnless(0xFFFF, in.Word(0x08));
    record.memoryErrorInformationHandle = ValueUnless(0xFFFE, in.Word(0x06));
    record.formFactorName = kFormFactorNames[in.Byte(0x0E)];
    record.memoryTypeName = kMemoryTypeNames[in.Byte(0x12)];
    record.typeDetailFlags.emplace(in.Word(0x13), 16, kTypeDetailNames);
    record.deviceLocator = in.String(0x10);

    if (in.VersionIsAtLeast(v2_3_0)) {
        record.speed = SpeedOf(in);
        record.assetTag = in.String(0x19);
        record.partNumber = in.String(0x1A);
        record.manufacturer = in.String(0x17);
        record.serialNumber = in.String(0x18);
    }
    if (in.VersionIsAtLeast(v2_6_0)) {
        record.rank = in.Byte(0x1B) & 0x07;  // departs from the standard: three bits instead of four
    }
    if (in.VersionIsAtLeast(v2_7_0)) {
        record.configuredSpeed = ConfiguredSpeedOf(in);
    }
    if (in.VersionIsAtLeast(v2_8_0)) {
        record.minimumVoltage = in.Word(0x22);
        record.maximumVoltage = in.Word(0x24);
        record.configuredVoltage = in.Word(0x26);
    }
    if (in.VersionIsAtLeast(v3_2_0)) {
        record.memoryTechnology = in.Byte(0x28);
        record.operatingModeCapability = in.Word(0x29);
        // Departs from the standard: the technology code is read as a bit mask.
        record.memoryTechnologyFlags.emplace(in.Byte(0x28), 8, kMemoryTechnologyNames);
        record.operatingModeCapabilityFlags.emplace(in.Word(0x29), 16, kOperatingModeCapabilityNames);
        record.firmwareVersion = in.String(0x2B);
        record.cacheSize = ValueUnless(kUnknownSize, in.Qword(0x44));
        record.logicalSize = ValueUnless(kUnknownSize, in.Qword(0x4C));
        record.volatileSize = ValueUnless(kUnknownSize, in.Qword(0x3C));
        record.nonVolatileSize = ValueUnless(kUnknownSize, in.Qword(0x34));
        record.moduleManufacturerId = SwappedIdentifier(in.Word(0x2C));
        record.moduleProductId = SwappedIdentifier(in.Word(0x2E));
        record.memorySubsystemControllerManufacturerId = SwappedIdentifier(in.Word(0x30));
        record.memorySubsystemControllerProductId = SwappedIdentifier(in.Word(0x32));
    }
    if (in.VersionIsAtLeast(v3_7_0)) {
        record.pmic0RevisionNumber = in.Word(0x5E);
        record.rcdRevisionNumber = in.Word(0x62);
        record.rcdManufacturerId = SwappedIdentifier(in.Word(0x60));
        record.pmic0ManufacturerId = SwappedIdentifier(in.Word(0x5C));
    }
}

}  // namespace SMBIOS::Structures
