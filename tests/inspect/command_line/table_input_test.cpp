#include "smbios-inspect/command_line/table_input.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "tests/platform/entry_point_bytes.h"
#include "tests/support/fake_platform.h"
#include "tests/support/temporary_folder.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::TableInput;

const Bytes kRawTable = {0, 2, 8, 0, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00};

Bytes TableInUse() {
    using namespace Platform;
    FirmwareTable& firmware = ActiveFirmwareTable();
    Bytes table(firmware.Read(kRawSmbiosProvider, kRawSmbiosTableId, {}));
    EXPECT_EQ(firmware.Read(kRawSmbiosProvider, kRawSmbiosTableId, table), table.size());
    return table;
}

std::string ErrorOf(const std::string& from) {
    try {
        const TableInput input(from);
    } catch (const std::exception& error) {
        return error.what();
    }
    return "none";
}

class TableInputTest : public testing::Test {
protected:
    TemporaryFolder folder_;
};

TEST_F(TableInputTest, TakesAFileInTheRawForm) {
    const TableInput input(folder_.Write("table", kRawTable).string());
    EXPECT_EQ(TableInUse(), kRawTable);
}

TEST_F(TableInputTest, TakesAFileWithAnEntryPoint) {
    const TableInput input(folder_.Write("table", Capture(EntryPoint32(), EndOfTable())).string());
    EXPECT_EQ(TableInUse(), kRawTable);
}

TEST_F(TableInputTest, TakesAFolder) {
    folder_.Write("smbios_entry_point", EntryPoint32());
    folder_.Write("DMI", EndOfTable());
    const TableInput input(folder_.Path().string());
    EXPECT_EQ(TableInUse(), kRawTable);
}

TEST_F(TableInputTest, TakesStandardInput) {
    const std::string file = folder_.Write("table", kRawTable).string();
    ASSERT_NE(std::freopen(file.c_str(), "rb", stdin), nullptr);
    const TableInput input("-");
    std::fclose(stdin);
    EXPECT_EQ(TableInUse(), kRawTable);
}

TEST_F(TableInputTest, CallsStandardInputByItsName) {
    const std::string file = folder_.Write("table", "short").string();
    ASSERT_NE(std::freopen(file.c_str(), "rb", stdin), nullptr);
    EXPECT_EQ(ErrorOf("-"), "standard input is truncated: nothing follows its 8-byte header");
    std::fclose(stdin);
}

TEST_F(TableInputTest, TakesAFileWhoseNameIsNotAscii) {
    folder_.Write("table", kRawTable);
    const std::filesystem::path file = folder_.Path() / u8"t\u00E4ble";
    std::filesystem::rename(folder_.Path() / "table", file);
    const std::u8string name = file.u8string();
    const TableInput input(std::string(name.begin(), name.end()));
    EXPECT_EQ(TableInUse(), kRawTable);
}

TEST_F(TableInputTest, AnswersForTheSmbiosTableOnly) {
    const TableInput input(folder_.Write("table", kRawTable).string());
    EXPECT_EQ(Platform::ActiveFirmwareTable().Read(0x41435049, 0, {}), 0U);
    EXPECT_EQ(Platform::ActiveFirmwareTable().Read(Platform::kRawSmbiosProvider, 1, {}), 0U);
}

TEST_F(TableInputTest, LeavesABufferAloneThatIsTooSmall) {
    const TableInput input(folder_.Write("table", kRawTable).string());
    Bytes buffer(13, 0xAA);
    EXPECT_EQ(Platform::ActiveFirmwareTable().Read(Platform::kRawSmbiosProvider, 0, buffer), 14U);
    EXPECT_EQ(buffer, Bytes(13, 0xAA));
}

TEST_F(TableInputTest, StartsNoCommand) {
    FakeCommandRunner outside;
    const TableInput input(folder_.Write("table", kRawTable).string());
    std::string output = "untouched";
    EXPECT_FALSE(Platform::ActiveCommandRunner().Run("command", output));
    EXPECT_EQ(output, "untouched");
    EXPECT_TRUE(outside.CommandLines().empty());
}

TEST_F(TableInputTest, GivesTheMachinesTableBack) {
    { const TableInput input(folder_.Write("table", kRawTable).string()); }
    EXPECT_EQ(&Platform::ActiveFirmwareTable(), &Platform::MachineFirmwareTable());
    EXPECT_EQ(&Platform::ActiveCommandRunner(), &Platform::MachineCommandRunner());
}

TEST_F(TableInputTest, RefusesAFileWhoseVersionIsNone) {
    const std::string text = folder_.Write("text", "root:x:0:0:root:/root:/bin/bash\n").string();
    EXPECT_EQ(ErrorOf(text), text + " is not an SMBIOS table: its header gives the version 111.111");
    const std::string zeros = folder_.Write("zeros", Bytes(100)).string();
    EXPECT_EQ(ErrorOf(zeros), zeros + " is not an SMBIOS table: its header gives the version 0.0");
}

TEST_F(TableInputTest, RefusesATableWithoutItsHeader) {
    const Bytes firmware{0x00, 0x18, 0x00, 0x00, 0x01, 0x02, 0x00, 0xF0, 0x03, 0xFF};
    const std::string file = folder_.Write("DMI", firmware).string();
    EXPECT_EQ(ErrorOf(file), file + " is not an SMBIOS table: its header gives the version 24.0");
}

TEST_F(TableInputTest, RefusesAFileThatDoesNotExist) {
    const std::string file = (folder_.Path() / "absent").string();
    EXPECT_EQ(ErrorOf(file), "cannot open " + file + ": No such file or directory");
}

}  // namespace
}  // namespace SMBIOS::Tests
