#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include "smbios-inspect/output/field_block.h"
#include "smbios-inspect/records/filed_structure.h"
#include "structures/type_16.h"
#include "structures/type_17.h"
#include "structures/type_19.h"
#include "structures/type_2.h"
#include "structures/type_3.h"
#include "structures/type_4.h"
#include "structures/type_43.h"
#include "structures/type_7.h"
#include "structures/type_9.h"
#include "structures/unknown_type.h"
#include "tests/support/decode.h"
#include "tests/support/json.h"

// How one structure reads on a terminal.
namespace SMBIOS::Tests {
namespace {

using Inspect::OutputStyle;

struct FieldText {
    std::string label;
    std::vector<std::string> lines;
    bool isFailure = false;
};

std::string Block(const std::vector<FieldText>& fields, const OutputStyle& style) {
    Inspect::FieldTexts texts;
    for (const FieldText& field : fields) {
        texts.BeginField(field.label, field.isFailure);
        for (const std::string& line : field.lines) {
            texts.AddLine(line);
        }
    }
    std::ostringstream output;
    Inspect::FieldPrinter(style, output).PrintBlock("Heading", texts);
    return output.str();
}

template <class Type>
Inspect::FiledStructure Filed(const StructureBuilder& structure, Manager::SmbiosVersionIndex version) {
    const auto decoder = std::make_shared<Type>(version);
    decoder->Process(structure.FormattedBytes(), structure.Strings());
    return {Type::kKey, decoder};
}

template <class Type>
std::string TextOf(const StructureBuilder& structure, Manager::SmbiosVersionIndex version = v3_8_0) {
    std::ostringstream output;
    const OutputStyle style;
    Inspect::StructurePrinter(style, output).Print(Filed<Type>(structure, version));
    return output.str();
}

template <class Type>
Json JsonOf(const StructureBuilder& structure) {
    const auto write = [&](Inspect::JsonWriter& json) {
        Inspect::WriteStructure(Filed<Type>(structure, v3_8_0), json);
    };
    return Json::parse(JsonText(write)).at("record");
}

/// What stands behind `label` in its line; "(none)" without such a line.
std::string Shown(const std::string& text, const std::string& label) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("  " + label + "  ")) {
            return line.substr(line.find_first_not_of(' ', label.size() + 2));
        }
    }
    return "(none)";
}

// Lines

TEST(FiledStructure, LabelsStandInOneColumn) {
    EXPECT_EQ(Block({{"A", {"1"}, false}, {"Longer", {"2"}, false}}, {}),
              "Heading\n"
              "  A       1\n"
              "  Longer  2\n");
}

TEST(FiledStructure, LinesBehindTheFirstOneHaveNoLabel) {
    EXPECT_EQ(Block({{"Label", {"1", "2"}}}, {}),
              "Heading\n"
              "  Label  1\n"
              "         2\n");
}

TEST(FiledStructure, LongTextContinuesBelowItselfWithinTheTerminal) {
    EXPECT_EQ(Block({{"Label", {"some words that go on and on"}, false}}, {.width = 30}),
              "Heading\n"
              "  Label  some words that go on\n"
              "         and on\n");
}

TEST(FiledStructure, WithoutATerminalNoLineIsBroken) {
    const std::string words(500, 'x');
    EXPECT_EQ(Block({{"Label", {words}, false}}, {}), "Heading\n  Label  " + words + "\n");
}

TEST(FiledStructure, ColourMakesTheHeadingBoldAndTheErrorRed) {
    EXPECT_EQ(Block({{"A", {"1"}, false}, {"E", {"bad"}, true}}, {.colour = true}),
              "\x1B[1mHeading\x1B[0m\n"
              "  A  1\n"
              "  E  \x1B[31mbad\x1B[0m\n");
}

TEST(FiledStructure, ControlCharactersOfTheFirmwareDoNotReachTheTerminal) {
    EXPECT_EQ(Block({{"A", {"a\x1B[2Jb\nc"}, false}}, {}), "Heading\n  A  a\uFFFD[2Jb\uFFFDc\n");
}

// Words

TEST(FiledStructure, ACodeStandsBehindItsText) {
    const std::string text = TextOf<Structures::Type_17>(StructureBuilder(17, 0x5C).Byte(0x12, 0x1A));
    EXPECT_EQ(Shown(text, "Memory type"), "DDR4 (26)");
}

TEST(FiledStructure, ACodeWithoutATextStandsAlone) {
    const std::string text = TextOf<Structures::Type_17>(StructureBuilder(17, 0x5C).Byte(0x12, 0xF0));
    EXPECT_EQ(Shown(text, "Memory type"), "240");
}

TEST(FiledStructure, SetFlagsReadAsTheirNamesAndOthersAsTheirBits) {
    const std::string text = TextOf<Structures::Type_17>(StructureBuilder(17, 0x5C).Word(0x13, 0x2081));
    EXPECT_EQ(Shown(text, "Type detail"), "bit 0, Synchronous, Registered (Buffered)");
}

TEST(FiledStructure, NoFlagReadsAsNone) {
    EXPECT_EQ(Shown(TextOf<Structures::Type_17>({17, 0x5C}), "Type detail"), "none");
}

TEST(FiledStructure, TheCodesOfOtherAndUnknownHaveWords) {
    EXPECT_EQ(Shown(TextOf<Structures::Type_3>(StructureBuilder(3, 0x15).Byte(0x09, 2)), "Boot-up state"),
              "Unknown (2)");
    EXPECT_EQ(Shown(TextOf<Structures::Type_17>(StructureBuilder(17, 0x5C).Byte(0x12, 1)), "Memory type"),
              "Other (1)");
}

TEST(FiledStructure, TheCodesOfABoardAreTheOtherWayRound) {
    EXPECT_EQ(Shown(TextOf<Structures::Type_2>(StructureBuilder(2, 0x0F).Byte(0x0D, 1)), "Board type"),
              "Unknown (1)");
    EXPECT_EQ(Shown(TextOf<Structures::Type_2>(StructureBuilder(2, 0x0F).Byte(0x0D, 2)), "Board type"),
              "Other (2)");
}

TEST(FiledStructure, ABitThatMeansUnknownHasItsWord) {
    const std::string text = TextOf<Structures::Type_4>(StructureBuilder(4, 0x30).Word(0x26, 0x0006));
    EXPECT_EQ(Shown(text, "Characteristics"), "Unknown, 64bitCapable");
}

TEST(FiledStructure, ZeroThatMeansUnknownHasItsWord) {
    EXPECT_EQ(Shown(TextOf<Structures::Type_17>({17, 0x5C}), "Configured voltage"), "unknown");
    EXPECT_EQ(Shown(TextOf<Structures::Type_3>({3, 0x15}), "Height"), "not specified");
}

TEST(FiledStructure, HandlesThatNameNothingHaveWords) {
    const auto array = [](std::uint16_t handle) {
        return Shown(TextOf<Structures::Type_16>(StructureBuilder(16, 0x17).Word(0x0B, handle)),
                     "Error information");
    };
    EXPECT_EQ(array(0xFFFE), "not provided");
    EXPECT_EQ(array(0xFFFF), "no error");
    EXPECT_EQ(array(0x0012), "0x0012");
}

TEST(FiledStructure, HandlesReadInHexadecimal) {
    const std::string text = TextOf<Structures::Type_17>(StructureBuilder(17, 0x5C).Word(0x04, 0x00AB));
    EXPECT_EQ(Shown(text, "Memory array"), "0x00AB");
}

TEST(FiledStructure, NumbersHaveTheirUnits) {
    const std::string text = TextOf<Structures::Type_17>(StructureBuilder(17, 0x5C).Word(0x15, 2400));
    EXPECT_EQ(Shown(text, "Speed"), "2400 MT/s");
}

TEST(FiledStructure, AbsentFieldsAreLeftOut) {
    const std::string text = TextOf<Structures::Type_17>(StructureBuilder(17, 0x5C).Word(0x08, 0xFFFF));
    EXPECT_EQ(Shown(text, "Total width"), "(none)");
    EXPECT_EQ(Shown(text, "Serial number"), "(none)");
}

TEST(FiledStructure, TheSizeOfADeviceThatCountsMegabytes) {
    const std::string text = TextOf<Structures::Type_17>(StructureBuilder(17, 0x5C).Word(0x0C, 0x4000));
    EXPECT_EQ(Shown(text, "Size"), "16 GiB");
}

TEST(FiledStructure, TheSizeOfADeviceThatCountsKilobytes) {
    const std::string text = TextOf<Structures::Type_17>(StructureBuilder(17, 0x5C).Word(0x0C, 0x8200));
    EXPECT_EQ(Shown(text, "Size"), "512 KiB");
}

TEST(FiledStructure, AnAddressInKilobytes) {
    const std::string text = TextOf<Structures::Type_19>(StructureBuilder(19, 0x1F).Dword(0x08, 0x03FFFFFF));
    EXPECT_EQ(Shown(text, "Ending address"), "0xFFFFFFFFF");
}

TEST(FiledStructure, AnAddressInBytes) {
    const std::string text = TextOf<Structures::Type_19>(
        StructureBuilder(19, 0x1F).Dword(0x08, 0xFFFFFFFF).Qword(0x17, 0x123456789A));
    EXPECT_EQ(Shown(text, "Ending address"), "0x123456789A");
}

TEST(FiledStructure, CacheLevelsCountFromOne) {
    const std::string text = TextOf<Structures::Type_7>(StructureBuilder(7, 0x1B).Word(0x05, 0x0022));
    EXPECT_EQ(Shown(text, "Level"), "L3");
    EXPECT_EQ(Shown(text, "Location"), "External (1)");
}

TEST(FiledStructure, TheFeaturesOfABoardReadInOneLine) {
    const std::string text = TextOf<Structures::Type_2>(StructureBuilder(2, 0x0F).Byte(0x09, 0x13));
    EXPECT_EQ(Shown(text, "Features"),
              "hot swappable, removable, replaceable, hosting board, requires a daughter board, raw 0x13");
}

TEST(FiledStructure, ObjectsOnABoardReadAsHandles) {
    const std::string text = TextOf<Structures::Type_2>(
        StructureBuilder(2, 0x25).Byte(0x0E, 9).Word(0x0F, 0x0010).Word(0x11, 0x0011));
    EXPECT_EQ(Shown(text, "Contained objects"), "0x0010, 0x0011");
}

TEST(FiledStructure, AContainedElementReadsInOneLine) {
    const std::string text = TextOf<Structures::Type_3>(
        StructureBuilder(3, 0x18).Byte(0x13, 1).Byte(0x14, 3).Bytes(0x15, {0x80 | 10, 1, 2}));
    EXPECT_EQ(Shown(text, "Contained elements"), "Motherboard (10), Structure, minimum 1, maximum 2");
}

TEST(FiledStructure, ElementsPastAStructuresEndAreOnlyCounted) {
    const StructureBuilder chassis =
        StructureBuilder(3, 0x18).Byte(0x13, 255).Byte(0x14, 255).Bytes(0x15, {10, 1, 2});
    EXPECT_THAT(
        TextOf<Structures::Type_3>(chassis),
        testing::HasSubstr("Contained elements  Motherboard (10), Baseboard, minimum 1, maximum 2\n"));
    EXPECT_THAT(TextOf<Structures::Type_3>(chassis),
                testing::HasSubstr(" and 21674 past the end of the structure\n"));
    const Json record = JsonOf<Structures::Type_3>(chassis);
    EXPECT_EQ(record.at("containedElements").size(), 1U);
    EXPECT_EQ(record.at("containedElementsCount"), 21675);
}

TEST(FiledStructure, ElementsWithinAStructureAreNotCounted) {
    const Json record = JsonOf<Structures::Type_3>(StructureBuilder(3, 0x18).Byte(0x13, 1).Byte(0x14, 3));
    EXPECT_EQ(record.at("containedElements").size(), 1U);
    EXPECT_FALSE(record.contains("containedElementsCount"));
}

TEST(FiledStructure, APeerGroupReadsInOneLine) {
    const std::string text = TextOf<Structures::Type_9>(
        StructureBuilder(9, 0x18).Byte(0x12, 1).Bytes(0x13, {0x02, 0x01, 0x03, 0x25, 0x08}));
    EXPECT_EQ(Shown(text, "Peer groups"), "segment group 258, bus 3, device 4, function 5, data bus width 8");
}

TEST(FiledStructure, NulsBehindAVendorIdAreNotShown) {
    const std::string text =
        TextOf<Structures::Type_43>(StructureBuilder(43, 0x1F).Bytes(0x04, {'V', 'N', 'T', 0}));
    EXPECT_EQ(Shown(text, "Vendor id"), "VNT");
}

TEST(FiledStructure, TypesOfMakersSayThatTheyAre) {
    EXPECT_EQ(TextOf<Structures::UnknownType>({0xDD, 4, 0x0001}),
              "Type 221: OEM-specific, handle 0x0001, 4 bytes\n"
              "  Raw bytes  dd 04 01 00\n");
}

TEST(FiledStructure, ATypeWithoutANameHasNone) {
    EXPECT_TRUE(TextOf<Structures::UnknownType>({100, 4, 0x0001}).starts_with("Type 100, handle 0x0001"));
}

TEST(FiledStructure, StringsReadWithTheirNumbersAndEmptyOnesWithoutABlank) {
    const std::string text =
        TextOf<Structures::UnknownType>(StructureBuilder(100, 4, 1).String("one").String("").String("three"));
    EXPECT_EQ(text,
              "Type 100, handle 0x0001, 4 bytes\n"
              "  Strings    1: one\n"
              "             2:\n"
              "             3: three\n"
              "  Raw bytes  64 04 01 00\n");
}

}  // namespace
}  // namespace SMBIOS::Tests
