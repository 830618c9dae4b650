#include <string>

#include "workstation.h"

namespace SMBIOS::Samples {

namespace {

StructureBuilder MemoryArray() {
    return StructureBuilder(16, 0x17, kMemoryArray)
        .Byte(0x04, 3)
        .Byte(0x05, 3)
        .Byte(0x06, 6)
        .Dword(0x07, 512U * 1024 * 1024)
        .Word(0x0B, kArrayError)
        .Word(0x0D, 6);
}

StructureBuilder Device(std::uint16_t number, const std::string& locator) {
    return StructureBuilder(17, 0x5C, static_cast<std::uint16_t>(kFirstDevice + number))
        .Word(0x04, kMemoryArray)
        .Word(0x06, number == 0 ? kDeviceError : 0xFFFE)
        .Byte(0x0E, 0x09)
        .String(0x10, locator)
        .String(0x11, "NODE " + std::to_string(number / 3));
}

StructureBuilder Module(std::uint16_t number, const std::string& locator, const std::string& serialNumber) {
    return Device(number, locator)
        .Word(0x08, 72)
        .Word(0x0A, 64)
        .Word(0x0C, 0x4000)
        .Byte(0x12, 0x1A)
        .Word(0x13, 0x2080)
        .Word(0x15, 2400)
        .String(0x17, "Vantor Memory")
        .String(0x18, serialNumber)
        .String(0x19, "DIMM-" + std::to_string(number))
        .String(0x1A, "VM4-16G2400R")
        .Byte(0x1B, 2)
        .Word(0x20, 2400)
        .Word(0x22, 1140)
        .Word(0x24, 1260)
        .Word(0x26, 1200)
        .Byte(0x28, 0x03)
        .Word(0x29, 0x0008)
        .Qword(0x34, 0)
        .Qword(0x3C, 0x0000000400000000)
        .Qword(0x44, 0)
        .Qword(0x4C, 0xFFFFFFFFFFFFFFFF);
}

StructureBuilder EmptySlot(std::uint16_t number, const std::string& locator) {
    return Device(number, locator)
        .Word(0x08, 0xFFFF)
        .Word(0x0A, 0xFFFF)
        .Byte(0x12, 0x02)
        .String(0x17, "NO DIMM")
        .String(0x18, "NO DIMM")
        .String(0x19, "NO DIMM")
        .String(0x1A, "NO DIMM")
        .Byte(0x28, 0x02);
}

StructureBuilder MemoryError32() {
    return StructureBuilder(18, 0x17, kDeviceError)
        .Byte(0x04, 3)
        .Byte(0x05, 2)
        .Byte(0x06, 2)
        .Dword(0x0B, 0x80000000)
        .Dword(0x0F, 0x80000000)
        .Dword(0x13, 0x80000000);
}

StructureBuilder MemoryError64() {
    return StructureBuilder(33, 0x1F, kArrayError)
        .Byte(0x04, 3)
        .Byte(0x05, 2)
        .Byte(0x06, 2)
        .Qword(0x0B, 0x8000000000000000)
        .Qword(0x13, 0x8000000000000000)
        .Dword(0x1B, 0x80000000);
}

/// 64 GiB in four devices.
StructureBuilder ArrayAddress() {
    return StructureBuilder(19, 0x1F, kArrayAddress)
        .Dword(0x04, 0)
        .Dword(0x08, 0x03FFFFFF)
        .Word(0x0C, kMemoryArray)
        .Byte(0x0E, 4);
}

/// The 16 GiB of a module, number `place` of the modules; they are not interleaved.
StructureBuilder DeviceAddress(std::uint16_t place, std::uint16_t deviceNumber) {
    constexpr std::uint32_t kKibibytes = 16U * 1024 * 1024;
    return StructureBuilder(20, 0x23, static_cast<std::uint16_t>(0x0061 + place))
        .Dword(0x04, place * kKibibytes)
        .Dword(0x08, (place + 1U) * kKibibytes - 1)
        .Word(0x0C, static_cast<std::uint16_t>(kFirstDevice + deviceNumber))
        .Word(0x0E, kArrayAddress)
        .Byte(0x10, 1)
        .Byte(0x11, 0)
        .Byte(0x12, 0);
}

}  // namespace

void AddMemory(TableBuilder& table) {
    table.Add(MemoryArray());
    table.Add(Module(0, "CPU0 DIMM A1", "4A8C1D20")).Add(Module(1, "CPU0 DIMM B1", "4A8C1D21"));
    table.Add(EmptySlot(2, "CPU0 DIMM C1"));
    table.Add(Module(3, "CPU1 DIMM A1", "4A8C1D3E")).Add(Module(4, "CPU1 DIMM B1", "4A8C1D3F"));
    table.Add(EmptySlot(5, "CPU1 DIMM C1"));
    table.Add(MemoryError32()).Add(MemoryError64()).Add(ArrayAddress());
    table.Add(DeviceAddress(0, 0)).Add(DeviceAddress(1, 1)).Add(DeviceAddress(2, 3)).Add(DeviceAddress(3, 4));
}

}  // namespace SMBIOS::Samples
