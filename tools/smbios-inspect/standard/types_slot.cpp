#include <string>

#include "smbios-inspect/standard/described_types.h"
#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/row_visitor.h"
#include "smbios-inspect/standard/words_slot.h"

namespace SMBIOS::Inspect::Standard {

namespace {

constexpr std::size_t kSlotType = 0x05;
constexpr std::size_t kSlotWidth = 0x06;
constexpr std::size_t kPeerCount = 0x12;
constexpr std::size_t kFirstPeer = 0x13;
constexpr std::size_t kPeerSize = 5;

/// The width stands in front of the type: "32-bit PCI Express x1".
Value ReadSlotType(const Reading& reading) {
    const std::uint64_t type = reading.Raw();
    const std::uint8_t width = reading.structure.Area().Byte(kSlotWidth);
    std::string words(kSlotWidths.Find(width).value_or("<OUT OF SPEC> "));
    return Words(type, words.append(WordsFor(kSlotTypes, type)));
}

/// A PC card's number has an adapter and a socket, any other one is in the first byte.
Value ReadSlotId(const Reading& reading) {
    constexpr std::uint8_t kPcCard = 0x07;
    const std::uint64_t id = reading.Raw();
    const std::uint64_t first = id & 0xFF;
    if (reading.structure.Area().Byte(kSlotType) == kPcCard) {
        return Words(id, "Adapter " + std::to_string(first) + ", Socket " + std::to_string(id >> 8));
    }
    return Number(id, std::to_string(first));
}

/// People read both bytes in one list.
Value ReadSlotCharacteristics(const Reading& reading) {
    constexpr std::uint64_t kIsUnknown = 0x01;
    const std::uint64_t bits = reading.Raw();
    if ((bits & kIsUnknown) != 0) {
        return List(bits, std::string(kUnknown), {});
    }
    std::vector<Item> items = NamesOfBits(kSlotCharacteristics1, bits);
    for (Item& item : NamesOfBits(kSlotCharacteristics2, reading.structure.Area().Byte(0x0C))) {
        items.push_back(std::move(item));
    }
    std::string text = items.empty() ? "None" : "";
    return List(bits, std::move(text), std::move(items));
}

Value ReadPeer(const Reading& reading) {
    const Structures::FormattedArea area = reading.structure.Area();
    const std::size_t at = reading.Offset();
    const std::string address = BusAddressText(area.Word(at), area.Byte(at + 2), area.Byte(at + 3));
    Value peer = Text(address);
    peer.text += " (Width " + std::to_string(area.Byte(at + 4)) + ")";
    return peer;
}

/// In hundredths of a millimetre.
Value ReadPitch(const Reading& reading) {
    const std::uint64_t pitch = reading.Raw();
    if (pitch == 0) {
        return Nothing(kUnknown);
    }
    return Number(pitch, DecimalText(static_cast<std::int64_t>(pitch), 2) + " mm");
}

constexpr FieldRow kSystemSlotRows[] = {
    {0x04, kByte, "slotDesignation", "Designation", String()},
    {0x05, kByte, "slotType", "Type", CodeBy(ReadSlotType)},
    {0x06, kByte, "slotDataBusWidth", "", Code(kSlotPhysicalWidths)},
    {0x07, kByte, "currentUsage", "Current Usage", Code(kSlotUsages)},
    {0x08, kByte, "slotLength", "Length", Code(kSlotLengths)},
    {0x09, kWord, "slotId", "ID", NumberBy(ReadSlotId)},
    {0x0B, kByte, "slotCharacteristics1", "Characteristics", FlagsBy(ReadSlotCharacteristics)},
    {0x0C, kByte, "slotCharacteristics2", "", Flags(kSlotCharacteristics2)},
    {0x0D, kDword, "busAddress", "Bus Address", BusAddress()},
    {0x11, kByte, "dataBusWidth", "Data Bus Width", Count()},
    {0x12, kByte, "peerGroupingCount", "Peer Devices", Count()},
};

constexpr FieldRow kPeerRows[] = {
    {0x00, kPeerSize, "busAddress", "Peer Device #", TextBy(ReadPeer)},
    {0x04, kByte, "dataBusWidth", "", Count()},
};

/// Behind the peers.
constexpr FieldRow kBehindPeersRows[] = {
    {0x00, kByte, "slotInformation", "PCI Express Generation", Count()},
    {0x01, kByte, "slotPhysicalWidth", "Slot Physical Width", Code(kSlotPhysicalWidths)},
    {0x02, kWord, "slotPitch", "Pitch", NumberBy(ReadPitch, "0.01 mm")},
    {0x04, kByte, "slotHeight", "Height", Code(kSlotHeights)},
};

constexpr GroupTable kSlotGroups[] = {
    {.group = "peers", .rows = kPeerRows},
    {.group = "", .rows = kBehindPeersRows},
};

void VisitPeers(RowVisitor& visitor) {
    if (visitor.Area().Size() < kFirstPeer) {
        return;
    }
    const std::size_t count = visitor.Area().Byte(kPeerCount);
    for (std::size_t i = 0; i < count; ++i) {
        visitor.VisitObject(kSlotGroups[0], i, kFirstPeer + i * kPeerSize);
    }
    visitor.VisitRows(kBehindPeersRows, kFirstPeer + count * kPeerSize);
}

}  // namespace

constexpr TypeDescription kSystemSlots = {9, 0x0C, kSystemSlotRows, kSlotGroups, VisitPeers};

}  // namespace SMBIOS::Inspect::Standard
