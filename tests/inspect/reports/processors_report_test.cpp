#include "smbios-inspect/reports/processors_report.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <vector>

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

StructureBuilder Processor(std::uint64_t id) {
    return StructureBuilder(4, 0x28)
        .Qword(0x08, id)
        .Byte(0x11, 0x03)
        .Byte(0x18, 0x41)
        .Word(0x1A, 0xFFFF)
        .Word(0x1C, 0xFFFF)
        .Word(0x1E, 0xFFFF)
        .Word(0x26, 0x0004);
}

class ProcessorsReportTest : public testing::Test {
protected:
    void Load(const std::vector<StructureBuilder>& structures) {
        TableBuilder table(2, 8, 0);
        for (const StructureBuilder& structure : structures) {
            table.Add(structure);
        }
        firmware_.Supply(table.RawTable());
    }

    static std::string Report(bool json) {
        std::ostringstream output;
        Inspect::ReportProcessors({.json = json}, {}, output);
        return output.str();
    }

    static Json Processors() { return Json::parse(Report(true)).at("processors"); }
    static std::vector<std::string> TextLines() { return LinesOf(Report(false)); }

    FakeFirmwareTable firmware_;
    FakeCommandRunner powershell_;
};

TEST(ProcessorsReport, OfTheSampleIsAsExpected) {
    const ToolResult result = RunTool({"processors", "--from", SMBIOS_SAMPLE_TABLE});
    EXPECT_EQ(result.output, GoldenText("processors.txt"));
    EXPECT_EQ(result.status, 0);
}

TEST(ProcessorsReport, OfTheSampleInJsonIsAsExpected) {
    const ToolResult result = RunTool({"processors", "--json", "--from", SMBIOS_SAMPLE_TABLE});
    EXPECT_EQ(result.output, GoldenText("processors.json"));
    EXPECT_EQ(result.status, 0);
}

TEST_F(ProcessorsReportTest, HasAKeyForEveryGetterInTheirOrder) {
    Load({Processor(1)});
    EXPECT_EQ(KeysOf(Processors().at(0)),
              (std::vector<std::string>{"Version",
                                        "Manufacturer",
                                        "SocketDesignation",
                                        "DeviceId",
                                        "Caption",
                                        "Description",
                                        "Type",
                                        "StringifiedType",
                                        "Family",
                                        "StringifiedFamily",
                                        "ProcessorID",
                                        "IsLegacyVoltageInfo",
                                        "LegacyVoltageInfo",
                                        "NonLegacyVoltageValue",
                                        "ExternalClockInMHz",
                                        "MaxSpeedInMHz",
                                        "CurrentSpeedInMHz",
                                        "IsSocketPopulated",
                                        "StringifiedStatus",
                                        "Upgrade",
                                        "StringifiedUpgrade",
                                        "L1CacheHandle",
                                        "L2CacheHandle",
                                        "L3CacheHandle",
                                        "L1CacheSizeInKB",
                                        "L2CacheSizeInKB",
                                        "L3CacheSizeInKB",
                                        "SerialNumber",
                                        "AssetTag",
                                        "PartNumber",
                                        "CoreCount",
                                        "EnabledCoreCount",
                                        "ThreadCount",
                                        "EnabledThreadCount",
                                        "SocketType",
                                        "AddrWidth",
                                        "DataWidth",
                                        "VirtualizationFirmwareEnabled",
                                        "ProcessorCharacteristics",
                                        "RawData",
                                        "StringSession",
                                        "HasError",
                                        "ErrorMessage"}));
}

TEST_F(ProcessorsReportTest, GivesNullForWhatIsAbsent) {
    Load({Processor(1)});
    std::set<std::string> absent;
    const Json processor = Processors().at(0);
    for (const auto& [key, value] : processor.items()) {
        if (value.is_null()) {
            absent.insert(key);
        }
    }
    EXPECT_EQ(absent,
              (std::set<std::string>{"Version",
                                     "Manufacturer",
                                     "SocketDesignation",
                                     "DeviceId",
                                     "Caption",
                                     "Description",
                                     "StringifiedType",
                                     "StringifiedFamily",
                                     "NonLegacyVoltageValue",
                                     "ExternalClockInMHz",
                                     "MaxSpeedInMHz",
                                     "CurrentSpeedInMHz",
                                     "StringifiedUpgrade",
                                     "L1CacheHandle",
                                     "L2CacheHandle",
                                     "L3CacheHandle",
                                     "L1CacheSizeInKB",
                                     "L2CacheSizeInKB",
                                     "L3CacheSizeInKB",
                                     "SerialNumber",
                                     "AssetTag",
                                     "PartNumber",
                                     "CoreCount",
                                     "EnabledCoreCount",
                                     "ThreadCount",
                                     "EnabledThreadCount",
                                     "SocketType",
                                     "AddrWidth",
                                     "DataWidth",
                                     "ErrorMessage"}));
}

TEST_F(ProcessorsReportTest, GivesCharacteristicsByName) {
    Load({Processor(1)});
    const Json characteristics = Processors().at(0).at("ProcessorCharacteristics");
    EXPECT_EQ(KeysOf(characteristics),
              (std::vector<std::string>{"characteristicsLow",
                                        "capable64bit",
                                        "multiCore",
                                        "hardwareThread",
                                        "executeProtection",
                                        "enhacedVirtualization",
                                        "powerPerformanceControl",
                                        "capable128bit",
                                        "arm64SoC_ID"}));
    EXPECT_EQ(characteristics.at("characteristicsLow"), 4);
    EXPECT_EQ(characteristics.at("capable64bit"), true);
    EXPECT_EQ(characteristics.at("multiCore"), false);
}

TEST_F(ProcessorsReportTest, GivesNullForCharacteristicsThatAreAbsent) {
    firmware_.Supply(TableBuilder(2, 3, 0).Add(StructureBuilder(4, 0x20).Qword(0x08, 1)).RawTable());
    const Json processor = Processors().at(0);
    EXPECT_EQ(processor.at("ProcessorCharacteristics").at("capable64bit"), nullptr);
    EXPECT_EQ(processor.at("VirtualizationFirmwareEnabled"), nullptr);
}

TEST_F(ProcessorsReportTest, GivesSupportedVoltagesAsAList) {
    Load({Processor(1)});
    const Json processor = Processors().at(0);
    EXPECT_EQ(processor.at("IsLegacyVoltageInfo"), true);
    EXPECT_EQ(processor.at("LegacyVoltageInfo"), (Json{"5V", "3.3V"}));
}

TEST_F(ProcessorsReportTest, GivesAnEmptyListWhereThereIsOneVoltage) {
    Load({Processor(1).Byte(0x11, 0x8A)});
    const Json processor = Processors().at(0);
    EXPECT_EQ(processor.at("IsLegacyVoltageInfo"), false);
    EXPECT_EQ(processor.at("LegacyVoltageInfo"), Json::array());
    EXPECT_EQ(processor.at("NonLegacyVoltageValue"), 1.0);
}

TEST_F(ProcessorsReportTest, GivesRawDataAndStrings) {
    Load({StructureBuilder(4, 0x1A, 0xABCD).String(0x10, "CPU")});
    const Json processor = Processors().at(0);
    EXPECT_EQ(processor.at("RawData"),
              "041acdab000000000000000000000000010000000000000000"
              "00");
    EXPECT_EQ(processor.at("StringSession"), Json{"CPU"});
    EXPECT_EQ(processor.at("HasError"), false);
}

TEST_F(ProcessorsReportTest, SaysWhenThereAreNoProcessors) {
    Load({StructureBuilder(127, 4)});
    EXPECT_EQ(Report(false), "no processors\n");
}

TEST_F(ProcessorsReportTest, ListsSupportedVoltages) {
    Load({Processor(1)});
    EXPECT_NE(TextLines().at(1).find("  5V, 3.3V  "), std::string::npos);
}

TEST_F(ProcessorsReportTest, ShowsHowManyCoresAreEnabled) {
    Load({Processor(1).Byte(0x23, 8).Byte(0x24, 6)});
    EXPECT_NE(TextLines().at(1).find("  8 (6 enabled)  "), std::string::npos);
}

TEST_F(ProcessorsReportTest, SaysHowManyProcessorsAreNotListed) {
    Load({Processor(1), Processor(1), Processor(2)});
    EXPECT_EQ(TextLines().back(),
              "1 of 3 processors is not listed: each needs a processor id of its own. See all of them with: "
              "smbios-inspect structures --type 4");
}

TEST(ProcessorsReport, OfASavedTableRunsNoCommand) {
    FakeCommandRunner outside;
    const ToolResult result = RunTool({"processors", "--json", "--from", SMBIOS_SAMPLE_TABLE});
    EXPECT_EQ(result.output, GoldenText("processors.json"));
    EXPECT_TRUE(outside.CommandLines().empty());
}

}  // namespace
}  // namespace SMBIOS::Tests
