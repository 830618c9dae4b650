#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "tests/inspect/comparison/comparison_support.h"

// The sample workstation, and what has become of it after a firmware update and some work on it.
namespace SMBIOS::Tests {
namespace {

void UpdateFirmware(EditableTable& machine) {
    machine.At(0x0000)
        .SetString(0x05, "VW-2 4.20")
        .SetString(0x08, "11/02/2025")
        .SetByte(0x0A, 0x90)  // ISA beside PCI
        .SetByte(0x15, 20);
}

void SwapModule(EditableTable& machine) {
    machine.At(0x0050)
        .SetWord(0x0C, 0x7FFF)
        .SetDword(0x1C, 32 * 1024)
        .SetString(0x18, "9911AB03")
        .SetString(0x1A, "VM4-32G2400R")
        .SetDword(0x40, 0x00000008);
}

void AddCard(EditableTable& machine) {
    machine.At(0x0072).SetByte(0x07, 4);
    machine.Structures().insert(machine.Structures().begin() + 3,
                                {{41, 0x0B, 0xCF, 0x00, 1, 0x85, 2, 0, 0, 0, 0xD0}, {"Wireless card"}});
}

RawTable WorkstationAfterWork() {
    EditableTable machine(TableIn(SMBIOS_SAMPLE_TABLE));
    UpdateFirmware(machine);
    SwapModule(machine);
    AddCard(machine);
    machine.Remove(0x00D0);
    machine.At(0x0091).SetWord(0x04, 0x0092);
    return machine.RawTable();
}

TEST(SampleDiff, ReadsAsItShould) {
    EXPECT_EQ(DiffText(TableIn(SMBIOS_SAMPLE_TABLE), WorkstationAfterWork()), GoldenText("diff.txt"));
}

TEST(SampleDiff, IsShownInPartInTheReadme) {
    const std::string readme = ContentsOf(std::string(SMBIOS_SOURCE_DIR) + "/README.md");
    const std::string text = GoldenText("diff.txt");
    const std::size_t begin = text.find("~ System Slots");
    const std::string part = text.substr(begin, text.find("~ Cooling") - begin);
    EXPECT_NE(readme.find("```text\n" + part + "```\n"), std::string::npos);
}

TEST(SampleDiff, IsTheJsonItShouldBe) {
    std::ostringstream output;
    Inspect::ReportDiff(TableIn(SMBIOS_SAMPLE_TABLE), WorkstationAfterWork(), {.json = true}, {}, output);
    EXPECT_EQ(output.str(), GoldenText("diff.json"));
}

TEST(SampleDiff, IsTheSameWhenFirmwareHasNumberedAndOrderedAllAnew) {
    EditableTable machine(WorkstationAfterWork());
    ShuffleAndRenumber(machine, 1);
    const auto moved = DiffJson(TableIn(SMBIOS_SAMPLE_TABLE), machine.RawTable());
    EXPECT_EQ(moved.at("changed").size(), 4U);
    EXPECT_EQ(moved.at("added").size(), 1U);
    EXPECT_EQ(moved.at("removed").size(), 1U);
    EXPECT_EQ(moved.at("same"), 79);
}

}  // namespace
}  // namespace SMBIOS::Tests
