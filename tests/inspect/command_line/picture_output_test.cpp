#include <gtest/gtest.h>

#include <string>

#include "tests/inspect/run_tool.h"
#include "tests/support/temporary_folder.h"

// The command `picture`. The manager is once per process: every test here needs a process of its own.
namespace SMBIOS::Tests {
namespace {

class PictureOutput : public testing::Test {
protected:
    [[nodiscard]] std::string PathOf(const char* name) const { return (folder_.Path() / name).string(); }

    [[nodiscard]] static ToolResult Draw(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"picture", "--from", SMBIOS_SAMPLE_TABLE});
        return RunTool(arguments);
    }

    TemporaryFolder folder_;
};

TEST_F(PictureOutput, GoesToStandardOutput) {
    const ToolResult result = Draw({});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.output.starts_with("<svg "));
    EXPECT_TRUE(result.output.ends_with("</svg>\n"));
    EXPECT_EQ(result.errors, "");
}

TEST_F(PictureOutput, GoesToAFile) {
    const ToolResult result = Draw({"--output", PathOf("machine.svg")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output + result.errors, "");
    EXPECT_EQ(ContentsOf(PathOf("machine.svg")), Draw({}).output);
}

TEST_F(PictureOutput, DoesNotReplaceAFile) {
    folder_.Write("machine.svg", "precious");
    const ToolResult result = Draw({"--output", PathOf("machine.svg")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "smbios-inspect: " + PathOf("machine.svg") + " exists already; --force overwrites it\n");
    EXPECT_EQ(ContentsOf(PathOf("machine.svg")), "precious");
}

TEST_F(PictureOutput, ReplacesAFileByForce) {
    folder_.Write("machine.svg", "worthless");
    EXPECT_EQ(Draw({"--output", PathOf("machine.svg"), "--force"}).status, 0);
    EXPECT_TRUE(ContentsOf(PathOf("machine.svg")).starts_with("<svg "));
}

}  // namespace
}  // namespace SMBIOS::Tests
