#include "structures/type_1.h"

#include <algorithm>
#include <exception>

#include "common/format.h"
#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type1::Types::Type1Struct;

namespace {

constexpr Gate kGates[] = {
    {LengthAtLeast(0x19), VersionExactly(v2_0_0), "v2.1.0 structure or later in a v2.0.0 BIOS"},
    {LengthAtLeast(0x1A), VersionBelow(v2_4_0), "v2.4.0 structure or later in a v2.3.4 BIOS or older"},
};

constexpr auto kWakeUpTypeNames = ByteTable({
    {3, "APM Timer"},
    {4, "Modern Ring"},
    {5, "LAN Remote"},
    {6, "Power Switch"},
    {7, "PCI PME#"},
    {8, "AC Power Restored"},
});

/// Departs from the standard: needs just one byte 0x00 or 0xFF, and all of them 0x00 or 0xFF has no meaning.
bool IsUuidReported(const StructureReader& in) {
    return std::ranges::any_of(in.Bytes<16>(0x08),
                               [](std::uint8_t byte) { return byte == 0x00 || byte == 0xFF; });
}

/// The first three fields are little-endian in tables of every version.
std::string UuidOf(const StructureReader& in) {
    if (!IsUuidReported(in)) {
        return {};
    }
    try {
        return Common::format("{:08X}-{:04X}-{:04X}-{:02X}{:02X}-{:02X}{:02X}{:02X}{:02X}{:02X}{:02X}",
                              in.Dword(0x08),
                              in.Word(0x0C),
                              in.Word(0x0E),
                              in.Byte(0x10),
                              in.Byte(0x11),
                              in.Byte(0x12),
                              in.Byte(0x13),
                              in.Byte(0x14),
                              in.Byte(0x15),
                              in.Byte(0x16),
                              in.Byte(0x17));
    } catch (const std::exception&) {
        in.NoteLostText();
        return {};  // a text that cannot be made is reported like a missing one
    }
}

}  // namespace

constinit const ParseRules Type_1::kRules = {
    .lengths = LengthFromTo(0x08, 0x1B),  // departs from the standard: longer structures are refused
    .gates = kGates,
};

void Type_1::DecodeFieldsInOrder(StructureReader& in, Type1Struct& record) {
    record.uuid = UuidOf(in);  // departs from the standard: tables of 2.0.0 have one too
    record.version = in.String(0x06);
    record.manufacturer = in.String(0x04);
    record.productName = in.String(0x05);
    record.serialNumber = in.String(0x07);

    if (in.VersionIsAtLeast(v2_1_0)) {
        record.wakeUpTypeValue = in.Byte(0x18);
        record.wakeUpType = kWakeUpTypeNames[in.Byte(0x18)];
    }
    if (in.VersionIsAtLeast(v2_4_0)) {
        record.family = in.String(0x1A);
        record.skuNumber = in.String(0x19);
    }
}

}  // namespace SMBIOS::Structures
