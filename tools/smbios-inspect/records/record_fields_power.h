#pragma once

#include <tuple>

#include "smbios-inspect/records/field.h"
#include "structures/probe.h"
#include "structures/type_22.h"
#include "structures/type_26.h"
#include "structures/type_27.h"
#include "structures/type_28.h"
#include "structures/type_29.h"
#include "structures/type_39.h"

// The fields of power, probes and cooling.
namespace SMBIOS::Inspect {

template <>
struct Description<Structures::Type22::Types::Type22Struct> {
    using Record = Structures::Type22::Types::Type22Struct;
    static constexpr std::tuple kFields{
        Field{"location", "Location", &Record::location},
        Field{"manufacturer", "Manufacturer", &Record::manufacturer},
        Field{"deviceName", "Device name", &Record::deviceName},
        Field{"sbdsVersionNumber", "SBDS version", &Record::sbdsVersionNumber},
        Field{"serialNumber", "Serial number", &Record::serialNumber},
        Field{"manufactureDate", "Manufacture date", &Record::manufactureDate},
        Field{"deviceChemistryValue",
              "Chemistry",
              &Record::deviceChemistryValue,
              NamedBy{&Record::deviceChemistry}},
        Field{"deviceChemistry", kShownElsewhere, &Record::deviceChemistry},
        Field{"designVoltage", "Design voltage", &Record::designVoltage, UnitUnlessZero{"mV"}},
        Field{"maximumErrorInBatteryData", "Maximum error", &Record::maximumErrorInBatteryData, Unit{"%"}},
        Field{"designCapacity", "Design capacity", &Record::designCapacity, Unit{"mWh"}},
        Field{"oemSpecific", "OEM-specific", &Record::oemSpecific, InHexadecimal{}},
    };
};

/// The fields of a probe whose values have this unit.
[[nodiscard]] constexpr auto ProbeFields(Unit unit) {
    using Record = Structures::ProbeRecord;
    return std::tuple{
        Field{"description", "Description", &Record::description},
        Field{"location", "Location", &Record::location},
        Field{"status", "Status", &Record::status},
        Field{"maximumValue", "Maximum", &Record::maximumValue, unit},
        Field{"minimumValue", "Minimum", &Record::minimumValue, unit},
        Field{"resolution", "Resolution", &Record::resolution, unit},
        Field{"tolerance", "Tolerance", &Record::tolerance, unit},
        Field{"accuracy", "Accuracy", &Record::accuracy, Unit{"%"}},
        Field{"oemDefined", "OEM-defined", &Record::oemDefined, InHexadecimal{}},
        Field{"nominalValue", "Nominal value", &Record::nominalValue, unit},
    };
}

template <>
struct Description<Structures::Type26::Types::Type26Struct> {
    static constexpr auto kFields = ProbeFields(Unit{"mV"});
};

template <>
struct Description<Structures::Type27::Types::Type27Struct> {
    using Record = Structures::Type27::Types::Type27Struct;
    static constexpr std::tuple kFields{
        Field{"description", "Description", &Record::description},
        Field{"deviceTypeAndStatus", kShownElsewhere, &Record::deviceTypeAndStatus},
        Field{"deviceType", "Device type", &Record::deviceType},
        Field{"status", "Status", &Record::status},
        Field{"coolingUnitGroup", "Cooling unit group", &Record::coolingUnitGroup},
        Field{
            "temperatureProbeHandle", "Temperature probe", &Record::temperatureProbeHandle, HandleOr{"none"}},
        Field{"oemDefined", "OEM-defined", &Record::oemDefined, InHexadecimal{}},
    };
};

template <>
struct Description<Structures::Type28::Types::Type28Struct> {
    static constexpr auto kFields = ProbeFields(Unit{"\u00B0C"});
};

template <>
struct Description<Structures::Type29::Types::Type29Struct> {
    static constexpr auto kFields = ProbeFields(Unit{"mA"});
};

template <>
struct Description<Structures::Type39::Types::Type39Struct> {
    using Record = Structures::Type39::Types::Type39Struct;
    static constexpr std::tuple kFields{
        Field{"location", "Location", &Record::location},
        Field{"deviceName", "Device name", &Record::deviceName},
        Field{"manufacturer", "Manufacturer", &Record::manufacturer},
        Field{"serialNumber", "Serial number", &Record::serialNumber},
        Field{"assetTagNumber", "Asset tag", &Record::assetTagNumber},
        Field{"revisionLevel", "Revision level", &Record::revisionLevel},
        Field{"modelPartNumber", "Model part number", &Record::modelPartNumber},
        Field{"powerUnitGroup", "Power unit group", &Record::powerUnitGroup},
        Field{"maxPowerCapacity", "Maximum power", &Record::maxPowerCapacity, Unit{"W"}},
        Field{"characteristics", "Characteristics", &Record::characteristics, InHexadecimal{}},
        Field{"dmtfType", "Type", &Record::dmtfType},
        Field{"status", "Status", &Record::status},
        Field{"inputVoltageRangeSwitching", "Input voltage switching", &Record::inputVoltageRangeSwitching},
        Field{"isUnplugged", "Unplugged", &Record::isUnplugged},
        Field{"isPresent", "Present", &Record::isPresent},
        Field{"isHotReplaceable", "Hot replaceable", &Record::isHotReplaceable},
    };
};

}  // namespace SMBIOS::Inspect
