#include "smbios-inspect/comparison/pairing.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/inspect/comparison/comparison_support.h"

// Which structure of one table is which of the other.
namespace SMBIOS::Tests {
namespace {

StructureBuilder Device(std::uint16_t handle,
                        const std::string& locator,
                        const std::string& bank,
                        const std::string& serialNumber) {
    StructureBuilder device(17, 0x1B, handle);
    device.Word(0x06, 0xFFFE).String(0x10, locator).String(0x18, serialNumber);
    return bank.empty() ? device : device.String(0x11, bank);
}

StructureBuilder Processor(std::uint16_t handle, const std::string& socket, std::uint16_t firstCache) {
    return StructureBuilder(4, 0x20, handle)
        .String(0x04, socket)
        .Word(0x1A, firstCache)
        .Word(0x1C, static_cast<std::uint16_t>(firstCache + 1))
        .Word(0x1E, 0xFFFF);
}

StructureBuilder Cache(std::uint16_t handle, std::uint16_t size) {
    return StructureBuilder(7, 0x0F, handle).String(0x04, "Cache").Word(0x07, size).Word(0x09, size);
}

StructureBuilder Slot(std::uint16_t handle, const std::string& name, std::uint8_t usage) {
    return StructureBuilder(9, 0x0D, handle).String(0x04, name).Byte(0x06, 1).Byte(0x07, usage);
}

StructureBuilder Probe(std::uint16_t handle, const std::string& name, std::uint8_t locationAndStatus) {
    StructureBuilder probe(28, 0x14, handle);
    probe.Byte(0x05, locationAndStatus);
    return name.empty() ? probe : probe.String(0x04, name);
}

TEST(Pairing, FindsAMemoryDeviceByLocatorAndBank) {
    const RawTable before = TableWith({Device(1, "DIMM 1", "A", "11"), Device(2, "DIMM 1", "B", "22")});
    const RawTable after = TableWith({Device(5, "DIMM 1", "B", "33"), Device(6, "DIMM 1", "A", "11")});
    EXPECT_EQ(DiffText(before, after),
              "~ Memory Device DIMM 1, B\n"
              "  Serial Number  22 -> 33\n"
              "\n"
              "0 added, 0 removed, 1 changed, 1 the same\n");
}

TEST(Pairing, TakesAMemoryDeviceOfAnotherLocatorForAnother) {
    EXPECT_EQ(
        DiffText(TableWith({Device(1, "DIMM 1", "A", "1")}), TableWith({Device(1, "DIMM 2", "A", "1")})),
        "- Memory Device DIMM 1, A\n"
        "+ Memory Device DIMM 2, A\n"
        "\n"
        "1 added, 1 removed, 0 changed, 0 the same\n");
}

TEST(Pairing, DoesNotTakeALocatorForABank) {
    EXPECT_EQ(
        DiffJson(TableWith({Device(1, "A", "B", "1")}), TableWith({Device(1, "AB", "", "1")})).at("same"), 0);
}

TEST(Pairing, PairsThoseOfTheSameNameInOrder) {
    const RawTable before = TableWith({Device(1, "DIMM", "", "1"), Device(2, "DIMM", "", "2")});
    const RawTable after = TableWith({Device(3, "DIMM", "", "3"), Device(4, "DIMM", "", "4")});
    EXPECT_EQ(DiffText(before, after),
              "~ Memory Device DIMM, handle 0x0001 -> 0x0003\n"
              "  Serial Number  1 -> 3\n"
              "~ Memory Device DIMM, handle 0x0002 -> 0x0004\n"
              "  Serial Number  2 -> 4\n"
              "\n"
              "0 added, 0 removed, 2 changed, 0 the same\n");
}

TEST(Pairing, PairsThoseThatSayTheSameBeforeOthersOfTheirName) {
    const RawTable before = TableWith({Device(1, "DIMM", "", "1"), Device(2, "DIMM", "", "2")});
    const RawTable after = TableWith({Device(1, "DIMM", "", "2")});
    EXPECT_EQ(DiffText(before, after),
              "- Memory Device DIMM, handle 0x0001\n"
              "\n"
              "0 added, 1 removed, 0 changed, 1 the same\n");
}

TEST(Pairing, FindsACacheByItsProcessorAndLevel) {
    const RawTable before = TableWith({Processor(1, "CPU0", 0x10),
                                       Processor(2, "CPU1", 0x20),
                                       Cache(0x10, 32),
                                       Cache(0x11, 256),
                                       Cache(0x20, 32),
                                       Cache(0x21, 256)});
    const RawTable after = TableWith({Cache(0x31, 512),
                                      Cache(0x30, 32),
                                      Cache(0x41, 256),
                                      Cache(0x40, 32),
                                      Processor(1, "CPU0", 0x40),
                                      Processor(2, "CPU1", 0x30)});
    EXPECT_EQ(DiffText(before, after),
              "~ Cache CPU1 L2\n"
              "  Maximum Size    256 KiB -> 512 KiB\n"
              "  Installed Size  256 KiB -> 512 KiB\n"
              "\n"
              "0 added, 0 removed, 1 changed, 5 the same\n");
}

TEST(Pairing, GivesASharedCacheToOneProcessorWhateverTheirOrder) {
    const RawTable before =
        TableWith({Processor(1, "CPU0", 0x10), Processor(2, "CPU1", 0x10), Cache(0x10, 32)});
    const RawTable after =
        TableWith({Processor(2, "CPU1", 0x10), Processor(1, "CPU0", 0x10), Cache(0x10, 64)});
    EXPECT_TRUE(DiffText(before, after).starts_with("~ Cache CPU0 L1\n"));
}

TEST(Pairing, FindsACacheOfNoProcessorByItsDesignation) {
    EXPECT_TRUE(
        DiffText(TableWith({Cache(1, 32)}), TableWith({Cache(2, 64)})).starts_with("~ Cache Cache\n"));
}

TEST(Pairing, FindsASlotByItsDesignation) {
    const RawTable before = TableWith({Slot(1, "PCIEX16_1", 3), Slot(2, "PCIEX1_1", 3)});
    const RawTable after = TableWith({Slot(1, "PCIEX1_1", 4), Slot(2, "PCIEX16_1", 3)});
    EXPECT_TRUE(DiffText(before, after)
                    .starts_with("~ System Slots PCIEX1_1\n  Current Usage  Available -> In Use\n"));
}

TEST(Pairing, FindsAPortByBothDesignators) {
    const auto port = [](const std::string& internal, const std::string& external, std::uint8_t type) {
        return StructureBuilder(8, 9).String(0x04, internal).String(0x06, external).Byte(0x08, type);
    };
    const RawTable before = TableWith({port("J1", "USB", 0x10), port("J2", "USB", 0x10)});
    const RawTable after = TableWith({port("J2", "USB", 0x1F), port("J1", "USB", 0x10)});
    EXPECT_TRUE(DiffText(before, after).starts_with("~ Port Connector J2, USB\n"));
}

TEST(Pairing, FindsOtherStructuresByContentThenByNameThenInOrder) {
    const RawTable before =
        TableWith({Probe(1, "One", 0x61), Probe(2, "Two", 0x61), Probe(3, "Three", 0x61)});
    const RawTable after = TableWith({Probe(1, "Four", 0x61), Probe(2, "One", 0x61), Probe(3, "Two", 0x62)});
    EXPECT_EQ(DiffText(before, after),
              "~ Temperature Probe Two\n"
              "  Location  Other -> Unknown\n"
              "~ Temperature Probe, handle 0x0003 -> 0x0001\n"
              "  Description  Three -> Four\n"
              "\n"
              "0 added, 0 removed, 2 changed, 1 the same\n");
}

TEST(Pairing, KnowsEqualStructuresByWhatRefersToThem) {
    const auto array = [](std::uint16_t handle) {
        return StructureBuilder(16, 0x0F, handle).Word(0x0B, 0xFFFE).Word(0x0D, 1);
    };
    const auto inArray = [](std::uint16_t handle, const std::string& locator, std::uint16_t arrayHandle) {
        return Device(handle, locator, "", "1").Word(0x04, arrayHandle);
    };
    const RawTable before = TableWith({array(1), array(2), inArray(3, "A", 1), inArray(4, "B", 2)});
    const RawTable moved = TableWith({array(1), array(2), inArray(3, "A", 2), inArray(4, "B", 1)});
    EXPECT_FALSE(AreDifferent(before, moved));
    const RawTable together = TableWith({array(1), array(2), inArray(3, "A", 2), inArray(4, "B", 2)});
    EXPECT_TRUE(DiffText(before, together)
                    .starts_with(
                        "~ Memory Device A\n"
                        "  Array Handle  0x0001 (Physical Memory Array) -> 0x0002 (Physical Memory Array)\n"))
        << DiffText(before, together);
}

StructureBuilder Fan(std::uint16_t handle, std::uint16_t probe) {
    return StructureBuilder(27, 6, handle).Word(0x04, probe);
}

TEST(Pairing, KnowsEqualStructuresByWhatTheyLeadTo) {
    const auto component = [](std::uint16_t handle, const std::string& name, std::uint16_t probe) {
        return StructureBuilder(35, 0x0B, handle)
            .String(0x04, name)
            .Word(0x05, 9)
            .Word(0x07, probe)
            .Word(0x09, 9);
    };
    const auto machine = [&](const StructureBuilder& fan, const StructureBuilder& other) {
        return TableWith(
            {fan, other, Probe(3, "", 0), Probe(4, "", 0), component(5, "A", 3), component(6, "B", 4)});
    };
    EXPECT_FALSE(AreDifferent(machine(Fan(1, 3), Fan(2, 4)), machine(Fan(2, 4), Fan(1, 3))));
}

TEST(Pairing, DoesNotTellApartWhatNothingTellsApart) {
    const RawTable before = TableWith({Fan(1, 3), Fan(2, 4), Probe(3, "", 0), Probe(4, "", 0)});
    const RawTable after = TableWith({Fan(1, 4), Fan(2, 3), Probe(3, "", 0), Probe(4, "", 0)});
    EXPECT_FALSE(AreDifferent(before, after));
}

TEST(Pairing, GoesRoundInNoCircles) {
    const auto board = [](std::uint16_t handle, std::uint16_t child, const std::string& serialNumber) {
        return StructureBuilder(2, 0x11, handle)
            .String(0x07, serialNumber)
            .Word(0x0B, child)
            .Byte(0x0E, 1)
            .Word(0x0F, child);
    };
    const RawTable before = TableWith({board(1, 2, "1"), board(2, 1, "2"), board(3, 3, "3")});
    const RawTable after = TableWith({board(1, 2, "1"), board(2, 1, "2"), board(3, 3, "4")});
    EXPECT_FALSE(AreDifferent(before, before));
    EXPECT_EQ(DiffJson(before, after).at("same"), 2);
}

TEST(Pairing, CallsThingsByTheirNamesWithoutPadding) {
    EXPECT_TRUE(DiffText(TableWith({Probe(1, "  Inlet  ", 0)}), TableWith({}))
                    .starts_with("- Temperature Probe Inlet\n"));
}

TEST(Pairing, NeverPairsStructuresOfTwoTypes) {
    EXPECT_EQ(DiffText(TableWith({{200, 4, 1}}), TableWith({{201, 4, 1}})),
              "- OEM-specific type 200\n"
              "+ OEM-specific type 201\n"
              "\n"
              "1 added, 1 removed, 0 changed, 0 the same\n");
}

}  // namespace
}  // namespace SMBIOS::Tests
