#pragma once

#include <tuple>

#include "smbios-inspect/records/field.h"
#include "structures/type_0.h"
#include "structures/type_1.h"
#include "structures/type_11.h"
#include "structures/type_2.h"
#include "structures/type_3.h"
#include "structures/type_32.h"

// The fields of the system, its board and its chassis.
namespace SMBIOS::Inspect {

template <>
struct Description<Structures::Type0::Types::Type0Struct> {
    using Record = Structures::Type0::Types::Type0Struct;
    static constexpr std::tuple kFields{
        Field{"vendor", "Vendor", &Record::vendor},
        Field{"biosVersion", "BIOS version", &Record::biosVersion},
        Field{"releaseDate", "Release date", &Record::releaseDate},
        Field{"startingAddressSegment", "Starting address segment", &Record::startingAddressSegment},
        Field{"systemBiosRelease", "System BIOS release", &Record::systemBiosRelease},
        Field{"ecFirmwareRelease", "Controller firmware release", &Record::ecFirmwareRelease},
        Field{"characteristics", "Characteristics", &Record::characteristics, UnnamedBits{.unknown = 2}},
        Field{"romSize", "ROM size", &Record::romSize, ByteSize{}},
        Field{"characteristicsExtension1", "Characteristics extension 1", &Record::characteristicsExtension1},
        Field{"characteristicsExtension2", "Characteristics extension 2", &Record::characteristicsExtension2},
        Field{"systemBiosMajorRelease", kShownElsewhere, &Record::systemBiosMajorRelease},
        Field{"systemBiosMinorRelease", kShownElsewhere, &Record::systemBiosMinorRelease},
        Field{"ecFirmwareMajorRelease", kShownElsewhere, &Record::ecFirmwareMajorRelease},
        Field{"ecFirmwareMinorRelease", kShownElsewhere, &Record::ecFirmwareMinorRelease},
    };
};

template <>
struct Description<Structures::Type1::Types::Type1Struct> {
    using Record = Structures::Type1::Types::Type1Struct;
    static constexpr std::tuple kFields{
        Field{"manufacturer", "Manufacturer", &Record::manufacturer},
        Field{"productName", "Product name", &Record::productName},
        Field{"version", "Version", &Record::version},
        Field{"serialNumber", "Serial number", &Record::serialNumber},
        Field{"uuid", "UUID", &Record::uuid},
        Field{"wakeUpTypeValue", "Wake-up type", &Record::wakeUpTypeValue, NamedBy{&Record::wakeUpType}},
        Field{"wakeUpType", kShownElsewhere, &Record::wakeUpType},
        Field{"skuNumber", "SKU number", &Record::skuNumber},
        Field{"family", "Family", &Record::family},
    };
};

template <>
struct Description<Structures::Type2::Types::BoardFeatureFlags> {
    using Part = Structures::Type2::Types::BoardFeatureFlags;
    static constexpr std::tuple kFields{
        Field{"hotSwappable", kNoLabel, &Part::hotSwappable, IfSet{"hot swappable"}},
        Field{"removable", kNoLabel, &Part::removable, IfSet{"removable"}},
        Field{"replaceable", kNoLabel, &Part::replaceable, IfSet{"replaceable"}},
        Field{"hostingBoard", kNoLabel, &Part::hostingBoard, IfSet{"hosting board"}},
        Field{"requiresDaughterBoard",
              kNoLabel,
              &Part::requiresDaughterBoard,
              IfSet{"requires a daughter board"}},
        Field{"raw", "raw", &Part::raw, InHexadecimal{}},
    };
};

template <>
struct Description<Structures::Type2::Types::Type2Struct> {
    using Record = Structures::Type2::Types::Type2Struct;
    static constexpr std::tuple kFields{
        Field{"manufacturer", "Manufacturer", &Record::manufacturer},
        Field{"product", "Product", &Record::product},
        Field{"version", "Version", &Record::version},
        Field{"serialNumber", "Serial number", &Record::serialNumber},
        Field{"assetTag", "Asset tag", &Record::assetTag},
        Field{"featureFlags", "Features", &Record::featureFlags},
        Field{"locationInChassis", "Location in chassis", &Record::locationInChassis},
        Field{"chassisHandle", "Chassis", &Record::chassisHandle, InHexadecimal{}},
        Field{"boardTypeValue", "Board type", &Record::boardTypeValue, NamedBy{&Record::boardType, 2, 1}},
        Field{"boardType", kShownElsewhere, &Record::boardType},
        Field{
            "containedObjectHandles", "Contained objects", &Record::containedObjectHandles, InHexadecimal{}},
    };
};

template <>
struct Description<Structures::Type3::Types::ContainedElement> {
    using Part = Structures::Type3::Types::ContainedElement;
    static constexpr std::tuple kFields{
        Field{"typeValue", kNoLabel, &Part::typeValue, NamedBy{&Part::typeName, kNoCode, kNoCode}},
        Field{"typeSelect", kNoLabel, &Part::typeSelect},
        Field{"typeName", kShownElsewhere, &Part::typeName},
        Field{"minimum", "minimum", &Part::minimum},
        Field{"maximum", "maximum", &Part::maximum},
    };
};

template <>
struct Description<Structures::Type3::Types::Type3Struct> {
    using Record = Structures::Type3::Types::Type3Struct;
    static constexpr std::tuple kFields{
        Field{"manufacturer", "Manufacturer", &Record::manufacturer},
        Field{"chassisTypeValue", "Type", &Record::chassisTypeValue, NamedBy{&Record::chassisType}},
        Field{"chassisType", kShownElsewhere, &Record::chassisType},
        Field{"version", "Version", &Record::version},
        Field{"serialNumber", "Serial number", &Record::serialNumber},
        Field{"assetTag", "Asset tag", &Record::assetTag},
        Field{"chassisLock", "Lock present", &Record::chassisLock},
        Field{"bootUpStateValue", "Boot-up state", &Record::bootUpStateValue, NamedBy{&Record::bootUpState}},
        Field{"bootUpState", kShownElsewhere, &Record::bootUpState},
        Field{"powerSupplyStateValue",
              "Power supply state",
              &Record::powerSupplyStateValue,
              NamedBy{&Record::powerSupplyState}},
        Field{"powerSupplyState", kShownElsewhere, &Record::powerSupplyState},
        Field{
            "thermalStateValue", "Thermal state", &Record::thermalStateValue, NamedBy{&Record::thermalState}},
        Field{"thermalState", kShownElsewhere, &Record::thermalState},
        Field{"securityStatusValue",
              "Security status",
              &Record::securityStatusValue,
              NamedBy{&Record::securityStatus}},
        Field{"securityStatus", kShownElsewhere, &Record::securityStatus},
        Field{"oemDefined", "OEM-defined", &Record::oemDefined, InHexadecimal{}},
        Field{"height", "Height", &Record::height, UnitUnlessZero{"U", "not specified"}},
        Field{"numberOfPowerCords", "Power cords", &Record::numberOfPowerCords},
        Field{"skuNumber", "SKU number", &Record::skuNumber},
        Field{"containedElements", "Contained elements", &Record::containedElements},
    };
};

template <>
struct Description<Structures::Type11::Types::Type11Struct> {
    static constexpr std::tuple<> kFields{};
};

template <>
struct Description<Structures::Type32::Types::Type32Struct> {
    using Record = Structures::Type32::Types::Type32Struct;
    static constexpr std::tuple kFields{
        Field{"bootStatusValue", "Boot status", &Record::bootStatusValue, NamedBy{&Record::bootStatus}},
        Field{"bootStatus", kShownElsewhere, &Record::bootStatus},
        Field{"bootStatusData", "Boot status data", &Record::bootStatusData},
    };
};

}  // namespace SMBIOS::Inspect
