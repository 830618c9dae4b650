#include "smbios-inspect/standard/structure.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "smbios-inspect/standard/forms.h"
#include "tests/inspect/standard/standard_support.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::Standard::Structure;
using Inspect::Standard::TableWalk;

std::vector<Structure> StructuresOf(const std::vector<std::uint8_t>& rawTable) {
    std::vector<Structure> structures;
    TableWalk walk(rawTable);
    while (auto structure = walk.Next()) {
        structures.push_back(*structure);
    }
    return structures;
}

std::vector<std::uint8_t> TableOfBytes(const std::vector<std::uint8_t>& bytes) {
    return TableBuilder(3, 8, 1).AddBytes(bytes).RawTable();
}

TEST(StandardWalk, TellsTheVersion) {
    const std::vector<std::uint8_t> table = TableOfBytes({});
    const TableWalk walk(table);
    EXPECT_EQ(walk.Version().major, 3);
    EXPECT_EQ(walk.Version().minor, 8);
    EXPECT_EQ(walk.Version().revision, 1);
}

TEST(StandardWalk, AVersionIsAtLeastAnEarlierOneAndItself) {
    constexpr Inspect::Standard::TableVersion kVersion{2, 6, 0};
    EXPECT_TRUE(kVersion.IsAtLeast(2, 6));
    EXPECT_TRUE(kVersion.IsAtLeast(1, 9));
    EXPECT_FALSE(kVersion.IsAtLeast(2, 7));
    EXPECT_FALSE(kVersion.IsAtLeast(3, 0));
}

TEST(StandardWalk, GivesStructuresWithTheirStringsInTableOrder) {
    const auto table = TableBuilder(3, 8, 0)
                           .Add(StructureBuilder(11, 5, 2).String("a").String("bc"))
                           .Add({24, 5, 1})
                           .Add({127, 4, 3})
                           .RawTable();
    const auto structures = StructuresOf(table);
    ASSERT_EQ(structures.size(), 3U);
    EXPECT_EQ(structures[0].Handle(), 2);
    EXPECT_EQ(structures[0].strings, (std::vector<std::string_view>{"a", "bc"}));
    EXPECT_EQ(structures[1].Type(), 24);
    EXPECT_TRUE(structures[1].strings.empty());
    EXPECT_EQ(structures[2].Type(), 127);
}

TEST(StandardWalk, GoesOnBehindAnEndOfTable) {
    const auto table = TableBuilder(2, 8, 0).Add({127, 4, 1}).Add({24, 5, 2}).RawTable();
    EXPECT_EQ(StructuresOf(table).size(), 2U);
}

TEST(StandardWalk, EndsWhereOnlyZerosFollow) {
    EXPECT_EQ(StructuresOf(TableOfBytes({127, 4, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0})).size(), 1U);
    EXPECT_TRUE(StructuresOf(TableOfBytes({0, 0})).empty());
}

TEST(StandardWalk, ShowsThatMoreThanZerosFollow) {
    const auto table = TableOfBytes({0, 0, 0, 0, 0, 0, 1});
    const auto structures = StructuresOf(table);
    ASSERT_EQ(structures.size(), 1U);
    EXPECT_FALSE(structures[0].defect.empty());
}

TEST(StandardWalk, GivesWhatThereIsOfAStructureThatTheTableCutsShort) {
    const auto table = TableOfBytes({24, 5, 1, 0});
    const auto structures = StructuresOf(table);
    ASSERT_EQ(structures.size(), 1U);
    EXPECT_EQ(structures[0].bytes.size(), 4U);
    EXPECT_EQ(structures[0].defect, "the table ends before it does");
}

TEST(StandardWalk, GivesWhatThereIsOfAHeader) {
    const auto table = TableOfBytes({24});
    const auto structures = StructuresOf(table);
    ASSERT_EQ(structures.size(), 1U);
    EXPECT_EQ(structures[0].Type(), 24);
    EXPECT_FALSE(structures[0].defect.empty());
}

TEST(StandardWalk, EndsBehindAStructureShorterThanItsHeader) {
    const auto table = TableOfBytes({24, 3, 1, 0, 0, 0, 24, 5, 1, 0, 0, 0, 0});
    const auto structures = StructuresOf(table);
    ASSERT_EQ(structures.size(), 1U);
    EXPECT_EQ(structures[0].defect,
              "its length is less than that of a header; nothing behind it can be read");
}

TEST(StandardWalk, GivesTheStringsThatTheTableCutsShort) {
    const auto table = TableOfBytes({11, 5, 1, 0, 1, 'a', 0, 'b'});
    const auto structures = StructuresOf(table);
    ASSERT_EQ(structures.size(), 1U);
    EXPECT_EQ(structures[0].strings, (std::vector<std::string_view>{"a", "b"}));
    EXPECT_EQ(structures[0].defect, "the table ends before its strings do");
}

TEST(StandardWalk, ASingleZeroEndsAStringSetThatIsEmpty) {
    const auto table = TableOfBytes({24, 5, 1, 0, 0, 0, 24, 5, 2, 0, 0, 0, 0});
    const auto structures = StructuresOf(table);
    ASSERT_EQ(structures.size(), 2U);
    EXPECT_EQ(structures[1].Handle(), 2);
}

TEST(StandardWalk, HasNothingInATableThatIsNone) {
    EXPECT_TRUE(StructuresOf({}).empty());
    EXPECT_TRUE(StructuresOf({0, 3, 8, 0}).empty());
}

TEST(StandardDecode, AUuidIsBigEndianBeforeVersion26) {
    const auto structure =
        StructureBuilder(1, 27).Bytes(0x08, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15});
    const auto uuidIn = [&](std::uint8_t minor) {
        return FirmwareJson(TableBuilder(2, minor, 0).Add(structure).RawTable())
            .at(0)
            .at("fields")
            .at("uuid")
            .at("value");
    };
    EXPECT_EQ(uuidIn(5), "00010203-0405-0607-0809-0a0b0c0d0e0f");
    EXPECT_EQ(uuidIn(6), "03020100-0504-0706-0809-0a0b0c0d0e0f");
}

TEST(StandardDecode, ThereIsNoCacheWhereThereIsNoHandleBeforeVersion23) {
    const auto structure = StructureBuilder(4, 32).Word(0x1A, 0xFFFF);
    const auto textIn = [&](std::uint8_t minor) {
        return FirmwareJson(TableBuilder(2, minor, 0).Add(structure).RawTable())
            .at(0)
            .at("fields")
            .at("l1CacheHandle")
            .at("text");
    };
    EXPECT_EQ(textIn(2), "No L1 Cache");
    EXPECT_EQ(textIn(3), "Not Provided");
}

TEST(StandardDecode, AFieldIsThereWhenTheStructureIsLongEnoughWhateverTheVersion) {
    const auto table = TableBuilder(2, 0, 0).Add(StructureBuilder(17, 92)).RawTable();
    const Json fields = FirmwareJson(table).at(0).at("fields");
    EXPECT_TRUE(fields.contains("extendedConfiguredMemorySpeed"));
    EXPECT_FALSE(fields.contains("pmic0ManufacturerId"));
}

TEST(StandardDecode, AStructureShorterThanItsTypeNeedsSaysSo) {
    const Json structure = FirmwareJson(TableOf(StructureBuilder(16, 10))).at(0);
    EXPECT_EQ(structure.at("remark"),
              "The structure is cut short: it is shorter than the 15 bytes that its type needs.");
    EXPECT_TRUE(structure.at("fields").contains("memoryErrorCorrection"));
    EXPECT_FALSE(structure.at("fields").contains("maximumCapacity"));
}

TEST(StandardDecode, AStructureThatEndsWithinAFieldSaysSo) {
    const Json structure = FirmwareJson(TableOf(StructureBuilder(17, 0x23))).at(0);
    EXPECT_EQ(structure.at("remark"), "The structure is cut short: it ends within the field minimumVoltage.");
}

TEST(StandardDecode, AWholeStructureHasNoRemark) {
    EXPECT_FALSE(FirmwareJson(TableOf(StructureBuilder(17, 0x22))).at(0).contains("remark"));
}

TEST(StandardDecode, TypesWithoutATableOfFieldsShowBytesAndStrings) {
    for (const int number : {47, 48, 49, 125, 126, 127, 128, 255}) {
        const auto type = static_cast<std::uint8_t>(number);
        const auto table = TableOf(StructureBuilder(type, 6).Word(0x04, 0xABCD).String("text"));
        EXPECT_NE(FirmwareText(table).find("\tHeader and Data:\n\t\t" +
                                           Inspect::Standard::BytesText(std::vector{type}) +
                                           " 06 34 12 CD AB\n\tStrings:\n\t\ttext\n"),
                  std::string::npos)
            << FirmwareText(table);
        EXPECT_EQ(FirmwareJson(table).at(0).at("fields"), Json::object());
    }
}

TEST(StandardText, BeginsWithTheHeadingOfTheStructure) {
    EXPECT_TRUE(FirmwareText(TableOf(StructureBuilder(17, 92, 0x0050)))
                    .starts_with("Type 17: Memory Device, handle 0x0050, 92 bytes\n"));
}

TEST(StandardText, IsSafeForATerminal) {
    const auto table = TableOf(StructureBuilder(1, 8).String(0x04, "a\x1B[2J"));
    EXPECT_NE(FirmwareText(table).find("\tManufacturer: a\xEF\xBF\xBD[2J\n"), std::string::npos);
}

TEST(StandardText, HasNoHandlesAndRemarksWhenQuiet) {
    const auto table = TableOf(StructureBuilder(16, 14, 0x0041).Word(0x0B, 0x0042));
    const std::string text = FirmwareText(table, true);
    EXPECT_TRUE(text.starts_with("Physical Memory Array\n\tLocation: ")) << text;
    EXPECT_EQ(text.find("Handle"), std::string::npos);
    EXPECT_EQ(text.find("cut short"), std::string::npos);
}

TEST(StandardJson, HasTheHeaderTheStringsAndTheBytes) {
    const Json structure =
        FirmwareJson(TableOf(StructureBuilder(24, 5, 0x0042).Byte(0x04, 0xFF).String("x"))).at(0);
    EXPECT_EQ(structure.at("type"), 24);
    EXPECT_EQ(structure.at("name"), "Hardware Security");
    EXPECT_EQ(structure.at("handle"), 0x42);
    EXPECT_EQ(structure.at("length"), 5);
    EXPECT_EQ(structure.at("strings"), Json({"x"}));
    EXPECT_EQ(structure.at("bytes"), "18054200ff");
}

TEST(StandardJson, HasNoBytesStringsAndRemarksWhenQuiet) {
    const Json structure = FirmwareJson(TableOf(StructureBuilder(16, 14)), true).at(0);
    EXPECT_FALSE(structure.contains("bytes"));
    EXPECT_FALSE(structure.contains("strings"));
    EXPECT_FALSE(structure.contains("remark"));
}

}  // namespace
}  // namespace SMBIOS::Tests
