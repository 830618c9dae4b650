#include "structures/type_9.h"

#include "structures/decoding.h"
#include "structures/slot_type_names.h"

namespace SMBIOS::Structures {

using Type9::Types::PeerGroup;
using Type9::Types::Type9Struct;

namespace {

// Deliberately lets lengths 0x0D to 0x10 pass in every table from 2.1.0 on.
constexpr Gate kGates[] = {
    {LengthAbove(0x0C), VersionExactly(v2_0_0), "v2.1.0 structure or later in a v2.0.0 BIOS or older"},
    {LengthExactly(0x11), VersionBelow(v2_6_0), "v2.6.0 structure or later in a v2.5.0 BIOS or older"},
    {LengthAbove(0x11), VersionBelow(v3_2_0), "v3.2.0 structure or later in a v3.1.1 BIOS or older"},
};

constexpr auto kDataBusWidthNames = ByteTable({
    {0x03, "8 bit"},
    {0x04, "16 bit"},
    {0x05, "32 bit"},
    {0x06, "64 bit"},
    {0x07, "128 bit"},
    {0x08, "1x or x1"},
    {0x09, "2x or x2"},
    {0x0A, "4x or x4"},
    {0x0B, "8x or x8"},
    {0x0C, "12x or x12"},
    {0x0D, "16x or x16"},
    {0x0E, "32x or x32"},
});

constexpr auto kCurrentUsageNames = ByteTable({
    {0x03, "Available"},
    {0x04, "In Use"},
    {0x05, "Unavailable"},
});

constexpr auto kSlotLengthNames = ByteTable({
    {0x03, "Short Length"},
    {0x04, "Long Length"},
    {0x05, "2.5\" drive form factor"},
    {0x06, "3.5\" drive form factor"},
});

constexpr auto kSlotHeightNames = ByteTable({
    {0x00, "Not Applicable"},
    {0x03, "Full Height"},
    {0x04, "Low-profile"},
});

constexpr const char* kSlotCharacteristics1Names[] = {
    "dontCare",
    "doesProvide__5_0V",
    "doesProvide__3_3V",
    "isSlotOpeningShared",
    "isPCCard16Supported",
    "isCardBusSupported",
    "isZoomVideoSupported",
    "isModemRingResumeSupported",
};

constexpr const char* kSlotCharacteristics2Names[] = {
    "isPMESupported",
    "isHotPlugSupported",
    "isSMBusSignalSupported",
    "isBifurcationSupported",
    "isAsync_SurpriseRemovalSupported",
    "isFlexbusCXL__1_0Supported",
    "isFlexbusCXL__2_0Supported",
    "isFlexbusCXL__3_0Supported",
};

constexpr std::size_t kPeerGroupsOffset = 0x13;
constexpr std::size_t kPeerGroupSize = 5;
constexpr std::size_t kLargestTail = 5;

constexpr std::uint8_t DeviceNumberOf(std::uint8_t deviceAndFunction) {
    return static_cast<std::uint8_t>(deviceAndFunction >> 3);
}

constexpr std::uint8_t FunctionNumberOf(std::uint8_t deviceAndFunction) {
    return deviceAndFunction & 0x07U;
}

PeerGroup PeerGroupAt(const StructureReader& in, std::size_t offset) {
    return {
        .segmentGroupNumber = in.Word(offset),
        .busNumber = in.Byte(offset + 2),
        .deviceNumber = DeviceNumberOf(in.Byte(offset + 3)),
        .functionNumber = FunctionNumberOf(in.Byte(offset + 3)),
        .dataBusWidth = in.Byte(offset + 4),
    };
}

/// The peer groups up to `end`; none when there is no group. Departs from the standard: none when not all of
/// them fit.
std::optional<std::vector<PeerGroup>> PeerGroupsUpTo(const StructureReader& in, std::size_t end) {
    if (end == kPeerGroupsOffset || end > in.Size()) {
        return std::nullopt;
    }
    std::vector<PeerGroup> groups;
    for (std::size_t offset = kPeerGroupsOffset; offset < end; offset += kPeerGroupSize) {
        groups.push_back(PeerGroupAt(in, offset));
    }
    return groups;
}

/// The fields from `offset` to the end of the formatted area: as many of them as there are bytes for. Departs
/// from the standard: none when there are more bytes than fields.
void DecodeTail(const StructureReader& in, std::size_t offset, Type9Struct& record) {
    const std::size_t size = in.Size() > offset ? in.Size() - offset : 0;
    if (size == 0 || size > kLargestTail) {
        return;
    }
    if (size >= 5) {
        record.slotHeight = in.Byte(offset + 4);
        record.slotHeightName = kSlotHeightNames[in.Byte(offset + 4)];
    }
    if (size >= 3) {
        // Departs from the standard: 0, no pitch given, is a pitch. Of one cut short the low byte counts.
        record.slotPitch = static_cast<float>(in.Word(offset + 2)) / 100.0F;
    }
    if (size >= 2) {
        record.slotPhysicalWidth = in.Byte(offset + 1);
        record.slotPhysicalWidthName = kDataBusWidthNames[in.Byte(offset + 1)];
    }
    record.slotInformation = in.Byte(offset);
}

void DecodePeerGroupsAndTail(const StructureReader& in, Type9Struct& record) {
    if (in.Size() <= kPeerGroupsOffset) {
        return;
    }
    const std::size_t end = kPeerGroupsOffset + kPeerGroupSize * in.Byte(0x12);
    record.peerGroups = PeerGroupsUpTo(in, end);
    if (in.VersionIsAtLeast(v3_4_0)) {
        DecodeTail(in, end, record);
    }
}

}  // namespace

constinit const ParseRules Type_9::kRules = {
    .lengths = LengthAtLeast(0x0C),
    .gates = kGates,
};

void Type_9::DecodeFieldsInOrder(StructureReader& in, Type9Struct& record) {
    record.slotId = in.Word(0x09);
    record.slotType = in.Byte(0x05);
    record.slotLength = in.Byte(0x08);
    record.currentUsage = in.Byte(0x07);
    record.slotDataBusWidth = in.Byte(0x06);
    record.slotDesignation = in.String(0x04);
    record.slotTypeName = kSlotTypeNames[in.Byte(0x05)];
    record.slotLengthName = kSlotLengthNames[in.Byte(0x08)];
    record.currentUsageName = kCurrentUsageNames[in.Byte(0x07)];
    record.slotDataBusWidthName = kDataBusWidthNames[in.Byte(0x06)];
    record.slotCharacteristics1.emplace(in.Byte(0x0B), 8, kSlotCharacteristics1Names);

    if (in.VersionIsAtLeast(v2_1_0)) {
        record.slotCharacteristics2.emplace(in.Byte(0x0C), 8, kSlotCharacteristics2Names);
    }
    if (in.VersionIsAtLeast(v2_6_0)) {
        record.segmentGroupNumber = in.Word(0x0D);
        record.busNumber = in.Byte(0x0F);
        record.deviceNumber = DeviceNumberOf(in.Byte(0x10));
        record.functionNumber = FunctionNumberOf(in.Byte(0x10));
        record.dataBusWidth = in.Byte(0x11);  // departs from the standard: the field came with 3.2.0
        // Departs from the standard: the field is no code but a number of data lines.
        record.dataBusWidthName = kDataBusWidthNames[in.Byte(0x11)];
    }
    if (in.VersionIsAtLeast(v3_2_0)) {
        DecodePeerGroupsAndTail(in, record);
    }
}

}  // namespace SMBIOS::Structures
