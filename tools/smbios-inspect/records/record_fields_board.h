#pragma once

#include <tuple>

#include "smbios-inspect/records/field.h"
#include "structures/type_21.h"
#include "structures/type_41.h"
#include "structures/type_43.h"
#include "structures/type_8.h"
#include "structures/type_9.h"

// The fields of ports, slots and devices on the board.
namespace SMBIOS::Inspect {

/// Without the NULs that fill up a shorter name.
[[nodiscard]] std::string VendorIdText(const Structures::Type43::Types::Type43Struct& record);

template <>
struct Description<Structures::Type8::Types::Type8Struct> {
    using Record = Structures::Type8::Types::Type8Struct;
    static constexpr std::tuple kFields{
        Field{"internalConnectorType",
              "Internal connector",
              &Record::internalConnectorType,
              NamedBy{&Record::internalConnectorTypeName}},
        Field{"externalConnectorType",
              "External connector",
              &Record::externalConnectorType,
              NamedBy{&Record::externalConnectorTypeName}},
        Field{"portType", "Port type", &Record::portType, NamedBy{&Record::portTypeName}},
        Field{"internalReferenceDesignator", "Internal designator", &Record::internalReferenceDesignator},
        Field{"externalReferenceDesignator", "External designator", &Record::externalReferenceDesignator},
        Field{"internalConnectorTypeName", kShownElsewhere, &Record::internalConnectorTypeName},
        Field{"externalConnectorTypeName", kShownElsewhere, &Record::externalConnectorTypeName},
        Field{"portTypeName", kShownElsewhere, &Record::portTypeName},
    };
};

template <>
struct Description<Structures::Type9::Types::PeerGroup> {
    using Part = Structures::Type9::Types::PeerGroup;
    static constexpr std::tuple kFields{
        Field{"segmentGroupNumber", "segment group", &Part::segmentGroupNumber},
        Field{"busNumber", "bus", &Part::busNumber},
        Field{"deviceNumber", "device", &Part::deviceNumber},
        Field{"functionNumber", "function", &Part::functionNumber},
        Field{"dataBusWidth", "data bus width", &Part::dataBusWidth},
    };
};

template <>
struct Description<Structures::Type9::Types::Type9Struct> {
    using Record = Structures::Type9::Types::Type9Struct;
    static constexpr std::tuple kFields{
        Field{"slotDesignation", "Designation", &Record::slotDesignation},
        Field{"slotType", "Type", &Record::slotType, NamedBy{&Record::slotTypeName}},
        Field{"slotTypeName", kShownElsewhere, &Record::slotTypeName},
        Field{"slotDataBusWidth",
              "Data bus width (slot)",
              &Record::slotDataBusWidth,
              NamedBy{&Record::slotDataBusWidthName}},
        Field{"slotDataBusWidthName", kShownElsewhere, &Record::slotDataBusWidthName},
        Field{"currentUsage", "Current usage", &Record::currentUsage, NamedBy{&Record::currentUsageName}},
        Field{"currentUsageName", kShownElsewhere, &Record::currentUsageName},
        Field{"slotLength", "Length", &Record::slotLength, NamedBy{&Record::slotLengthName}},
        Field{"slotLengthName", kShownElsewhere, &Record::slotLengthName},
        Field{"slotId", "Slot id", &Record::slotId, InHexadecimal{}},
        Field{"slotCharacteristics1",
              "Characteristics 1",
              &Record::slotCharacteristics1,
              UnnamedBits{.unknown = 0}},
        Field{"slotCharacteristics2", "Characteristics 2", &Record::slotCharacteristics2},
        Field{"segmentGroupNumber", "Segment group", &Record::segmentGroupNumber},
        Field{"busNumber", "Bus", &Record::busNumber},
        Field{"deviceNumber", "Device", &Record::deviceNumber},
        Field{"functionNumber", "Function", &Record::functionNumber},
        Field{"dataBusWidth",
              "Data bus width (base)",
              &Record::dataBusWidth,
              NamedBy{&Record::dataBusWidthName}},
        Field{"dataBusWidthName", kShownElsewhere, &Record::dataBusWidthName},
        Field{"peerGroups", "Peer groups", &Record::peerGroups},
        Field{"slotHeight", "Height", &Record::slotHeight, NamedBy{&Record::slotHeightName}},
        Field{"slotHeightName", kShownElsewhere, &Record::slotHeightName},
        Field{"slotPitch", "Pitch", &Record::slotPitch, Unit{"mm"}},
        Field{"slotPhysicalWidth",
              "Physical width",
              &Record::slotPhysicalWidth,
              NamedBy{&Record::slotPhysicalWidthName}},
        Field{"slotPhysicalWidthName", kShownElsewhere, &Record::slotPhysicalWidthName},
        Field{"slotInformation", "Information", &Record::slotInformation, InHexadecimal{}},
    };
};

template <>
struct Description<Structures::Type21::Types::Type21Struct> {
    using Record = Structures::Type21::Types::Type21Struct;
    static constexpr std::tuple kFields{
        Field{"typeValue", "Type", &Record::typeValue, NamedBy{&Record::type}},
        Field{"type", kShownElsewhere, &Record::type},
        Field{"interfaceValue", "Interface", &Record::interfaceValue, NamedBy{&Record::interface}},
        Field{"interface", kShownElsewhere, &Record::interface},
        Field{"numberOfButtons", "Buttons", &Record::numberOfButtons},
    };
};

template <>
struct Description<Structures::Type41::Types::Type41Struct> {
    using Record = Structures::Type41::Types::Type41Struct;
    static constexpr std::tuple kFields{
        Field{"referenceDesignation", "Designation", &Record::referenceDesignation},
        Field{"deviceTypeInstance", "Instance", &Record::deviceTypeInstance},
        Field{"segmentGroupNumber", "Segment group", &Record::segmentGroupNumber},
        Field{"busNumber", "Bus", &Record::busNumber},
        Field{"isEnabled", "Enabled", &Record::isEnabled},
        Field{"deviceType", "Device type", &Record::deviceType},
        Field{"deviceNumber", "Device", &Record::deviceNumber},
        Field{"functionNumber", "Function", &Record::functionNumber},
    };
};

template <>
struct Description<Structures::Type43::Types::Type43Struct> {
    using Record = Structures::Type43::Types::Type43Struct;
    static constexpr std::tuple kFields{
        Field{"description", "Description", &Record::description},
        Field{"vendorId", "Vendor id", &Record::vendorId, VendorIdText},
        Field{"majorSpecVersion", kShownElsewhere, &Record::majorSpecVersion},
        Field{"minorSpecVersion", kShownElsewhere, &Record::minorSpecVersion},
        Field{"firmwareVersion1", kShownElsewhere, &Record::firmwareVersion1},
        Field{"firmwareVersion2", kShownElsewhere, &Record::firmwareVersion2},
        Field{"firmwareVersion", "Firmware version", &Record::firmwareVersion},
        Field{"specVersion", "TPM version", &Record::specVersion},
        Field{"characteristics", "Characteristics", &Record::characteristics},
        Field{"oemDefined", "OEM-defined", &Record::oemDefined, InHexadecimal{}},
    };
};

}  // namespace SMBIOS::Inspect
