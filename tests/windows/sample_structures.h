#pragma once

#include <cstdint>
#include <string_view>

#include "samples/table_builder.h"

namespace SMBIOS::Tests {

using Samples::StructureBuilder;
using Samples::TableBuilder;

inline constexpr std::uint64_t kProcessorId = 0xBFEBFBFF000406F1;
inline constexpr const char* kProcessorIdText = "BFEBFBFF000406F1";

/// A processor of which the firmware tells the id and the socket, and nothing that WMI could complete.
[[nodiscard]] inline StructureBuilder BareProcessor(std::uint64_t id = kProcessorId) {
    return StructureBuilder(4, 0x30)
        .Qword(0x08, id)
        .String(0x04, "Socket 1")
        .Byte(0x05, 0x03)
        .Word(0x1A, 0xFFFF)
        .Word(0x1C, 0xFFFF)
        .Word(0x1E, 0xFFFF);
}

/// A memory device of which the firmware tells the serial number, the locators and the bank.
[[nodiscard]] inline StructureBuilder BareMemoryDevice(std::string_view serialNumber) {
    StructureBuilder device(17, 0x28);
    device.Word(0x08, 0xFFFF).Word(0x0A, 0xFFFF).String(0x10, "DIMM 1").String(0x11, "BANK 1");
    return serialNumber.empty() ? device : device.String(0x18, serialNumber);
}

/// A table of version 3.0 with one structure.
[[nodiscard]] inline TableBuilder TableOf(const StructureBuilder& structure) {
    return TableBuilder(3, 0, 0).Add(structure);
}

}  // namespace SMBIOS::Tests
