#include "smbios-inspect/comparison/difference_text.h"

#include <gtest/gtest.h>

#include <string>

#include "smbios-inspect/output/text_layout.h"
#include "tests/inspect/comparison/comparison_support.h"

namespace SMBIOS::Tests {
namespace {

StructureBuilder Slot(const std::string& name, std::uint8_t usage) {
    return StructureBuilder(9, 0x0D).String(0x04, name).Byte(0x06, 1).Byte(0x07, usage);
}

RawTable Machine(const std::string& product, const std::string& slot, std::uint8_t usage) {
    return TableWith({StructureBuilder(1, 0x08).String(0x05, product), Slot(slot, 3), Slot("Riser", usage)});
}

TEST(DifferenceText, OfNoDifferenceIsTheCountsAlone) {
    EXPECT_EQ(DiffText(TableWith({{126, 4}}), TableWith({{126, 4}})),
              "0 added, 0 removed, 0 changed, 1 the same\n");
}

TEST(DifferenceText, HasColoursOnATerminalThatTakesThem) {
    EXPECT_EQ(DiffText(Machine("W2", "Left", 3), Machine("W2", "Right", 4), {.colour = true}),
              "\x1B[31m- System Slots Left\x1B[0m\n"
              "\x1B[33m~ System Slots Riser\x1B[0m\n"
              "  Current Usage  Available -> In Use\n"
              "\x1B[32m+ System Slots Right\x1B[0m\n"
              "\n"
              "1 added, 1 removed, 1 changed, 1 the same\n");
}

TEST(DifferenceText, IsWrappedWhereTheTerminalIsNarrow) {
    const RawTable before = Machine("One workstation of many words", "The slot at the left", 3);
    const RawTable after = Machine("Another one", "Slot", 3);
    EXPECT_EQ(DiffText(before, after, {.width = 30}),
              "- System Slots The slot at the\n"
              "  left\n"
              "~ System\n"
              "  Product Name  One\n"
              "                workstation of\n"
              "                many words ->\n"
              "                Another one\n"
              "+ System Slots Slot\n"
              "\n"
              "1 added, 1 removed, 1 changed,\n"
              "1 the same\n");
}

TEST(DifferenceText, FitsATerminalThatHasRoomForALabelAndAWord) {
    const RawTable before = Machine("One workstation of many words", "The slot at the left", 3);
    const RawTable after = Machine("Another one", "Slot", 4);
    for (std::size_t width = 16; width <= 100; ++width) {
        for (const std::string& line : LinesOf(DiffText(before, after, {.width = width}))) {
            EXPECT_LE(Inspect::DisplayWidth(line), width) << line;
        }
    }
}

TEST(DifferenceText, ShowsNoControlCharacterOfTheFirmware) {
    const std::string text =
        DiffText(Machine("\x1B[31m", "\x1B]0;gone\x07", 3), Machine("\r\n", "\x7F", 3), {.width = 80});
    EXPECT_NE(text.find("\xEF\xBF\xBD[31m -> \xEF\xBF\xBD\xEF\xBF\xBD"), std::string::npos) << text;
    for (const char character : text) {
        EXPECT_TRUE(character == '\n' || static_cast<unsigned char>(character) >= 0x20);
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
