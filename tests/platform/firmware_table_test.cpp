#include "platform/firmware_table.h"

#include <gtest/gtest.h>

namespace SMBIOS::Platform {
namespace {

class EmptyTable final : public FirmwareTable {
public:
    std::uint32_t Read(std::uint32_t, std::uint32_t, std::span<std::uint8_t>) override { return 0; }
};

class FirmwareTableInUse : public testing::Test {
protected:
    ~FirmwareTableInUse() override { UseFirmwareTable(nullptr); }
};

TEST_F(FirmwareTableInUse, IsTheMachinesAtFirst) {
    EXPECT_EQ(&ActiveFirmwareTable(), &MachineFirmwareTable());
}

TEST_F(FirmwareTableInUse, IsTheOnePutInItsPlace) {
    EmptyTable table;
    UseFirmwareTable(&table);
    EXPECT_EQ(&ActiveFirmwareTable(), &table);
}

TEST_F(FirmwareTableInUse, IsTheMachinesAgainWhenRestored) {
    EmptyTable table;
    UseFirmwareTable(&table);
    UseFirmwareTable(nullptr);
    EXPECT_EQ(&ActiveFirmwareTable(), &MachineFirmwareTable());
}

TEST(MachineFirmwareTable, IsOneObject) {
    EXPECT_EQ(&MachineFirmwareTable(), &MachineFirmwareTable());
}

TEST(MachineFirmwareTable, HasNothingOfAnUnknownProvider) {
    constexpr std::uint32_t kUnknownProvider = 0x4E4F4E45;
    EXPECT_EQ(MachineFirmwareTable().Read(kUnknownProvider, kRawSmbiosTableId, {}), 0U);
}

TEST(MachineFirmwareTable, AnswersZeroExactlyWhenItIsNotAvailable) {
    const bool isAvailable = CheckMachineFirmwareTable() == FirmwareTableAccess::available;
    EXPECT_EQ(MachineFirmwareTable().Read(kRawSmbiosProvider, kRawSmbiosTableId, {}) != 0, isAvailable);
}

}  // namespace
}  // namespace SMBIOS::Platform
