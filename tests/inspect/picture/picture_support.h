#pragma once

#include <cstdint>
#include <string>

#include "samples/table_builder.h"
#include "tests/inspect/picture/drawn_picture.h"

// Structures that pictures are drawn of, with what the picture shows of them.
namespace SMBIOS::Tests {

using Samples::StructureBuilder;
using Samples::TableBuilder;

inline TableBuilder EmptyTable() {
    return TableBuilder(3, 8, 0);
}

inline StructureBuilder PopulatedProcessor(std::uint16_t handle,
                                           std::uint8_t cores,
                                           std::uint8_t coresEnabled) {
    return StructureBuilder(4, 0x30, handle)
        .String(0x04, "Socket A")
        .String(0x10, "Processor X")
        .Word(0x16, 2200)
        .Byte(0x18, 0x41)
        .Word(0x1A, 0xFFFF)
        .Word(0x1C, 0xFFFF)
        .Word(0x1E, 0xFFFF)
        .Byte(0x23, cores)
        .Byte(0x24, coresEnabled)
        .Byte(0x25, 24);
}

inline StructureBuilder EmptySocket(std::uint16_t handle) {
    return StructureBuilder(4, 0x30, handle).String(0x04, "Socket B");
}

inline StructureBuilder CacheOfKibibytes(std::uint16_t handle, std::uint8_t level, std::uint16_t size) {
    return StructureBuilder(7, 0x13, handle)
        .Word(0x05, static_cast<std::uint16_t>(level - 1))
        .Word(0x07, size)
        .Word(0x09, size);
}

/// System memory of at most so many GiB.
inline StructureBuilder ArrayOfGibibytes(std::uint16_t handle, std::uint32_t gibibytes) {
    return StructureBuilder(16, 0x17, handle)
        .Byte(0x04, 3)
        .Byte(0x05, 3)
        .Dword(0x07, gibibytes << 20)
        .Word(0x0D, 2);
}

/// A memory device; 0 GiB for a free slot. Type 0x1A is DDR4, 0x22 is DDR5.
inline StructureBuilder DeviceOfGibibytes(std::uint16_t array,
                                          std::uint16_t gibibytes,
                                          const std::string& locator,
                                          std::uint8_t type = 0x1A) {
    return StructureBuilder(17, 0x28)
        .Word(0x04, array)
        .Word(0x0C, static_cast<std::uint16_t>(gibibytes * 1024))
        .String(0x10, locator)
        .Byte(0x12, type)
        .Word(0x15, 2400);
}

/// Type 0xB6 is PCI Express 3 x16; usage 3 is available, 4 in use.
inline StructureBuilder SlotWithUsage(std::uint8_t usage, const std::string& name, std::uint8_t type = 0xB6) {
    return StructureBuilder(9, 0x0D).String(0x04, name).Byte(0x05, type).Byte(0x06, 0x0D).Byte(0x07, usage);
}

inline DrawnPicture PictureOf(const TableBuilder& table) {
    return PictureOf(table.RawTable());
}

}  // namespace SMBIOS::Tests
