#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "smbios-inspect/command_line/save.h"
#include "tests/inspect/run_tool.h"
#include "tests/support/fake_platform.h"
#include "tests/support/temporary_folder.h"

namespace SMBIOS::Tests {
namespace {

namespace fs = std::filesystem;

/// Saving to `link`, a symbolic link.
class SaveToLinkTest : public testing::Test {
protected:
    [[nodiscard]] fs::path PathOf(const char* name) const { return folder_.Path() / name; }

    [[nodiscard]] std::string ErrorOf(bool force) const {
        try {
            Inspect::SaveTable(Link(), force);
        } catch (const std::exception& error) {
            return error.what();
        }
        return "none";
    }

    [[nodiscard]] std::string Link() const { return PathOf("link").string(); }

    const std::string table_{"\0\3\2\0\6\0\0\0\x7F\4\xFF\xFE\0\0", 14};
    FakeFirmwareTable firmware_{{table_.begin(), table_.end()}};
    TemporaryFolder folder_;
};

TEST_F(SaveToLinkTest, IsRefused) {
    folder_.Write("file", "precious");
    fs::create_symlink("file", PathOf("link"));
    EXPECT_EQ(ErrorOf(false), Link() + " exists already; --force overwrites it");
    EXPECT_EQ(ContentsOf(PathOf("file")), "precious");
}

TEST_F(SaveToLinkTest, IsRefusedWhenItLeadsNowhere) {
    fs::create_symlink("file", PathOf("link"));
    EXPECT_EQ(ErrorOf(false), Link() + " exists already; --force overwrites it");
    EXPECT_FALSE(fs::exists(PathOf("file")));
}

TEST_F(SaveToLinkTest, ReplacesTheFileBehindItByForce) {
    folder_.Write("file", "worthless");
    fs::create_symlink("file", PathOf("link"));
    EXPECT_EQ(ErrorOf(true), "none");
    EXPECT_TRUE(fs::is_symlink(PathOf("link")));
    EXPECT_EQ(ContentsOf(PathOf("file")), table_);
}

TEST_F(SaveToLinkTest, ReplacesTheFileBehindSeveralLinksByForce) {
    fs::create_directory(PathOf("folder"));
    folder_.Write("folder/file", "worthless");
    fs::create_symlink("file", PathOf("folder/second"));
    fs::create_symlink(PathOf("folder/second"), PathOf("link"));
    EXPECT_EQ(ErrorOf(true), "none");
    EXPECT_TRUE(fs::is_symlink(PathOf("folder/second")));
    EXPECT_EQ(ContentsOf(PathOf("folder/file")), table_);
}

TEST_F(SaveToLinkTest, MakesTheFileBehindItByForce) {
    fs::create_symlink("file", PathOf("link"));
    EXPECT_EQ(ErrorOf(true), "none");
    EXPECT_TRUE(fs::is_symlink(PathOf("link")));
    EXPECT_EQ(ContentsOf(PathOf("file")), table_);
}

TEST_F(SaveToLinkTest, FailsInACircleOfLinks) {
    fs::create_symlink("link", PathOf("second"));
    fs::create_symlink("second", PathOf("link"));
    EXPECT_EQ(ErrorOf(true), "cannot write " + Link() + ": Too many levels of symbolic links");
}

TEST_F(SaveToLinkTest, FailsWhenAFolderIsBehindIt) {
    fs::create_symlink(".", PathOf("link"));
    EXPECT_EQ(ErrorOf(true), "cannot write " + Link() + ": it is not a regular file");
}

TEST(SavedFile, CanBeReadByItsOwnerAlone) {
    const FakeFirmwareTable firmware({0, 3, 2, 0, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00});
    const TemporaryFolder folder;
    const std::string path = (folder.Path() / "table").string();
    Inspect::SaveTable(path, false);
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(SavedFile, KeepsTheModeOfTheOneThatItReplaces) {
    const FakeFirmwareTable firmware({0, 3, 2, 0, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00});
    const TemporaryFolder folder;
    const fs::path path = folder.Write("table", "worthless");
    fs::permissions(path, fs::perms(0620));
    Inspect::SaveTable(path.string(), true);
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0620));
}

}  // namespace
}  // namespace SMBIOS::Tests
