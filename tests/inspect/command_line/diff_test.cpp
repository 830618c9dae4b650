#include "smbios-inspect/command_line/diff.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/command_line/options.h"
#include "tests/inspect/comparison/comparison_support.h"
#include "tests/support/fake_platform.h"
#include "tests/support/temporary_folder.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::Command;
using Inspect::Options;
using Inspect::ParseOptions;
using Inspect::UsageError;
using Words = std::vector<std::string_view>;

class Diff : public testing::Test {
protected:
    static RawTable Table(std::uint8_t buttons) {
        return TableWith({StructureBuilder(21, 7).Byte(0x06, buttons), {127, 4}});
    }

    TemporaryFolder folder_;
    std::string old_ = folder_.Write("old", Table(2)).string();
    std::string new_ = folder_.Write("new", Table(3)).string();
};

TEST_F(Diff, EndsWith3WhenSomethingDiffers) {
    const ToolResult result = RunTool({"diff", old_, new_});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output,
              "~ Built-in Pointing Device\n"
              "  Buttons  2 -> 3\n"
              "\n"
              "0 added, 0 removed, 1 changed, 1 the same\n");
}

TEST_F(Diff, EndsWith0WhenNothingDoes) {
    const ToolResult result = RunTool({"diff", old_, old_});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "0 added, 0 removed, 0 changed, 2 the same\n");
}

TEST_F(Diff, EndsWith1WhenATableCannotBeRead) {
    const std::string absent = (folder_.Path() / "absent").string();
    EXPECT_EQ(RunTool({"diff", absent, new_}).status, 1);
    const ToolResult result = RunTool({"diff", old_, absent});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "smbios-inspect: cannot open " + absent + ": No such file or directory\n");
}

TEST_F(Diff, ComparesWithTheTableInUseWhenItHasOneTableOnly) {
    const FakeFirmwareTable firmware(Table(5));
    std::ostringstream output;
    std::ostringstream errors;
    EXPECT_EQ(Inspect::CompareTables({.oldTable = old_}, {}, output, errors), Inspect::kDifferent);
    EXPECT_EQ(LinesOf(output.str()).at(1), "  Buttons  2 -> 5");
}

TEST_F(Diff, PrintsNothingWhenItIsToBeQuiet) {
    for (const char* const quiet : {"-q", "--quiet"}) {
        const ToolResult result = RunTool({"diff", quiet, old_, new_});
        EXPECT_EQ(result.status, 3);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, "");
    }
}

TEST_F(Diff, SaysWhichTableMayBeCutShort) {
    const std::string cut = folder_.Write("cut", TableWith({{126, 4}})).string();
    EXPECT_EQ(RunTool({"diff", cut, old_}).errors,
              "smbios-inspect: " + cut + ": the table may be cut short: it has no end-of-table structure\n");
    EXPECT_EQ(RunTool({"diff", old_, cut, "-q"}).errors, "");
}

TEST(DiffOptions, NameTheTables) {
    const Options options = ParseOptions(Words{"diff", "a", "--json", "-"});
    EXPECT_EQ(options.command, Command::diff);
    EXPECT_EQ(options.oldTable, "a");
    EXPECT_EQ(options.newTable, "-");
    EXPECT_TRUE(options.report.json);
    EXPECT_EQ(ParseOptions(Words{"diff", "a"}).newTable, std::nullopt);
}

TEST(DiffOptions, AreWrongWithoutATableOrWithTooMany) {
    for (const Words& words : {Words{"diff"},
                               Words{"diff", ""},
                               Words{"diff", "a", ""},
                               Words{"diff", "a", "b", "c"},
                               Words{"diff", "-", "-"},
                               Words{"diff", "a", "--from", "b"},
                               Words{"diff", "a", "--type", "1"},
                               Words{"diff", "a", "--force"}}) {
        EXPECT_THROW(static_cast<void>(ParseOptions(words)), UsageError) << words.back();
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
