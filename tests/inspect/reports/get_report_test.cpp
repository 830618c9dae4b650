#include "smbios-inspect/reports/get_report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/reports/value_keys.h"
#include "smbios-inspect/standard/types.h"
#include "tests/inspect/completed_words.h"
#include "tests/inspect/run_tool.h"
#include "tests/inspect/standard/standard_support.h"
#include "tests/support/fake_platform.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::FindValueKey;
using Inspect::ValueKey;
using Inspect::ValueKeys;
using Inspect::Standard::FieldRow;
using Structures = std::vector<StructureBuilder>;

StructureBuilder Socket(std::uint8_t status) {
    return StructureBuilder(4, 0x28).Byte(0x18, status);
}

StructureBuilder Device(std::uint16_t mebibytes, std::uint16_t speed) {
    return StructureBuilder(17, 0x22)
        .Word(0x0C, mebibytes)
        .Byte(0x12, 0x1A)
        .Word(0x15, 3200)
        .Word(0x20, speed);
}

/// What `get` prints for the keys.
std::string ValuesOf(const Structures& structures, const std::vector<std::string_view>& keys) {
    TableBuilder table(3, 2, 0);
    for (const StructureBuilder& structure : structures) {
        table.Add(structure);
    }
    const FakeFirmwareTable firmware(table.RawTable());
    Inspect::Request request;
    for (const std::string_view key : keys) {
        request.keys.push_back(FindValueKey(key));
    }
    std::ostringstream output;
    Inspect::ReportValues(request, output);
    return output.str();
}

// The command

TEST(GetReport, ListsAllKeysWithTheValuesOfTheSample) {
    const ToolResult result = RunTool({"get", "--from", SMBIOS_SAMPLE_TABLE});
    EXPECT_EQ(result.output, GoldenText("workstation-values.txt"));
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
}

TEST(GetReport, PrintsTheValuesInTheOrderAskedForALineEach) {
    EXPECT_EQ(ValuesOf({StructureBuilder(1, 0x08).String(0x04, "Maker").String(0x07, "S1")},
                       {"system.serialNumber", "system.manufacturer", "system.serialNumber"}),
              "S1\nMaker\nS1\n");
}

TEST(GetReport, AValueThatIsNotThereIsAnEmptyLine) {
    EXPECT_EQ(ValuesOf({StructureBuilder(1, 0x08)}, {"system.uuid", "tpm.vendorId"}), "\n\n");
}

TEST(GetReport, IsWhatTheCommandPrints) {
    const ToolResult result =
        RunTool({"get", "processor.count", "--from", SMBIOS_SAMPLE_TABLE, "memory.total"});
    EXPECT_EQ(result.output, "2\n68719476736\n");
    EXPECT_EQ(result.status, 0);
}

TEST(GetReport, OfATableThatSaysNothingEveryValueIsEmpty) {
    std::string names;
    for (const ValueKey& key : ValueKeys()) {
        names.append(key.name).append("\n");
    }
    EXPECT_EQ(ValuesOf({StructureBuilder(127, 4)}, {}), names);
}

TEST(GetReport, AnUnknownKeyIsWrongUsage) {
    const ToolResult result = RunTool({"get", "system.name", "--from", SMBIOS_SAMPLE_TABLE});
    EXPECT_EQ(result.status, Inspect::kWrongUsage);
    EXPECT_EQ(result.output, "");
}

TEST(GetReport, AValueStaysOnItsLineAndIsSafeForATerminal) {
    EXPECT_EQ(ValuesOf({StructureBuilder(1, 0x08).String(0x04, "a\nb\x1B[31m\xFF")}, {"system.manufacturer"}),
              "a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD[31m\xEF\xBF\xBD\n");
}

// Values

TEST(GetReport, AFieldIsThatOfTheFirstStructure) {
    EXPECT_EQ(ValuesOf({StructureBuilder(2, 0x08).String(0x05, "Main"),
                        StructureBuilder(2, 0x08).String(0x05, "Riser")},
                       {"board.product"}),
              "Main\n");
}

TEST(GetReport, AFieldOfAProcessorIsThatOfTheFirstInASocket) {
    EXPECT_EQ(ValuesOf({Socket(0x00).String(0x10, "nothing"), Socket(0x41).String(0x10, "Fast CPU")},
                       {"processor.version"}),
              "Fast CPU\n");
}

TEST(GetReport, CountsProcessorsAndSockets) {
    EXPECT_EQ(ValuesOf({Socket(0x41), Socket(0x00), Socket(0x44)}, {"processor.count", "processor.sockets"}),
              "2\n3\n");
}

TEST(GetReport, AddsUpWhatProcessorsHave) {
    EXPECT_EQ(ValuesOf({Socket(0x41).Byte(0x23, 8).Byte(0x24, 6).Byte(0x25, 16),
                        Socket(0x41).Byte(0x23, 8).Byte(0x24, 8).Byte(0x25, 16),
                        Socket(0x00).Byte(0x23, 8)},
                       {"processor.cores", "processor.coresEnabled", "processor.threads"}),
              "16\n14\n32\n");
}

TEST(GetReport, DoesNotCountCoresThatTheFirmwareDoesNotSay) {
    EXPECT_EQ(ValuesOf({Socket(0x41)}, {"processor.cores"}), "\n");
}

TEST(GetReport, CountsMemoryInBytes) {
    EXPECT_EQ(ValuesOf({Device(4096, 2400), Device(0, 0), Device(1024, 2666)},
                       {"memory.total", "memory.slots", "memory.freeSlots", "memory.modules"}),
              "5368709120\n3\n1\n2\n");
}

TEST(GetReport, MemoryIsAsFastAsItsSlowestModule) {
    EXPECT_EQ(ValuesOf({Device(4096, 2666), Device(4096, 2400), Device(4096, 0)}, {"memory.speed"}),
              "2400\n");
}

TEST(GetReport, MemoryTakesWhatItsArraysTake) {
    const auto array = [](std::uint8_t use, std::uint32_t kibibytes) {
        return StructureBuilder(16, 0x0F, 0x1600).Byte(0x05, use).Dword(0x07, kibibytes);
    };
    EXPECT_EQ(ValuesOf({array(3, 1024), array(5, 16), array(3, 2048)}, {"memory.maximum"}), "3145728\n");
}

// The keys

TEST(ValueKeys, AreThereOnce) {
    std::set<std::string_view> names;
    for (const ValueKey& key : ValueKeys()) {
        EXPECT_TRUE(names.insert(key.name).second) << key.name;
    }
}

/// A name of the standard behind the thing's: "version" for "firmwareVersion" of the firmware.
std::string WithoutThing(std::string_view field, std::string_view thing) {
    std::string name(field.starts_with(thing) ? field.substr(thing.size()) : field);
    name.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(name.front())));
    return name;
}

TEST(ValueKeys, AreCalledLikeTheirFields) {
    for (const ValueKey& key : ValueKeys()) {
        if (key.compute == nullptr) {
            const std::string thing(key.name.substr(0, key.name.find('.')));
            EXPECT_EQ(key.name, thing + "." + WithoutThing(key.field, thing));
        }
    }
}

bool HasField(const Inspect::Standard::TypeDescription& type, std::string_view name) {
    const auto hasName = [=](const FieldRow& row) { return row.name == name; };
    return std::ranges::any_of(type.rows, hasName) ||
           std::ranges::any_of(type.groups, [&](const Inspect::Standard::GroupTable& group) {
               return group.group.empty() && std::ranges::any_of(group.rows, hasName);
           });
}

TEST(ValueKeys, AreOfFieldsThatTheStandardHas) {
    for (const ValueKey& key : ValueKeys()) {
        EXPECT_TRUE(key.compute != nullptr ||
                    HasField(*Inspect::Standard::DescriptionOf(key.type), key.field))
            << key.name;
    }
}

TEST(ValueKeys, StandInTheManual) {
    const std::string manual = ContentsOf(SMBIOS_SOURCE_DIR "/docs/smbios-inspect.1");
    for (const ValueKey& key : ValueKeys()) {
        const std::string row =
            "\n.It Cm " + std::string(key.name) + " Ta " + std::string(key.meaning) + "\n";
        EXPECT_NE(manual.find(row), std::string::npos) << row;
    }
}

TEST(ValueKeys, AreCompleted) {
    std::vector<std::string> names;
    for (const ValueKey& key : ValueKeys()) {
        names.emplace_back(key.name);
    }
    EXPECT_EQ(CompletedWords("_smbios_inspect_keys"), names);
}

}  // namespace
}  // namespace SMBIOS::Tests
