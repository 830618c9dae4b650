#include <gtest/gtest.h>

#include <string>

#include "manager/board_type_names.h"
#include "manager/structure_type_names.h"

namespace SMBIOS::Tests {
namespace {

using Manager::kBoardTypeNames;
using Manager::kStructureTypeNames;

TEST(StructureTypeNames, EveryTypeUpTo48HasItsName) {
    const char* const names[] = {
        "BIOS Information",
        "System Information",
        "Baseboard (or Module) Information",
        "System Enclosure or Chassis",
        "Processor Information",
        "Memory Controller Information (Obsolete)",
        "Memory Module Information (Obsolete)",
        "Cache Information",
        "Port Connector Information",
        "System Slots",
        "On Board Devices Information",
        "OEM Strings",
        "System Configuration Options",
        "BIOS Language Information",
        "Group Associations",
        "System Event Log",
        "Physical Memory Array",
        "Memory Device",
        "32-bit Memory Error Information",
        "Memory Array Mapped Address",
        "Memory Device Mapped Address",
        "Built-in Pointing Device",
        "Portable Battery",
        "System Reset",
        "Hardware Security",
        "System Power Controls",
        "Voltage Probe",
        "Cooling Device",
        "Temperature Probe",
        "Electrical Current Probe",
        "Out-of-Band Remote Access",
        "Boot Integrity Services (BIS) Entry Point",
        "System Boot Information",
        "64-bit Memory Error Information",
        "Management Device",
        "Management Device Component",
        "Management Device Threshold Data",
        "Memory Channel",
        "IPMI Device Information",
        "System Power Supply",
        "Additional Information",
        "Onboard Devices Extended Information",
        "Management Controller Host Interface",
        "TPM Device",
        "Processor Additional Information",
        "Firmware Inventory Information",
        "String Property Information",
        "Redfish Host Interface",
        "Redfish Service Information",
    };
    ASSERT_EQ(std::size(names), 49U);
    for (std::size_t type = 0; type < std::size(names); ++type) {
        EXPECT_EQ(kStructureTypeNames[static_cast<std::uint8_t>(type)], names[type]) << "type " << type;
    }
}

TEST(StructureTypeNames, TypesFrom49OnHaveNone) {
    for (int type = 49; type <= 0xFF; ++type) {
        EXPECT_FALSE(kStructureTypeNames.Find(static_cast<std::uint8_t>(type))) << "type " << type;
    }
}

TEST(BoardTypeNames, Types3To13HaveTheirNames) {
    const char* const names[] = {
        "Server Blade",
        "Connectivity Switch",
        "System Management Module",
        "Processor Module",
        "I/O Module",
        "Memory Module",
        "Daughter Board",
        "Motherboard",
        "Processor/Memory Module",
        "Processor/IO Module",
        "Interconnect Board",
    };
    ASSERT_EQ(std::size(names), 11U);
    for (std::size_t row = 0; row < std::size(names); ++row) {
        EXPECT_EQ(kBoardTypeNames[static_cast<std::uint8_t>(3 + row)], names[row]) << "type " << 3 + row;
    }
}

TEST(BoardTypeNames, Types0To2AndFrom14OnHaveNone) {
    for (int type = 0; type <= 0xFF; ++type) {
        EXPECT_EQ(kBoardTypeNames.Find(static_cast<std::uint8_t>(type)).has_value(), 3 <= type && type <= 13)
            << "type " << type;
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
