#include "smbios-inspect/reports/summary_report.h"

#include <gtest/gtest.h>

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

StructureBuilder Processor(std::uint16_t handle, std::uint8_t status) {
    return StructureBuilder(4, 0x28, handle)
        .String(0x10, "Fast CPU")
        .Byte(0x18, status)
        .Word(0x1A, 0x0100)
        .Word(0x1C, 0xFFFF)
        .Word(0x1E, 0xFFFF)
        .Byte(0x23, 1)
        .Byte(0x24, 1)
        .Byte(0x25, 2);
}

StructureBuilder Cache(std::uint16_t handle, std::uint16_t installedSize) {
    return StructureBuilder(7, 0x13, handle).Word(0x07, 512).Word(0x09, installedSize);
}

StructureBuilder Device(std::uint16_t size) {
    return StructureBuilder(17, 0x28)
        .Word(0x04, 0x0200)
        .Word(0x0C, size)
        .Byte(0x0E, 0x09)
        .Byte(0x12, 0x1A)
        .Word(0x15, 2666);
}

class SummaryTest : public testing::Test {
protected:
    void Load(const std::vector<StructureBuilder>& structures, std::uint8_t minorVersion = 8) {
        TableBuilder table(2, minorVersion, 0);
        for (const StructureBuilder& structure : structures) {
            table.Add(structure);
        }
        table.Add({127, 4});
        firmware_.Supply(table.RawTable());
    }

    std::string Text(const Inspect::OutputStyle& style = {}) {
        std::ostringstream output;
        Inspect::ReportSummary({}, style, output);
        return output.str();
    }

    Json Facts() {
        std::ostringstream output;
        Inspect::ReportSummary({.json = true}, {}, output);
        return Json::parse(output.str());
    }

    /// What stands beside a label, line by line.
    std::vector<std::string> ValuesOf(const std::string& label, const Inspect::OutputStyle& style = {}) {
        std::vector<std::string> values;
        bool isWanted = false;
        for (const std::string& line : LinesOf(Text(style))) {
            isWanted = line.starts_with(label) || (isWanted && line.starts_with(' '));
            if (isWanted) {
                values.push_back(line.substr(12));
            }
        }
        return values;
    }

    using Values = std::vector<std::string>;

    FakeFirmwareTable firmware_;
    FakeCommandRunner commands_;
};

TEST(Summary, OfTheSampleIsAsExpected) {
    const ToolResult result = RunTool({"--from", SMBIOS_SAMPLE_TABLE});
    EXPECT_EQ(result.output, GoldenText("summary.txt"));
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
}

TEST_F(SummaryTest, SaysWhatIsNotReported) {
    Load({});
    EXPECT_EQ(Text(),
              "Firmware    not reported\n"
              "System      not reported\n"
              "Board       not reported\n"
              "Chassis     not reported\n"
              "Processors  not reported\n"
              "Memory      not reported\n"
              "Table       SMBIOS 2.8.0, 1 structure\n");
}

TEST(Summary, OfTheSampleInJsonIsItsGoldenFile) {
    const ToolResult result = RunTool({"summary", "--json", "--from", SMBIOS_SAMPLE_TABLE});
    EXPECT_EQ(result.output, GoldenText("summary.json"));
}

// Text

TEST_F(SummaryTest, ShowsTheFirmwareWhateverItsLength) {
    Load({StructureBuilder(0, 0x18)
              .String(0x04, "Maker ")
              .String(0x05, "F8")
              .String(0x08, "08/03/2010")
              .Byte(0x14, 4)
              .Byte(0x15, 12)});
    EXPECT_EQ(ValuesOf("Firmware"), Values{"Maker F8, release 4.12, 08/03/2010, ROM 64 KiB"});
}

TEST_F(SummaryTest, ShowsNoReleaseWhereTheFirmwareHasNone) {
    Load({StructureBuilder(0, 0x18).String(0x04, "Maker").Byte(0x14, 0xFF).Byte(0x15, 0xFF)});
    EXPECT_EQ(ValuesOf("Firmware"), Values{"Maker, ROM 64 KiB"});
}

TEST_F(SummaryTest, ShowsNoReleaseOfAStructureThatEndsBeforeIt) {
    Load({StructureBuilder(0, 0x12).String(0x04, "Maker")});
    EXPECT_EQ(ValuesOf("Firmware"), Values{"Maker, ROM 64 KiB"});
}

TEST_F(SummaryTest, ShowsTheSizeOfALargeRom) {
    Load({StructureBuilder(0, 0x1A).Byte(0x09, 0xFF).Word(0x14, 0xFFFF).Word(0x18, 0x4001)});
    EXPECT_EQ(ValuesOf("Firmware"), Values{"ROM 1 GiB"});
}

TEST_F(SummaryTest, ShowsNoSizeOfARomThatTheFirmwareDoesNotKnow) {
    Load({StructureBuilder(0, 0x1A).String(0x04, "Maker").Byte(0x09, 0xFF).Word(0x14, 0xFFFF)});
    EXPECT_EQ(ValuesOf("Firmware"), Values{"Maker"});
}

TEST_F(SummaryTest, ShowsAUuidOfAnyBytes) {
    Load({StructureBuilder(1, 0x1B).Bytes(0x08, {4, 3, 2, 1, 6, 5, 8, 7, 9, 10, 11, 12, 13, 14, 15, 16})});
    EXPECT_EQ(ValuesOf("System"), Values{"UUID 01020304-0506-0708-090a-0b0c0d0e0f10"});
}

TEST_F(SummaryTest, ShowsNoTypeOfAChassisThatTheFirmwareDoesNotKnow) {
    Load({StructureBuilder(3, 0x15).String(0x04, "Maker").Byte(0x05, 2)});
    EXPECT_EQ(ValuesOf("Chassis"), Values{"Maker"});
}

TEST_F(SummaryTest, SaysWhenNothingIsKnownOfAThing) {
    Load({StructureBuilder(1, 0x1B)});
    EXPECT_EQ(ValuesOf("System"), Values{"nothing is known of it"});
}

TEST_F(SummaryTest, GivesEachBoardALine) {
    Load({StructureBuilder(2, 0x0F).String(0x04, "Maker").String(0x05, "Main"),
          StructureBuilder(2, 0x0F).String(0x04, "Maker").String(0x05, "Riser"),
          StructureBuilder(2, 0x0F).String(0x04, "Maker").String(0x05, "Main")});
    EXPECT_EQ(ValuesOf("Board"), (Values{"2 x Maker Main", "Maker Riser"}));
}

TEST_F(SummaryTest, ShowsAProcessorWithItsCaches) {
    Load({Processor(0x0010, 0x41), Cache(0x0100, 256)});
    EXPECT_EQ(ValuesOf("Processors"), Values{"Fast CPU, 1 core, 2 threads, L1 256 KiB"});
}

TEST_F(SummaryTest, ShowsNoCacheThatIsNotInstalled) {
    Load({Processor(0x0010, 0x41), Cache(0x0100, 0)});
    EXPECT_EQ(ValuesOf("Processors"), Values{"Fast CPU, 1 core, 2 threads"});
}

TEST_F(SummaryTest, ShowsHowManyCoresAreEnabled) {
    Load({Processor(0x0010, 0x41).Byte(0x23, 8).Byte(0x24, 6)});
    EXPECT_EQ(ValuesOf("Processors"), Values{"Fast CPU, 8 cores (6 enabled), 2 threads"});
}

TEST_F(SummaryTest, ShowsEmptySocketsAndUnusualStates) {
    Load(
        {Processor(0x0010, 0x41), Processor(0x0011, 0x42), Processor(0x0012, 0x00), Processor(0x0013, 0x00)});
    EXPECT_EQ(ValuesOf("Processors"),
              (Values{"Fast CPU, 1 core, 2 threads",
                      "Fast CPU, 1 core, 2 threads, Disabled By User",
                      "2 x empty socket"}));
}

TEST_F(SummaryTest, CallsAProcessorWithoutANameByItsFamily) {
    Load({StructureBuilder(4, 0x20).Byte(0x06, 0xB3).Byte(0x18, 0x41)});
    EXPECT_EQ(ValuesOf("Processors"), Values{"Xeon"});
}

TEST_F(SummaryTest, ShowsAProcessorOfWhichNothingIsKnown) {
    Load({StructureBuilder(4, 0x1A).Byte(0x06, 0x02).Byte(0x18, 0x41)});
    EXPECT_EQ(ValuesOf("Processors"), Values{"processor without a name"});
}

TEST_F(SummaryTest, ShowsProcessorsOfOneId) {
    Load({Processor(0x0010, 0x41).Qword(0x08, 7), Processor(0x0011, 0x41).Qword(0x08, 7)});
    EXPECT_EQ(ValuesOf("Processors"), Values{"2 x Fast CPU, 1 core, 2 threads"});
}

TEST_F(SummaryTest, CountsSlotsAndAddsSizesUp) {
    Load({Device(4096), Device(0), Device(4096), Device(2048)});
    EXPECT_EQ(ValuesOf("Memory"),
              (Values{"10 GiB in 3 of 4 slots, 1 free",
                      "2 x 4 GiB DDR4 DIMM, 2666 MT/s",
                      "2 GiB DDR4 DIMM, 2666 MT/s"}));
}

TEST_F(SummaryTest, SaysWhenAllSlotsAreFree) {
    Load({Device(0), Device(0)});
    EXPECT_EQ(ValuesOf("Memory"), Values{"nothing in 2 slots, 2 free"});
}

TEST_F(SummaryTest, CountsKilobytesWhereTheFirmwareDoes) {
    Load({Device(0x8000 | 512), Device(1)});
    EXPECT_EQ(ValuesOf("Memory").front(), "1536 KiB in 2 of 2 slots");
}

TEST_F(SummaryTest, FindsTheSizeOfALargeDevice) {
    Load({Device(0x7FFF).Dword(0x1C, 65536)});
    EXPECT_EQ(ValuesOf("Memory").front(), "64 GiB in 1 of 1 slot");
}

TEST_F(SummaryTest, ShowsTheSpeedAtWhichADeviceRuns) {
    Load({Device(4096).Word(0x20, 2400)});
    EXPECT_EQ(ValuesOf("Memory").back(), "4 GiB DDR4 DIMM, 2400 MT/s");
}

TEST_F(SummaryTest, CountsOnlySystemMemory) {
    const StructureBuilder flashArray = StructureBuilder(16, 0x0F, 0x0300).Byte(0x05, 5);
    Load({StructureBuilder(16, 0x0F, 0x0200).Byte(0x05, 3),
          flashArray,
          Device(4096),
          Device(8).Word(0x04, 0x0300)});
    EXPECT_EQ(ValuesOf("Memory").front(), "4 GiB in 1 of 1 slot");
}

TEST_F(SummaryTest, CountsSlotsOfWhichTheFirmwareDoesNotKnowTheSize) {
    Load({Device(4096), Device(0xFFFF), StructureBuilder(17, 0x0C), Device(0)});
    EXPECT_EQ(ValuesOf("Memory").front(), "4 GiB in 1 of 4 slots, 1 free, 2 of unknown size");
}

TEST_F(SummaryTest, NamesTheTypesOfStructuresWithErrors) {
    Load({StructureBuilder(17, 0x10), StructureBuilder(17, 0x10), StructureBuilder(16, 0x0E)});
    EXPECT_EQ(ValuesOf("Table"),
              (Values{"SMBIOS 2.8.0, 4 structures", "3 structures with errors: types 16, 17"}));
}

TEST_F(SummaryTest, SaysOfASoundStructureThatTheLibraryDoesNotDecodeIt) {
    Load({StructureBuilder(0, 0x18)});
    EXPECT_EQ(
        ValuesOf("Table"),
        (Values{"SMBIOS 2.8.0, 2 structures", "1 structure that this library does not decode (type 0)"}));
}

TEST_F(SummaryTest, SaysOfATableWithoutAnEndThatItMayBeCutShort) {
    firmware_.Supply(TableBuilder(2, 8, 0).Add({16, 0x0F}).RawTable());
    EXPECT_EQ(ValuesOf("Table"),
              (Values{"SMBIOS 2.8.0, 1 structure",
                      "the table may be cut short: it has no end-of-table structure"}));
}

TEST_F(SummaryTest, IsSafeForATerminal) {
    Load({StructureBuilder(1, 0x08).String(0x04, "Maker\x1B[31m").String(0x05, "\xFF")});
    EXPECT_EQ(ValuesOf("System"), Values{"Maker\xEF\xBF\xBD[31m \xEF\xBF\xBD"});
}

TEST_F(SummaryTest, BreaksLongLinesBetweenParts) {
    Load({Processor(0x0010, 0x41), Cache(0x0100, 256)});
    EXPECT_EQ(ValuesOf("Processors", {.width = 34}),
              (Values{"Fast CPU, 1 core,", "  2 threads,", "  L1 256 KiB"}));
}

TEST_F(SummaryTest, BreaksPartsThatAreTooLongBetweenWords) {
    Load({StructureBuilder(1, 0x08).String(0x04, "A maker of long names").String(0x05, "Product")});
    EXPECT_EQ(ValuesOf("System", {.width = 30}), (Values{"A maker of long", "  names Product"}));
}

TEST_F(SummaryTest, BreaksNoWordThatFitsTheTerminal) {
    const std::string word(37, 'x');
    Load({StructureBuilder(1, 0x08).String(0x04, "Maker").String(0x05, word)});
    const std::vector<std::string> lines = LinesOf(Text({.width = 40}));
    EXPECT_EQ(lines.at(1), "System      Maker");
    EXPECT_EQ(lines.at(2), "   " + word);
}

TEST_F(SummaryTest, GivesAWordThatFitsALineOnlyTheLineBelowItsLabel) {
    const std::string word(40, 'x');
    Load({StructureBuilder(1, 0x08).String(0x05, word)});
    const std::vector<std::string> lines = LinesOf(Text({.width = 40}));
    EXPECT_EQ(lines.at(1), "System");
    EXPECT_EQ(lines.at(2), word);
}

TEST_F(SummaryTest, BreaksTheLineOfErrors) {
    Load({StructureBuilder(17, 0x10)});
    EXPECT_EQ(ValuesOf("Table", {.width = 36}),
              (Values{"SMBIOS 2.8.0,", "  2 structures", "1 structure with", "errors: type 17"}));
}

TEST_F(SummaryTest, SetsOffLabelsAndErrors) {
    Load({StructureBuilder(17, 0x10)});
    const std::string text = Text({.colour = true});
    EXPECT_NE(text.find("\x1B[1mMemory\x1B[0m      nothing in 1 slot"), std::string::npos) << text;
    EXPECT_NE(text.find("\x1B[33m1 structure with errors: type 17\x1B[0m\n"), std::string::npos) << text;
}

// JSON

TEST_F(SummaryTest, JsonHasWhatTheFirmwareGives) {
    Load({StructureBuilder(0, 0x12).String(0x04, "Maker ").Byte(0x09, 1)});
    EXPECT_EQ(Facts().at("firmware"), Json::parse(R"([{"vendor": "Maker ", "version": null, "release": null,
                               "releaseDate": null, "romSize": 131072}])"));
}

TEST_F(SummaryTest, JsonHasEverySocket) {
    Load({Processor(0x0010, 0x42).String(0x04, "A"), Cache(0x0100, 256), Processor(0x0011, 0x00)});
    const Json processors = Facts().at("processors");
    EXPECT_EQ(processors.at(0), Json::parse(R"({"socket": "A", "isPopulated": true, "name": "Fast CPU",
                              "status": "Disabled By User", "cores": 1, "coresEnabled": 1, "threads": 2,
                              "l1Cache": 262144, "l2Cache": null, "l3Cache": null})"));
    EXPECT_EQ(processors.at(1).at("isPopulated"), false);
}

TEST_F(SummaryTest, JsonHasEveryModuleAndCountsTheSlots) {
    Load({Device(4096).String(0x10, "A1"), Device(0), Device(0xFFFF)});
    EXPECT_EQ(Facts().at("memory"),
              Json::parse(R"({"slots": 3, "freeSlots": 1, "unknownSlots": 1, "size": 4294967296,
                              "maximum": null,
                              "modules": [{"locator": "A1", "size": 4294967296, "type": "DDR4",
                                           "formFactor": "DIMM", "speed": 2666}]})"));
}

TEST_F(SummaryTest, JsonSaysHowMuchOfTheTableTheLibraryDecodes) {
    firmware_.Supply(TableBuilder(2, 8, 1)
                         .Add(StructureBuilder(0, 0x18))
                         .Add(StructureBuilder(16, 0x0E))
                         .Add(StructureBuilder(17, 0x10))
                         .Add(StructureBuilder(17, 0x10))
                         .RawTable());
    const Json facts = Facts();
    EXPECT_EQ(facts.at("version"), "2.8.1");
    EXPECT_EQ(facts.at("table"), Json::parse(R"({"structures": 4, "undecoded": {"count": 1, "types": [0]},
                              "malformed": {"count": 3, "types": [16, 17]}, "mayBeCutShort": true})"));
}

TEST_F(SummaryTest, EveryMemberOfTheJsonIsDocumented) {
    Load({StructureBuilder(0, 0x12), StructureBuilder(1, 0x08), StructureBuilder(4, 0x1A), Device(1)});
    const std::string document = ContentsOf(SMBIOS_SOURCE_DIR "/docs/json.md");
    const auto expectDocumented = [&](const Json& object) {
        for (const auto& [name, value] : object.items()) {
            EXPECT_NE(document.find("| `" + name + "` |"), std::string::npos) << name;
        }
    };
    const Json facts = Facts();
    expectDocumented(facts);
    for (const char* const list : {"firmware", "systems", "processors"}) {
        expectDocumented(facts.at(list).at(0));
    }
    expectDocumented(facts.at("memory"));
    expectDocumented(facts.at("memory").at("modules").at(0));
    expectDocumented(facts.at("table"));
}

TEST_F(SummaryTest, AsksNothingOfTheOperatingSystem) {
    Load({Device(4096), Processor(0x0010, 0x41)});
    (void)Text();
    EXPECT_TRUE(commands_.CommandLines().empty());
}

}  // namespace
}  // namespace SMBIOS::Tests
