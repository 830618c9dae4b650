#include <algorithm>
#include <array>
#include <string>

#include "smbios-inspect/output/units.h"
#include "smbios-inspect/standard/described_types.h"
#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/row_visitor.h"
#include "smbios-inspect/standard/words_management.h"

// The management controller's host interface: a device, and records of the protocols it speaks.
namespace SMBIOS::Inspect::Standard {

namespace {

constexpr std::uint8_t kNetwork = 0x40;
constexpr std::size_t kData = 0x06;

/// Everything up to the network's number belongs to the MCTP's own list.
Value ReadHostInterface(const Reading& reading) {
    constexpr std::uint64_t kOem = 0xF0;
    const std::uint64_t type = reading.Raw();
    const auto words = kHostInterfaces.Find(type);
    if (type == kOem) {
        return Words(type, "OEM");
    }
    return Words(type, words.value_or(type < kNetwork ? "MCTP" : kOutOfSpec));
}

Value ReadHostDevice(const Reading& reading) {
    const std::uint64_t type = reading.Raw();
    return Words(type, type >= 0x80 ? "OEM" : WordsFor(kHostDevices, type));
}

Value ReadMacAddress(const Reading& reading) {
    std::string text;
    for (const std::uint8_t byte : reading.structure.Area().Bytes<6>(reading.Offset())) {
        text += (text.empty() ? "" : ":") + HexadecimalText(std::array{byte});
    }
    return Text(std::move(text));
}

constexpr FieldRow kHostInterfaceRows[] = {
    {0x04, kByte, "interfaceType", "Host Interface Type", CodeBy(ReadHostInterface)},
    {0x05, kByte, "interfaceTypeSpecificDataLength", "", Measure("byte", " bytes")},
};

// The devices of a network interface, at the data that is specific to it

constexpr FieldRow kDeviceTypeRows[] = {
    {0x00, kByte, "deviceType", "Device Type", CodeBy(ReadHostDevice)},
};
constexpr FieldRow kUsbRows[] = {
    {0x01, kWord, "vendorId", "idVendor", Hex()},
    {0x03, kWord, "productId", "idProduct", Hex()},
};
constexpr FieldRow kPciRows[] = {
    {0x01, kWord, "vendorId", "VendorID", Hex()},
    {0x03, kWord, "deviceId", "DeviceID", Hex()},
    {0x05, kWord, "subsystemVendorId", "SubVendorID", Hex()},
    {0x07, kWord, "subsystemId", "SubDeviceID", Hex()},
};
constexpr FieldRow kUsb2Rows[] = {
    {0x01, kByte, "deviceDescriptorLength", "", Measure("byte", " bytes")},
    {0x02, kWord, "vendorId", "idVendor", Hex()},
    {0x04, kWord, "productId", "idProduct", Hex()},
    {0x06, kByte, "serialNumber", "Serial Number", String()},
    {0x07, 6, "macAddress", "MAC Address", TextBy(ReadMacAddress)},
};
constexpr FieldRow kPci2Rows[] = {
    {0x01, kByte, "deviceDescriptorLength", "", Measure("byte", " bytes")},
    {0x02, kWord, "vendorId", "VendorID", Hex()},
    {0x04, kWord, "deviceId", "DeviceID", Hex()},
    {0x06, kWord, "subsystemVendorId", "SubVendorID", Hex()},
    {0x08, kWord, "subsystemId", "SubDeviceID", Hex()},
    {0x0A, 6, "macAddress", "MAC Address", TextBy(ReadMacAddress)},
    {0x10, kDword, "busAddress", "Bus Address", BusAddress()},
};

std::span<const FieldRow> RowsOfDevice(std::uint8_t type) {
    switch (type) {
        case 2:
            return kUsbRows;
        case 3:
            return kPciRows;
        case 4:
            return kUsb2Rows;
        case 5:
            return kPci2Rows;
        default:
            return {};
    }
}

// A protocol record

Value ReadProtocol(const Reading& reading) {
    constexpr std::uint64_t kOem = 0xF0;
    const std::uint64_t id = reading.Raw();
    const std::string words(id == kOem ? "OEM" : WordsFor(kHostProtocols, id));
    return Words(id, HexadecimalText(std::array{static_cast<std::uint8_t>(id)}) + " (" + words + ")");
}

constexpr FieldRow kProtocolRows[] = {
    {0x00, kByte, "protocolId", "Protocol ID", CodeBy(ReadProtocol)},
    {0x01, kByte, "protocolTypeSpecificDataLength", "", Measure("byte", " bytes")},
};

// Redfish over IP, at the data of its record

/// Four bytes with points between them.
Value ReadIpv4(const Reading& reading) {
    std::string text;
    for (const std::uint8_t byte : reading.structure.Area().Bytes<4>(reading.Offset())) {
        text += (text.empty() ? "" : ".") + std::to_string(byte);
    }
    return Text(std::move(text));
}

/// Eight groups of four digits.
Value ReadIpv6(const Reading& reading) {
    const auto bytes = reading.structure.Area().Bytes<16>(reading.Offset());
    std::string text = HexadecimalText(bytes);
    for (std::size_t position = 28; position != 0; position -= 4) {
        text.insert(position, 1, ':');
    }
    return Text(std::move(text));
}

/// As long as the byte in front of it says.
Value ReadHostname(const Reading& reading) {
    const Structures::FormattedArea area = reading.structure.Area();
    const std::size_t begin = reading.Offset() + 1;
    const std::size_t end = std::min(begin + area.Byte(reading.Offset()), area.Size());
    const auto name = reading.structure.bytes.subspan(begin, end - begin);
    return Text(std::string(name.begin(), std::find(name.begin(), name.end(), std::uint8_t{0})));
}

constexpr FieldRow kRedfishHostRows[] = {
    {0x00, 16, "serviceUuid", "Service UUID", Uuid()},
    {0x10, kByte, "hostIpAssignmentType", "Host IP Assignment Type", Code(kIpAssignments)},
    {0x11, kByte, "hostIpAddressFormat", "Host IP Address Format", Code(kIpFormats)},
};
constexpr FieldRow kRedfishHostIpv4Rows[] = {
    {0x12, 16, "hostIpAddress", "IPv4 Address", TextBy(ReadIpv4)},
    {0x22, 16, "hostIpMask", "IPv4 Mask", TextBy(ReadIpv4)},
};
constexpr FieldRow kRedfishHostIpv6Rows[] = {
    {0x12, 16, "hostIpAddress", "IPv6 Address", TextBy(ReadIpv6)},
    {0x22, 16, "hostIpMask", "IPv6 Mask", TextBy(ReadIpv6)},
};
constexpr FieldRow kRedfishServiceRows[] = {
    {0x32, kByte, "redfishServiceIpDiscoveryType", "Redfish Service IP Discovery Type", Code(kIpAssignments)},
    {0x33, kByte, "redfishServiceIpAddressFormat", "Redfish Service IP Address Format", Code(kIpFormats)},
};
constexpr FieldRow kRedfishServiceIpv4Rows[] = {
    {0x34, 16, "redfishServiceIpAddress", "IPv4 Redfish Service Address", TextBy(ReadIpv4)},
    {0x44, 16, "redfishServiceIpMask", "IPv4 Redfish Service Mask", TextBy(ReadIpv4)},
};
constexpr FieldRow kRedfishServiceIpv6Rows[] = {
    {0x34, 16, "redfishServiceIpAddress", "IPv6 Redfish Service Address", TextBy(ReadIpv6)},
    {0x44, 16, "redfishServiceIpMask", "IPv6 Redfish Service Mask", TextBy(ReadIpv6)},
};
constexpr FieldRow kRedfishPortRows[] = {
    {0x54, kWord, "redfishServiceIpPort", "Redfish Service Port", Count()},
    {0x56, kDword, "redfishServiceVlanId", "Redfish Service Vlan", Count()},
    {0x5A, kByte, "redfishServiceHostname", "Redfish Service Hostname", TextBy(ReadHostname)},
};

constexpr GroupTable kHostInterfaceGroups[] = {
    {.group = "", .rows = kDeviceTypeRows},
    {.group = "", .rows = kUsbRows},
    {.group = "", .rows = kPciRows},
    {.group = "", .rows = kUsb2Rows},
    {.group = "", .rows = kPci2Rows},
    {.group = "protocols", .rows = kProtocolRows},
    {.group = "protocols", .rows = kRedfishHostRows},
    {.group = "protocols", .rows = kRedfishHostIpv4Rows},
    {.group = "protocols", .rows = kRedfishHostIpv6Rows},
    {.group = "protocols", .rows = kRedfishServiceRows},
    {.group = "protocols", .rows = kRedfishServiceIpv4Rows},
    {.group = "protocols", .rows = kRedfishServiceIpv6Rows},
    {.group = "protocols", .rows = kRedfishPortRows},
};

/// Rows for an address in the format whose byte is at `format`.
std::span<const FieldRow> RowsOfAddress(std::uint8_t format,
                                        std::span<const FieldRow> ipv4,
                                        std::span<const FieldRow> ipv6) {
    constexpr std::uint8_t kIpv4 = 1;
    constexpr std::uint8_t kIpv6 = 2;
    if (format != kIpv4 && format != kIpv6) {
        return {};
    }
    return format == kIpv4 ? ipv4 : ipv6;
}

void VisitRedfish(RowVisitor& visitor, std::size_t base, const GroupPlace& place) {
    const Structures::FormattedArea& area = visitor.Area();
    visitor.VisitRows(kRedfishHostRows, base, place);
    visitor.VisitRows(
        RowsOfAddress(area.Byte(base + 0x11), kRedfishHostIpv4Rows, kRedfishHostIpv6Rows), base, place);
    visitor.VisitRows(kRedfishServiceRows, base, place);
    visitor.VisitRows(
        RowsOfAddress(area.Byte(base + 0x33), kRedfishServiceIpv4Rows, kRedfishServiceIpv6Rows), base, place);
    visitor.VisitRows(kRedfishPortRows, base, place);
}

void VisitProtocols(RowVisitor& visitor, std::size_t countAt) {
    constexpr std::uint8_t kRedfish = 0x04;
    constexpr std::size_t kRecordHeader = 2;
    const std::size_t count = visitor.Area().Byte(countAt);
    std::size_t at = countAt + 1;
    for (std::size_t i = 0; i < count && at < visitor.Area().Size(); ++i) {
        visitor.VisitObject(kHostInterfaceGroups[5], i, at);
        if (visitor.Area().Byte(at) == kRedfish) {
            VisitRedfish(visitor, at + kRecordHeader, {.group = kHostInterfaceGroups[5].group, .index = i});
        }
        at += kRecordHeader + visitor.Area().Byte(at + 1);
    }
}

void VisitHostInterface(RowVisitor& visitor) {
    if (visitor.Area().Size() <= kData || visitor.Area().Byte(0x04) != kNetwork) {
        return;
    }
    const std::size_t length = visitor.Area().Byte(0x05);
    if (length != 0) {
        visitor.VisitRows(kDeviceTypeRows, kData);
        visitor.VisitRows(RowsOfDevice(visitor.Area().Byte(kData)), kData);
    }
    VisitProtocols(visitor, kData + length);
}

}  // namespace

constexpr TypeDescription kHostInterface = {
    42, 0x05, kHostInterfaceRows, kHostInterfaceGroups, VisitHostInterface};

}  // namespace SMBIOS::Inspect::Standard
