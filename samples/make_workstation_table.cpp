// Writes the sample table: a believable workstation with two processors, one structure of every type the
// library decodes, and one structure with an error. Its only argument is the file to write.

#include <cstdint>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "table_builder.h"

namespace {

using SMBIOS::Samples::StructureBuilder;
using SMBIOS::Samples::TableBuilder;

// Handles, so that structures can refer to one another.
constexpr std::uint16_t kNone = 0xFFFF;
constexpr std::uint16_t kBoard = 0x0002;
constexpr std::uint16_t kChassis = 0x0003;
constexpr std::uint16_t kProcessors[] = {0x0010, 0x0011};
constexpr std::uint16_t kCaches[][3] = {{0x0020, 0x0021, 0x0022}, {0x0030, 0x0031, 0x0032}};
constexpr std::uint16_t kMemoryArray = 0x0040;
constexpr std::uint16_t kFirstDevice = 0x0050;
constexpr std::uint16_t kArrayAddress = 0x0060;
constexpr std::uint16_t kTemperatureProbe = 0x0090;

StructureBuilder Bios() {
    return StructureBuilder(0, 0x1A, 0x0000)
        .String(0x04, "Vantor Firmware")
        .String(0x05, "VW-2 4.12")
        .Word(0x06, 0xE000)
        .String(0x08, "03/18/2021")
        .Byte(0x09, 0xFF)
        .Qword(0x0A, 0x0000000008018880)  // PCI, upgradable, CD boot, selectable boot, keyboard services
        .Byte(0x12, 0x03)
        .Byte(0x13, 0x0D)
        .Byte(0x14, 4)
        .Byte(0x15, 12)
        .Byte(0x16, 1)
        .Byte(0x17, 7)
        .Word(0x18, 32);
}

StructureBuilder System() {
    return StructureBuilder(1, 0x1B, 0x0001)
        .String(0x04, "Vantor")
        .String(0x05, "Workstation W2")
        .String(0x06, "Rev B")
        .String(0x07, "VW2-004711")
        .Bytes(
            0x08,
            {0x33, 0x22, 0x11, 0x00, 0x55, 0x44, 0x77, 0x66, 0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF})
        .Byte(0x18, 6)
        .String(0x19, "W2-DUAL")
        .String(0x1A, "Workstation");
}

StructureBuilder Board() {
    return StructureBuilder(2, 0x11, kBoard)
        .String(0x04, "Vantor")
        .String(0x05, "W2 Mainboard")
        .String(0x06, "1.3")
        .String(0x07, "MB-1180342")
        .String(0x08, "None")
        .Byte(0x09, 0x09)  // hosting board, replaceable
        .String(0x0A, "Main tray")
        .Word(0x0B, kChassis)
        .Byte(0x0D, 10)
        .Byte(0x0E, 1)
        .Word(0x0F, kProcessors[0]);
}

StructureBuilder Chassis() {
    return StructureBuilder(3, 0x1C, kChassis)
        .String(0x04, "Vantor")
        .Byte(0x05, 0x87)  // tower with a lock
        .String(0x06, "T5")
        .String(0x07, "CH-77120")
        .String(0x08, "IT-0815")
        .Byte(0x09, 3)
        .Byte(0x0A, 3)
        .Byte(0x0B, 3)
        .Byte(0x0C, 3)
        .Dword(0x0D, 0x00000007)
        .Byte(0x11, 10)
        .Byte(0x12, 2)
        .Byte(0x13, 2)
        .Byte(0x14, 3)
        .Bytes(0x15, {10, 1, 1, 0x80 | 4, 1, 2})
        .String(0x1B, "T5-BLACK");
}

StructureBuilder Processor(std::size_t socket, std::uint8_t voltage) {
    return StructureBuilder(4, 0x30, kProcessors[socket])
        .String(0x04, "CPU" + std::to_string(socket))
        .Byte(0x05, 3)
        .Byte(0x06, 0xB3)
        .String(0x07, "Intel(R) Corporation")
        .Qword(0x08, 0xBFEBFBFF000406F1 + (std::uint64_t{socket} << 56))
        .String(0x10, "Intel(R) Xeon(R) CPU E5-2650 v4 @ 2.20GHz")
        .Byte(0x11, voltage)
        .Word(0x12, 100)
        .Word(0x14, 4000)
        .Word(0x16, 2200)
        .Byte(0x18, 0x41)
        .Byte(0x19, 0x2B)
        .Word(0x1A, kCaches[socket][0])
        .Word(0x1C, kCaches[socket][1])
        .Word(0x1E, kCaches[socket][2])
        .String(0x20, "CPU-SN-" + std::to_string(socket))
        .Byte(0x23, 12)
        .Byte(0x24, 12)
        .Byte(0x25, 24)
        .Word(0x26, 0x00FC)
        .Word(0x2A, 12)
        .Word(0x2C, 12)
        .Word(0x2E, 24);
}

StructureBuilder Cache(std::uint16_t handle,
                       std::uint8_t level,
                       std::uint16_t size,
                       std::uint8_t associativity) {
    return StructureBuilder(7, 0x1B, handle)
        .String(0x04, "L" + std::to_string(level) + " Cache")
        .Word(0x05, static_cast<std::uint16_t>(0x0180U | (level - 1U)))
        .Word(0x07, size)
        .Word(0x09, size)
        .Word(0x0B, 0x0020)
        .Word(0x0D, 0x0020)
        .Byte(0x0F, 1)
        .Byte(0x10, 5)
        .Byte(0x11, 5)
        .Byte(0x12, associativity)
        .Dword(0x13, size)
        .Dword(0x17, size);
}

StructureBuilder Port(std::uint16_t handle,
                      const std::string& name,
                      std::uint8_t connector,
                      std::uint8_t type) {
    return StructureBuilder(8, 0x09, handle).String(0x06, name).Byte(0x07, connector).Byte(0x08, type);
}

StructureBuilder Slot(std::uint16_t id, const std::string& name, std::uint8_t type, bool isInUse) {
    return StructureBuilder(9, 0x18, static_cast<std::uint16_t>(0x0070 + id))
        .String(0x04, name)
        .Byte(0x05, type)
        .Byte(0x06, 0x0D)
        .Byte(0x07, isInUse ? 4 : 3)
        .Byte(0x08, 4)
        .Word(0x09, id)
        .Byte(0x0B, 0x04)
        .Byte(0x0C, 0x01)
        .Byte(0x0F, static_cast<std::uint8_t>(id))
        .Byte(0x11, 0x0D)
        .Byte(0x13, 3)      // information: generation 3
        .Byte(0x14, 0x0D)   // physical width
        .Word(0x15, 2032)   // pitch: 20.32 mm
        .Byte(0x17, 0x03);  // full height
}

StructureBuilder OemStrings() {
    return StructureBuilder(11, 0x05, 0x0007)
        .Byte(0x04, 2)
        .String("Vantor W2")
        .String("Support: ask your dealer");
}

StructureBuilder MemoryArray() {
    return StructureBuilder(16, 0x17, kMemoryArray)
        .Byte(0x04, 3)
        .Byte(0x05, 3)
        .Byte(0x06, 6)
        .Dword(0x07, 512U * 1024 * 1024)
        .Word(0x0B, 0xFFFE)
        .Word(0x0D, 6);
}

StructureBuilder MemoryDevice(std::uint16_t number,
                              const std::string& locator,
                              const std::string& serialNumber) {
    return StructureBuilder(17, 0x5C, static_cast<std::uint16_t>(kFirstDevice + number))
        .Word(0x04, kMemoryArray)
        .Word(0x06, 0xFFFE)
        .Word(0x08, 72)
        .Word(0x0A, 64)
        .Word(0x0C, 0x4000)
        .Byte(0x0E, 0x09)
        .String(0x10, locator)
        .String(0x11, "NODE " + std::to_string(number / 3))
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
        .Qword(0x3C, 0x0000000400000000)
        .Qword(0x44, 0)
        .Qword(0x34, 0)
        .Qword(0x4C, 0xFFFFFFFFFFFFFFFF);
}

StructureBuilder EmptySlot(std::uint16_t number, const std::string& locator) {
    return StructureBuilder(17, 0x5C, static_cast<std::uint16_t>(kFirstDevice + number))
        .Word(0x04, kMemoryArray)
        .Word(0x06, 0xFFFE)
        .Word(0x08, 0xFFFF)
        .Word(0x0A, 0xFFFF)
        .Byte(0x0E, 0x09)
        .String(0x10, locator)
        .String(0x11, "NODE " + std::to_string(number / 3))
        .Byte(0x12, 0x02)
        .String(0x17, "NO DIMM")
        .String(0x18, "NO DIMM")
        .String(0x19, "NO DIMM")
        .String(0x1A, "NO DIMM");
}

StructureBuilder MemoryError32() {
    return StructureBuilder(18, 0x17, 0x0048)
        .Byte(0x04, 3)
        .Byte(0x05, 3)
        .Byte(0x06, 3)
        .Dword(0x0B, 0xFFFFFFFF)
        .Dword(0x0F, 0xFFFFFFFF)
        .Dword(0x13, 0xFFFFFFFF);
}

StructureBuilder ArrayAddress() {
    return StructureBuilder(19, 0x1F, kArrayAddress)
        .Dword(0x04, 0)
        .Dword(0x08, 0x03FFFFFF)
        .Word(0x0C, kMemoryArray)
        .Byte(0x0E, 4);
}

StructureBuilder DeviceAddress() {
    return StructureBuilder(20, 0x23, 0x0061)
        .Dword(0x04, 0)
        .Dword(0x08, 0x00FFFFFF)
        .Word(0x0C, kFirstDevice)
        .Word(0x0E, kArrayAddress)
        .Byte(0x10, 1)
        .Byte(0x11, 0)
        .Byte(0x12, 1);
}

/// The structure with an error: tables of this version do not have it.
StructureBuilder PointingDevice() {
    return StructureBuilder(21, 0x07, 0x0080).Byte(0x04, 3).Byte(0x05, 0xA2).Byte(0x06, 3);
}

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

StructureBuilder Probe(std::uint8_t type,
                       std::uint16_t handle,
                       const std::string& name,
                       std::uint8_t locationAndStatus) {
    return StructureBuilder(type, 0x16, handle)
        .String(0x04, name)
        .Byte(0x05, locationAndStatus)
        .Word(0x06, 1260)
        .Word(0x08, 0)
        .Word(0x0A, 10)
        .Word(0x0C, 0x8000)
        .Word(0x0E, 100)
        .Word(0x14, 450);
}

StructureBuilder Fan() {
    return StructureBuilder(27, 0x0F, 0x0091)
        .Word(0x04, kTemperatureProbe)
        .Byte(0x06, 0x65)  // chip fan, OK
        .Byte(0x07, 1)
        .Word(0x0C, 2200)
        .String(0x0E, "CPU fan");
}

StructureBuilder BootInformation() {
    return {32, 0x14, 0x00A0};
}

StructureBuilder MemoryError64() {
    return StructureBuilder(33, 0x1F, 0x0049)
        .Byte(0x04, 3)
        .Byte(0x05, 4)
        .Byte(0x06, 3)
        .Qword(0x0B, 0x8000000000000000)
        .Qword(0x13, 0x8000000000000000)
        .Dword(0x1B, 0x80000000);
}

StructureBuilder PowerSupply() {
    return StructureBuilder(39, 0x16, 0x00B0)
        .Byte(0x04, 1)
        .String(0x05, "Bottom")
        .String(0x06, "PSU 1")
        .String(0x07, "Vantor Power")
        .String(0x08, "PS-31337")
        .String(0x09, "None")
        .String(0x0A, "VP-1000")
        .String(0x0B, "B")
        .Word(0x0C, 1000)
        .Word(0x0E, 0x11A2)
        .Word(0x10, kNone)
        .Word(0x12, kNone)
        .Word(0x14, kNone);
}

StructureBuilder OnboardDevice() {
    return StructureBuilder(41, 0x0B, 0x00C0)
        .String(0x04, "Onboard LAN")
        .Byte(0x05, 0x85)
        .Byte(0x06, 1)
        .Byte(0x0A, 0xC8);  // device 25, function 0
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

std::vector<std::uint8_t> Workstation() {
    TableBuilder table(3, 4, 0);
    table.Add(Bios()).Add(System()).Add(Board()).Add(Chassis());
    table.Add(Processor(0, 0x8C)).Add(Processor(1, 0x02));
    for (const auto& caches : kCaches) {
        table.Add(Cache(caches[0], 1, 768, 7))
            .Add(Cache(caches[1], 2, 3072, 7))
            .Add(Cache(caches[2], 3, 30720, 14));
    }
    table.Add(Port(0x0008, "USB 1", 0x12, 0x10)).Add(Port(0x0009, "LAN", 0x0B, 0x1F));
    table.Add(Slot(1, "PCIe x16 slot 1", 0xB6, true)).Add(Slot(2, "PCIe x16 slot 2", 0xB6, false));
    table.Add(OemStrings()).Add(MemoryArray());
    table.Add(MemoryDevice(0, "CPU0 DIMM A1", "4A8C1D20")).Add(MemoryDevice(1, "CPU0 DIMM B1", "4A8C1D21"));
    table.Add(EmptySlot(2, "CPU0 DIMM C1"));
    table.Add(MemoryDevice(3, "CPU1 DIMM A1", "4A8C1D3E")).Add(MemoryDevice(4, "CPU1 DIMM B1", "4A8C1D3F"));
    table.Add(EmptySlot(5, "CPU1 DIMM C1"));
    table.Add(MemoryError32()).Add(ArrayAddress()).Add(DeviceAddress());
    table.Add(PointingDevice()).Add(Battery());
    table.Add(Probe(26, 0x0092, "CPU core", 0x63)).Add(Fan());
    table.Add(Probe(28, kTemperatureProbe, "CPU package", 0x63)).Add(Probe(29, 0x0093, "12 V rail", 0x6A));
    table.Add(BootInformation()).Add(MemoryError64()).Add(PowerSupply()).Add(OnboardDevice()).Add(Tpm());
    table.Add({127, 4, 0xFEFF});
    return table.RawTable();
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: make-workstation-table FILE\n";
        return 2;
    }
    const std::vector<std::uint8_t> table = Workstation();
    std::ofstream file(arguments[1], std::ios::binary);
    file.write(reinterpret_cast<const char*>(table.data()), static_cast<std::streamsize>(table.size()));
    file.close();
    if (!file) {
        std::cerr << "make-workstation-table: cannot write " << arguments[1] << "\n";
        return 1;
    }
    return 0;
}
