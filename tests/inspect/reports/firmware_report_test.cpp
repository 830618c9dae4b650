#include "smbios-inspect/reports/firmware_report.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "smbios-inspect/command_line/options.h"
#include "tests/inspect/run_tool.h"
#include "tests/inspect/standard/standard_support.h"
#include "tests/support/fake_platform.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::Command;
using Inspect::Options;
using Inspect::ParseOptions;
using Inspect::Request;
using Inspect::UsageError;
using Words = std::vector<std::string_view>;

std::vector<std::uint8_t> SmallTable() {
    return TableBuilder(3, 2, 1)
        .Add({24, 5, 0x0018})
        .Add({126, 4, 0x0126})
        .Add({21, 7, 0x0021})
        .Add({200, 4, 0x0200})
        .Add({24, 5, 0x0019})
        .Add({127, 4, 0x7F01})
        .RawTable();
}

std::string FirmwareReport(std::vector<std::uint8_t> table, const Request& request) {
    const FakeFirmwareTable firmware(std::move(table));
    std::ostringstream output;
    Inspect::ReportFirmware(request, {}, output);
    return output.str();
}

std::vector<int> HandlesOf(const Request& request) {
    Request withJson = request;
    withJson.json = true;
    const Json report = Json::parse(FirmwareReport(SmallTable(), withJson));
    std::vector<int> handles;
    for (const Json& structure : report.at("structures")) {
        handles.push_back(structure.at("handle"));
    }
    return handles;
}

std::set<int> TypesOf(const Json& report) {
    std::set<int> types;
    for (const Json& structure : report.at("structures")) {
        types.insert(structure.at("type").get<int>());
    }
    return types;
}

// The sample

TEST(FirmwareReport, TheSampleReadsLikeItsGoldenText) {
    const ToolResult result = RunTool({"firmware", "--from", SMBIOS_SAMPLE_TABLE});
    EXPECT_EQ(result.output, GoldenText("workstation-firmware.txt"));
}

TEST(FirmwareReport, TheSampleHasEveryTypeThatTheFirmwareOfWorkstationsWrites) {
    const ToolResult result = RunTool({"firmware", "--json", "--from", SMBIOS_SAMPLE_TABLE});
    const std::set<int> written = {0,  1,  2,  3,  4,  7,  8,  9,  10, 11, 12,  13,  14,
                                   15, 16, 17, 18, 19, 20, 21, 22, 24, 26, 27,  28,  29,
                                   32, 33, 34, 35, 36, 39, 41, 43, 44, 45, 126, 127, 200};
    EXPECT_EQ(TypesOf(Json::parse(result.output)), written);
}

// Which structures

TEST(FirmwareReport, HasTheVersionAndEveryStructureInTableOrder) {
    const Json report = Json::parse(FirmwareReport(SmallTable(), {.json = true}));
    EXPECT_EQ(report.at("version"), "3.2.1");
    EXPECT_EQ(HandlesOf({}), (std::vector{0x18, 0x126, 0x21, 0x200, 0x19, 0x7F01}));
}

TEST(FirmwareReport, JsonIsLaidOutLikeThatOfTheOtherCommands) {
    for (const Request& request : {Request{.json = true}, Request{.json = true, .types = {5}}}) {
        const std::string report = FirmwareReport(SmallTable(), request);
        EXPECT_EQ(report, Json::parse(report).dump(2) + "\n");
    }
}

TEST(FirmwareReport, TypesSelectTheirStructures) {
    EXPECT_EQ(HandlesOf({.types = {24, 127}}), (std::vector{0x18, 0x19, 0x7F01}));
}

TEST(FirmwareReport, HandlesSelectTheirStructures) {
    EXPECT_EQ(HandlesOf({.handles = {0x19, 0x200}}), (std::vector{0x200, 0x19}));
}

TEST(FirmwareReport, TypesAndHandlesSelectWhatIsBoth) {
    EXPECT_EQ(HandlesOf({.types = {24}, .handles = {0x19, 0x200}}), (std::vector{0x19}));
}

TEST(FirmwareReport, QuietLeavesOutWhatHasNoValues) {
    EXPECT_EQ(HandlesOf({.quiet = true}), (std::vector{0x18, 0x21, 0x19}));
}

TEST(FirmwareReport, BlocksHaveAnEmptyLineBetweenThem) {
    const std::string text = FirmwareReport(SmallTable(), {.handles = {0x0021, 0x7F01}});
    EXPECT_EQ(text,
              "Type 21: Built-in Pointing Device, handle 0x0021, 7 bytes\n"
              "\tType: <OUT OF SPEC>\n"
              "\tInterface: <OUT OF SPEC>\n"
              "\tButtons: 0\n"
              "\n"
              "Type 127: End of Table, handle 0x7F01, 4 bytes\n"
              "\tHeader and Data:\n"
              "\t\t7F 04 01 7F\n");
}

TEST(FirmwareReport, ShowsBytesAndStringsBelowTheFieldsWhenAsked) {
    const auto table = TableBuilder(3, 2, 0)
                           .Add(StructureBuilder(12, 5, 0x000C).Byte(0x04, 1).String("JP1").String("\x1B"))
                           .Add(StructureBuilder(24, 5, 0x0018))
                           .RawTable();
    EXPECT_EQ(FirmwareReport(table, {.bytes = true}),
              "Type 12: System Configuration Options, handle 0x000C, 5 bytes\n"
              "\tOption 1: JP1\n"
              "\tHeader and Data:\n"
              "\t\t0C 05 0C 00 01\n"
              "\tStrings:\n"
              "\t\tJP1\n"
              "\t\t\xEF\xBF\xBD\n"
              "\n"
              "Type 24: Hardware Security, handle 0x0018, 5 bytes\n"
              "\tPower-On Password Status: Disabled\n"
              "\tKeyboard Password Status: Disabled\n"
              "\tAdministrator Password Status: Disabled\n"
              "\tFront Panel Reset Status: Disabled\n"
              "\tHeader and Data:\n"
              "\t\t18 05 18 00 00\n");
}

TEST(FirmwareReport, ShowsTheBytesOfWhatHasNoFieldsOnce) {
    EXPECT_EQ(FirmwareReport(SmallTable(), {.handles = {0x0200}, .bytes = true}),
              FirmwareReport(SmallTable(), {.handles = {0x0200}}));
}

TEST(FirmwareReport, SaysThatNothingIsSelected) {
    EXPECT_EQ(FirmwareReport(SmallTable(), {.types = {5}}), "The table holds no such structure.\n");
}

TEST(FirmwareReport, IsWhatTheCommandPrints) {
    const ToolResult result = RunTool({"firmware", "--from", SMBIOS_SAMPLE_TABLE, "--type", "127"});
    EXPECT_EQ(result.status, Inspect::kSuccess) << result.errors;
    EXPECT_TRUE(result.output.starts_with("Type 127: End of Table, handle 0x")) << result.output;
}

TEST(FirmwareOptions, NameTheCommandAndWhatItTakes) {
    const Options options = ParseOptions(
        Words{"firmware", "--json", "--quiet", "--type=17", "--handle", "0x1A", "--handle=65535"});
    EXPECT_EQ(options.command, Command::firmware);
    EXPECT_TRUE(options.report.json);
    EXPECT_TRUE(options.report.quiet);
    EXPECT_EQ(options.report.types, (std::set<std::uint8_t>{17}));
    EXPECT_EQ(options.report.handles, (std::set<std::uint16_t>{0x1A, 0xFFFF}));
}

TEST(FirmwareOptions, AHandleThatIsNoWordIsAnError) {
    for (const std::string_view handle : {"65536", "0x10000", "-1", "0x", "1A", "x", "0x-1"}) {
        EXPECT_THROW(static_cast<void>(ParseOptions(Words{"firmware", "--handle", handle})), UsageError)
            << handle;
    }
}

TEST(FirmwareOptions, AreNotThoseOfOtherCommands) {
    EXPECT_THROW(static_cast<void>(ParseOptions(Words{"structures", "--handle", "1"})), UsageError);
    EXPECT_THROW(static_cast<void>(ParseOptions(Words{"structures", "--quiet"})), UsageError);
    EXPECT_THROW(static_cast<void>(ParseOptions(Words{"firmware", "--force"})), UsageError);
}

TEST(FirmwareOptions, StandInTheUsageText) {
    for (const std::string_view word : {"firmware", "--handle H", "--quiet"}) {
        EXPECT_NE(Inspect::UsageText().find(word), std::string_view::npos) << word;
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
