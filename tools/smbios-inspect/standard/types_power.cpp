#include <string>

#include "smbios-inspect/standard/described_types.h"
#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/row_visitor.h"
#include "smbios-inspect/standard/words_power.h"

// Batteries, power supplies, probes and cooling.
namespace SMBIOS::Inspect::Standard {

namespace {

constexpr auto kUngrouped = WordsOf({{0x00, "None"}});
constexpr auto kUnknownIfHighBit = WordsOf({{0x8000, "Unknown"}});
constexpr auto kUnknownSpeed = WordsOf({{0x8000, "Unknown Or Non-rotating"}});

// Type 22

Value ReadDesignCapacity(const Reading& reading) {
    constexpr std::size_t kMultiplier = 0x15;
    const Structures::FormattedArea area = reading.structure.Area();
    const std::uint64_t multiplier = area.Size() > kMultiplier ? area.Byte(kMultiplier) : 1;
    const std::uint64_t capacity = reading.Raw() * multiplier;
    Value value =
        reading.Raw() == 0 ? Nothing(kUnknown) : Number(capacity, std::to_string(capacity) + " mWh");
    return value;
}

Value ReadSerialWord(const Reading& reading) {
    const std::uint64_t number = reading.Raw();
    return Number(number, HexText(number, 4).substr(2));
}

std::string TwoDigits(std::uint64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

/// The day in bits 0 to 4, the month in 5 to 8, the years since 1980 above.
Value ReadManufactureDate(const Reading& reading) {
    const std::uint64_t date = reading.Raw();
    return Text(std::to_string(1980 + (date >> 9)) + "-" + TwoDigits(date >> 5 & 0x0F) + "-" +
                TwoDigits(date & 0x1F));
}

constexpr FieldRow kPortableBatteryRows[] = {
    {0x04, kByte, "location", "Location", String()},
    {0x05, kByte, "manufacturer", "Manufacturer", String()},
    {0x06, kByte, "manufactureDate", "Manufacture Date", String()},
    {0x07, kByte, "serialNumber", "Serial Number", String()},
    {0x08, kByte, "deviceName", "Name", String()},
    {0x09, kByte, "deviceChemistry", "Chemistry", Code(kBatteryChemistries)},
    {0x0A, kWord, "designCapacity", "Design Capacity", NumberBy(ReadDesignCapacity, "mWh")},
    {0x0C, kWord, "designVoltage", "Design Voltage", Measure("mV", " mV", kUnknownIfZero)},
    {0x0E, kByte, "sbdsVersionNumber", "SBDS Version", String()},
    {0x0F, kByte, "maximumErrorInBatteryData", "Maximum Error", Measure("%", "%", kUnknownIfByteFull)},
    {0x10, kWord, "sbdsSerialNumber", "SBDS Serial Number", NumberBy(ReadSerialWord)},
    {0x12, kWord, "sbdsManufactureDate", "SBDS Manufacture Date", TextBy(ReadManufactureDate)},
    {0x14, kByte, "sbdsDeviceChemistry", "SBDS Chemistry", String()},
    {0x15, kByte, "designCapacityMultiplier", "", Count()},
    {0x16, kDword, "oemSpecific", "OEM-specific Information", Hex()},
};

// Type 25

/// Two decimal digits; a value that is none stands for every one.
std::string BcdText(std::uint8_t digits, std::uint8_t least, std::uint8_t most) {
    const bool isNumber = (digits & 0x0F) <= 9 && least <= digits && digits <= most;
    return isNumber ? HexText(digits, 2).substr(2) : "*";
}

Value ReadPowerOnTime(const Reading& reading) {
    const auto part = reading.structure.Area().Bytes<5>(reading.Offset());
    return Text(BcdText(part[0], 0x01, 0x12) + "-" + BcdText(part[1], 0x01, 0x31) + " " +
                BcdText(part[2], 0x00, 0x23) + ":" + BcdText(part[3], 0x00, 0x59) + ":" +
                BcdText(part[4], 0x00, 0x59));
}

constexpr FieldRow kPowerControlsRows[] = {
    {0x04, 5, "nextScheduledPowerOn", "Next Scheduled Power-on", TextBy(ReadPowerOnTime)},
};

// Types 26, 28 and 29

constexpr FieldRow kVoltageProbeRows[] = {
    {0x04, kByte, "description", "Description", String()},
    {0x05, kByte, "location", "Location", CodeIn(0, 5, kProbeLocations)},
    {0x05, kByte, "status", "Status", CodeIn(5, 3, kProbeStates)},
    {0x06, kWord, "maximumValue", "Maximum Value", Signed("mV", " V", 3)},
    {0x08, kWord, "minimumValue", "Minimum Value", Signed("mV", " V", 3)},
    {0x0A, kWord, "resolution", "Resolution", Fraction("0.1 mV", " mV", 1)},
    {0x0C, kWord, "tolerance", "Tolerance", Signed("mV", " V", 3)},
    {0x0E, kWord, "accuracy", "Accuracy", Fraction("0.01 %", "%", 2)},
    {0x10, kDword, "oemDefined", "OEM-specific Information", Hex()},
    {0x14, kWord, "nominalValue", "Nominal Value", Signed("mV", " V", 3)},
};

constexpr FieldRow kTemperatureProbeRows[] = {
    {0x04, kByte, "description", "Description", String()},
    {0x05, kByte, "location", "Location", CodeIn(0, 5, kTemperatureProbeLocations)},
    {0x05, kByte, "status", "Status", CodeIn(5, 3, kProbeStates)},
    {0x06, kWord, "maximumValue", "Maximum Value", Signed("0.1 degC", " deg C", 1)},
    {0x08, kWord, "minimumValue", "Minimum Value", Signed("0.1 degC", " deg C", 1)},
    {0x0A, kWord, "resolution", "Resolution", Fraction("0.001 degC", " deg C", 3)},
    {0x0C, kWord, "tolerance", "Tolerance", Signed("0.1 degC", " deg C", 1)},
    {0x0E, kWord, "accuracy", "Accuracy", Fraction("0.01 %", "%", 2)},
    {0x10, kDword, "oemDefined", "OEM-specific Information", Hex()},
    {0x14, kWord, "nominalValue", "Nominal Value", Signed("0.1 degC", " deg C", 1)},
};

constexpr FieldRow kCurrentProbeRows[] = {
    {0x04, kByte, "description", "Description", String()},
    {0x05, kByte, "location", "Location", CodeIn(0, 5, kProbeLocations)},
    {0x05, kByte, "status", "Status", CodeIn(5, 3, kProbeStates)},
    {0x06, kWord, "maximumValue", "Maximum Value", Signed("mA", " A", 3)},
    {0x08, kWord, "minimumValue", "Minimum Value", Signed("mA", " A", 3)},
    {0x0A, kWord, "resolution", "Resolution", Fraction("0.1 mA", " mA", 1)},
    {0x0C, kWord, "tolerance", "Tolerance", Signed("mA", " A", 3)},
    {0x0E, kWord, "accuracy", "Accuracy", Fraction("0.01 %", "%", 2)},
    {0x10, kDword, "oemDefined", "OEM-specific Information", Hex()},
    {0x14, kWord, "nominalValue", "Nominal Value", Signed("mA", " A", 3)},
};

// Type 27

constexpr FieldRow kCoolingDeviceRows[] = {
    {0x04, kWord, "temperatureProbeHandle", "Temperature Probe Handle", Handle(kNotProvidedIfWordFull)},
    {0x06, kByte, "deviceType", "Type", CodeIn(0, 5, kCoolingDeviceTypes)},
    {0x06, kByte, "status", "Status", CodeIn(5, 3, kProbeStates)},
    {0x07, kByte, "coolingUnitGroup", "Cooling Unit Group", Count(kUngrouped)},
    {0x08, kDword, "oemDefined", "OEM-specific Information", Hex()},
    {0x0C, kWord, "nominalSpeed", "Nominal Speed", Measure("rpm", " rpm", kUnknownSpeed)},
    {0x0E, kByte, "description", "Description", String()},
};

// Type 39

Value ReadSupplyStatus(const Reading& reading) {
    constexpr std::uint64_t kIsPresent = 0x0002;
    const std::uint64_t characteristics = reading.Raw();
    const std::uint64_t status = characteristics >> 7 & 0x07;
    if ((characteristics & kIsPresent) == 0) {
        return Words(status, "Not Present");
    }
    return Words(status, std::string("Present, ").append(WordsFor(kSupplyStates, status)));
}

constexpr WordList kNotProvided = kNotProvidedIfWordFull;

constexpr FieldRow kPowerSupplyRows[] = {
    {0x04, kByte, "powerUnitGroup", "Power Unit Group", Count(kUngrouped)},
    {0x05, kByte, "location", "Location", String()},
    {0x06, kByte, "deviceName", "Name", String()},
    {0x07, kByte, "manufacturer", "Manufacturer", String()},
    {0x08, kByte, "serialNumber", "Serial Number", String()},
    {0x09, kByte, "assetTagNumber", "Asset Tag", String()},
    {0x0A, kByte, "modelPartNumber", "Model Part Number", String()},
    {0x0B, kByte, "revisionLevel", "Revision", String()},
    {0x0C, kWord, "maxPowerCapacity", "Max Power Capacity", Measure("W", " W", kUnknownIfHighBit)},
    {0x0E, kWord, "status", "Status", CodeBy(ReadSupplyStatus)},
    {0x0E, kWord, "present", "", CodeIn(1, 1, kYesNo)},
    {0x0E, kWord, "type", "Type", CodeIn(10, 4, kSupplyTypes)},
    {0x0E,
     kWord,
     "inputVoltageRangeSwitching",
     "Input Voltage Range Switching",
     CodeIn(3, 4, kSupplyInputRanges)},
    {0x0E, kWord, "unplugged", "Plugged", CodeIn(2, 1, kNoYes)},
    {0x0E, kWord, "hotReplaceable", "Hot Replaceable", CodeIn(0, 1, kYesNo)},
    {0x10, kWord, "inputVoltageProbeHandle", "Input Voltage Probe Handle", Handle(kNotProvided)},
    {0x12, kWord, "coolingDeviceHandle", "Cooling Device Handle", Handle(kNotProvided)},
    {0x14, kWord, "inputCurrentProbeHandle", "Input Current Probe Handle", Handle(kNotProvided)},
};

}  // namespace

constexpr TypeDescription kPortableBattery = {22, 0x10, kPortableBatteryRows};
constexpr TypeDescription kPowerControls = {25, 0x09, kPowerControlsRows};
constexpr TypeDescription kVoltageProbe = {26, 0x14, kVoltageProbeRows};
constexpr TypeDescription kCoolingDevice = {27, 0x0C, kCoolingDeviceRows};
constexpr TypeDescription kTemperatureProbe = {28, 0x14, kTemperatureProbeRows};
constexpr TypeDescription kCurrentProbe = {29, 0x14, kCurrentProbeRows};
constexpr TypeDescription kPowerSupply = {39, 0x10, kPowerSupplyRows};

}  // namespace SMBIOS::Inspect::Standard
