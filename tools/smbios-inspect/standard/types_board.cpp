#include <string>

#include "smbios-inspect/standard/described_types.h"
#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/row_visitor.h"
#include "smbios-inspect/standard/words_board.h"
#include "smbios-inspect/standard/words_system.h"

// Boards, chassis, ports and the devices on board.
namespace SMBIOS::Inspect::Standard {

namespace {

// Type 2

constexpr FieldRow kBaseboardRows[] = {
    {0x04, kByte, "manufacturer", "Manufacturer", String()},
    {0x05, kByte, "product", "Product Name", String()},
    {0x06, kByte, "version", "Version", String()},
    {0x07, kByte, "serialNumber", "Serial Number", String()},
    {0x08, kByte, "assetTag", "Asset Tag", String()},
    {0x09, kByte, "featureFlags", "Features", Flags(kBoardFeatures)},
    {0x0A, kByte, "locationInChassis", "Location In Chassis", String()},
    {0x0B, kWord, "chassisHandle", "Chassis Handle", Handle()},
    {0x0D, kByte, "boardType", "Type", Code(kBoardTypes)},
    {0x0E, kByte, "containedObjectHandles", "Contained Object Handles", HandleList()},
};

// Type 3

/// An element is a board or a structure type, and how many of them there may be.
std::string ElementText(const Structures::FormattedArea& area, std::size_t at) {
    constexpr std::uint8_t kIsStructureType = 0x80;
    const std::uint8_t type = area.Byte(at);
    const std::string_view name =
        (type & kIsStructureType) != 0 ? TypeWords(type & 0x7F) : WordsFor(kBoardTypes, type);
    const std::string least = std::to_string(area.Byte(at + 1));
    const std::string most = std::to_string(area.Byte(at + 2));
    return std::string(name) + " (" + (least == most ? least : least + "-" + most) + ")";
}

constexpr std::size_t kFirstElement = 0x15;

std::size_t EndOfElements(const Structures::FormattedArea& area) {
    return kFirstElement + std::size_t{area.Byte(0x13)} * area.Byte(0x14);
}

Value ReadContainedElements(const Reading& reading) {
    constexpr std::size_t kLeastSize = 3;
    const Structures::FormattedArea area = reading.structure.Area();
    const std::uint64_t count = reading.Raw();
    const std::size_t size = area.Byte(0x14);
    std::vector<Item> elements;
    for (std::size_t at = kFirstElement; size >= kLeastSize && elements.size() < count; at += size) {
        if (at + size > area.Size()) {
            break;
        }
        elements.push_back({std::uint64_t{area.Byte(at)}, ElementText(area, at)});
    }
    return List(count, std::to_string(count), std::move(elements));
}

constexpr FieldRow kChassisRows[] = {
    {0x04, kByte, "manufacturer", "Manufacturer", String()},
    {0x05, kByte, "type", "Type", CodeIn(0, 7, kChassisTypes)},
    {0x05, kByte, "lock", "Lock", CodeIn(7, 1, kPresence)},
    {0x06, kByte, "version", "Version", String()},
    {0x07, kByte, "serialNumber", "Serial Number", String()},
    {0x08, kByte, "assetTagNumber", "Asset Tag", String()},
    {0x09, kByte, "bootUpState", "Boot-up State", Code(kChassisStates)},
    {0x0A, kByte, "powerSupplyState", "Power Supply State", Code(kChassisStates)},
    {0x0B, kByte, "thermalState", "Thermal State", Code(kChassisStates)},
    {0x0C, kByte, "securityStatus", "Security Status", Code(kSecurityStates)},
    {0x0D, kDword, "oemDefined", "OEM Information", Hex()},
    {0x11, kByte, "height", "Height", Measure("U", " U", kUnspecifiedIfZero)},
    {0x12, kByte, "numberOfPowerCords", "Number Of Power Cords", Count(kUnspecifiedIfZero)},
    {0x13, kByte, "containedElements", "Contained Elements", ListBy(ReadContainedElements)},
    {0x14, kByte, "containedElementRecordLength", "", Measure("byte", " bytes")},
};

/// Behind the contained elements.
constexpr FieldRow kBehindElementsRows[] = {
    {0x00, kByte, "skuNumber", "SKU Number", String()},
};
constexpr GroupTable kChassisGroups[] = {
    {.group = "", .rows = kBehindElementsRows},
};

void VisitBehindElements(RowVisitor& visitor) {
    if (visitor.Area().Size() >= kFirstElement) {
        visitor.VisitRows(kBehindElementsRows, EndOfElements(visitor.Area()));
    }
}

// Type 8

constexpr FieldRow kPortConnectorRows[] = {
    {0x04, kByte, "internalReferenceDesignator", "Internal Reference Designator", String()},
    {0x05, kByte, "internalConnectorType", "Internal Connector Type", Code(kConnectorTypes)},
    {0x06, kByte, "externalReferenceDesignator", "External Reference Designator", String()},
    {0x07, kByte, "externalConnectorType", "External Connector Type", Code(kConnectorTypes)},
    {0x08, kByte, "portType", "Port Type", Code(kPortTypes)},
};

// Type 10: as many devices of two bytes as its length has room for

constexpr FieldRow kOnBoardDeviceRows[] = {
    {0x00, kByte, "deviceType", "Type", CodeIn(0, 7, kOnBoardDeviceTypes)},
    {0x00, kByte, "deviceStatus", "Status", CodeIn(7, 1, kOnBoardDeviceStates)},
    {0x01, kByte, "description", "Description", String()},
};
constexpr GroupTable kOnBoardDeviceGroups[] = {
    {.group = "devices", .rows = kOnBoardDeviceRows, .heading = "On Board Device # Information"},
};

void VisitOnBoardDevices(RowVisitor& visitor) {
    constexpr std::size_t kFirst = 0x04;
    constexpr std::size_t kSize = 2;
    for (std::size_t i = 0; kFirst + (i + 1) * kSize <= visitor.Area().Size(); ++i) {
        visitor.VisitObject(kOnBoardDeviceGroups[0], i, kFirst + i * kSize);
    }
}

// Type 21

constexpr FieldRow kPointingDeviceRows[] = {
    {0x04, kByte, "type", "Type", Code(kPointingDeviceTypes)},
    {0x05, kByte, "interface", "Interface", Code(kPointingDeviceInterfaces)},
    {0x06, kByte, "numberOfButtons", "Buttons", Count()},
};

// Type 41

constexpr FieldRow kOnboardDevicesExtendedRows[] = {
    {0x04, kByte, "referenceDesignation", "Reference Designation", String()},
    {0x05, kByte, "deviceType", "Type", CodeIn(0, 7, kOnBoardDeviceTypes)},
    {0x05, kByte, "deviceStatus", "Status", CodeIn(7, 1, kOnBoardDeviceStates)},
    {0x06, kByte, "deviceTypeInstance", "Type Instance", Count()},
    {0x07, kDword, "busAddress", "Bus Address", BusAddress()},
};

}  // namespace

constexpr TypeDescription kBaseboard = {2, 0x08, kBaseboardRows};
constexpr TypeDescription kChassis = {3, 0x09, kChassisRows, kChassisGroups, VisitBehindElements};
constexpr TypeDescription kPortConnector = {8, 0x09, kPortConnectorRows};
constexpr TypeDescription kOnBoardDevices = {10, 0x06, {}, kOnBoardDeviceGroups, VisitOnBoardDevices};
constexpr TypeDescription kPointingDevice = {21, 0x07, kPointingDeviceRows};
constexpr TypeDescription kOnboardDevicesExtended = {41, 0x0B, kOnboardDevicesExtendedRows};

}  // namespace SMBIOS::Inspect::Standard
