#include <string>

#include "workstation.h"

namespace SMBIOS::Samples {

namespace {

constexpr std::uint16_t kMonitor = 0x00F0;
constexpr std::uint16_t kTemperatureLimits = 0x00F4;
constexpr std::uint16_t kVoltageLimits = 0x00F5;

StructureBuilder Monitor() {
    return StructureBuilder(34, 0x0B, kMonitor)
        .String(0x04, "Board monitor")
        .Byte(0x05, 1)
        .Dword(0x06, 0x00000290)
        .Byte(0x0A, 3);  // an I/O port
}

StructureBuilder Component(std::uint16_t handle,
                           const std::string& name,
                           std::uint16_t component,
                           std::uint16_t limits) {
    return StructureBuilder(35, 0x0B, handle)
        .String(0x04, name)
        .Word(0x05, kMonitor)
        .Word(0x07, component)
        .Word(0x09, limits);
}

/// In tenths of a degree; how cold it is does not matter.
StructureBuilder TemperatureLimits() {
    constexpr std::uint16_t kUnknown = 0x8000;
    return StructureBuilder(36, 0x10, kTemperatureLimits)
        .Word(0x04, kUnknown)
        .Word(0x06, 850)
        .Word(0x08, kUnknown)
        .Word(0x0A, 950)
        .Word(0x0C, kUnknown)
        .Word(0x0E, 1050);
}

/// In millivolts.
StructureBuilder VoltageLimits() {
    return StructureBuilder(36, 0x10, kVoltageLimits)
        .Word(0x04, 600)
        .Word(0x06, 1450)
        .Word(0x08, 550)
        .Word(0x0A, 1500)
        .Word(0x0C, 500)
        .Word(0x0E, 1520);
}

void AddMonitor(TableBuilder& table) {
    table.Add(Monitor())
        .Add(Component(0x00F1, "CPU temperature", kProcessorTemperature, kTemperatureLimits))
        .Add(Component(0x00F2, "CPU voltage", kProcessorVoltage, kVoltageLimits))
        .Add(Component(0x00F3, "CPU fan", kProcessorFan, kNone))
        .Add(TemperatureLimits())
        .Add(VoltageLimits());
}

StructureBuilder Tpm() {
    return StructureBuilder(43, 0x1F, 0x00D0)
        .Bytes(0x04, {'V', 'N', 'T', 0})
        .Byte(0x08, 2)
        .Byte(0x09, 0)
        .Dword(0x0A, 0x00070002)
        .Dword(0x0E, 0x0000000A)
        .String(0x12, "TPM 2.0")
        .Qword(0x13, 0x0000000000000008);
}

StructureBuilder FirmwareComponent(std::uint16_t handle,
                                   const std::string& name,
                                   const std::string& id,
                                   const std::string& version,
                                   const std::string& lowestVersion,
                                   std::uint64_t size,
                                   std::uint16_t part) {
    return StructureBuilder(45, 0x1A, handle)
        .String(0x04, name)
        .String(0x05, version)
        .Byte(0x06, 1)  // major.minor
        .String(0x07, id)
        .Byte(0x08, 0)
        .String(0x09, "2024-03-18T00:00:00Z")
        .String(0x0A, "Vantor")
        .String(0x0B, lowestVersion)
        .Qword(0x0C, size)
        .Word(0x14, 0x0001)  // updatable
        .Byte(0x16, 4)       // enabled
        .Byte(0x17, 1)
        .Word(0x18, part);
}

/// What only the maker of the system can read.
StructureBuilder MakersOwn() {
    return StructureBuilder(200, 0x0C, 0x00FA)
        .String(0x04, "Vantor asset data")
        .Bytes(0x05, {0x01, 0x00, 0x2A, 0x17, 0x00, 0xC0, 0xDE});
}

/// A port that the maker has switched off: a structure that says nothing.
StructureBuilder Inactive() {
    return StructureBuilder(126, 0x09, 0x00FB).String(0x06, "FireWire").Byte(0x07, 0x21).Byte(0x08, 0x11);
}

}  // namespace

void AddManagement(TableBuilder& table) {
    constexpr std::uint64_t kMebibyte = 1024 * 1024;
    AddMonitor(table);
    table.Add(Tpm());
    table
        .Add(FirmwareComponent(
            0x00D1, "System firmware", "vantor-uefi", "4.12", "4.02", 32 * kMebibyte, kFirmware))
        .Add(FirmwareComponent(
            0x00D2, "Embedded controller", "vantor-ec", "1.7", "1.0", kMebibyte / 4, kBoard));
    table.Add(MakersOwn()).Add(Inactive());
}

}  // namespace SMBIOS::Samples
