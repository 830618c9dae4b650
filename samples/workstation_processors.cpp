#include <cstddef>
#include <string>

#include "workstation.h"

namespace SMBIOS::Samples {

namespace {

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

/// A processor of the x64 architecture, of which there is nothing more to say.
StructureBuilder Architecture(std::uint16_t handle, std::uint16_t processor) {
    return StructureBuilder(44, 0x08, handle).Word(0x04, processor).Byte(0x06, 0).Byte(0x07, 2);
}

}  // namespace

void AddProcessors(TableBuilder& table) {
    table.Add(Processor(0, 0x8C)).Add(Processor(1, 0x02));
    for (const auto& caches : kCaches) {
        table.Add(Cache(caches[0], 1, 768, 7))
            .Add(Cache(caches[1], 2, 3072, 7))
            .Add(Cache(caches[2], 3, 30720, 14));
    }
    table.Add(Architecture(0x0012, kProcessors[0])).Add(Architecture(0x0013, kProcessors[1]));
}

}  // namespace SMBIOS::Samples
