#include <string>

#include "workstation.h"

namespace SMBIOS::Samples {

namespace {

constexpr std::uint16_t kUnknown = 0x8000;

StructureBuilder Battery() {
    return StructureBuilder(22, 0x1A, 0x0081)
        .String(0x04, "Rear bay")
        .String(0x05, "Vantor Power")
        .String(0x08, "VP-90")
        .Byte(0x09, 6)
        .Word(0x0A, 4400)
        .Word(0x0C, 11100)
        .String(0x0E, "1.1")
        .Byte(0x0F, 2)
        .Word(0x10, 1234)
        .Word(0x12, 0x5272)  // 2021-03-18
        .Byte(0x15, 10);
}

/// What a probe may read: millivolts, tenths of a degree or milliamperes; the resolution is finer.
struct ProbeRange {
    std::int16_t maximum;
    std::int16_t minimum;
    std::uint16_t resolution;
    std::int16_t nominal;
};

StructureBuilder Probe(std::uint8_t type,
                       std::uint16_t handle,
                       const std::string& name,
                       std::uint8_t locationAndStatus,
                       const ProbeRange& range) {
    return StructureBuilder(type, 0x16, handle)
        .String(0x04, name)
        .Byte(0x05, locationAndStatus)
        .Word(0x06, static_cast<std::uint16_t>(range.maximum))
        .Word(0x08, static_cast<std::uint16_t>(range.minimum))
        .Word(0x0A, range.resolution)
        .Word(0x0C, kUnknown)
        .Word(0x0E, 100)
        .Word(0x14, static_cast<std::uint16_t>(range.nominal));
}

// The status of each is 3, OK; the location stands in the low bits.
void AddProbes(TableBuilder& table) {
    constexpr std::uint8_t kVoltage = 26;
    constexpr std::uint8_t kTemperature = 28;
    constexpr std::uint8_t kCurrent = 29;
    constexpr std::uint8_t kAtProcessor = 0x63;
    constexpr std::uint8_t kOnBoard = 0x67;
    constexpr std::uint8_t kInPowerUnit = 0x6A;
    table.Add(Probe(kVoltage, kProcessorVoltage, "CPU core", kAtProcessor, {1520, 550, 50, 1200}))
        .Add(Probe(kVoltage, 0x0094, "12 V rail", kInPowerUnit, {12600, 11400, 100, 12000}))
        .Add(Probe(kTemperature, kProcessorTemperature, "CPU package", kAtProcessor, {1000, 0, 1000, 450}))
        .Add(Probe(kTemperature, kBoardTemperature, "Board", kOnBoard, {850, -100, 500, 320}))
        .Add(Probe(kCurrent, 0x0093, "12 V rail", kInPowerUnit, {30000, 0, 1000, 8400}));
}

StructureBuilder Fan(std::uint16_t handle,
                     const std::string& name,
                     std::uint8_t typeAndStatus,
                     std::uint16_t probe,
                     std::uint8_t group,
                     std::uint16_t speed) {
    return StructureBuilder(27, 0x0F, handle)
        .Word(0x04, probe)
        .Byte(0x06, typeAndStatus)
        .Byte(0x07, group)
        .Word(0x0C, speed)
        .String(0x0E, name);
}

void AddFans(TableBuilder& table) {
    table.Add(Fan(kProcessorFan, "CPU fan", 0x65, kProcessorTemperature, 1, 2200))
        .Add(Fan(0x0096, "Rear fan", 0x66, kBoardTemperature, 2, 1100))
        .Add(Fan(kSupplyFan, "PSU fan", 0x67, kNone, 0, kUnknown));
}

/// Switching, switches its input range itself, in order, there, can be replaced while it runs.
StructureBuilder PowerSupply(std::uint16_t handle,
                             const std::string& location,
                             const std::string& name,
                             const std::string& serialNumber) {
    return StructureBuilder(39, 0x16, handle)
        .Byte(0x04, 1)
        .String(0x05, location)
        .String(0x06, name)
        .String(0x07, "Vantor Power")
        .String(0x08, serialNumber)
        .String(0x09, "None")
        .String(0x0A, "VP-1000")
        .String(0x0B, "B")
        .Word(0x0C, 1000)
        .Word(0x0E, 0x11A3)
        .Word(0x10, kNone)
        .Word(0x12, kSupplyFan)
        .Word(0x14, kNone);
}

}  // namespace

void AddPowerAndCooling(TableBuilder& table) {
    table.Add(Battery());
    AddProbes(table);
    AddFans(table);
    table.Add(PowerSupply(0x00B0, "Bottom left", "PSU 1", "PS-31337"))
        .Add(PowerSupply(0x00B1, "Bottom right", "PSU 2", "PS-31338"));
}

}  // namespace SMBIOS::Samples
