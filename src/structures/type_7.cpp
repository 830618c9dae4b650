#include "structures/type_7.h"

#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type7::Types::Type7Struct;

namespace {

constexpr Gate kGates[] = {
    {LengthAbove(0x0F), VersionExactly(v2_0_0), "v2.1.0 structure or later in a v2.0.0 BIOS or older"},
    {LengthAbove(0x13), VersionBelow(v3_1_0), "v3.1.0 structure or later in a v3.0.0 BIOS or older"},
};

// Departs from the standard: "Write Back" and "Write Through" are exchanged.
constexpr auto kOperationalModeTexts = ByteTable({
    {0x00, "Write Back"},
    {0x01, "Write Through"},
    {0x02, "Varies with Memory Address"},
});

constexpr auto kErrorCorrectionTypeNames = ByteTable({
    {0x03, "None"},
    {0x04, "Parity"},
    {0x05, "Single-bit ECC"},
    {0x06, "Multi-bit ECC"},
});

constexpr auto kSystemCacheTypeNames = ByteTable({
    {0x03, "Instruction"},
    {0x04, "Data"},
    {0x05, "Unified"},
});

constexpr auto kAssociativityNames = ByteTable({
    {0x03, "Direct Mapped"},
    {0x04, "2-way Set-Associative"},
    {0x05, "4-way Set-Associative"},
    {0x06, "Fully Associative"},
    {0x07, "8-way Set-Associative"},
    {0x08, "16-way Set-Associative"},
    {0x09, "12-way Set-Associative"},
    {0x0A, "24-way Set-Associative"},
    {0x0B, "32-way Set-Associative"},
    {0x0C, "48-way Set-Associative"},
    {0x0D, "64-way Set-Associative"},
    {0x0E, "20-way Set-Associative"},
});

// Departs from the standard: each name stands one bit lower.
constexpr const char* kSramTypeNames[] = {
    "dontCare",
    "Non-Burst",
    "Burst",
    "Pipeline Burst",
    "Synchronous",
    "Asynchronous",
};

void DecodeConfiguration(const StructureReader& in, Type7Struct& record) {
    const std::uint16_t configuration = in.Word(0x05);
    const std::uint8_t location = (configuration >> 5) & 0x03U;
    const std::uint8_t mode = (configuration >> 8) & 0x03U;
    record.cacheEnabled = (configuration & 0x80U) != 0;
    record.cacheSocketed = (configuration & 0x08U) != 0;
    record.cacheLevel = configuration & 0x07U;
    record.cacheLocation = location <= 1 ? std::optional(location) : std::nullopt;
    record.operationalMode = mode;
    record.operationalModeText = kOperationalModeTexts[mode];
}

/// The count without `unitBit`, which says whether it counts 64 kilobytes or one. Departs from the standard:
/// the product wraps in 32 bits.
constexpr std::uint32_t KilobytesOf(std::uint32_t count, std::uint32_t unitBit) {
    return (count & unitBit) != 0 ? (count & ~unitBit) * 64U : count;
}

/// Size in kilobytes, from the wide field when it does not fit the narrow one.
std::optional<std::uint64_t> SizeOf(const StructureReader& in, std::size_t offset, std::size_t wideOffset) {
    const std::uint16_t count = in.Word(offset);
    std::uint32_t size = 0;
    if (count != 0xFFFF) {
        size = KilobytesOf(count, 0x8000U);
    } else if (in.VersionIsAtLeast(v3_0_0)) {
        // Departs from the standard: the wide fields came with 3.1.0, and before them 0xFFFF was a size.
        size = KilobytesOf(in.Dword(wideOffset), 0x80000000U);
    }
    return ValueUnless(0, std::uint64_t{size});  // departs from the standard: 0 is no size
}

}  // namespace

constinit const ParseRules Type_7::kRules = {
    .lengths = LengthAtLeast(0x0F),
    .gates = kGates,
};

void Type_7::DecodeFieldsInOrder(StructureReader& in, Type7Struct& record) {
    DecodeConfiguration(in, record);
    record.socketDesignation = in.String(0x04);
    record.currentSramType.emplace(in.Word(0x0D), 16, kSramTypeNames);
    record.supportedSramType.emplace(in.Word(0x0B), 16, kSramTypeNames);
    record.maximumCacheSize = SizeOf(in, 0x07, 0x13);
    record.installedSize = SizeOf(in, 0x09, 0x17);

    if (in.VersionIsAtLeast(v2_1_0)) {
        record.cacheSpeed = ValueUnless(0, in.Byte(0x0F));
        record.errorCorrectionType = in.Byte(0x10);
        record.errorCorrectionTypeName = kErrorCorrectionTypeNames[in.Byte(0x10)];
        record.systemCacheType = in.Byte(0x11);
        record.systemCacheTypeName = kSystemCacheTypeNames[in.Byte(0x11)];
        record.associativity = in.Byte(0x12);
        record.associativityName = kAssociativityNames[in.Byte(0x12)];
    }
}

}  // namespace SMBIOS::Structures
