#include "platform/firmware_table_posix.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/entry_point_bytes.h"
#include "support/temporary_folder.h"

namespace SMBIOS::Platform {
namespace {

using Tests::Bytes;

/// A kernel's folder with a table of 14 bytes, header included.
class PosixTable : public testing::Test {
protected:
    PosixTable() {
        folder_.Write("smbios_entry_point", Tests::EntryPoint64());
        folder_.Write("DMI", Tests::EndOfTable());
    }

    Tests::TemporaryFolder folder_;
    const std::string name_ = folder_.Path().string();
    PosixFirmwareTable table_{name_.c_str()};
};

TEST_F(PosixTable, AnswersItsSizeToAnEmptyBuffer) {
    EXPECT_EQ(table_.Read(kRawSmbiosProvider, kRawSmbiosTableId, {}), 14U);
}

TEST_F(PosixTable, FillsABufferOfItsSize) {
    Bytes buffer(14);
    EXPECT_EQ(table_.Read(kRawSmbiosProvider, kRawSmbiosTableId, buffer), 14U);
    EXPECT_EQ(buffer, (Bytes{0, 3, 5, 1, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00}));
}

TEST_F(PosixTable, FillsTheFrontOfALargerBuffer) {
    Bytes buffer(15, 0xEE);
    EXPECT_EQ(table_.Read(kRawSmbiosProvider, kRawSmbiosTableId, buffer), 14U);
    EXPECT_EQ(buffer.back(), 0xEE);
}

TEST_F(PosixTable, LeavesATooSmallBufferAlone) {
    Bytes buffer(13, 0xEE);
    EXPECT_EQ(table_.Read(kRawSmbiosProvider, kRawSmbiosTableId, buffer), 14U);
    EXPECT_EQ(buffer, Bytes(13, 0xEE));
}

TEST_F(PosixTable, HasNothingOfAnotherProvider) {
    EXPECT_EQ(table_.Read(0x41435049, kRawSmbiosTableId, {}), 0U);
}

TEST_F(PosixTable, HasNothingOfAnotherTableId) {
    EXPECT_EQ(table_.Read(kRawSmbiosProvider, 1, {}), 0U);
}

TEST_F(PosixTable, IsAvailable) {
    EXPECT_EQ(table_.CheckAccess(), FirmwareTableAccess::available);
}

TEST_F(PosixTable, AnswersZeroWhenAFileIsWrong) {
    folder_.Write("smbios_entry_point", "nonsense");
    EXPECT_EQ(table_.Read(kRawSmbiosProvider, kRawSmbiosTableId, {}), 0U);
}

TEST_F(PosixTable, AnswersZeroWhenItIsMissing) {
    std::filesystem::remove(folder_.Path() / "DMI");
    EXPECT_EQ(table_.Read(kRawSmbiosProvider, kRawSmbiosTableId, {}), 0U);
    EXPECT_EQ(table_.CheckAccess(), FirmwareTableAccess::missing);
}

}  // namespace
}  // namespace SMBIOS::Platform
