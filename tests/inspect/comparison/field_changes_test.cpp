#include "smbios-inspect/comparison/field_changes.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/inspect/comparison/comparison_support.h"

// What counts as a change, and how it reads: of one structure in each table.
namespace SMBIOS::Tests {
namespace {

/// The lines below the title of the only structure that differs.
std::string Changes(const StructureBuilder& before, const StructureBuilder& after) {
    const std::string text = DiffText(TableWith({before}), TableWith({after}));
    const std::size_t begin = text.find('\n') + 1;
    EXPECT_TRUE(text.starts_with("~ ")) << text;
    return text.substr(begin, text.rfind("\n\n") + 1 - begin);
}

/// Names of the fields that differ.
std::vector<std::string> ChangedNames(const StructureBuilder& before, const StructureBuilder& after) {
    std::vector<std::string> names;
    const auto report = DiffJson(TableWith({before}), TableWith({after}));
    for (const auto& field : report.at("changed").at(0).at("fields")) {
        names.push_back(field.at("name"));
    }
    return names;
}

bool Differ(const StructureBuilder& before, const StructureBuilder& after) {
    return AreDifferent(TableWith({before}), TableWith({after}));
}

StructureBuilder Oem(const std::vector<std::uint8_t>& bytes) {
    return StructureBuilder(200, static_cast<std::uint8_t>(4 + bytes.size())).Bytes(4, bytes);
}

TEST(FieldChanges, AreNoneWhenOnlyTheHandleDiffers) {
    EXPECT_FALSE(Differ(StructureBuilder(16, 0x0F, 1), StructureBuilder(16, 0x0F, 2)));
}

TEST(FieldChanges, AreNoneWhenOnlyTheNumbersOfStringsDiffer) {
    const auto system = [] { return StructureBuilder(1, 0x08); };
    EXPECT_FALSE(Differ(system().String(0x04, "Maker").String(0x05, "Product"),
                        system().String(0x05, "Product").String(0x04, "Maker")));
}

TEST(FieldChanges, AreOfAFieldThatOneIsTooShortFor) {
    const StructureBuilder before = StructureBuilder(1, 0x19).Byte(0x18, 6);
    const StructureBuilder after = StructureBuilder(1, 0x1A).Byte(0x18, 6).String(0x19, "SKU");
    EXPECT_EQ(Changes(before, after), "  SKU Number  (absent) -> SKU\n");
    EXPECT_EQ(Changes(after, before), "  SKU Number  SKU -> (absent)\n");
}

TEST(FieldChanges, OfListsAreWhatIsGoneAndWhatHasCome) {
    EXPECT_EQ(Changes(StructureBuilder(2, 0x0A).Byte(0x09, 0x03), StructureBuilder(2, 0x0A).Byte(0x09, 0x09)),
              "  Features  - Board requires at least one daughter board\n"
              "            + Board is replaceable\n");
}

TEST(FieldChanges, OfListsInOneLineStandInOneLine) {
    EXPECT_EQ(
        Changes(StructureBuilder(17, 0x15).Word(0x13, 0x0080), StructureBuilder(17, 0x15).Word(0x13, 0x2080)),
        "  Type Detail  Synchronous -> Synchronous Registered (Buffered)\n");
}

TEST(FieldChanges, OfListsWhoseItemsAgreeAreTheirNumbers) {
    EXPECT_EQ(Changes(StructureBuilder(2, 0x0A).Byte(0x09, 0x01), StructureBuilder(2, 0x0A).Byte(0x09, 0x81)),
              "  Features  Board is a hosting board (1) -> Board is a hosting board (129)\n");
}

TEST(FieldChanges, OfCodesThatReadTheSameHaveTheirNumbers) {
    EXPECT_EQ(Changes(StructureBuilder(21, 7).Byte(0x04, 0x50), StructureBuilder(21, 7).Byte(0x04, 0x51)),
              "  Type  <OUT OF SPEC> (80) -> <OUT OF SPEC> (81)\n");
}

TEST(FieldChanges, OfTextsThatReadTheSameHaveTheirBytes) {
    const auto slot = [](const std::string& serialNumber) {
        return StructureBuilder(1, 0x08).String(0x07, serialNumber);
    };
    EXPECT_EQ(Changes(slot("A"), slot("A ")), "  Serial Number  A (41) -> A (41 20)\n");
    EXPECT_EQ(Changes(slot("A"), slot("  ")), "  Serial Number  A -> (blank)\n");
    EXPECT_EQ(Changes(slot("\x01"), slot("\x02")),
              "  Serial Number  \xEF\xBF\xBD (01) -> \xEF\xBF\xBD (02)\n");
}

TEST(FieldChanges, OfObjectsHaveTheirHeading) {
    const auto devices = [](std::uint8_t secondType) {
        return StructureBuilder(10, 8).Byte(0x04, 0x83).Byte(0x06, secondType);
    };
    EXPECT_EQ(Changes(devices(0x85), devices(0x05)),
              "  On Board Device 2 Information, Status  Enabled -> Disabled\n");
    const auto report = DiffJson(TableWith({devices(0x85)}), TableWith({devices(0x05)}));
    const auto& field = report.at("changed").at(0).at("fields").at(0);
    EXPECT_EQ(field.at("group"), "devices");
    EXPECT_EQ(field.at("index"), 1);
}

TEST(FieldChanges, WithoutALabelAreThereForProgramsOnlyWhenAnotherTellsTheSame) {
    const auto processor = [](std::uint8_t count, std::uint16_t count2) {
        return StructureBuilder(4, 0x30).Byte(0x23, count).Word(0x2A, count2);
    };
    EXPECT_EQ(Changes(processor(8, 8), processor(16, 16)), "  Core Count  8 -> 16\n");
    EXPECT_EQ(ChangedNames(processor(8, 8), processor(16, 16)),
              (std::vector<std::string>{"coreCount", "coreCount2"}));
    EXPECT_EQ(Changes(processor(8, 8), processor(8, 16)), "  coreCount2  8 -> 16\n");
}

TEST(FieldChanges, OfHandlesSayWhatTheyLeadTo) {
    const auto machine = [](std::uint16_t probe) {
        return TableWith({StructureBuilder(27, 6, 1).Word(0x04, probe),
                          StructureBuilder(28, 0x14, 2).String(0x04, "Inlet"),
                          StructureBuilder(28, 0x14, 3).String(0x04, "Outlet")});
    };
    const auto change = [&](std::uint16_t before, std::uint16_t after) {
        return LinesOf(DiffText(machine(before), machine(after))).at(1);
    };
    EXPECT_EQ(
        change(2, 3),
        "  Temperature Probe Handle  0x0002 (Temperature Probe Inlet) -> 0x0003 (Temperature Probe Outlet)");
    EXPECT_EQ(change(0xFFFF, 3),
              "  Temperature Probe Handle  Not Provided -> 0x0003 (Temperature Probe Outlet)");
    EXPECT_EQ(change(2, 9),
              "  Temperature Probe Handle  0x0002 (Temperature Probe Inlet) -> 0x0009 (no structure)");
    EXPECT_FALSE(AreDifferent(machine(8), machine(9)));
}

TEST(FieldChanges, OfAHandleAreThereWhenItsNumberStaysAndItsTargetDoesNot) {
    const auto machine = [](std::uint16_t inlet, std::uint16_t outlet) {
        return TableWith({StructureBuilder(27, 6, 1).Word(0x04, 2),
                          StructureBuilder(28, 0x14, inlet).String(0x04, "Inlet"),
                          StructureBuilder(28, 0x14, outlet).String(0x04, "Outlet")});
    };
    EXPECT_EQ(
        LinesOf(DiffText(machine(2, 3), machine(3, 2))).at(1),
        "  Temperature Probe Handle  0x0002 (Temperature Probe Inlet) -> 0x0002 (Temperature Probe Outlet)");
}

TEST(FieldChanges, OfListsOfHandlesAreThoseThatLeadElsewhere) {
    const auto machine = [](const StructureBuilder& group) {
        return TableWith({group,
                          StructureBuilder(28, 0x14, 2).String(0x04, "Inlet"),
                          StructureBuilder(28, 0x14, 3).String(0x04, "Outlet")});
    };
    const RawTable before =
        machine(StructureBuilder(14, 0x0B, 1).Byte(5, 28).Word(6, 2).Byte(8, 28).Word(9, 3));
    const RawTable after = machine(StructureBuilder(14, 0x08, 1).Byte(5, 28).Word(6, 3));
    EXPECT_EQ(LinesOf(DiffText(before, after)).at(1), "  Items  - 0x0002 (Temperature Probe) Inlet");
}

TEST(FieldChanges, OfATypeWithoutFieldsAreItsBytes) {
    EXPECT_EQ(Changes(Oem({1, 2, 3, 4}), Oem({1, 9, 3, 8})), "  Bytes  0x05: 02 03 04 -> 0x05: 09 03 08\n");
    EXPECT_EQ(Changes(Oem({1}), Oem({1, 2})), "  Bytes  none -> 0x05: 02\n");
}

TEST(FieldChanges, OfATypeWithoutFieldsAreItsStrings) {
    EXPECT_EQ(Changes(Oem({1}).String("one").String("two"), Oem({1}).String("one").String("three")),
              "  Strings  - two\n"
              "           + three\n");
}

TEST(FieldChanges, OfBytesBehindTheLastFieldAreBytes) {
    const auto device = [](std::uint8_t last) { return StructureBuilder(21, 8).Byte(0x07, last); };
    EXPECT_EQ(Changes(device(1), device(2)), "  Bytes  0x07: 01 -> 0x07: 02\n");
    EXPECT_EQ(ChangedNames(StructureBuilder(21, 7), device(0)), std::vector<std::string>{"bytes"});
}

TEST(FieldChanges, OfReservedBitsAreBytes) {
    EXPECT_EQ(
        Changes(StructureBuilder(13, 0x16).Byte(0x05, 0x00), StructureBuilder(13, 0x16).Byte(0x05, 0x02)),
        "  Bytes  0x05: 00 -> 0x05: 02\n");
}

TEST(FieldChanges, OfBytesStandBesideThoseOfFields) {
    const auto device = [](std::uint8_t buttons, std::uint8_t last) {
        return StructureBuilder(21, 8).Byte(0x06, buttons).Byte(0x07, last);
    };
    EXPECT_EQ(Changes(device(2, 1), device(3, 2)),
              "  Buttons  2 -> 3\n"
              "  Bytes    0x07: 01 -> 0x07: 02\n");
}

TEST(FieldChanges, OfBytesStandBesideStringsOfOtherNumbers) {
    const auto supply = [](std::uint8_t last) { return StructureBuilder(39, 0x17).Byte(0x16, last); };
    EXPECT_EQ(ChangedNames(supply(1).String(0x05, "Bottom").String(0x06, "PSU"),
                           supply(2).String(0x06, "PSU").String(0x05, "Bottom")),
              std::vector<std::string>{"bytes"});
}

TEST(FieldChanges, OfBytesThatAFieldShowsAreThatFieldAlone) {
    const auto chassis = [](std::uint8_t board) {
        return StructureBuilder(3, 0x18).Byte(0x13, 1).Byte(0x14, 3).Bytes(0x15, {board, 1, 1});
    };
    EXPECT_EQ(ChangedNames(chassis(0x0A), chassis(0x0B)), std::vector<std::string>{"containedElements"});
}

TEST(FieldChanges, OfStringsThatNoFieldHasAreStrings) {
    const auto system = [] { return StructureBuilder(1, 0x08).String(0x04, "Maker"); };
    EXPECT_EQ(Changes(system(), system().String("left over")), "  Strings  + left over\n");
}

TEST(FieldChanges, OfAStructureThatIsCutShortAreARemark) {
    const RawTable whole = TableBuilder(3, 8, 0).AddBytes({21, 7, 0, 0, 1, 2, 3, 0, 0}).RawTable();
    const RawTable cut = TableBuilder(3, 8, 0).AddBytes({21, 7, 0, 0, 1, 2, 3}).RawTable();
    EXPECT_EQ(DiffJson(whole, cut).at("changed").at(0).at("fields").at(0).at("new").at("value"),
              "The structure is cut short: the table ends before its strings do.");
}

TEST(FieldChanges, OfVersionsAreADifferenceOfTheTables) {
    const RawTable before = TableBuilder(3, 1, 0).Add({126, 4}).RawTable();
    const RawTable after = TableBuilder(3, 2, 1).Add({126, 4}).RawTable();
    EXPECT_TRUE(AreDifferent(before, after));
    EXPECT_EQ(DiffText(before, after),
              "~ SMBIOS table\n"
              "  Version  3.1.0 -> 3.2.1\n"
              "\n"
              "0 added, 0 removed, 0 changed, 1 the same\n");
    EXPECT_EQ(DiffJson(before, after).at("new").at("version"), "3.2.1");
}

TEST(FieldChanges, MayComeWithTheVersionAlone) {
    const StructureBuilder system = StructureBuilder(1, 0x19).Bytes(0x08, {0x33, 0x22, 0x11, 0x00});
    const RawTable before = TableBuilder(2, 5, 0).Add(system).RawTable();
    const RawTable after = TableBuilder(2, 6, 0).Add(system).RawTable();
    EXPECT_EQ(LinesOf(DiffText(before, after)).at(3),
              "  UUID  33221100-0000-0000-0000-000000000000 -> 00112233-0000-0000-0000-000000000000");
}

}  // namespace
}  // namespace SMBIOS::Tests
