#include "smbios-inspect/reports/memory_report.h"

#include <gtest/gtest.h>

#include <set>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "manager/structure_walk.h"
#include "platform/saved_table.h"
#include "tests/inspect/captured_tables.h"
#include "tests/inspect/run_tool.h"
#include "tests/support/decode.h"
#include "tests/support/fake_platform.h"
#include "tests/support/json.h"

// The manager is once per process: every test here needs a process of its own.
namespace SMBIOS::Tests {
namespace {

std::vector<std::string> KeysOf(const Json& object) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : object.items()) {
        keys.push_back(key);
    }
    return keys;
}

StructureBuilder Device(const std::string& serialNumber) {
    return StructureBuilder(17, 0x28)
        .Word(0x06, 0xFFFE)
        .Word(0x08, 0xFFFF)
        .Word(0x0A, 0xFFFF)
        .Word(0x0C, 0x1000)
        .Word(0x13, 0x0080)
        .String(0x18, serialNumber);
}

class MemoryReportTest : public testing::Test {
protected:
    void Load(const std::vector<StructureBuilder>& structures) {
        TableBuilder table(2, 8, 0);
        for (const StructureBuilder& structure : structures) {
            table.Add(structure);
        }
        firmware_.Supply(table.RawTable());
    }

    static std::string Report(bool json, const Inspect::OutputStyle& style = {}) {
        std::ostringstream output;
        Inspect::ReportMemory({.json = json}, style, output);
        return output.str();
    }

    static Json Devices() { return Json::parse(Report(true)).at("devices"); }
    static std::vector<std::string> TextLines(const Inspect::OutputStyle& style = {}) {
        return LinesOf(Report(false, style));
    }

    FakeFirmwareTable firmware_;
    FakeCommandRunner powershell_;
};

TEST(MemoryReport, OfTheSampleIsAsExpected) {
    const ToolResult result = RunTool({"memory", "--from", SMBIOS_SAMPLE_TABLE});
    EXPECT_EQ(result.output, GoldenText("memory.txt"));
    EXPECT_EQ(result.status, 0);
}

TEST(MemoryReport, OfTheSampleInJsonIsAsExpected) {
    const ToolResult result = RunTool({"memory", "--json", "--from", SMBIOS_SAMPLE_TABLE});
    EXPECT_EQ(result.output, GoldenText("memory.json"));
    EXPECT_EQ(result.status, 0);
}

TEST_F(MemoryReportTest, HasAKeyForEveryGetterInTheirOrder) {
    Load({Device("S")});
    EXPECT_EQ(KeysOf(Devices().at(0)),
              (std::vector<std::string>{"DeviceSet",
                                        "DataWidth",
                                        "TotalWidth",
                                        "MemoryType",
                                        "StringifiedMemoryType",
                                        "PhysicalMemoryArrayHandle",
                                        "MemoryErrorInformationHandle",
                                        "FormFactor",
                                        "StringifiedFormFactor",
                                        "DeviceLocator",
                                        "TypeDetail",
                                        "BitsetTypeDetail",
                                        "Speed",
                                        "Manufacturer",
                                        "SerialNumber",
                                        "AssetTag",
                                        "PartNumber",
                                        "Rank",
                                        "ConfiguredSpeed",
                                        "MinVoltageInmV",
                                        "MaxVoltageInmV",
                                        "ConfiguredVoltageInmV",
                                        "MemoryTechnology",
                                        "StringifiedMemoryTechnology",
                                        "MemoryOperatingModeCapability",
                                        "StringifiedMemoryOperatingModeCapability",
                                        "FirmwareVersion",
                                        "CacheSize",
                                        "LogicalSize",
                                        "VolatileSize",
                                        "NonVolatileSize",
                                        "ModuleProductId",
                                        "ModuleManufacturerId",
                                        "MemorySubsystemControllerManufacturerId",
                                        "MemorySubsystemControllerProductId",
                                        "RCDManufacturerId",
                                        "RCDRevisionNumber",
                                        "PMIC0ManufacturerId",
                                        "PMIC0RevisionNumber",
                                        "BankLocator",
                                        "PositionInRow",
                                        "SizeInKB",
                                        "RawData",
                                        "StringSession",
                                        "HasError",
                                        "ErrorMessage"}));
}

TEST_F(MemoryReportTest, GivesNullForWhatIsAbsent) {
    Load({Device("S")});
    const Json device = Devices().at(0);
    std::set<std::string> absent;
    for (const auto& [key, value] : device.items()) {
        if (value.is_null()) {
            absent.insert(key);
        }
    }
    EXPECT_EQ(absent,
              (std::set<std::string>{"DataWidth",
                                     "TotalWidth",
                                     "StringifiedMemoryType",
                                     "MemoryErrorInformationHandle",
                                     "StringifiedFormFactor",
                                     "DeviceLocator",
                                     "Speed",
                                     "Manufacturer",
                                     "AssetTag",
                                     "PartNumber",
                                     "MemoryTechnology",
                                     "StringifiedMemoryTechnology",
                                     "MemoryOperatingModeCapability",
                                     "StringifiedMemoryOperatingModeCapability",
                                     "FirmwareVersion",
                                     "CacheSize",
                                     "LogicalSize",
                                     "VolatileSize",
                                     "NonVolatileSize",
                                     "ModuleProductId",
                                     "ModuleManufacturerId",
                                     "MemorySubsystemControllerManufacturerId",
                                     "MemorySubsystemControllerProductId",
                                     "RCDManufacturerId",
                                     "RCDRevisionNumber",
                                     "PMIC0ManufacturerId",
                                     "PMIC0RevisionNumber",
                                     "BankLocator",
                                     "PositionInRow",
                                     "ErrorMessage"}));
}

TEST_F(MemoryReportTest, GivesFlagsByName) {
    Load({Device("S")});
    const Json flags = Devices().at(0).at("BitsetTypeDetail");
    EXPECT_EQ(KeysOf(flags),
              (std::vector<std::string>{"typeDetailWord",
                                        "fastPaged",
                                        "staticColumn",
                                        "pseudoStatic",
                                        "rambus",
                                        "synchronous",
                                        "cmos",
                                        "edo",
                                        "windowDram",
                                        "cacheDram",
                                        "nonVolatile",
                                        "registered",
                                        "unbuffered"}));
    EXPECT_EQ(flags.at("typeDetailWord"), 0x0080);
    EXPECT_EQ(flags.at("synchronous"), true);
    EXPECT_EQ(flags.at("registered"), false);
}

TEST_F(MemoryReportTest, GivesNullForFlagsThatWereNeverSet) {
    powershell_.Answer(R"({"SerialNumber":"W"})");
    Load({Device("")});
    const Json device = Devices().at(0);
    EXPECT_EQ(device.at("BitsetTypeDetail").at("synchronous"), nullptr);
    EXPECT_EQ(device.at("RawData"), nullptr);
    EXPECT_EQ(device.at("StringSession"), Json::array());
}

TEST_F(MemoryReportTest, GivesRawDataInLowerCaseHexadecimal) {
    Load({StructureBuilder(17, 0x19, 0xABCD).String(0x18, "S")});
    EXPECT_EQ(Devices().at(0).at("RawData"), "1119cdab000000000000000000000000000000000000000001");
}

TEST_F(MemoryReportTest, GivesTheStringSetAsAList) {
    Load({Device("S").String(0x10, "  DIMM 1 ")});
    EXPECT_EQ(Devices().at(0).at("StringSession"), (Json{"S", "  DIMM 1 "}));
}

TEST_F(MemoryReportTest, NeverHasAnError) {
    Load({Device("S")});
    EXPECT_EQ(Devices().at(0).at("HasError"), false);
    EXPECT_EQ(Devices().at(0).at("ErrorMessage"), nullptr);
}

TEST_F(MemoryReportTest, GivesTheSizeExactlyAsTheLibraryDoes) {
    Load({Device("S").Word(0x0C, 0x8200)});
    EXPECT_EQ(Devices().at(0).at("SizeInKB"), 512);
}

TEST_F(MemoryReportTest, ReplacesBytesThatAreNotUtf8) {
    Load({Device("S\xFF")});
    EXPECT_EQ(Devices().at(0).at("SerialNumber"), "S\xEF\xBF\xBD");
}

TEST_F(MemoryReportTest, WithoutDevicesIsAnEmptyList) {
    Load({StructureBuilder(127, 4)});
    EXPECT_EQ(Report(true), "{\n  \"devices\": [],\n  \"unlisted\": 0\n}\n");
}

TEST_F(MemoryReportTest, SaysWhenThereAreNoDevices) {
    Load({StructureBuilder(127, 4)});
    EXPECT_EQ(Report(false), "no memory devices\n");
}

TEST_F(MemoryReportTest, ShowsSizesInUnitsThatPeopleRead) {
    Load({Device("A").Word(0x0C, 0x8200), Device("B").Word(0x0C, 0x7FFF).Dword(0x1C, 0x10000)});
    const std::vector<std::string> lines = TextLines();
    EXPECT_NE(lines.at(1).find("  512 KiB  "), std::string::npos) << lines.at(1);
    EXPECT_NE(lines.at(2).find("  64 GiB   "), std::string::npos) << lines.at(2);
}

TEST_F(MemoryReportTest, SaysHowManyDevicesAreNotListed) {
    Load({Device("A"), Device("B"), Device(""), Device("C")});
    const std::vector<std::string> lines = TextLines();
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[3], "");
    EXPECT_EQ(
        lines[4],
        "2 of 4 memory devices are not listed: each needs a serial number of its own. See all of them with: "
        "smbios-inspect structures --type 17");
}

TEST_F(MemoryReportTest, SaysThatADeviceWithTheSerialNumberOfAnotherIsNotListed) {
    Load({Device("A"), Device("A")});
    EXPECT_EQ(TextLines().back().substr(0, 36), "1 of 2 memory devices is not listed:");
}

TEST_F(MemoryReportTest, SaysOnlyThatWhenNoDeviceIsListed) {
    Load({Device("")});
    ASSERT_EQ(TextLines().size(), 1U);
    EXPECT_EQ(TextLines().front().substr(0, 35), "1 of 1 memory device is not listed:");
}

TEST_F(MemoryReportTest, SaysNothingOfTheKindWhenAllAreListed) {
    Load({Device("A"), Device("B")});
    EXPECT_EQ(TextLines().size(), 3U);
}

TEST_F(MemoryReportTest, SaysNothingOfTheKindWhenTheOperatingSystemKnowsThemAll) {
    powershell_.Answer(R"([{"SerialNumber":"W1"},{"SerialNumber":"W2"}])");
    Load({Device(""), Device("B")});
    EXPECT_EQ(TextLines().size(), 3U);
}

TEST_F(MemoryReportTest, IsSafeForATerminal) {
    Load({Device("\x1B[31m")});
    EXPECT_EQ(Report(false).find('\x1B'), std::string::npos);
}

TEST(MemoryReport, OfASavedTableRunsNoCommand) {
    FakeCommandRunner outside;
    outside.Answer(R"({"SerialNumber":"4A8C1D20","PositionInRow":7})");
    const ToolResult result = RunTool({"memory", "--json", "--from", SMBIOS_SAMPLE_TABLE});
    EXPECT_EQ(result.output, GoldenText("memory.json"));
    EXPECT_TRUE(outside.CommandLines().empty());
}

/// How many devices are listed without WMI: those before the first one without a serial number, each serial
/// number once.
std::size_t ListedDevices(const std::vector<std::uint8_t>& rawTable) {
    std::set<std::string> serialNumbers;
    Manager::StructureWalk walk{std::span{rawTable}.subspan(8)};
    while (const auto structure = walk.Next()) {
        if (structure->type != 17) {
            continue;
        }
        const auto raw = Manager::RawStructure::Of(*structure);
        const std::size_t number = raw.formattedBytes.size() > 0x18 ? raw.formattedBytes[0x18] : 0;
        std::string serial = number == 0 ? "" : raw.strings.at(number - 1);
        serial.erase(0, serial.find_first_not_of(' '));
        serial.erase(serial.find_last_not_of(' ') + 1);
        if (serial.empty()) {
            break;
        }
        serialNumbers.insert(serial);
    }
    return serialNumbers.size();
}

class CapturedMemory : public testing::TestWithParam<const char*> {};

TEST_P(CapturedMemory, ListsTheDevicesWithSerialNumbers) {
    if (!HasCapturedTables()) {
        GTEST_SKIP() << "no captured tables in " << SMBIOS_DUMPS_DIR;
    }
    const std::string file = CapturedTable(GetParam());
    const ToolResult result = RunTool({"memory", "--json", "--from", file});
    ASSERT_EQ(result.status, 0);
    EXPECT_EQ(Json::parse(result.output).at("devices").size(), ListedDevices(Platform::LoadSavedTable(file)));
}

INSTANTIATE_TEST_SUITE_P(Tables, CapturedMemory, testing::ValuesIn(kCapturedTables), [](const auto& table) {
    return AsTestName(table.param);
});

}  // namespace
}  // namespace SMBIOS::Tests
