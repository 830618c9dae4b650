#include "smbios-inspect/command_line/save.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/saved_table.h"
#include "tests/inspect/run_tool.h"
#include "tests/platform/entry_point_bytes.h"
#include "tests/support/fake_platform.h"
#include "tests/support/temporary_folder.h"

namespace SMBIOS::Tests {
namespace {

namespace fs = std::filesystem;

class SaveTest : public testing::Test {
protected:
    [[nodiscard]] std::string PathOf(const char* name) const { return (folder_.Path() / name).string(); }

    [[nodiscard]] std::string ErrorOf(const std::string& target, bool force) const {
        try {
            Inspect::SaveTable(target, force);
        } catch (const std::exception& error) {
            return error.what();
        }
        return "none";
    }

    [[nodiscard]] std::ptrdiff_t FilesInFolder() const {
        return std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator());
    }

    const Bytes table_ = {0, 3, 2, 0, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00};
    FakeFirmwareTable firmware_{table_};
    TemporaryFolder folder_;
};

TEST_F(SaveTest, WritesTheRawTable) {
    Inspect::SaveTable(PathOf("table"), false);
    EXPECT_EQ(ContentsOf(PathOf("table")), std::string(table_.begin(), table_.end()));
}

TEST_F(SaveTest, LeavesNoOtherFile) {
    Inspect::SaveTable(PathOf("table"), false);
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(SaveTest, WritesAFileThatCanBeLoaded) {
    Inspect::SaveTable(PathOf("table"), false);
    EXPECT_EQ(Platform::LoadSavedTable(PathOf("table")), table_);
}

TEST_F(SaveTest, WritesIntoTheCurrentFolder) {
    const fs::path before = fs::current_path();
    fs::current_path(folder_.Path());
    Inspect::SaveTable("table", false);
    fs::current_path(before);
    EXPECT_TRUE(fs::exists(PathOf("table")));
}

TEST_F(SaveTest, RefusesToOverwriteAFile) {
    folder_.Write("table", "precious");
    EXPECT_EQ(ErrorOf(PathOf("table"), false), PathOf("table") + " exists already; --force overwrites it");
    EXPECT_EQ(ContentsOf(PathOf("table")), "precious");
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(SaveTest, OverwritesAFileByForce) {
    folder_.Write("table", "worthless");
    Inspect::SaveTable(PathOf("table"), true);
    EXPECT_EQ(ContentsOf(PathOf("table")).size(), table_.size());
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(SaveTest, RefusesToReplaceAFolderEvenByForce) {
    EXPECT_EQ(ErrorOf(folder_.Path().string(), true),
              "cannot write " + folder_.Path().string() + ": it is not a regular file");
}

TEST_F(SaveTest, TellsTheSystemsReasonWhenTheFileCannotBeWritten) {
    EXPECT_EQ(ErrorOf(PathOf("absent/table"), false),
              "cannot write " + PathOf("absent/table") + ": No such file or directory");
}

TEST_F(SaveTest, WritesNothingWhenTheTableCannotBeRead) {
    firmware_.Supply({});
    EXPECT_EQ(ErrorOf(PathOf("table"), false), "the SMBIOS table cannot be read");
    EXPECT_EQ(FilesInFolder(), 0);
}

TEST_F(SaveTest, WritesNothingWhenTheTableChangesWhileItIsRead) {
    firmware_.ClaimToFill(5);
    EXPECT_EQ(ErrorOf(PathOf("table"), false), "the SMBIOS table cannot be read");
    EXPECT_EQ(FilesInFolder(), 0);
}

TEST_F(SaveTest, ConvertsASavedTable) {
    const fs::path capture = folder_.Write("capture", Capture(EntryPoint32(), EndOfTable()));
    const ToolResult result = RunTool({"save", PathOf("table"), "--from", capture.string()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output + result.errors, "");
    const Bytes expected{0, 2, 8, 0, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00};
    EXPECT_EQ(ContentsOf(PathOf("table")), std::string(expected.begin(), expected.end()));
}

TEST_F(SaveTest, FailsWithOneLine) {
    folder_.Write("table", "precious");
    const ToolResult result = RunTool({"save", PathOf("table"), "--from", SMBIOS_SAMPLE_TABLE});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "smbios-inspect: " + PathOf("table") + " exists already; --force overwrites it\n");
}

}  // namespace
}  // namespace SMBIOS::Tests
