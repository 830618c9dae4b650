#include "smbios-inspect/reports/departures_report.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "platform/file_bytes.h"
#include "smbios-inspect/reports/structures_report.h"
#include "tests/inspect/reports/structures_support.h"
#include "tests/inspect/run_tool.h"
#include "tests/support/decode.h"
#include "tests/support/json.h"

// The manager is once per process: every test here needs a process of its own.
namespace SMBIOS::Tests {
namespace {

std::string DeparturesReport(std::vector<std::uint8_t> table, const Inspect::Request& request) {
    const FakeFirmwareTable firmware(std::move(table));
    std::ostringstream output;
    Inspect::ReportDepartures(request, {}, output);
    return output.str();
}

/// A memory error whose syndrome departs, a touch pad that the library refuses, and an array that agrees.
std::vector<std::uint8_t> DepartingTable() {
    return TableBuilder(3, 2, 0)
        .Add(StructureBuilder(33, 0x1F, 0x0021).Byte(0x04, 3))
        .Add(StructureBuilder(21, 7, 0x0015).Byte(0x04, 7))
        .Add(StructureBuilder(16, 0x17, 0x0010).Byte(0x04, 3))
        .RawTable();
}

std::vector<std::uint8_t> AgreeingTable() {
    return TableBuilder(3, 2, 0).Add(StructureBuilder(16, 0x17, 0x0010).Byte(0x04, 3)).RawTable();
}

/// A processor whose only departure is the maximum speed, which has no line among the structure's.
std::vector<std::uint8_t> TableThatLacksASpeed() {
    return TableBuilder(2, 0, 0).Add(StructureBuilder(4, 0x1A, 0x0004).Word(0x14, 3800)).RawTable();
}

TEST(DeparturesReport, TheSampleReadsLikeItsGoldenText) {
    EXPECT_EQ(DeparturesReport(Platform::ReadFileBytes(SMBIOS_SAMPLE_TABLE).bytes, {}),
              GoldenText("workstation-departures.txt"));
}

TEST(DeparturesReport, TheSampleInJsonIsItsGoldenFile) {
    EXPECT_EQ(DeparturesReport(Platform::ReadFileBytes(SMBIOS_SAMPLE_TABLE).bytes, {.json = true}),
              GoldenText("workstation-departures.json"));
}

TEST(DeparturesReport, TellsTheFirmwaresWordTheLibrarysValueAndTheReason) {
    EXPECT_EQ(
        DeparturesReport(DepartingTable(), {}),
        "Type 33: 64-bit Memory Error Information, handle 0x0021, 31 bytes\n"
        "  Vendor syndrome  Firmware: Unknown\n"
        "                   Library: 0x0000\n"
        "                   Reason: 64-bit Memory Error (33): vendorSyndrome 0 - the standard: unknown; this "
        "library: "
        "the text 0x0000\n"
        "\n"
        "Type 21: Built-in Pointing Device, handle 0x0015, 7 bytes\n"
        "  Error  Firmware: accepted\n"
        "         Library: " +
            std::string(kMalformed) +
            "\n"
            "         Reason: Pointing device (21): acceptance - the standard: from 2.1.0; this library: "
            "only in a "
            "2.1.0 table and of length 7\n");
}

TEST(DeparturesReport, SaysInASentenceThatAllValuesAgree) {
    EXPECT_EQ(DeparturesReport(AgreeingTable(), {}),
              "The library gives every value of this table as the SMBIOS standard does.\n");
}

TEST(DeparturesReport, OfAgreeingValuesIsAnEmptyListInJson) {
    EXPECT_EQ(Json::parse(DeparturesReport(AgreeingTable(), {.json = true})),
              Json::parse(R"({"version": "3.2.0", "departures": []})"));
}

TEST(DeparturesReport, IsAListOfObjectsInJson) {
    const Json report = Json::parse(DeparturesReport(DepartingTable(), {.json = true}));
    EXPECT_EQ(report.at("version"), "3.2.0");
    ASSERT_EQ(report.at("departures").size(), 2U);
    EXPECT_EQ(report.at("departures").at(0),
              Json::parse(R"({"type": 33, "name": "64-bit Memory Error Information", "handle": 33,
                              "field": "vendorSyndrome",
                              "firmware": {"value": null, "text": "Unknown"},
                              "library": "0x0000",
                              "reason": "64-bit Memory Error (33): vendorSyndrome 0 - the standard: unknown; )"
                          R"(this library: the text 0x0000"})"));
}

// What `structures` says of it

TEST(StructuresReportWithDepartures, MarksTheirLinesAndNamesTheCommand) {
    EXPECT_EQ(StructuresReport(DepartingTable(), {.from = "table.bin", .types = {33}}),
              "Type 33: 64-bit Memory Error Information, handle 0x0021, 31 bytes\n"
              "  Error type             OK (3)\n"
              "  Granularity            0\n"
              "  Operation              0\n"
              "  Vendor syndrome        0x0000 *\n"
              "  Address in the array   0x00000000\n"
              "  Address in the device  0x00000000\n"
              "  Resolution             0x0000 bytes\n"
              "\n"
              "Values with a * are not what the SMBIOS standard makes of them. See both with: smbios-inspect "
              "departures --from table.bin\n");
}

TEST(StructuresReportWithDepartures, CountsValuesThatHaveNoLine) {
    const std::string report = StructuresReport(TableThatLacksASpeed(), {});
    EXPECT_TRUE(
        report.ends_with("\n1 value that the SMBIOS standard has is missing here. See both with: "
                         "smbios-inspect departures\n"))
        << report;
}

TEST(StructuresReportWithDepartures, SaysNothingWhereAllValuesAgree) {
    EXPECT_EQ(StructuresReport(AgreeingTable(), {}).find("departures"), std::string::npos);
}

}  // namespace
}  // namespace SMBIOS::Tests
