#include "platform/write_file.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <string_view>

#include "platform/file_bytes.h"
#include "support/temporary_folder.h"

namespace SMBIOS::Platform {
namespace {

namespace fs = std::filesystem;

class WriteFileWholeTest : public testing::Test {
protected:
    [[nodiscard]] std::error_code Write(const char* name, std::string_view text, Existing existing) const {
        const std::span<const std::uint8_t> bytes(reinterpret_cast<const std::uint8_t*>(text.data()),
                                                  text.size());
        return WriteFileWhole(folder_.Path() / name, bytes, existing);
    }

    [[nodiscard]] std::string TextOf(const char* name) const {
        const FileBytes file = ReadFileBytes(folder_.Path() / name);
        return std::string(file.bytes.begin(), file.bytes.end());
    }

    [[nodiscard]] std::ptrdiff_t FilesInFolder() const {
        return std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator());
    }

    const Tests::TemporaryFolder folder_;
};

TEST_F(WriteFileWholeTest, MakesAFile) {
    EXPECT_EQ(Write("file", "text", Existing::kept), std::error_code());
    EXPECT_EQ(TextOf("file"), "text");
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(WriteFileWholeTest, MakesAFileWhereThereIsNoneToReplace) {
    EXPECT_EQ(Write("file", "text", Existing::replaced), std::error_code());
    EXPECT_EQ(TextOf("file"), "text");
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(WriteFileWholeTest, MakesAnEmptyFile) {
    EXPECT_EQ(Write("file", "", Existing::kept), std::error_code());
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(WriteFileWholeTest, KeepsAFile) {
    folder_.Write("file", "precious");
    EXPECT_EQ(Write("file", "text", Existing::kept), std::errc::file_exists);
    EXPECT_EQ(TextOf("file"), "precious");
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(WriteFileWholeTest, KeepsAFolder) {
    fs::create_directory(folder_.Path() / "folder");
    EXPECT_EQ(Write("folder", "text", Existing::kept), std::errc::file_exists);
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(WriteFileWholeTest, ReplacesAFile) {
    folder_.Write("file", "a longer text");
    EXPECT_EQ(Write("file", "text", Existing::replaced), std::error_code());
    EXPECT_EQ(TextOf("file"), "text");
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(WriteFileWholeTest, DoesNotReplaceAFolder) {
    fs::create_directory(folder_.Path() / "folder");
    EXPECT_TRUE(Write("folder", "text", Existing::replaced));
    EXPECT_TRUE(fs::is_directory(folder_.Path() / "folder"));
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(WriteFileWholeTest, FailsInAMissingFolder) {
    EXPECT_EQ(Write("absent/file", "text", Existing::kept), std::errc::no_such_file_or_directory);
    EXPECT_EQ(FilesInFolder(), 0);
}

}  // namespace
}  // namespace SMBIOS::Platform
