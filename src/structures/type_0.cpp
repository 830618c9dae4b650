#include "structures/type_0.h"

#include <iterator>

#include "common/format.h"
#include "structures/decoding.h"
#include "structures/hex_text.h"

namespace SMBIOS::Structures {

using Type0::Types::Type0Struct;

namespace {

constexpr Gate kGates[] = {
    {LengthAbove(0x12), VersionExactly(v2_0_0), "v2.1.0 structure or later in a v2.0.0 BIOS"},
    {LengthAtLeast(0x14), VersionBelow(v2_3_0), "v2.3.0 structure or later in a v2.2.0 BIOS or older"},
    // Departs from the standard: the 24 bytes that versions 2.4.0 to 3.0.0 call for are refused before 3.1.0.
    {LengthAtLeast(0x18), VersionBelow(v3_1_0), "v3.1.0 structure or later in a v3.0.0 BIOS or older"},
};

constexpr const char* kBiosCharacteristicNames[] = {
    "dontCare",
    "dontCare",
    "dontCare",
    "notSupported",
    "isaSupported",
    "mcaSupported",
    "eisaSupported",
    "pciSupported",
    "pcmciaSupported",
    "pnPSupported",
    "apmSupported",
    "fwUpgradable",
    "fwShadowAllowed",
    "vlVesaSupported",
    "escdSupported",
    "cdBootSupported",
    "selectableBootSupported",
    "fwRomSocketed",
    "pcmciaBootSupported",
    "eddSpecSupported",
    "jFloppyNec9800_1_2mb_Supported",
    "jFloppyToshiba_1_2mb_Supported",
    "stdFloppy_5_25_360kb_Supported",
    "stdFloppy_5_25_1_2mb_Supported",
    "stdFloppy_3_5_720kb_Supported",
    "stdFloppy_3_5__2_88mb_Supported",
    "prtScrSvcSupported",
    "keyboard8042SvcsSupported",
    "serialSvcsSupported",
    "printerSvcsSupported",
    "cgaMonoVideoSvcsSupported",
    "necPc98Supported",
    "fwVendorSpec0",
    "fwVendorSpec1",
    "fwVendorSpec2",
    "fwVendorSpec3",
    "fwVendorSpec4",
    "fwVendorSpec5",
    "fwVendorSpec6",
    "fwVendorSpec7",
    "fwVendorSpec8",
    "fwVendorSpec9",
    "fwVendorSpec10",
    "fwVendorSpec11",
    "fwVendorSpec12",
    "fwVendorSpec13",
    "fwVendorSpec14",
    "fwVendorSpec15",
    "sysVendorSpec0",
    "sysVendorSpec1",
    "sysVendorSpec2",
    "sysVendorSpec3",
    "sysVendorSpec4",
    "sysVendorSpec5",
    "sysVendorSpec6",
    "sysVendorSpec7",
    "sysVendorSpec8",
    "sysVendorSpec9",
    "sysVendorSpec10",
    "sysVendorSpec11",
    "sysVendorSpec12",
    "sysVendorSpec13",
    "sysVendorSpec14",
    "sysVendorSpec15",
};
static_assert(std::size(kBiosCharacteristicNames) == 64);

/// ROM size in bytes; 0xFF blocks refer to the extended size, which tables before 3.1.0 do not have.
std::optional<std::uint64_t> RomSizeOf(const StructureReader& in) {
    constexpr std::uint64_t kBlock = std::uint64_t{64} << 10;
    constexpr std::uint64_t kMegabyte = std::uint64_t{1} << 20;
    constexpr std::uint64_t kGigabyte = std::uint64_t{1} << 30;
    const std::uint64_t lastBlock = in.Byte(0x09);
    if (lastBlock != 0xFF) {
        return (lastBlock + 1) * kBlock;
    }
    if (!in.VersionIsAtLeast(v3_1_0)) {
        return std::nullopt;  // departs from the standard: before 3.1.0 they are 16 megabytes
    }
    const std::uint64_t count = in.Word(0x18);  // departs from the standard: unit bits count as size
    const bool inGigabytes = (count & 0x4000U) != 0;
    return count * (inGigabytes ? kGigabyte : kMegabyte);
}

std::string StartingAddressSegmentOf(const StructureReader& in) {
    const std::uint16_t segment = in.Word(0x06);
    return segment == 0 ? std::string{} : HexText(segment);
}

/// Departs from the standard: 0xFF is a release number like any other.
std::string ReleaseText(std::uint8_t major, std::uint8_t minor) {
    return Common::format("{}.{}", major, minor);
}

}  // namespace

constinit const ParseRules Type_0::kRules = {
    .lengths = LengthFromTo(0x12, 0x1A),  // departs from the standard: longer structures are refused
    .gates = kGates,
    .strings = StringSetRule::alwaysIfPresent,
};

void Type_0::DecodeFieldsInOrder(StructureReader& in, Type0Struct& record) {
    // Departs from the standard: the firmware version at 0x05 is not read.
    record.vendor = in.String(0x04);
    record.releaseDate = in.String(0x08);
    record.romSize = RomSizeOf(in);
    record.startingAddressSegment = StartingAddressSegmentOf(in);
    // Departs from the standard: release numbers are reported for tables of every version.
    record.systemBiosMajorRelease = in.Byte(0x14);
    record.systemBiosMinorRelease = in.Byte(0x15);
    record.ecFirmwareMajorRelease = in.Byte(0x16);
    record.ecFirmwareMinorRelease = in.Byte(0x17);
    record.systemBiosRelease = ReleaseText(in.Byte(0x14), in.Byte(0x15));
    record.ecFirmwareRelease = ReleaseText(in.Byte(0x16), in.Byte(0x17));
    record.characteristics.emplace(in.Qword(0x0A), 64, kBiosCharacteristicNames);
    // Departs from the standard: the extension bytes at 0x12 and 0x13 are not reported.
}

}  // namespace SMBIOS::Structures
