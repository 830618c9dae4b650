#include "smbios-inspect/command_line/inspect.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "samples/table_builder.h"
#include "smbios-inspect/command_line/options.h"
#include "smbios-inspect/output/column_table.h"
#include "tests/inspect/captured_tables.h"
#include "tests/inspect/run_tool.h"
#include "tests/support/temporary_folder.h"

// The manager is once per process: every test here needs a process of its own.
namespace SMBIOS::Tests {
namespace {

TEST(Inspect, PrintsItsUsage) {
    const ToolResult result = RunTool({"--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, Inspect::UsageText());
    EXPECT_EQ(result.errors, "");
}

TEST(Inspect, PrintsItsVersion) {
    EXPECT_EQ(RunTool({"--version"}).output, "smbios-inspect 2.0.0\n");
}

TEST(Inspect, AnswersWrongUsageWithTheRightOne) {
    const ToolResult result = RunTool({"reboot"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "smbios-inspect: unknown command 'reboot'\n"
              "See smbios-inspect --help.\n");
}

TEST(Inspect, SaysOnTheErrorStreamThatATableMayBeCutShort) {
    const TemporaryFolder folder;
    const auto table = folder.Write("table", Samples::TableBuilder(2, 8, 0).Add({16, 0x0F}).RawTable());
    const ToolResult result = RunTool({"structures", "--json", "--from", table.string()});
    EXPECT_EQ(result.errors,
              "smbios-inspect: the table may be cut short: it has no end-of-table structure\n");
    EXPECT_EQ(result.status, 0);
}

TEST(Inspect, TellsInOneLineWhatCannotBeRead) {
    const ToolResult result = RunTool({"memory", "--from", "no such\nfile"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(LinesOf(result.errors).size(), 1U);
    EXPECT_TRUE(
        result.errors.starts_with("smbios-inspect: cannot open no such\xEF\xBF\xBD"
                                  "file: "));
}

/// Each command with each captured table, and a terminal width; 0 for no terminal.
using Case = std::tuple<const char*, const char*, std::size_t>;

/// One captured table has no end-of-table structure, which the tool says.
void ExpectNoErrorsButOfALostEnd(const std::string& errors) {
    EXPECT_TRUE(errors.empty() ||
                errors == "smbios-inspect: the table may be cut short: it has no end-of-table structure\n")
        << errors;
}

class CapturedOutput : public testing::TestWithParam<Case> {};

/// Whether a line that is too wide has a place to break it: a blank between two words of its value.
bool HasPlaceToBreak(const std::string& line) {
    const std::size_t value = line.find("  ");
    const std::size_t start = value == std::string::npos ? 0 : line.find_first_not_of(' ', value);
    return line.find(' ', std::min(start, line.size())) != std::string::npos;
}

TEST_P(CapturedOutput, FitsTheTerminal) {
    if (!HasCapturedTables()) {
        GTEST_SKIP() << "no captured tables in " << SMBIOS_DUMPS_DIR;
    }
    const auto& [table, command, width] = GetParam();
    const ToolResult result = RunTool({command, "--from", CapturedTable(table)}, {.width = width});
    EXPECT_EQ(result.status, 0);
    ExpectNoErrorsButOfALostEnd(result.errors);
    EXPECT_FALSE(result.output.empty());
    for (const std::string& line : LinesOf(result.output)) {
        // The structures' string sets are shown as they are, with the blanks that some firmware pads them
        // with.
        EXPECT_FALSE(line.ends_with(' ') && std::string_view(command) != "structures") << line;
        if (width != 0 && Inspect::DisplayWidth(line) > width) {
            EXPECT_FALSE(HasPlaceToBreak(line)) << line;
        }
    }
}

std::string NameOfCase(const testing::TestParamInfo<Case>& each) {
    const auto& [table, command, width] = each.param;
    return AsTestName(std::string(table) + "_" + command + "_" + std::to_string(width));
}

INSTANTIATE_TEST_SUITE_P(Tables,
                         CapturedOutput,
                         testing::Combine(testing::ValuesIn(kCapturedTables),
                                          testing::Values("summary", "memory", "processors", "structures"),
                                          testing::Values(0U, 80U, 160U)),
                         NameOfCase);

using JsonCase = std::tuple<const char*, const char*>;

class CapturedJson : public testing::TestWithParam<JsonCase> {};

TEST_P(CapturedJson, IsAnObject) {
    if (!HasCapturedTables()) {
        GTEST_SKIP() << "no captured tables in " << SMBIOS_DUMPS_DIR;
    }
    const auto& [table, command] = GetParam();
    const ToolResult result = RunTool({command, "--json", "--from", CapturedTable(table)});
    EXPECT_EQ(result.status, 0);
    ExpectNoErrorsButOfALostEnd(result.errors);
    EXPECT_EQ(result.output.front(), '{');
}

std::string NameOfJsonCase(const testing::TestParamInfo<JsonCase>& each) {
    const auto& [table, command] = each.param;
    return AsTestName(std::string(table) + "_" + command);
}

INSTANTIATE_TEST_SUITE_P(Tables,
                         CapturedJson,
                         testing::Combine(testing::ValuesIn(kCapturedTables),
                                          testing::Values("memory", "processors", "structures")),
                         NameOfJsonCase);

TEST(Inspect, PrintsTheSameBytesOnEverySystem) {
    // Copies, because every shell has its own way to quote the path of a checkout.
    const TemporaryFolder folder;
    const std::filesystem::path tool = std::filesystem::path(SMBIOS_INSPECT).filename();
    std::filesystem::copy_file(SMBIOS_INSPECT, folder.Path() / tool);
    std::filesystem::copy_file(SMBIOS_SAMPLE_TABLE, folder.Path() / "table");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    const std::string command = ("." / tool).make_preferred().string();
    EXPECT_EQ(std::system((command + " memory --json --from table >output").c_str()), 0);
    std::filesystem::current_path(before);
    EXPECT_EQ(ContentsOf(folder.Path() / "output"), GoldenText("memory.json"));
}

}  // namespace
}  // namespace SMBIOS::Tests
