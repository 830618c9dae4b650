#include "platform/file_bytes.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace SMBIOS::Platform {
namespace {

using Tests::TemporaryFolder;
using Bytes = std::vector<std::uint8_t>;

TEST(FileBytes, AreThoseOfTheFile) {
    const TemporaryFolder folder;
    const Bytes written{0x00, 0x0D, 0x0A, 0x1A, 0xFF};
    const FileBytes read = ReadFileBytes(folder.Write("table", written));
    EXPECT_FALSE(read.error);
    EXPECT_EQ(read.bytes, written);
}

TEST(FileBytes, GoBeyondOnePieceOfReading) {
    const TemporaryFolder folder;
    const Bytes written(100'000, 0xA5);
    EXPECT_EQ(ReadFileBytes(folder.Write("table", written)).bytes, written);
}

TEST(FileBytes, MayBeNone) {
    const TemporaryFolder folder;
    const FileBytes read = ReadFileBytes(folder.Write("table", ""));
    EXPECT_FALSE(read.error);
    EXPECT_TRUE(read.bytes.empty());
}

TEST(FileBytes, MayBeAsManyAsTheLimit) {
    const TemporaryFolder folder;
    EXPECT_FALSE(ReadFileBytes(folder.Write("table", Bytes(1000)), 1000).error);
}

TEST(FileBytes, AreRefusedAboveTheLimit) {
    const TemporaryFolder folder;
    const FileBytes read = ReadFileBytes(folder.Write("table", Bytes(1001)), 1000);
    EXPECT_EQ(read.error, std::errc::file_too_large);
    EXPECT_TRUE(read.bytes.empty());
}

TEST(FileBytes, OfAMissingFileGiveTheSystemsReason) {
    const TemporaryFolder folder;
    EXPECT_EQ(ReadFileBytes(folder.Path() / "absent").error, std::errc::no_such_file_or_directory);
}

TEST(FileBytes, OfAFolderGiveAReason) {
    const TemporaryFolder folder;
    EXPECT_TRUE(ReadFileBytes(folder.Path()).error);
}

TEST(FileBytes, AreReadFromANameBeyondAscii) {
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.Path() / u8"t\u00E4ble-\u8868";
    std::filesystem::rename(folder.Write("table", Bytes{1, 2, 3}), file);
    EXPECT_EQ(ReadFileBytes(file).bytes, (Bytes{1, 2, 3}));
}

}  // namespace
}  // namespace SMBIOS::Platform
