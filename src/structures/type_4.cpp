#include "structures/type_4.h"

#include "structures/decoding.h"
#include "structures/hex_text.h"
#include "structures/processor_family_names.h"
#include "structures/processor_upgrade_names.h"

namespace SMBIOS::Structures {

using Type4::Types::Type4Struct;

namespace {

constexpr Gate kGates[] = {
    {LengthAbove(0x20), VersionBelow(v2_3_0), "v2.3.0 structure or later in a v2.1.0 BIOS or older"},
    {LengthAbove(0x23), VersionBelow(v2_5_0), "v2.5.0 structure or later in a v2.3.0 BIOS or older"},
    {LengthAbove(0x28), VersionBelow(v2_6_0), "v2.6.0 structure or later in a v2.5.0 BIOS or older"},
    {LengthAbove(0x2A), VersionBelow(v3_0_0), "v3.0.0 structure or later in a v2.8.0 BIOS or older"},
    {LengthAbove(0x30), VersionBelow(v3_6_0), "v3.6.0 structure or later in a v3.4.0 BIOS or older"},
    {LengthAbove(0x32), VersionBelow(v3_8_0), "v3.8.0 structure or later in a v3.7.1 BIOS or older"},
};

constexpr auto kProcessorTypeNames = ByteTable({
    {0x03, "Central Processor"},
    {0x04, "Math Processor"},
    {0x05, "DSP Processor"},
    {0x06, "Video Processor"},
});

constexpr auto kStatusTexts = ByteTable({
    {0x01, "CPU Enabled"},
    {0x02, "CPU Disabled by User through Firmware Setup"},
    {0x03, "CPU Disabled By firmware (POST Error)"},
    {0x04, "CPU is Idle, waiting to be enabled."},
});

constexpr const char* kSupportedVoltageNames[] = {
    "5V",
    "3.3V",
    "2.9V",
};

// Spelled as callers know them, "enhacedVirtualization" included.
constexpr const char* kCharacteristicsNames[] = {
    "dontCare",
    "dontCare",
    "64bitCapable",
    "multiCore",
    "hardwareThread",
    "executeProtection",
    "enhacedVirtualization",
    "powerPerformanceControl",
    "128bitCapable",
    "arm64SoC_ID",
};

constexpr std::size_t kVirtualizationBit = 6;

std::vector<std::string> SupportedVoltagesOf(std::uint8_t voltages) {
    const Common::Dynamic_BitSet set(voltages, 8, kSupportedVoltageNames);
    std::vector<std::string> names;
    for (std::size_t i = 0; i < set.names.size(); ++i) {
        if (set.Test(i)) {
            names.emplace_back(set.names[i]);
        }
    }
    return names;
}

void DecodeVoltage(StructureReader& in, Type4Struct& record) {
    const std::uint8_t voltage = in.Byte(0x11);
    const bool isLegacyMode = (voltage & 0x80U) == 0;
    record.legacyVoltageMode = isLegacyMode;
    if (!isLegacyMode) {
        record.currentVoltage = static_cast<float>(voltage & 0x7FU) / 10.0F;
        return;
    }
    const std::uint8_t supportedVoltages = voltage & 0x07U;
    in.OverwriteByte(0x11, supportedVoltages);  // departs from the standard: the raw bytes lose bits 3 to 6
    record.supportedVoltages = SupportedVoltagesOf(supportedVoltages);
}

std::optional<std::uint16_t> FamilyOf(const StructureReader& in) {
    const std::uint8_t family = in.Byte(0x06);
    if (family != 0xFF) {  // departs from the standard: 0xFE is a family, 0xFF refers to the second field
        return family;
    }
    return in.VersionIsAtLeast(v2_6_0) ? std::optional(in.Word(0x28)) : std::nullopt;
}

/// The count at `offset`; the wider one at `wideOffset` when it does not fit a byte. Departs from the
/// standard: there is no value where there is no wider one.
std::optional<std::uint16_t> CountOf(const StructureReader& in, std::size_t offset, std::size_t wideOffset) {
    const std::uint8_t count = in.Byte(offset);
    if (count != 0xFF) {
        return ValueUnless(0, count);
    }
    return in.VersionIsAtLeast(v3_0_0) ? ValueUnless(0, in.Word(wideOffset)) : std::nullopt;
}

}  // namespace

constinit const ParseRules Type_4::kRules = {
    .lengths = LengthAtLeast(0x1A),
    .gates = kGates,
};

void Type_4::DecodeFieldsInOrder(StructureReader& in, Type4Struct& record) {
    DecodeVoltage(in, record);
    record.processorId = HexDigits(in.Qword(0x08), 16);
    record.processorType = in.Byte(0x05);
    record.processorUpgrade = in.Byte(0x19);
    record.processorFamily = FamilyOf(in);
    if (record.processorFamily) {
        record.processorFamilyName = kProcessorFamilyNames[*record.processorFamily];
    }
    record.currentSpeed = ValueUnless(0, in.Word(0x16));
    record.externalClock = ValueUnless(0, in.Word(0x12));
    record.socketPopulated = (in.Byte(0x18) & 0x40U) != 0;
    record.statusText = kStatusTexts[in.Byte(0x18) & 0x07U];
    record.processorVersion = in.String(0x10);
    record.processorManufacturer = in.String(0x07);
    record.socketDesignation = in.String(0x04);
    record.processorTypeName = kProcessorTypeNames[in.Byte(0x05)];
    record.processorUpgradeName = kProcessorUpgradeNames[in.Byte(0x19)];

    if (in.VersionIsAtLeast(v2_1_0)) {
        record.l1CacheHandle = ValueUnless(0xFFFF, in.Word(0x1A));
        record.l2CacheHandle = ValueUnless(0xFFFF, in.Word(0x1C));
        record.l3CacheHandle = ValueUnless(0xFFFF, in.Word(0x1E));
    }
    if (in.VersionIsAtLeast(v2_3_0)) {
        record.assetTag = in.String(0x21);
        record.partNumber = in.String(0x22);
        record.serialNumber = in.String(0x20);
    }
    if (in.VersionIsAtLeast(v2_5_0)) {
        record.coreCount = CountOf(in, 0x23, 0x2A);
        record.threadCount = CountOf(in, 0x25, 0x2E);
        record.coreEnabled = CountOf(in, 0x24, 0x2C);
        record.processorCharacteristics = in.Word(0x26);
        record.characteristicsFlags.emplace(in.Word(0x26), 16, kCharacteristicsNames);
        // Departs from the standard: the capability is taken for the setting.
        record.virtualizationFirmwareEnabled = record.characteristicsFlags->Test(kVirtualizationBit);
    }
    if (in.VersionIsAtLeast(v3_6_0)) {
        record.threadEnabled = in.Word(0x30);  // departs from the standard: 0, an unknown count, is a count
    }
    if (in.VersionIsAtLeast(v3_8_0)) {
        record.socketType = in.String(0x32);
    }
}

}  // namespace SMBIOS::Structures
