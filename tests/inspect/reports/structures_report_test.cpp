#include "smbios-inspect/reports/structures_report.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/file_bytes.h"
#include "tests/inspect/reports/structures_support.h"
#include "tests/support/decode.h"

// The manager is once per process: every test here needs a process of its own.
namespace SMBIOS::Tests {
namespace {

std::vector<std::uint8_t> SampleTable() {
    return Platform::ReadFileBytes(SMBIOS_SAMPLE_TABLE).bytes;
}

/// The checked-in output for the sample table.
std::string Golden(const char* name) {
    const std::filesystem::path folder = SMBIOS_SOURCE_DIR "/tests/inspect/golden";
    const std::vector<std::uint8_t> bytes = Platform::ReadFileBytes(folder / name).bytes;
    return {bytes.begin(), bytes.end()};
}

/// Two structures of type 5, which has no decoder, and an end of the table.
std::vector<std::uint8_t> SmallTable() {
    return TableBuilder(3, 2, 0)
        .Add({5, 4, 0x0501})
        .Add(StructureBuilder(11, 5, 0x0B01).String("first"))
        .Add({5, 4, 0x0502})
        .Add({127, 4, 0x7F01})
        .RawTable();
}

// The header of a table and nothing that is a structure.
std::vector<std::uint8_t> TableWithoutStructures() {
    return {0, 2, 8, 0, 1, 0, 0, 0, 0};
}

std::vector<int> HandlesOf(const std::string& report) {
    const Json json = Json::parse(report);
    std::vector<int> handles;
    for (const Json& structure : json.at("structures")) {
        handles.push_back(structure.at("record").at("handle"));
    }
    return handles;
}

// The sample

TEST(StructuresReport, TheSampleReadsLikeItsGoldenText) {
    EXPECT_EQ(StructuresReport(SampleTable(), {}), Golden("workstation-structures.txt"));
}

TEST(StructuresReport, TheSampleInJsonIsItsGoldenFile) {
    EXPECT_EQ(StructuresReport(SampleTable(), {.json = true}), Golden("workstation-structures.json"));
}

// JSON

TEST(StructuresReport, JsonTellsTheVersionAndItsIndex) {
    const Json report = Json::parse(StructuresReport(SmallTable(), {.json = true}));
    EXPECT_EQ(report.at("version"), "3.2.0");
    EXPECT_EQ(report.at("versionIndex"), 18);
}

TEST(StructuresReport, StructuresStandInTheOrderOfTheirKeysAndThenOfTheTable) {
    EXPECT_EQ(HandlesOf(StructuresReport(SmallTable(), {.json = true})),
              (std::vector{0x0B01, 0x0501, 0x0502, 0x7F01}));
}

TEST(StructuresReport, AStructureOfAnUnknownTypeTellsItsRealType) {
    const Json report = Json::parse(StructuresReport(SmallTable(), {.json = true, .types = {127}}));
    EXPECT_EQ(report.at("structures").at(0).at("key"), 128);
    EXPECT_EQ(report.at("structures").at(0).at("type"), 127);
}

// Selection

TEST(StructuresReport, ATypeSelectsItsStructures) {
    EXPECT_EQ(HandlesOf(StructuresReport(SmallTable(), {.json = true, .types = {5}})),
              (std::vector{0x0501, 0x0502}));
}

TEST(StructuresReport, SeveralTypesSelectAllTheirStructures) {
    EXPECT_EQ(HandlesOf(StructuresReport(SmallTable(), {.json = true, .types = {127, 11}})),
              (std::vector{0x0B01, 0x7F01}));
}

TEST(StructuresReport, TheKeyOfUnknownTypesSelectsNothing) {
    EXPECT_EQ(HandlesOf(StructuresReport(SmallTable(), {.json = true, .types = {128}})), std::vector<int>());
}

TEST(StructuresReport, TheEndOfTheTableCanBeShown) {
    EXPECT_EQ(StructuresReport(SmallTable(), {.types = {127}}),
              "Type 127: End of Table, handle 0x7F01, 4 bytes\n"
              "  Raw bytes  7f 04 01 7f\n");
}

TEST(StructuresReport, ABlankLineSeparatesStructures) {
    EXPECT_EQ(StructuresReport(SmallTable(), {.types = {5}}),
              "Type 5: Memory Controller Information (Obsolete), handle 0x0501, 4 bytes\n"
              "  Raw bytes  05 04 01 05\n"
              "\n"
              "Type 5: Memory Controller Information (Obsolete), handle 0x0502, 4 bytes\n"
              "  Raw bytes  05 04 02 05\n");
}

// Nothing to show

TEST(StructuresReport, WithoutASelectedStructureTheTextSaysSo) {
    EXPECT_EQ(StructuresReport(SmallTable(), {.types = {17}}), "The table holds no such structure.\n");
}

TEST(StructuresReport, WithoutASelectedStructureTheJsonListIsEmpty) {
    const Json report = Json::parse(StructuresReport(SmallTable(), {.json = true, .types = {17}}));
    EXPECT_EQ(report.at("structures"), Json::array());
}

TEST(StructuresReport, OfATableWithoutStructuresTheTextSaysSo) {
    EXPECT_EQ(StructuresReport(TableWithoutStructures(), {}), "The table holds no structure.\n");
}

TEST(StructuresReport, OfATableWithoutStructuresTheJsonListIsEmpty) {
    const Json report = Json::parse(StructuresReport(TableWithoutStructures(), {.json = true}));
    EXPECT_EQ(report.at("structures"), Json::array());
    EXPECT_EQ(report.at("version"), "2.8.0");
}

// Failures

TEST(StructuresReport, AStructureThatIsNotAcceptedShowsItsBytesAndItsError) {
    const auto table = TableBuilder(3, 2, 0).Add(StructureBuilder(21, 7, 0x0080).Byte(0x04, 3)).RawTable();
    EXPECT_EQ(
        StructuresReport(table, {}),
        "Type 21: Built-in Pointing Device, handle 0x0080, 7 bytes\n"
        "  Raw bytes  15 07 80 00 03 00 00\n"
        "  Error      " +
            std::string(kMalformed) +
            " *\n"
            "\n"
            "Values with a * are not what the SMBIOS standard makes of them. See both with: smbios-inspect "
            "departures\n");
}

}  // namespace
}  // namespace SMBIOS::Tests
