#include <string>

#include "smbios-inspect/departures/join.h"
#include "structures/type_39.h"

// Batteries, power supplies, probes and cooling.
namespace SMBIOS::Inspect::Departures {

using enum Manager::SmbiosVersionIndex;
using Structures::kAnyLength;
using Structures::VersionBelow;

namespace {

// Type 22: where there is no string, the smart battery's own field stands for it

bool ManufactureDateAgrees(const Comparison& comparison) {
    if (comparison.Raw() != 0) {
        return AgreeByKind(comparison);
    }
    const FieldReading date = comparison.Other("sbdsManufactureDate");
    return TextOf(comparison.library.value) == std::string_view(date.value.text);
}

bool SerialNumberAgrees(const Comparison& comparison) {
    if (comparison.Raw() != 0) {
        return AgreeByKind(comparison);
    }
    const FieldReading number = comparison.Other("sbdsSerialNumber");
    const auto given = NumberIn(TextOf(comparison.library.value));
    return number.isThere ? given && given == number.value.plain.Number() : !comparison.HasLibraryValue();
}

bool ChemistryAgrees(const Comparison& comparison) {
    constexpr std::uint64_t kUnknown = 0x02;
    const FieldReading chemistry = comparison.Other("sbdsDeviceChemistry");
    if (comparison.Raw() != kUnknown || !chemistry.isThere || HasNothing(chemistry.value)) {
        return AgreeAsWordOfCode(comparison);
    }
    return HaveSameLetters(TextOf(comparison.library.value), chemistry.value.text);
}

constexpr std::size_t kEndOfMultiplier = 0x16;

constexpr Join kBattery[] = {
    {"serialNumber", "serialNumber", {SerialNumberAgrees}, {{ReasonId::missingBytes, EndsBefore<0x12>}}},
    {"manufactureDate",
     "manufactureDate",
     {ManufactureDateAgrees},
     {{ReasonId::missingBytes, EndsBefore<0x14>}}},
    {"deviceChemistry", "deviceChemistry", {ChemistryAgrees}, {{ReasonId::batteryChemistry}}},
    {"designCapacity", "designCapacity", ByKind(), {{ReasonId::missingBytes, EndsBefore<kEndOfMultiplier>}}},
};

// Types 26, 28 and 29

bool IsValueOfLowByte(const Comparison& comparison) {
    constexpr std::size_t kLengthWithLowByte = 0x15;
    return comparison.Area().Size() == kLengthWithLowByte;
}

constexpr Cause kSign = {ReasonId::probeSign};

constexpr Join kProbe[] = {
    {"location", "location", OnlyWord()},
    {"status", "status", OnlyWord()},
    {"maximumValue", "maximumValue", ByKind(), {kSign}},
    {"minimumValue", "minimumValue", ByKind(), {kSign}},
    {"tolerance", "tolerance", ByKind(), {kSign}},
    {"nominalValue", "nominalValue", ByKind(), {{ReasonId::probeNominalValue, IsValueOfLowByte}, kSign}},
};

// Type 27

constexpr Join kCoolingDevice[] = {
    {"deviceTypeAndStatus", "deviceType", Bits(0, 8)},
    {"deviceType", "deviceType", OnlyWord()},
    {"status", "status", OnlyWord()},
};

constexpr Refusal kRefusedBefore2_2[] = {
    {ReasonId::deviceVersions, kAnyLength, VersionBelow(v2_2_0)},
};

// Type 39

/// The word is the one of the library's own characteristics.
bool SupplyWordAgrees(const Comparison& comparison) {
    const auto& characteristics = RecordIn<Structures::Type_39>(comparison).characteristics;
    if (!comparison.HasStandardValue()) {
        return !comparison.HasLibraryValue();
    }
    const std::uint64_t mask = (std::uint64_t{1} << comparison.bitCount) - 1;
    const std::uint64_t code = characteristics.value_or(0) >> comparison.lowBit & mask;
    constexpr std::uint64_t kOther = 1;
    return code == comparison.RawBits() && (code != kOther || comparison.HasLibraryValue());
}

bool IsSameSupplyCode(const Comparison& comparison) {
    const auto& characteristics = RecordIn<Structures::Type_39>(comparison).characteristics;
    return comparison.HasStandardValue() &&
           (characteristics.value_or(0) & 0x3FFF) == (comparison.Raw() & 0x3FFF);
}

constexpr Cause kOtherText = {ReasonId::otherText, IsSameSupplyCode};
constexpr Cause kSupply = {ReasonId::supplyWords};

constexpr Join kPowerSupply[] = {
    {"maxPowerCapacity", "maxPowerCapacity", ByKind(), {kSupply}},
    {"characteristics", "status", Bits(0, 16), {kSupply}},
    {"dmtfType", "type", {SupplyWordAgrees, 10, 4}, {kOtherText, kSupply}},
    {"status", "status", {SupplyWordAgrees, 7, 3}, {kOtherText, kSupply}},
    {"inputVoltageRangeSwitching",
     "inputVoltageRangeSwitching",
     {SupplyWordAgrees, 3, 4},
     {kOtherText, kSupply}},
    {"isUnplugged", "unplugged", ByKind(), {kSupply}},
    {"isPresent", "present", ByKind(), {kSupply}},
    {"isHotReplaceable", "hotReplaceable", ByKind(), {kSupply}},
};

constexpr Refusal kPowerSupplyRefusals[] = {
    {ReasonId::deviceVersions, kAnyLength, VersionBelow(v2_4_0)},
};

}  // namespace

constexpr TypeJoins kBatteryJoins = {.type = 22, .joins = kBattery};
constexpr TypeJoins kVoltageProbeJoins = {.type = 26, .joins = kProbe, .refusals = kRefusedBefore2_2};
constexpr TypeJoins kCoolingDeviceJoins = {
    .type = 27, .joins = kCoolingDevice, .refusals = kRefusedBefore2_2};
constexpr TypeJoins kTemperatureProbeJoins = {.type = 28, .joins = kProbe, .refusals = kRefusedBefore2_2};
constexpr TypeJoins kCurrentProbeJoins = {.type = 29, .joins = kProbe, .refusals = kRefusedBefore2_2};
constexpr TypeJoins kPowerSupplyJoins = {.type = 39, .joins = kPowerSupply, .refusals = kPowerSupplyRefusals};

}  // namespace SMBIOS::Inspect::Departures
