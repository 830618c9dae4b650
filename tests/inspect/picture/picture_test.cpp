#include "smbios-inspect/picture/picture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/inspect/picture/picture_support.h"
#include "tests/support/counted_allocations.h"
#include "tests/support/failing_allocation.h"
#include "tests/support/worst_tables.h"

namespace SMBIOS::Tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

StructureBuilder SystemNamed(std::string_view maker, std::string_view product) {
    StructureBuilder system(1, 0x1B);
    if (!maker.empty()) {
        system.String(0x04, maker);
    }
    return system.String(0x05, product);
}

TEST(Picture, OfNothingHasNoFault) {
    EXPECT_EQ(FaultsOf(PictureOf(std::vector<std::uint8_t>())), "");
}

TEST(Picture, HasNoScriptLinkOrFont) {
    const std::string svg = SvgOf(EmptyTable().Add(SystemNamed("Vantor", "W2")).RawTable());
    for (const std::string_view forbidden : {"<script", "href", "url(", "@import", "@font-face", "<image"}) {
        EXPECT_EQ(svg.find(forbidden), std::string::npos) << forbidden;
    }
}

TEST(Picture, HasTheSystemAsItsTitle) {
    const DrawnPicture picture = PictureOf(EmptyTable().Add(SystemNamed("Vantor", "Workstation W2")));
    EXPECT_EQ(picture.boxes.at(0).tooltip, "Vantor Workstation W2");
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 1).at(0)), Contains("Vantor Workstation W2"));
}

TEST(Picture, DoesNotRepeatAMakerThatTheProductBeginsWith) {
    const DrawnPicture picture = PictureOf(EmptyTable().Add(SystemNamed("Vantor", "Vantor W2")));
    EXPECT_EQ(picture.boxes.at(0).tooltip, "Vantor W2");
}

TEST(Picture, LeavesOutWhatFirmwareSaysInPlaceOfNothing) {
    const DrawnPicture picture = PictureOf(EmptyTable().Add(SystemNamed("To Be Filled By O.E.M.", "W2")));
    EXPECT_EQ(picture.boxes.at(0).tooltip, "W2");
}

TEST(Picture, ShowsWordsOfTheFirmwareAsTheyAre) {
    const DrawnPicture picture = PictureOf(EmptyTable().Add(SystemNamed("", "<b>&amp;\"]]>")));
    EXPECT_EQ(picture.boxes.at(0).tooltip, "<b>&amp;\"]]>");
}

TEST(Picture, ShowsControlCharactersAsTheRestOfTheToolDoes) {
    const DrawnPicture picture = PictureOf(EmptyTable().Add(SystemNamed("", "a\x1B[1m\xFFz")));
    EXPECT_EQ(picture.boxes.at(0).tooltip, "a\xEF\xBF\xBD[1m\xEF\xBF\xBDz");
}

TEST(Picture, ReplacesWhatXmlForbidsBesideControlCharacters) {
    const DrawnPicture picture = PictureOf(EmptyTable().Add(SystemNamed("", "a\xEF\xBF\xBEz\xEF\xBF\xBF")));
    EXPECT_EQ(picture.boxes.at(0).tooltip, "a\xEF\xBF\xBDz\xEF\xBF\xBD");
}

TEST(Picture, ShortensALongTextAndHasItWholeInTheTooltip) {
    const std::string name = "Board" + std::string(60, 'W');
    const DrawnPicture picture =
        PictureOf(EmptyTable().Add(StructureBuilder(2, 0x08).String(0x05, name).String(0x04, "Vantor")));
    const DrawnBox board = BoxesOfType(picture, 2).at(0);
    EXPECT_THAT(TextsOf(board), Contains(testing::MatchesRegex("BoardW+\xE2\x80\xA6")));
    EXPECT_NE(board.tooltip.find(name), std::string::npos);
    EXPECT_EQ(FaultsOf(picture), "");
}

TEST(Picture, CutsOffTextWhoseWidthNobodyKnows) {
    const std::string svg = SvgOf(
        EmptyTable().Add(StructureBuilder(2, 0x08).String(0x05, "\xE7\x89\x88\xE6\x9C\xAC")).RawTable());
    EXPECT_NE(svg.find("<svg x=\"40\""), std::string::npos);
    EXPECT_EQ(FaultsOf(ReadPicture(svg)), "");
}

TEST(Picture, SaysWhenTheTableMayBeCutShort) {
    const DrawnPicture picture = PictureOf(EmptyTable().Add(SystemNamed("Vantor", "W2")));
    const auto table = std::ranges::find_if(
        picture.boxes, [](const DrawnBox& box) { return box.tooltip.starts_with("SMBIOS 3.8.0\n"); });
    ASSERT_NE(table, picture.boxes.end());
    EXPECT_THAT(TextsOf(*table), ElementsAre("Table", "SMBIOS 3.8.0", "1 structure", "may be cut short"));
}

TEST(Picture, HasSectionsOnlyOfWhatThereIs) {
    EXPECT_THAT(TextsOnPage(PictureOf(EmptyTable().Add(SystemNamed("Vantor", "W2")))), IsEmpty());
}

// Processors

TEST(PictureOfProcessors, TellsCoresThreadsAndSpeed) {
    const DrawnPicture picture = PictureOf(EmptyTable().Add(PopulatedProcessor(1, 12, 10)));
    EXPECT_THAT(
        TextsOf(BoxesOfType(picture, 4).at(0)),
        ElementsAre("Socket A", "Processor X", "10 of 12 cores \xC2\xB7 24 threads \xC2\xB7 2200 MHz"));
}

TEST(PictureOfProcessors, DrawsCoresThatAreNotEnabledHollow) {
    const DrawnPicture all = PictureOf(EmptyTable().Add(PopulatedProcessor(1, 12, 12)));
    EXPECT_THAT(BoxesOfType(all, 4).at(0).marks, ElementsAre("accent"));
    const DrawnPicture some = PictureOf(EmptyTable().Add(PopulatedProcessor(1, 12, 10)));
    EXPECT_THAT(BoxesOfType(some, 4).at(0).marks, ElementsAre("accent", "accent-line"));
}

TEST(PictureOfProcessors, OutlinesAnEmptySocket) {
    const DrawnPicture picture =
        PictureOf(EmptyTable().Add(PopulatedProcessor(1, 12, 12)).Add(EmptySocket(2)));
    EXPECT_EQ(BoxesOfType(picture, 4).at(0).surface, "card");
    EXPECT_EQ(BoxesOfType(picture, 4).at(1).surface, "free");
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 4).at(1)), ElementsAre("Socket B", "empty socket"));
    EXPECT_THAT(TextsOnPage(picture), Contains("1 of 2 sockets \xC2\xB7 12 cores \xC2\xB7 24 threads"));
}

TEST(PictureOfProcessors, SaysWhyOneIsNotAtWork) {
    const DrawnPicture picture =
        PictureOf(EmptyTable().Add(StructureBuilder(4, 0x1A).Byte(0x18, 0x42).String(0x10, "X")));
    const DrawnBox box = BoxesOfType(picture, 4).at(0);
    EXPECT_THAT(TextsOf(box), Contains("Disabled By User"));
    EXPECT_EQ(box.texts.back().tone, "warning");
}

TEST(PictureOfProcessors, NestsCachesByLevel) {
    const DrawnPicture picture =
        PictureOf(EmptyTable()
                      .Add(PopulatedProcessor(1, 4, 4).Word(0x1A, 0x11).Word(0x1C, 0x12).Word(0x1E, 0x13))
                      .Add(CacheOfKibibytes(0x11, 1, 64))
                      .Add(CacheOfKibibytes(0x12, 2, 512))
                      .Add(CacheOfKibibytes(0x13, 3, 8192)));
    std::vector<std::string> texts;
    std::vector<std::string> parents;
    for (const DrawnBox& box : BoxesOfType(picture, 7)) {
        texts.push_back(box.texts.at(0).text);
        const std::string parent = picture.boxes.at(box.parent.value()).tooltip;
        parents.push_back(parent.substr(0, parent.find(" Information")));
    }
    EXPECT_THAT(texts, ElementsAre("L3 8 MiB", "L2 512 KiB", "L1 64 KiB"));
    EXPECT_THAT(parents, ElementsAre("Type 4: Processor", "Type 7: Cache", "Type 7: Cache"));
}

TEST(PictureOfProcessors, GivesTheOnlyOneThoseCachesThatNoneRefersTo) {
    const DrawnPicture picture = PictureOf(EmptyTable()
                                               .Add(PopulatedProcessor(1, 4, 4).Word(0x1A, 0x11))
                                               .Add(CacheOfKibibytes(0x11, 1, 64).Byte(0x11, 3))
                                               .Add(CacheOfKibibytes(0x10, 1, 32).Byte(0x11, 4)));
    std::vector<std::string> texts;
    for (const DrawnBox& box : BoxesOfType(picture, 7)) {
        texts.push_back(box.texts.at(0).text);
    }
    EXPECT_THAT(texts, ElementsAre("L1d 32 KiB", "L1i 64 KiB"));
}

TEST(PictureOfProcessors, LeavesOutACacheOfNothing) {
    const DrawnPicture picture = PictureOf(
        EmptyTable().Add(PopulatedProcessor(1, 4, 4).Word(0x1A, 0x11)).Add(CacheOfKibibytes(0x11, 1, 0)));
    EXPECT_THAT(BoxesOfType(picture, 7), IsEmpty());
}

// Memory

TEST(PictureOfMemory, TellsTheTotalAndWhatCanBeAdded) {
    const DrawnPicture picture = PictureOf(EmptyTable()
                                               .Add(ArrayOfGibibytes(1, 64))
                                               .Add(DeviceOfGibibytes(1, 16, "A"))
                                               .Add(DeviceOfGibibytes(1, 0, "B")));
    EXPECT_THAT(TextsOnPage(picture), ElementsAre("Memory", "16 GiB in 1 of 2 slots"));
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 16).at(0)),
                ElementsAre("System Memory", "48 GiB more in 1 free slot"));
}

struct RoomCase {
    const char* name;
    std::uint32_t most;
    std::uint16_t second;  ///< the size of the second module; the first has 16 GiB
    const char* text;
};

class RoomForMemory : public testing::TestWithParam<RoomCase> {};

TEST_P(RoomForMemory, IsTold) {
    const DrawnPicture picture = PictureOf(EmptyTable()
                                               .Add(ArrayOfGibibytes(1, GetParam().most))
                                               .Add(DeviceOfGibibytes(1, 16, "A"))
                                               .Add(DeviceOfGibibytes(1, GetParam().second, "B")));
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 16).at(0)), Contains(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Arrays,
    RoomForMemory,
    testing::Values(RoomCase{"Full", 32, 16, "no free slot, as much as it can have"},
                    RoomCase{"LargerModules", 64, 16, "32 GiB more with larger modules"},
                    RoomCase{"SlotThatIsOfNoUse", 16, 0, "1 free slot, as much as it can have"},
                    RoomCase{"TooMuch", 8, 0, "1 free slot, more than the 8 GiB that the firmware allows"},
                    RoomCase{"Unknown", 0, 0, "1 free slot"}),
    [](const auto& each) { return each.param.name; });

TEST(PictureOfMemory, ColoursModulesByTypeAndSize) {
    const DrawnPicture picture = PictureOf(EmptyTable()
                                               .Add(ArrayOfGibibytes(1, 64))
                                               .Add(DeviceOfGibibytes(1, 16, "A", 0x22))
                                               .Add(DeviceOfGibibytes(1, 8, "B"))
                                               .Add(DeviceOfGibibytes(1, 4, "C"))
                                               .Add(DeviceOfGibibytes(1, 0, "D")));
    std::vector<std::string> surfaces;
    for (const DrawnBox& box : BoxesOfType(picture, 17)) {
        surfaces.push_back(box.surface);
    }
    EXPECT_THAT(surfaces, ElementsAre("ddr5-l", "ddr4-m", "ddr4-s", "free"));
}

TEST(PictureOfMemory, HasDevicesInSlotOrderWithinTheirArrays) {
    const DrawnPicture picture = PictureOf(EmptyTable()
                                               .Add(DeviceOfGibibytes(2, 8, "B1"))
                                               .Add(DeviceOfGibibytes(1, 8, "A1"))
                                               .Add(DeviceOfGibibytes(2, 8, "B2"))
                                               .Add(ArrayOfGibibytes(1, 64))
                                               .Add(ArrayOfGibibytes(2, 64)));
    std::vector<std::string> locators;
    for (const DrawnBox& box : BoxesOfType(picture, 17)) {
        locators.push_back(box.texts.at(0).text);
        EXPECT_TRUE(picture.boxes.at(box.parent.value()).tooltip.starts_with("Type 16:"));
    }
    EXPECT_THAT(locators, ElementsAre("A1", "B1", "B2"));
}

TEST(PictureOfMemory, TellsDevicesOfOneLocatorApartByTheirBanks) {
    const DrawnPicture picture = PictureOf(EmptyTable()
                                               .Add(ArrayOfGibibytes(1, 64))
                                               .Add(DeviceOfGibibytes(1, 8, "DIMM 0").String(0x11, "A"))
                                               .Add(DeviceOfGibibytes(1, 8, "DIMM 0").String(0x11, "B")));
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 17).at(0)), Contains("DIMM 0 \xC2\xB7 A"));
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 17).at(1)), Contains("DIMM 0 \xC2\xB7 B"));
}

TEST(PictureOfMemory, GivesTheOnlyArrayDevicesWithAnotherHandle) {
    const DrawnPicture picture =
        PictureOf(EmptyTable().Add(ArrayOfGibibytes(1, 64)).Add(DeviceOfGibibytes(9, 16, "A")));
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 16).at(0)), Contains("48 GiB more with larger modules"));
}

TEST(PictureOfMemory, DrawsDevicesOfNoArray) {
    const DrawnPicture picture = PictureOf(EmptyTable().Add(DeviceOfGibibytes(9, 16, "A")));
    EXPECT_EQ(BoxesOfType(picture, 17).size(), 1U);
    EXPECT_EQ(FaultsOf(picture), "");
}

TEST(PictureOfMemory, DoesNotCountOtherMemoryInTheTotal) {
    const DrawnPicture picture = PictureOf(EmptyTable()
                                               .Add(ArrayOfGibibytes(1, 64))
                                               .Add(ArrayOfGibibytes(2, 1).Byte(0x05, 5))
                                               .Add(DeviceOfGibibytes(1, 16, "A"))
                                               .Add(DeviceOfGibibytes(2, 1, "Flash")));
    EXPECT_THAT(TextsOnPage(picture), Contains("16 GiB in 1 of 1 slot"));
}

// Slots and what is like them

TEST(PictureOfSlots, TellsWidthGenerationAndUse) {
    const DrawnPicture picture =
        PictureOf(EmptyTable().Add(SlotWithUsage(4, "One")).Add(SlotWithUsage(3, "Two")));
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 9).at(0)), ElementsAre("One", "PCI Express 3 x16", "in use"));
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 9).at(1)), ElementsAre("Two", "PCI Express 3 x16", "free"));
    EXPECT_EQ(BoxesOfType(picture, 9).at(0).surface, "card");
    EXPECT_EQ(BoxesOfType(picture, 9).at(1).surface, "free");
    EXPECT_THAT(TextsOnPage(picture), ElementsAre("Expansion slots", "2 slots \xC2\xB7 1 free"));
}

TEST(PictureOfSlots, TellsTheGenerationThatTheTypeLeavesOpen) {
    const auto slot = StructureBuilder(9, 0x18)
                          .String(0x04, "One")
                          .Byte(0x05, 0xA5)
                          .Byte(0x06, 0x0D)
                          .Byte(0x07, 4)
                          .Byte(0x13, 5);
    EXPECT_THAT(TextsOf(BoxesOfType(PictureOf(EmptyTable().Add(slot)), 9).at(0)),
                Contains("x16 PCI Express \xC2\xB7 gen 5"));
}

class SlotCount : public testing::TestWithParam<int> {};

TEST_P(SlotCount, HasNoFaultAndEverySlotOnce) {
    TableBuilder table = EmptyTable();
    for (int i = 0; i < GetParam(); ++i) {
        table.Add(SlotWithUsage(3, "Slot " + std::to_string(i)));
        table.Add(DeviceOfGibibytes(1, 8, "DIMM " + std::to_string(i)));
    }
    const DrawnPicture picture = PictureOf(table);
    EXPECT_EQ(FaultsOf(picture), "");
    EXPECT_EQ(BoxesOfType(picture, 9).size(), static_cast<std::size_t>(GetParam()));
    EXPECT_EQ(BoxesOfType(picture, 17).size(), static_cast<std::size_t>(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Slots, SlotCount, testing::Values(1, 2, 3, 4, 5, 24, 25, 96));

TEST(PictureOfDevicesOnBoard, OutlinesTheDisabled) {
    const DrawnPicture picture =
        PictureOf(EmptyTable()
                      .Add(StructureBuilder(41, 0x0B).String(0x04, "LAN").Byte(0x05, 0x85))
                      .Add(StructureBuilder(41, 0x0B).String(0x04, "Sound").Byte(0x05, 0x07)));
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 41).at(0)), ElementsAre("LAN", "Ethernet"));
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 41).at(1)), ElementsAre("Sound", "disabled"));
    EXPECT_EQ(BoxesOfType(picture, 41).at(1).surface, "free");
}

TEST(PictureOfDevicesOnBoard, HasEachOfSeveralThatOneStructureHolds) {
    const DrawnPicture picture = PictureOf(EmptyTable().Add(StructureBuilder(10, 0x08)
                                                                .Byte(0x04, 0x83)
                                                                .String(0x05, "Graphics")
                                                                .Byte(0x06, 0x85)
                                                                .String(0x07, "LAN")));
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 10).at(0)), ElementsAre("Graphics", "Video"));
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 10).at(1)), ElementsAre("LAN", "Ethernet"));
}

TEST(PictureOfDevicesOnBoard, HasThoseOfTheReplacedTypeOnlyWhereThereAreNoOthers) {
    const DrawnPicture picture =
        PictureOf(EmptyTable()
                      .Add(StructureBuilder(10, 0x06).Byte(0x04, 0x85).String(0x05, "LAN"))
                      .Add(StructureBuilder(41, 0x0B).String(0x04, "Onboard LAN").Byte(0x05, 0x85)));
    EXPECT_THAT(BoxesOfType(picture, 10), IsEmpty());
    EXPECT_EQ(BoxesOfType(picture, 41).size(), 1U);
}

TEST(PictureOfProbes, TellsTheirStateInColourAndWords) {
    TableBuilder table = EmptyTable();
    for (const unsigned state : {2U, 3U, 4U, 5U, 6U}) {
        table.Add(StructureBuilder(28, 0x16).Byte(0x05, static_cast<std::uint8_t>(state << 5 | 7U)));
    }
    const DrawnPicture picture = PictureOf(table);
    std::vector<std::string> marks;
    std::vector<std::string> texts;
    for (const DrawnBox& box : BoxesOfType(picture, 28)) {
        marks.push_back(box.marks.at(0));
        texts.push_back(box.texts.at(1).text);
    }
    EXPECT_THAT(marks, ElementsAre("muted-line", "good", "warning", "critical", "critical"));
    EXPECT_THAT(texts,
                ElementsAre("Motherboard",
                            "OK \xC2\xB7 Motherboard",
                            "Non-critical \xC2\xB7 Motherboard",
                            "Critical \xC2\xB7 Motherboard",
                            testing::AllOf(testing::StartsWith("Non-recoverable \xC2\xB7 Mo"),
                                           testing::EndsWith("\xE2\x80\xA6"))));
}

TEST(PictureOfConnectors, SetsThemOnAnEdge) {
    const DrawnPicture picture = PictureOf(
        EmptyTable()
            .Add(StructureBuilder(8, 0x09).String(0x06, "LAN").Byte(0x07, 0x0B).Byte(0x08, 0x1F))
            .Add(StructureBuilder(8, 0x09).String(0x04, "J1 FAN").Byte(0x05, 0xFF).Byte(0x08, 0xFF)));
    const std::vector<DrawnBox> connectors = BoxesOfType(picture, 8);
    EXPECT_EQ(picture.boxes.at(connectors.at(0).parent.value()).surface, "edge");
    EXPECT_THAT(TextsOf(connectors.at(0)), ElementsAre("LAN", "Network Port"));
    EXPECT_EQ(connectors.at(0).surface, "card");
    EXPECT_THAT(TextsOf(connectors.at(1)), ElementsAre("J1 FAN"));
    EXPECT_EQ(connectors.at(1).surface, "free");
}

// Tables that are larger than any machine's

TEST(PictureOfTooMuch, CountsWhatItDoesNotDraw) {
    TableBuilder table = EmptyTable();
    table.Add(ArrayOfGibibytes(1, 64));
    for (int i = 0; i < 2416; ++i) {
        table.Add(SlotWithUsage(4, "Slot")).Add(DeviceOfGibibytes(1, 1, "DIMM"));
    }
    const DrawnPicture picture = PictureOf(table);
    EXPECT_EQ(BoxesOfType(picture, 9).size(), 512U);
    EXPECT_EQ(BoxesOfType(picture, 17).size(), 512U);
    EXPECT_THAT(TextsOnPage(picture), Contains("and 1,904 more"));
    EXPECT_THAT(TextsOnPage(picture), Contains("2416 GiB in 2,416 of 2,416 slots"));
    EXPECT_THAT(TextsOf(BoxesOfType(picture, 16).at(0)), Contains("and 1,904 more"));
    EXPECT_EQ(FaultsOf(picture), "");
}

/// What is drawn when the n-th allocation fails; none when that ends it.
std::optional<std::string> DrawnWithoutMemory(const std::vector<std::uint8_t>& rawTable, std::size_t n) {
    std::ostringstream output;
    output.exceptions(std::ios::badbit);
    try {
        const FailAllocation after(n);
        Inspect::Picture::DrawMachine(rawTable, output);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
    return output.str();
}

TEST(PictureWithoutMemory, IsNotDrawnInPart) {
    const std::vector<std::uint8_t> rawTable = EmptyTable()
                                                   .Add(PopulatedProcessor(1, 4, 4).Word(0x1A, 0x11))
                                                   .Add(CacheOfKibibytes(0x11, 1, 64))
                                                   .Add(ArrayOfGibibytes(1, 64))
                                                   .Add(DeviceOfGibibytes(1, 8, "DIMM"))
                                                   .RawTable();
    const std::string whole = SvgOf(rawTable);
    std::size_t failures = 0;
    for (std::size_t n = 1; n <= 5000; ++n) {
        const std::optional<std::string> drawn = DrawnWithoutMemory(rawTable, n);
        failures += drawn ? 0 : 1;
        ASSERT_TRUE(!drawn || *drawn == whole) << "allocation " << n;
    }
    EXPECT_GT(failures, 100U);
}

std::size_t BytesToDraw(const std::vector<std::uint8_t>& rawTable) {
    std::ostringstream output;
    const CountedAllocations counted;
    Inspect::Picture::DrawMachine(rawTable, output);
    return counted.Bytes();
}

class PictureCost : public testing::TestWithParam<WorstTable> {};

TEST_P(PictureCost, GrowsWithTheTableAndNoFaster) {
    constexpr std::size_t kKibibyte = 1024;
    const std::size_t small = BytesToDraw(GetParam().make(64 * kKibibyte));
    const std::size_t large = BytesToDraw(GetParam().make(256 * kKibibyte));
    EXPECT_LE(10 * large, 44 * small);
}

INSTANTIATE_TEST_SUITE_P(WorstTables,
                         PictureCost,
                         testing::ValuesIn(WorstTables().begin(), WorstTables().end()),
                         [](const auto& each) { return each.param.name; });

}  // namespace
}  // namespace SMBIOS::Tests
