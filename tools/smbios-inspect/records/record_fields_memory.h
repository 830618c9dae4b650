#pragma once

#include <tuple>

#include "smbios-inspect/records/field.h"
#include "structures/memory_error.h"
#include "structures/type_16.h"
#include "structures/type_17.h"
#include "structures/type_18.h"
#include "structures/type_19.h"
#include "structures/type_20.h"
#include "structures/type_33.h"

// The fields of memory, its addresses and its errors.
namespace SMBIOS::Inspect {

/// Sizes that count kilobytes or bytes, as the firmware does.
[[nodiscard]] std::string MaximumCapacityText(const Structures::Type16::Types::Type16Struct& record);
[[nodiscard]] std::string DeviceSizeText(const Structures::Type17::Types::Type17Struct& record);

/// Addresses that count kilobytes or bytes, likewise.
[[nodiscard]] std::string ArrayStartText(const Structures::Type19::Types::Type19Struct& record);
[[nodiscard]] std::string ArrayEndText(const Structures::Type19::Types::Type19Struct& record);
[[nodiscard]] std::string DeviceStartText(const Structures::Type20::Types::Type20Struct& record);
[[nodiscard]] std::string DeviceEndText(const Structures::Type20::Types::Type20Struct& record);

template <>
struct Description<Structures::Type16::Types::Type16Struct> {
    using Record = Structures::Type16::Types::Type16Struct;
    static constexpr std::tuple kFields{
        Field{"location", "Location", &Record::location, NamedBy{&Record::locationName}},
        Field{"use", "Use", &Record::use, NamedBy{&Record::useName}},
        Field{"memoryErrorCorrection",
              "Error correction",
              &Record::memoryErrorCorrection,
              NamedBy{&Record::memoryErrorCorrectionName}},
        Field{"locationName", kShownElsewhere, &Record::locationName},
        Field{"useName", kShownElsewhere, &Record::useName},
        Field{"memoryErrorCorrectionName", kShownElsewhere, &Record::memoryErrorCorrectionName},
        Field{"maximumCapacity", "Maximum capacity", &Record::maximumCapacity, MaximumCapacityText},
        Field{"memoryErrorInformationHandle",
              "Error information",
              &Record::memoryErrorInformationHandle,
              HandleOfError{}},
        Field{"numberOfMemoryDevices", "Memory devices", &Record::numberOfMemoryDevices},
    };
};

template <>
struct Description<Structures::Type17::Types::Type17Struct> {
    using Record = Structures::Type17::Types::Type17Struct;
    static constexpr std::tuple kFields{
        Field{"deviceSet", "Device set", &Record::deviceSet},
        Field{"dataWidth", "Data width", &Record::dataWidth, Unit{"bits"}},
        Field{"totalWidth", "Total width", &Record::totalWidth, Unit{"bits"}},
        Field{"memoryType", "Memory type", &Record::memoryType, NamedBy{&Record::memoryTypeName}},
        Field{"memoryTypeName", kShownElsewhere, &Record::memoryTypeName},
        Field{
            "physicalMemoryArrayHandle", "Memory array", &Record::physicalMemoryArrayHandle, InHexadecimal{}},
        Field{"memoryErrorInformationHandle",
              "Error information",
              &Record::memoryErrorInformationHandle,
              HandleOfError{}},
        Field{"formFactor", "Form factor", &Record::formFactor, NamedBy{&Record::formFactorName}},
        Field{"formFactorName", kShownElsewhere, &Record::formFactorName},
        Field{"deviceLocator", "Device locator", &Record::deviceLocator},
        Field{"typeDetail", kShownElsewhere, &Record::typeDetail},
        Field{"typeDetailFlags",
              "Type detail",
              &Record::typeDetailFlags,
              UnnamedBits{.other = 1, .unknown = 2}},
        Field{"speed", "Speed", &Record::speed, Unit{"MT/s"}},
        Field{"manufacturer", "Manufacturer", &Record::manufacturer},
        Field{"serialNumber", "Serial number", &Record::serialNumber},
        Field{"assetTag", "Asset tag", &Record::assetTag},
        Field{"partNumber", "Part number", &Record::partNumber},
        Field{"rank", "Rank", &Record::rank, UnitUnlessZero{""}},
        Field{"configuredSpeed", "Configured speed", &Record::configuredSpeed, UnitUnlessZero{"MT/s"}},
        Field{"minimumVoltage", "Minimum voltage", &Record::minimumVoltage, UnitUnlessZero{"mV"}},
        Field{"maximumVoltage", "Maximum voltage", &Record::maximumVoltage, UnitUnlessZero{"mV"}},
        Field{"configuredVoltage", "Configured voltage", &Record::configuredVoltage, UnitUnlessZero{"mV"}},
        Field{"memoryTechnology", "Memory technology", &Record::memoryTechnology},
        Field{"memoryTechnologyFlags", "Memory technology flags", &Record::memoryTechnologyFlags},
        Field{"operatingModeCapability", kShownElsewhere, &Record::operatingModeCapability},
        Field{"operatingModeCapabilityFlags",
              "Operating modes",
              &Record::operatingModeCapabilityFlags,
              UnnamedBits{.other = 1, .unknown = 2}},
        Field{"firmwareVersion", "Firmware version", &Record::firmwareVersion},
        Field{"cacheSize", "Cache size", &Record::cacheSize, ByteSize{}},
        Field{"logicalSize", "Logical size", &Record::logicalSize, ByteSize{}},
        Field{"volatileSize", "Volatile size", &Record::volatileSize, ByteSize{}},
        Field{"nonVolatileSize", "Non-volatile size", &Record::nonVolatileSize, ByteSize{}},
        Field{"moduleProductId", "Module product", &Record::moduleProductId, InHexadecimal{}},
        Field{"moduleManufacturerId", "Module manufacturer", &Record::moduleManufacturerId, InHexadecimal{}},
        Field{"memorySubsystemControllerManufacturerId",
              "Controller manufacturer",
              &Record::memorySubsystemControllerManufacturerId,
              InHexadecimal{}},
        Field{"memorySubsystemControllerProductId",
              "Controller product",
              &Record::memorySubsystemControllerProductId,
              InHexadecimal{}},
        Field{"rcdRevisionNumber", "RCD revision", &Record::rcdRevisionNumber, InHexadecimal{}},
        Field{"pmic0RevisionNumber", "PMIC 0 revision", &Record::pmic0RevisionNumber, InHexadecimal{}},
        Field{"rcdManufacturerId", "RCD manufacturer", &Record::rcdManufacturerId, InHexadecimal{}},
        Field{"pmic0ManufacturerId", "PMIC 0 manufacturer", &Record::pmic0ManufacturerId, InHexadecimal{}},
        Field{"bankLocator", "Bank locator", &Record::bankLocator},
        Field{"size", "Size", &Record::size, DeviceSizeText},
        Field{"positionInRow", "Position in row", &Record::positionInRow},
    };
};

template <>
struct Description<Structures::Type19::Types::Type19Struct> {
    using Record = Structures::Type19::Types::Type19Struct;
    static constexpr std::tuple kFields{
        Field{"startingAddress", "Starting address", &Record::startingAddress, ArrayStartText},
        Field{"endingAddress", "Ending address", &Record::endingAddress, ArrayEndText},
        Field{"memoryArrayHandle", "Memory array", &Record::memoryArrayHandle, InHexadecimal{}},
        Field{"partitionWidth", "Partition width", &Record::partitionWidth},
    };
};

template <>
struct Description<Structures::Type20::Types::Type20Struct> {
    using Record = Structures::Type20::Types::Type20Struct;
    static constexpr std::tuple kFields{
        Field{"startingAddress", "Starting address", &Record::startingAddress, DeviceStartText},
        Field{"endingAddress", "Ending address", &Record::endingAddress, DeviceEndText},
        Field{"memoryDeviceHandle", "Memory device", &Record::memoryDeviceHandle, InHexadecimal{}},
        Field{"memoryArrayMappedAddressHandle",
              "Array mapped address",
              &Record::memoryArrayMappedAddressHandle,
              InHexadecimal{}},
        Field{"partitionRowPosition", "Partition row position", &Record::partitionRowPosition},
        Field{"interleavePosition", "Interleave position", &Record::interleavePosition},
        Field{"interleavedDataDepth", "Interleaved data depth", &Record::interleavedDataDepth},
    };
};

template <>
struct Description<Structures::MemoryErrorRecord> {
    using Record = Structures::MemoryErrorRecord;
    static constexpr std::tuple kFields{
        Field{"errorType", "Error type", &Record::errorType, NamedBy{&Record::errorTypeName}},
        Field{"errorTypeName", kShownElsewhere, &Record::errorTypeName},
        Field{"errorGranularity",
              "Granularity",
              &Record::errorGranularity,
              NamedBy{&Record::errorGranularityName}},
        Field{"errorGranularityName", kShownElsewhere, &Record::errorGranularityName},
        Field{"errorOperation", "Operation", &Record::errorOperation, NamedBy{&Record::errorOperationName}},
        Field{"errorOperationName", kShownElsewhere, &Record::errorOperationName},
        Field{"vendorSyndrome", "Vendor syndrome", &Record::vendorSyndrome},
        Field{"memoryArrayErrorAddress", "Address in the array", &Record::memoryArrayErrorAddress},
        Field{"deviceErrorAddress", "Address in the device", &Record::deviceErrorAddress},
        Field{"errorResolution", "Resolution", &Record::errorResolution, Unit{"bytes"}},
    };
};

template <>
struct Description<Structures::Type18::Types::Type18Struct> : Description<Structures::MemoryErrorRecord> {};

template <>
struct Description<Structures::Type33::Types::Type33Struct> : Description<Structures::MemoryErrorRecord> {};

}  // namespace SMBIOS::Inspect
