#include "structures/type_0.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Manager::SmbiosVersionIndex;
using Structures::Type_0;

constexpr std::uint16_t kHandle = 0x00A1;
constexpr const char* kNewerThan200 = "v2.1.0 structure or later in a v2.0.0 BIOS";
constexpr const char* kNewerThan220 = "v2.3.0 structure or later in a v2.2.0 BIOS or older";
constexpr const char* kNewerThan300 = "v3.1.0 structure or later in a v3.0.0 BIOS or older";

StructureBuilder BiosInformation(std::uint8_t length) {
    return {0, length, kHandle};
}

// What is accepted

TEST(Type0, AcceptsTheShortestStructureInA200Table) {
    const auto record = Decode<Type_0>(v2_0_0, BiosInformation(18));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
}

TEST(Type0, RefusesALengthOf19InA200Table) {
    EXPECT_EQ(Decode<Type_0>(v2_0_0, BiosInformation(19))->error, kNewerThan200);
}

TEST(Type0, RefusesLengthsOutside18To26InEveryVersion) {
    for (const Manager::VersionRow& row : Manager::versionMap) {
        const AcceptanceCase cases[] = {
            {0, row.index, kMalformed},
            {17, row.index, kMalformed},
            {27, row.index, kMalformed},
            {255, row.index, kMalformed},
        };
        ExpectAcceptance<Type_0>(0, cases);
    }
}

TEST(Type0, AcceptsTheLongestStructureFrom310On) {
    const AcceptanceCase cases[] = {
        {25, v3_1_0, ""}, {26, v3_1_0, ""}, {26, v3_1_1, ""}, {26, v3_8_0, ""}, {18, v3_8_0, ""}};
    ExpectAcceptance<Type_0>(0, cases);
}

TEST(Type0, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_0>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type0, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_0>(v2_8_0, {0, 0x12, 0x11})->error, kMalformed);
}

TEST(Type0, A200TableRefusesLengthsAbove18) {
    const AcceptanceCase cases[] = {
        {18, v2_0_0, ""}, {19, v2_0_0, kNewerThan200}, {20, v2_0_0, kNewerThan200}, {19, v2_1_0, ""}};
    ExpectAcceptance<Type_0>(0, cases);
}

TEST(Type0, TablesBelow230RefuseLengthsOf20OrMore) {
    const AcceptanceCase cases[] = {
        {19, v2_1_0, ""},
        {20, v2_1_0, kNewerThan220},
        {19, v2_2_0, ""},
        {20, v2_2_0, kNewerThan220},
        {21, v2_2_0, kNewerThan220},
        {20, v2_3_0, ""},
        {20, v2_4_0, ""},
    };
    ExpectAcceptance<Type_0>(0, cases);
}

TEST(Type0, TablesBelow310RefuseLengthsOf24OrMore) {
    const AcceptanceCase cases[] = {
        {23, v2_3_0, ""},
        {24, v2_3_0, kNewerThan300},
        {24, v2_4_0, kNewerThan300},
        {23, v3_0_0, ""},
        {24, v3_0_0, kNewerThan300},
        {25, v3_0_0, kNewerThan300},
        {24, v3_1_0, ""},
        {24, v3_1_1, ""},
    };
    ExpectAcceptance<Type_0>(0, cases);
}

TEST(Type0, TheFirstGateThatMatchesGivesTheMessage) {
    EXPECT_EQ(Decode<Type_0>(v2_0_0, BiosInformation(26))->error, kNewerThan200);
    EXPECT_EQ(Decode<Type_0>(v2_2_0, BiosInformation(26))->error, kNewerThan220);
}

TEST(Type0, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_0>(
        v2_0_0, BiosInformation(19).Byte(0x09, 0x0F).String(0x04, "Vendor").Word(0x06, 0xE800));
    EXPECT_EQ(record->error, kNewerThan200);
    EXPECT_EQ(record->handle, 0);
    EXPECT_EQ(record->vendor, "");
    EXPECT_EQ(record->startingAddressSegment, "");
    EXPECT_EQ(record->systemBiosRelease, "");
    EXPECT_EQ(record->ecFirmwareRelease, "");
    EXPECT_FALSE(record->romSize);
    EXPECT_FALSE(record->characteristics);
    EXPECT_FALSE(record->systemBiosMajorRelease);
    EXPECT_EQ(record->rawBytes.size(), 19U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"Vendor"});
}

TEST(Type0, ARefusedStructureWithoutStringsHasNoStringSet) {
    EXPECT_FALSE(Decode<Type_0>(v2_0_0, BiosInformation(19))->strings);
}

TEST(Type0, AnAcceptedStructureWithoutStringsHasNoStringSet) {
    EXPECT_FALSE(Decode<Type_0>(v2_0_0, BiosInformation(18))->strings);
}

TEST(Type0, AnAcceptedStructureKeepsItsStringsAndRawBytes) {
    const StructureBuilder structure = BiosInformation(18).String(0x04, " Vendor ");
    const auto record = Decode<Type_0>(v2_0_0, structure);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{" Vendor "});
    EXPECT_EQ(record->rawBytes, structure.FormattedBytes());
}

// Texts

TEST(Type0, VendorAndReleaseDateAreTheStringsAt04And08) {
    const auto record =
        Decode<Type_0>(v2_0_0, BiosInformation(18).String(0x08, "01/02/2003").String(0x04, "  Vendor  "));
    EXPECT_EQ(record->vendor, "Vendor");
    EXPECT_EQ(record->releaseDate, "01/02/2003");
}

TEST(Type0, AStringNumberBeyondTheStringSetGivesAnEmptyText) {
    const auto record =
        Decode<Type_0>(v2_0_0, BiosInformation(18).String("only").Byte(0x04, 2).Byte(0x08, 0xFF));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->vendor, "");
    EXPECT_EQ(record->releaseDate, "");
}

TEST(Type0, BiosVersionAndExtensionsAreEmptyInEveryVersion) {
    for (const Manager::VersionRow& row : Manager::versionMap) {
        const auto record = Decode<Type_0>(
            row.index, BiosInformation(18).String(0x05, "1.2.3").Byte(0x12, 0xFF).Byte(0x13, 0xFF));
        EXPECT_EQ(record->error, "");
        EXPECT_EQ(record->biosVersion, "");
        EXPECT_FALSE(record->characteristicsExtension1);
        EXPECT_FALSE(record->characteristicsExtension2);
    }
}

// ROM size

std::optional<std::uint64_t> RomSizeOf(SmbiosVersionIndex version,
                                       std::uint8_t size,
                                       std::uint16_t extended = 0) {
    return Decode<Type_0>(version, BiosInformation(0x12).Byte(0x09, size).Word(0x18, extended))->romSize;
}

TEST(Type0, RomSizeCountsBlocksOf64KilobytesFromOneOn) {
    EXPECT_EQ(RomSizeOf(v2_0_0, 0x00), 65536U);
    EXPECT_EQ(RomSizeOf(v2_0_0, 0x0F), 1048576U);
    EXPECT_EQ(RomSizeOf(v2_0_0, 0xFE), 16711680U);
}

TEST(Type0, RomSizeBelowFFIgnoresTheExtendedSize) {
    EXPECT_EQ(RomSizeOf(v3_1_0, 0xFE, 0x0010), 16711680U);
}

TEST(Type0, RomSizeFFTakesTheExtendedSizeInMegabytes) {
    EXPECT_EQ(RomSizeOf(v3_1_0, 0xFF, 0x0010), 16777216U);
}

TEST(Type0, RomSizeFFTakesTheWholeWordInGigabytesWhenBit14IsSet) {
    EXPECT_EQ(RomSizeOf(v3_1_0, 0xFF, 0x4001), 17593259786240U);  // 16385 x 1073741824
    EXPECT_EQ(RomSizeOf(v3_1_0, 0xFF, 0xC001), 52777631875072U);  // 49153 x 1073741824
}

TEST(Type0, RomSizeFFTakesTheWholeWordInMegabytesWhenOnlyBit15IsSet) {
    EXPECT_EQ(RomSizeOf(v3_1_0, 0xFF, 0x8001), 34360786944U);  // 32769 x 1048576
}

TEST(Type0, RomSizeFFWithAnExtendedSizeOfZeroIsZero) {
    EXPECT_EQ(RomSizeOf(v3_1_0, 0xFF, 0x0000), 0U);
}

TEST(Type0, RomSizeFFNeedsA310Table) {
    EXPECT_FALSE(RomSizeOf(v2_0_0, 0xFF, 0x0010));
    EXPECT_FALSE(RomSizeOf(v3_0_0, 0xFF, 0x0010));
    EXPECT_TRUE(RomSizeOf(v3_1_1, 0xFF, 0x0010));
}

TEST(Type0, TheExtendedSizeIsReadFromAWholeStructure) {
    const StructureBuilder structure = BiosInformation(26).Byte(0x09, 0xFF).Word(0x18, 0x0102);
    EXPECT_EQ(Decode<Type_0>(v3_1_0, structure)->romSize, 270532608U);  // 258 x 1048576
}

// Starting segment

std::string StartingSegmentOf(std::uint16_t segment) {
    return Decode<Type_0>(v2_0_0, BiosInformation(18).Word(0x06, segment))->startingAddressSegment;
}

TEST(Type0, StartingSegmentZeroIsAnEmptyText) {
    EXPECT_EQ(StartingSegmentOf(0x0000), "");
}

TEST(Type0, StartingSegmentIsInUpperCaseHexadecimal) {
    EXPECT_EQ(StartingSegmentOf(0xE000), "0xE000");
    EXPECT_EQ(StartingSegmentOf(0xE800), "0xE800");
    EXPECT_EQ(StartingSegmentOf(0xABCD), "0xABCD");
}

TEST(Type0, StartingSegmentHasAtLeastTwoDigits) {
    EXPECT_EQ(StartingSegmentOf(0x000F), "0x0F");
    EXPECT_EQ(StartingSegmentOf(0x0100), "0x100");
}

// Releases

TEST(Type0, ReleaseNumbersAreTheBytesFrom14To17) {
    const auto record = Decode<Type_0>(v3_1_0, BiosInformation(26).Bytes(0x14, {1, 12, 34, 56}));
    EXPECT_EQ(record->systemBiosMajorRelease, 1);
    EXPECT_EQ(record->systemBiosMinorRelease, 12);
    EXPECT_EQ(record->ecFirmwareMajorRelease, 34);
    EXPECT_EQ(record->ecFirmwareMinorRelease, 56);
}

TEST(Type0, ReleaseTextsAreDecimalNumbersWithADot) {
    const auto record = Decode<Type_0>(v3_1_0, BiosInformation(26).Bytes(0x14, {1, 12, 2, 5}));
    EXPECT_EQ(record->systemBiosRelease, "1.12");
    EXPECT_EQ(record->ecFirmwareRelease, "2.5");
}

TEST(Type0, ReleaseNumbersOfFFHaveNoSpecialMeaning) {
    const auto record = Decode<Type_0>(v3_1_0, BiosInformation(26).Bytes(0x14, {0xFF, 0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(record->systemBiosRelease, "255.255");
    EXPECT_EQ(record->ecFirmwareRelease, "255.255");
    EXPECT_EQ(record->systemBiosMajorRelease, 0xFF);
    EXPECT_EQ(record->systemBiosMinorRelease, 0xFF);
    EXPECT_EQ(record->ecFirmwareMajorRelease, 0xFF);
    EXPECT_EQ(record->ecFirmwareMinorRelease, 0xFF);
}

TEST(Type0, ReleaseNumbersAreReadWhateverTheVersionAndTheLengthByte) {
    const auto record = Decode<Type_0>(v2_0_0, BiosInformation(18).Bytes(0x14, {3, 4, 5, 6}));
    EXPECT_EQ(record->systemBiosRelease, "3.4");
    EXPECT_EQ(record->ecFirmwareRelease, "5.6");
}

TEST(Type0, ReleaseNumbersPastTheStructureReadAsZero) {
    const auto record = Decode<Type_0>(v2_0_0, BiosInformation(18));
    EXPECT_EQ(record->systemBiosMajorRelease, 0);
    EXPECT_EQ(record->systemBiosMinorRelease, 0);
    EXPECT_EQ(record->ecFirmwareMajorRelease, 0);
    EXPECT_EQ(record->ecFirmwareMinorRelease, 0);
    EXPECT_EQ(record->systemBiosRelease, "0.0");
    EXPECT_EQ(record->ecFirmwareRelease, "0.0");
}

// Characteristics

TEST(Type0, CharacteristicsAreTheQwordAt0A) {
    const auto record = Decode<Type_0>(v2_0_0, BiosInformation(18).Qword(0x0A, 0x8877665544332211));
    ASSERT_TRUE(record->characteristics);
    EXPECT_EQ(record->characteristics->GetBitCount(), 64U);
    EXPECT_EQ(record->characteristics->bytes,
              (Common::FlagBytes{0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77, 0x88}));
}

TEST(Type0, CharacteristicsOf8HaveOnlyTheBitNamedNotSupported) {
    const auto record = Decode<Type_0>(v2_0_0, BiosInformation(18).Qword(0x0A, 0x0000000000000008));
    ASSERT_TRUE(record->characteristics);
    for (std::size_t bit = 0; bit < 64; ++bit) {
        EXPECT_EQ(record->characteristics->Test(bit), bit == 3) << "bit " << bit;
    }
    EXPECT_STREQ(Common::LowestSetBitName(*record->characteristics), "notSupported");
}

TEST(Type0, CharacteristicsOfZeroArePresent) {
    const auto record = Decode<Type_0>(v2_0_0, BiosInformation(18));
    ASSERT_TRUE(record->characteristics);
    EXPECT_EQ(Common::LowestSetBitName(*record->characteristics), nullptr);
}

TEST(Type0, ReservedCharacteristicsHaveNoReportedName) {
    const auto record = Decode<Type_0>(v2_0_0, BiosInformation(18).Qword(0x0A, 0x0000000000000007));
    EXPECT_EQ(record->characteristics->GetBitName(0), nullptr);
    EXPECT_EQ(record->characteristics->GetBitName(1), nullptr);
    EXPECT_EQ(record->characteristics->GetBitName(2), nullptr);
}

TEST(Type0, EveryCharacteristicHasItsName) {
    std::vector<std::string> expected = {"dontCare",
                                         "dontCare",
                                         "dontCare",
                                         "notSupported",
                                         "isaSupported",
                                         "mcaSupported",
                                         "eisaSupported",
                                         "pciSupported",
                                         "pcmciaSupported",
                                         "pnPSupported",
                                         "apmSupported",
                                         "fwUpgradable",
                                         "fwShadowAllowed",
                                         "vlVesaSupported",
                                         "escdSupported",
                                         "cdBootSupported",
                                         "selectableBootSupported",
                                         "fwRomSocketed",
                                         "pcmciaBootSupported",
                                         "eddSpecSupported",
                                         "jFloppyNec9800_1_2mb_Supported",
                                         "jFloppyToshiba_1_2mb_Supported",
                                         "stdFloppy_5_25_360kb_Supported",
                                         "stdFloppy_5_25_1_2mb_Supported",
                                         "stdFloppy_3_5_720kb_Supported",
                                         "stdFloppy_3_5__2_88mb_Supported",
                                         "prtScrSvcSupported",
                                         "keyboard8042SvcsSupported",
                                         "serialSvcsSupported",
                                         "printerSvcsSupported",
                                         "cgaMonoVideoSvcsSupported",
                                         "necPc98Supported"};
    for (const char* family : {"fwVendorSpec", "sysVendorSpec"}) {
        for (int number = 0; number <= 15; ++number) {
            expected.push_back(std::string(family) + std::to_string(number));
        }
    }
    ExpectBitNames(*Decode<Type_0>(v2_0_0, BiosInformation(18))->characteristics, expected);
}

// Structures cut short

TEST(Type0, FieldsPastAStructureCutShortReadAsZero) {
    const auto record = DecodeBytes<Type_0>(v3_1_0, {0, 0x1A, 0xA1, 0x00});
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
    EXPECT_EQ(record->vendor, "");
    EXPECT_EQ(record->romSize, 65536U);
    EXPECT_EQ(record->startingAddressSegment, "");
    EXPECT_EQ(record->systemBiosRelease, "0.0");
    ASSERT_TRUE(record->characteristics);
    EXPECT_EQ(record->characteristics->bytes, (Common::FlagBytes{0, 0, 0, 0, 0, 0, 0, 0}));
}

}  // namespace
}  // namespace SMBIOS::Tests
