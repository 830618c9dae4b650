#include "smbios-inspect/departures/join.h"
#include "smbios-inspect/standard/words_slot.h"
#include "structures/type_9.h"

// Ports, slots and devices on the board.
namespace SMBIOS::Inspect::Departures {

using enum Manager::SmbiosVersionIndex;
using Structures::VersionBelow;

namespace {

// Types 8 and 21: one connector of each bears this system's own name

template <std::uint64_t OwnCode>
bool ConnectorNameAgrees(const Comparison& comparison) {
    return comparison.Raw() == OwnCode ? AgreeWordForWord(comparison) : AgreeAsWordOfCode(comparison);
}

constexpr Cause kOwnName = {ReasonId::connectorNames};

constexpr Join kPort[] = {
    {"internalConnectorTypeName", "internalConnectorType", {ConnectorNameAgrees<0x11>}, {kOwnName}},
    {"externalConnectorTypeName", "externalConnectorType", {ConnectorNameAgrees<0x11>}, {kOwnName}},
};

constexpr Join kPointingDevice[] = {
    {"interface", "interface", {ConnectorNameAgrees<0x06>}, {kOwnName}},
};

constexpr Refusal kPointingDeviceRefusals[] = {
    {ReasonId::pointingDeviceAcceptance},
};

// Type 9

/// The standard's words have the width in front of them.
bool SlotTypeNameAgrees(const Comparison& comparison) {
    const std::string_view words =
        Standard::WordList(Standard::kSlotTypes).Find(comparison.Raw()).value_or("Reserved");
    return WordAgrees(TextOf(comparison.library.value), words);
}

/// A number of data lines has no name.
bool BusWidthNameAgrees(const Comparison& comparison) {
    return !comparison.HasLibraryValue();
}

constexpr std::size_t kFirstPeer = 0x13;
constexpr std::size_t kPeerSize = 5;

bool IsPeerAt(std::size_t offset,
              const Structures::Type9::Types::PeerGroup& peer,
              const Comparison& comparison) {
    const Structures::FormattedArea area = comparison.Area();
    return peer.segmentGroupNumber == area.Word(offset) && peer.busNumber == area.Byte(offset + 2) &&
           peer.deviceNumber * 8 + peer.functionNumber == area.Byte(offset + 3) &&
           peer.dataBusWidth == area.Byte(offset + 4);
}

bool PeerGroupsAgree(const Comparison& comparison) {
    const auto& groups = RecordIn<Structures::Type_9>(comparison).peerGroups;
    if (!groups) {
        return comparison.Raw() == 0 || comparison.Area().Size() < kFirstPeer + kPeerSize;
    }
    std::size_t offset = kFirstPeer;
    for (const auto& peer : *groups) {
        if (!IsPeerAt(offset, peer, comparison)) {
            return false;
        }
        offset += kPeerSize;
    }
    return comparison.HasStandardValue() && groups->size() == comparison.Raw();
}

bool IsBefore3_2(const Comparison& comparison) {
    return comparison.IsBefore(v3_2_0);
}

/// A pitch of zero, or one of which the structure has one byte.
bool IsPitchWithoutValue(const Comparison& comparison) {
    return comparison.HasLibraryValue() &&
           (!comparison.HasStandardValue() || HasNothing(*comparison.StandardValue()));
}

constexpr Cause kTail = {ReasonId::slotTail};

constexpr Join kSlot[] = {
    {"slotTypeName", "slotType", {SlotTypeNameAgrees}, {{ReasonId::slotTypeName}}},
    {"segmentGroupNumber", "busAddress", Bits(0, 16)},
    {"busNumber", "busAddress", Bits(16, 8)},
    {"deviceNumber", "busAddress", Bits(27, 5)},
    {"functionNumber", "busAddress", Bits(24, 3)},
    {"dataBusWidth", "dataBusWidth", ByKind(), {{ReasonId::slotBusWidth, IsBefore3_2}}},
    {"dataBusWidthName", "dataBusWidth", {BusWidthNameAgrees}, {{ReasonId::slotBusWidthName, Always}}},
    {"peerGroups", "peerGroupingCount", {PeerGroupsAgree}, {{ReasonId::slotPeers}}},
    {"slotHeight", "slotHeight", ByKind(), {kTail}},
    {"slotHeightName", "slotHeight", WordOfCode(), {kTail}},
    {"slotPitch", "slotPitch", ByKind(), {{ReasonId::slotPitch, IsPitchWithoutValue}, kTail}},
    {"slotPhysicalWidth", "slotPhysicalWidth", ByKind(), {kTail}},
    {"slotPhysicalWidthName", "slotPhysicalWidth", WordOfCode(), {kTail}},
    {"slotInformation", "slotInformation", ByKind(), {kTail}},
};

// Type 41

constexpr Join kOnboardDevice[] = {
    {"segmentGroupNumber", "busAddress", Bits(0, 16)},
    {"busNumber", "busAddress", Bits(16, 8)},
    {"deviceNumber", "busAddress", Bits(27, 5)},
    {"functionNumber", "busAddress", Bits(24, 3)},
    {"isEnabled", "deviceStatus"},
    {"deviceType", "deviceType", OnlyWord()},
};

constexpr Refusal kOnboardDeviceRefusals[] = {
    {ReasonId::deviceVersions, Structures::kAnyLength, VersionBelow(v2_6_0)},
};

// Type 43

/// Four characters, of which the standard leaves out a zero and what is behind it.
bool VendorIdAgrees(const Comparison& comparison) {
    const std::string_view id = TextOf(comparison.library.value);
    return comparison.HasStandardValue() && comparison.StandardValue()->text == id.substr(0, id.find('\0'));
}

/// A TPM of version 1 has one word only.
bool SecondFirmwareVersionAgrees(const Comparison& comparison) {
    return comparison.HasLibraryValue() ? AgreeByKind(comparison) : comparison.Area().Byte(0x08) == 1;
}

constexpr Join kTpm[] = {
    {"vendorId", "vendorId", {VendorIdAgrees}},
    {"majorSpecVersion", "specVersion", Bits(0, 8)},
    {"minorSpecVersion", "specVersion", Bits(8, 8)},
    {"firmwareVersion1", "firmwareVersion1", Bits(0, 32)},
    {"firmwareVersion2", "firmwareVersion2", {SecondFirmwareVersionAgrees}},
};

constexpr Unpaired kTpmUnpaired[] = {
    {"firmwareVersion", "another spelling of the two numbers"},
    {"specVersion", "another spelling of the two numbers"},
};

constexpr Refusal kTpmRefusals[] = {
    {ReasonId::tpmLength},
};

}  // namespace

constexpr TypeJoins kPortJoins = {.type = 8, .joins = kPort};
constexpr TypeJoins kSlotJoins = {.type = 9, .joins = kSlot};
constexpr TypeJoins kPointingDeviceJoins = {
    .type = 21, .joins = kPointingDevice, .refusals = kPointingDeviceRefusals};
constexpr TypeJoins kOnboardDeviceJoins = {
    .type = 41, .joins = kOnboardDevice, .refusals = kOnboardDeviceRefusals};
constexpr TypeJoins kTpmJoins = {
    .type = 43, .joins = kTpm, .unpaired = kTpmUnpaired, .refusals = kTpmRefusals};

}  // namespace SMBIOS::Inspect::Departures
