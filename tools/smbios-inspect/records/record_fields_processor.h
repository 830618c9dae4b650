#pragma once

#include <tuple>

#include "smbios-inspect/records/field.h"
#include "structures/type_4.h"
#include "structures/type_7.h"

// The fields of processors and their caches.
namespace SMBIOS::Inspect {

/// "L1": the record counts from 0.
[[nodiscard]] std::string CacheLevelText(const Structures::Type7::Types::Type7Struct& record);
[[nodiscard]] std::string CacheLocationText(const Structures::Type7::Types::Type7Struct& record);

template <>
struct Description<Structures::Type4::Types::Type4Struct> {
    using Record = Structures::Type4::Types::Type4Struct;
    static constexpr std::tuple kFields{
        Field{"processorVersion", "Version", &Record::processorVersion},
        Field{"processorManufacturer", "Manufacturer", &Record::processorManufacturer},
        Field{"socketDesignation", "Socket", &Record::socketDesignation},
        Field{"processorType", "Type", &Record::processorType, NamedBy{&Record::processorTypeName}},
        Field{"deviceId", "Device id", &Record::deviceId},
        Field{"caption", "Caption", &Record::caption},
        Field{"description", "Description", &Record::description},
        Field{"processorTypeName", kShownElsewhere, &Record::processorTypeName},
        Field{"processorFamily", "Family", &Record::processorFamily, NamedBy{&Record::processorFamilyName}},
        Field{"processorFamilyName", kShownElsewhere, &Record::processorFamilyName},
        Field{"processorId", "Processor id", &Record::processorId},
        Field{"legacyVoltageMode", "Legacy voltage mode", &Record::legacyVoltageMode},
        Field{"supportedVoltages", "Supported voltages", &Record::supportedVoltages},
        Field{"currentVoltage", "Voltage", &Record::currentVoltage, Unit{"V"}},
        Field{"externalClock", "External clock", &Record::externalClock, Unit{"MHz"}},
        Field{"currentSpeed", "Current speed", &Record::currentSpeed, Unit{"MHz"}},
        Field{"socketPopulated", "Socket populated", &Record::socketPopulated},
        Field{"statusText", "Status", &Record::statusText},
        Field{
            "processorUpgrade", "Upgrade", &Record::processorUpgrade, NamedBy{&Record::processorUpgradeName}},
        Field{"processorUpgradeName", kShownElsewhere, &Record::processorUpgradeName},
        Field{"l1CacheHandle", "L1 cache", &Record::l1CacheHandle, InHexadecimal{}},
        Field{"l2CacheHandle", "L2 cache", &Record::l2CacheHandle, InHexadecimal{}},
        Field{"l3CacheHandle", "L3 cache", &Record::l3CacheHandle, InHexadecimal{}},
        Field{"serialNumber", "Serial number", &Record::serialNumber},
        Field{"assetTag", "Asset tag", &Record::assetTag},
        Field{"partNumber", "Part number", &Record::partNumber},
        Field{"coreCount", "Cores", &Record::coreCount},
        Field{"coreEnabled", "Cores enabled", &Record::coreEnabled},
        Field{"threadCount", "Threads", &Record::threadCount},
        Field{"threadEnabled", "Threads enabled", &Record::threadEnabled},
        Field{"socketType", "Socket type", &Record::socketType},
        Field{"processorCharacteristics", kShownElsewhere, &Record::processorCharacteristics},
        Field{"characteristicsFlags",
              "Characteristics",
              &Record::characteristicsFlags,
              UnnamedBits{.unknown = 1}},
        Field{"virtualizationFirmwareEnabled",
              "Virtualization enabled",
              &Record::virtualizationFirmwareEnabled},
        Field{"maxSpeed", "Maximum speed", &Record::maxSpeed, Unit{"MHz"}},
        Field{"addressWidth", "Address width", &Record::addressWidth, Unit{"bits"}},
        Field{"dataWidth", "Data width", &Record::dataWidth, Unit{"bits"}},
        Field{"l1CacheSize", "L1 cache size", &Record::l1CacheSize, ByteSize{1024}},
        Field{"l2CacheSize", "L2 cache size", &Record::l2CacheSize, ByteSize{1024}},
        Field{"l3CacheSize", "L3 cache size", &Record::l3CacheSize, ByteSize{1024}},
    };
};

template <>
struct Description<Structures::Type7::Types::Type7Struct> {
    using Record = Structures::Type7::Types::Type7Struct;
    static constexpr std::tuple kFields{
        Field{"socketDesignation", "Socket", &Record::socketDesignation},
        Field{"cacheEnabled", "Enabled", &Record::cacheEnabled},
        Field{"cacheLocation", "Location", &Record::cacheLocation, CacheLocationText},
        Field{"cacheSocketed", "Socketed", &Record::cacheSocketed},
        Field{"cacheLevel", "Level", &Record::cacheLevel, CacheLevelText},
        Field{"operationalMode",
              "Operational mode",
              &Record::operationalMode,
              NamedBy{&Record::operationalModeText}},
        Field{"operationalModeText", kShownElsewhere, &Record::operationalModeText},
        Field{"maximumCacheSize", "Maximum size", &Record::maximumCacheSize, ByteSize{1024}},
        Field{"installedSize", "Installed size", &Record::installedSize, ByteSize{1024}},
        Field{"supportedSramType", "Supported SRAM types", &Record::supportedSramType},
        Field{"currentSramType", "Current SRAM type", &Record::currentSramType},
        Field{"cacheSpeed", "Speed", &Record::cacheSpeed, UnitUnlessZero{"ns"}},
        Field{"errorCorrectionType",
              "Error correction",
              &Record::errorCorrectionType,
              NamedBy{&Record::errorCorrectionTypeName}},
        Field{"errorCorrectionTypeName", kShownElsewhere, &Record::errorCorrectionTypeName},
        Field{"systemCacheType",
              "System cache type",
              &Record::systemCacheType,
              NamedBy{&Record::systemCacheTypeName}},
        Field{"systemCacheTypeName", kShownElsewhere, &Record::systemCacheTypeName},
        Field{"associativity", "Associativity", &Record::associativity, NamedBy{&Record::associativityName}},
        Field{"associativityName", kShownElsewhere, &Record::associativityName},
    };
};

}  // namespace SMBIOS::Inspect
