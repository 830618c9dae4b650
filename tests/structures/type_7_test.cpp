#include "structures/type_7.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Manager::SmbiosVersionIndex;
using Structures::Type_7;

constexpr std::uint16_t kHandle = 0x0011;

StructureBuilder Cache(std::uint8_t length) {
    return {7, length, kHandle};
}

// What is accepted

TEST(Type7, AcceptsTheShortestStructureInEveryTable) {
    const auto record = Decode<Type_7>(v2_0_0, Cache(0x0F));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
}

TEST(Type7, AcceptsLengthsFrom15On) {
    const AcceptanceCase cases[] = {
        {0x0E, v2_0_0, kMalformed},
        {0x0F, v2_0_0, ""},
        {0x0E, v3_8_0, kMalformed},
        {0x0F, v3_8_0, ""},
        {0x10, v3_8_0, ""},
        {0x1B, v3_8_0, ""},
        {0xFF, v3_8_0, ""},
    };
    ExpectAcceptance<Type_7>(7, cases);
}

TEST(Type7, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_7>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type7, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_7>(v2_8_0, {7, 0x13, 0x11})->error, kMalformed);
}

TEST(Type7, LengthsAbove15NeedA210Table) {
    const char* const refused = "v2.1.0 structure or later in a v2.0.0 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x0F, v2_0_0, ""},
        {0x0F, v2_1_0, ""},
        {0x0F, v2_2_0, ""},
        {0x10, v2_0_0, refused},
        {0x10, v2_1_0, ""},
        {0x10, v2_2_0, ""},
        {0x11, v2_0_0, refused},
        {0x11, v2_1_0, ""},
        {0x11, v2_2_0, ""},
    };
    ExpectAcceptance<Type_7>(7, cases);
}

TEST(Type7, LengthsAbove19NeedA310Table) {
    const char* const refused = "v3.1.0 structure or later in a v3.0.0 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x13, v3_0_0, ""},
        {0x13, v3_1_0, ""},
        {0x13, v3_1_1, ""},
        {0x14, v3_0_0, refused},
        {0x14, v3_1_0, ""},
        {0x14, v3_1_1, ""},
        {0x15, v3_0_0, refused},
        {0x15, v3_1_0, ""},
        {0x15, v3_1_1, ""},
    };
    ExpectAcceptance<Type_7>(7, cases);
}

TEST(Type7, LengthsAbove19AreRefusedInEveryOlderTable) {
    const char* const refused = "v3.1.0 structure or later in a v3.0.0 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x14, v2_1_0, refused},
        {0x14, v2_6_1, refused},
        {0x14, v2_8_0, refused},
    };
    ExpectAcceptance<Type_7>(7, cases);
}

TEST(Type7, TheFirstGateThatMatchesGivesTheMessage) {
    EXPECT_EQ(Decode<Type_7>(v2_0_0, Cache(0x1B))->error,
              "v2.1.0 structure or later in a v2.0.0 BIOS or older");
}

TEST(Type7, A27ByteStructureFailsInA300Table) {
    EXPECT_EQ(Decode<Type_7>(v3_0_0, Cache(0x1B))->error,
              "v3.1.0 structure or later in a v3.0.0 BIOS or older");
}

TEST(Type7, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_7>(v3_0_0, Cache(0x1B).Word(0x05, 0x0180).String(0x04, "L1 Cache"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->cacheEnabled);
    EXPECT_FALSE(record->operationalMode);
    EXPECT_FALSE(record->operationalModeText);
    EXPECT_EQ(record->socketDesignation, "");
    EXPECT_EQ(record->rawBytes.size(), 0x1BU);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"L1 Cache"});
}

TEST(Type7, ARefusedStructureWithoutStringsHasNoStringSet) {
    EXPECT_FALSE(Decode<Type_7>(v3_0_0, Cache(0x1B))->strings);
}

TEST(Type7, AnAcceptedStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record = Decode<Type_7>(v2_0_0, Cache(0x0F));
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

// Configuration

auto DecodeConfiguration(std::uint16_t configuration) {
    return Decode<Type_7>(v2_0_0, Cache(0x0F).Word(0x05, configuration));
}

TEST(Type7, Configuration0180IsAnEnabledInternalLevelOneCacheWithWriteThrough) {
    const auto record = DecodeConfiguration(0x0180);
    EXPECT_TRUE(record->cacheEnabled);
    EXPECT_EQ(record->cacheLevel, 0);
    EXPECT_EQ(record->cacheLocation, 0);
    EXPECT_FALSE(record->cacheSocketed);
    EXPECT_EQ(record->operationalMode, 1);
    EXPECT_EQ(record->operationalModeText, "Write Through");
}

TEST(Type7, ConfigurationZeroIsADisabledCacheWithWriteBack) {
    const auto record = DecodeConfiguration(0x0000);
    EXPECT_FALSE(record->cacheEnabled);
    EXPECT_EQ(record->operationalMode, 0);
    EXPECT_EQ(record->operationalModeText, "Write Back");
}

TEST(Type7, OperationalMode2VariesWithTheAddress) {
    const auto record = DecodeConfiguration(0x0200);
    EXPECT_EQ(record->operationalMode, 2);
    EXPECT_EQ(record->operationalModeText, "Varies with Memory Address");
}

TEST(Type7, OperationalMode3HasAnEmptyText) {
    const auto record = DecodeConfiguration(0x0300);
    EXPECT_EQ(record->operationalMode, 3);
    EXPECT_EQ(record->operationalModeText, "");
}

TEST(Type7, OperationalModeTakesBits8And9Only) {
    EXPECT_EQ(DecodeConfiguration(0xFCFF)->operationalMode, 0);
}

TEST(Type7, OnlyBit7TellsAnEnabledCache) {
    EXPECT_TRUE(DecodeConfiguration(0x0080)->cacheEnabled);
    EXPECT_FALSE(DecodeConfiguration(0xFF7F)->cacheEnabled);
}

TEST(Type7, OnlyBit3TellsASocketedCache) {
    EXPECT_TRUE(DecodeConfiguration(0x0008)->cacheSocketed);
    EXPECT_FALSE(DecodeConfiguration(0xFFF7)->cacheSocketed);
}

TEST(Type7, LevelIsTheLowThreeBitsAsTheyAre) {
    EXPECT_EQ(DecodeConfiguration(0x0002)->cacheLevel, 2);
    EXPECT_EQ(DecodeConfiguration(0xFFFF)->cacheLevel, 7);
    EXPECT_EQ(DecodeConfiguration(0xFFF8)->cacheLevel, 0);
}

TEST(Type7, LocationsInternalAndExternalAreValues) {
    EXPECT_EQ(DecodeConfiguration(0x0000)->cacheLocation, 0);
    EXPECT_EQ(DecodeConfiguration(0x0020)->cacheLocation, 1);
    EXPECT_EQ(DecodeConfiguration(0xFF9F)->cacheLocation, 0);
}

TEST(Type7, LocationsReservedAndUnknownAreAbsent) {
    EXPECT_FALSE(DecodeConfiguration(0x0040)->cacheLocation);
    EXPECT_FALSE(DecodeConfiguration(0x0060)->cacheLocation);
}

TEST(Type7, SocketDesignationIsTheStringAt04) {
    EXPECT_EQ(Decode<Type_7>(v2_0_0, Cache(0x0F).String(0x04, " L1 Cache "))->socketDesignation, "L1 Cache");
}

TEST(Type7, AStringNumberBeyondTheStringSetIsAnEmptyText) {
    const auto record = Decode<Type_7>(v2_0_0, Cache(0x0F).Byte(0x04, 1));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->socketDesignation, "");
}

TEST(Type7, SupportedSramTypeIsTheWordAt0B) {
    const auto record = Decode<Type_7>(v2_0_0, Cache(0x0F).Word(0x0B, 0x8002));
    ASSERT_TRUE(record->supportedSramType);
    EXPECT_EQ(record->supportedSramType->GetBitCount(), 16U);
    EXPECT_TRUE(record->supportedSramType->Test(1));
    EXPECT_TRUE(record->supportedSramType->Test(15));
    EXPECT_FALSE(record->supportedSramType->Test(7));
    EXPECT_STREQ(record->supportedSramType->GetBitName(1), "Non-Burst");
    ASSERT_TRUE(record->currentSramType);
    EXPECT_FALSE(record->currentSramType->Test(1));
}

TEST(Type7, CurrentSramTypeIsTheWordAt0D) {
    const auto record = Decode<Type_7>(v2_0_0, Cache(0x0F).Word(0x0D, 0x0120));
    ASSERT_TRUE(record->currentSramType);
    EXPECT_EQ(record->currentSramType->GetBitCount(), 16U);
    EXPECT_TRUE(record->currentSramType->Test(5));
    EXPECT_TRUE(record->currentSramType->Test(8));
    EXPECT_STREQ(record->currentSramType->GetBitName(5), "Asynchronous");
    EXPECT_EQ(record->currentSramType->GetBitName(0), nullptr);
    EXPECT_EQ(record->currentSramType->GetBitName(6), nullptr);
    ASSERT_TRUE(record->supportedSramType);
    EXPECT_FALSE(record->supportedSramType->Test(5));
}

// Sizes

/// Length that says the table may be old, whatever wide sizes the area holds.
constexpr std::uint8_t kOldLength = 0x13;

std::optional<std::uint64_t> MaximumSizeOf(SmbiosVersionIndex version,
                                           std::uint16_t size,
                                           std::uint32_t wideSize = 0) {
    return Decode<Type_7>(version, Cache(kOldLength).Word(0x07, size).Dword(0x13, wideSize))
        ->maximumCacheSize;
}

std::optional<std::uint64_t> InstalledSizeOf(SmbiosVersionIndex version,
                                             std::uint16_t size,
                                             std::uint32_t wideSize = 0) {
    return Decode<Type_7>(version, Cache(kOldLength).Word(0x09, size).Dword(0x17, wideSize))->installedSize;
}

TEST(Type7, MaximumSizeWithBit15SetCounts64Kilobytes) {
    EXPECT_EQ(MaximumSizeOf(v2_1_0, 0x8010), 1024U);
}

TEST(Type7, MaximumSizeWithBit15ClearCountsKilobytes) {
    EXPECT_EQ(MaximumSizeOf(v2_1_0, 0x0200), 512U);
}

TEST(Type7, MaximumSizeZeroIsAbsent) {
    EXPECT_EQ(MaximumSizeOf(v2_1_0, 0x0000), std::nullopt);
    EXPECT_EQ(MaximumSizeOf(v2_1_0, 0x8000), std::nullopt);
}

TEST(Type7, TheLargestNarrowSizesAreSizes) {
    EXPECT_EQ(MaximumSizeOf(v3_1_0, 0x7FFF, 5), 32767U);
    EXPECT_EQ(MaximumSizeOf(v3_1_0, 0xFFFE, 5), 2097024U);  // 0x7FFE * 64
}

TEST(Type7, MaximumSizeFFFFTakesTheWideSize) {
    const auto record = Decode<Type_7>(v3_1_0, Cache(0x1B).Word(0x07, 0xFFFF).Dword(0x13, 0x80004000));
    EXPECT_EQ(record->maximumCacheSize, 1048576U);
}

TEST(Type7, AWideSizeWithBit31ClearCountsKilobytes) {
    EXPECT_EQ(MaximumSizeOf(v3_1_0, 0xFFFF, 0x01020304), 0x01020304U);
}

TEST(Type7, AWideSizeOfZeroIsAbsent) {
    EXPECT_EQ(MaximumSizeOf(v3_1_0, 0xFFFF, 0), std::nullopt);
    EXPECT_EQ(MaximumSizeOf(v3_1_0, 0xFFFF, 0x80000000), std::nullopt);
}

TEST(Type7, AWideSizeWrapsIn32Bits) {
    EXPECT_EQ(MaximumSizeOf(v3_1_0, 0xFFFF, 0x84000001), 64U);  // 0x4000001 * 64 is 0x100000040
    EXPECT_EQ(MaximumSizeOf(v3_1_0, 0xFFFF, 0x83FFFFFF), 0xFFFFFFC0U);
}

TEST(Type7, AWideSizeThatWrapsToZeroIsAbsent) {
    EXPECT_EQ(MaximumSizeOf(v3_1_0, 0xFFFF, 0x84000000), std::nullopt);
}

TEST(Type7, TheWideSizeNeedsA300Table) {
    EXPECT_EQ(MaximumSizeOf(v2_8_0, 0xFFFF, 0x80004000), std::nullopt);
    EXPECT_EQ(MaximumSizeOf(v3_0_0, 0xFFFF, 0x80004000), 1048576U);
    EXPECT_EQ(InstalledSizeOf(v2_8_0, 0xFFFF, 0x80004000), std::nullopt);
    EXPECT_EQ(InstalledSizeOf(v3_0_0, 0xFFFF, 0x80004000), 1048576U);
}

TEST(Type7, AShortStructureWithSizeFFFFInA280TablePasses) {
    const auto record = Decode<Type_7>(v2_8_0, Cache(0x13).Word(0x07, 0xFFFF));
    EXPECT_EQ(record->error, "");
    EXPECT_FALSE(record->maximumCacheSize);
}

TEST(Type7, ALongStructureWithWideSizesIsRefusedInA280Table) {
    const auto record = Decode<Type_7>(v2_8_0, Cache(0x1B).Word(0x07, 0xFFFF).Dword(0x13, 0x80004000));
    EXPECT_EQ(record->error, "v3.1.0 structure or later in a v3.0.0 BIOS or older");
    EXPECT_FALSE(record->maximumCacheSize);
}

TEST(Type7, InstalledSizeIsTheWordAt09) {
    EXPECT_EQ(InstalledSizeOf(v2_1_0, 0x8010), 1024U);
    EXPECT_EQ(InstalledSizeOf(v2_1_0, 0x0102), 0x0102U);
    EXPECT_EQ(InstalledSizeOf(v2_1_0, 0x0000), std::nullopt);
}

TEST(Type7, InstalledSizeFFFFTakesTheWideSizeAt17) {
    const auto record = Decode<Type_7>(v3_1_0, Cache(0x1B).Word(0x09, 0xFFFF).Dword(0x17, 0x01020304));
    EXPECT_EQ(record->installedSize, 0x01020304U);
    EXPECT_FALSE(record->maximumCacheSize);
}

// Version groups

TEST(Type7, CacheSpeedIsTheByteAt0F) {
    EXPECT_EQ(Decode<Type_7>(v2_1_0, Cache(0x13).Byte(0x0F, 0xFF))->cacheSpeed, 0xFF);
}

TEST(Type7, CacheSpeedZeroIsAbsent) {
    EXPECT_FALSE(Decode<Type_7>(v2_1_0, Cache(0x13).Byte(0x0F, 0))->cacheSpeed);
}

TEST(Type7, CodesOfTheCacheAreTheBytesFrom10To12) {
    const auto record =
        Decode<Type_7>(v2_1_0, Cache(0x13).Byte(0x10, 0x05).Byte(0x11, 0x03).Byte(0x12, 0x07));
    EXPECT_EQ(record->errorCorrectionType, 0x05);
    EXPECT_EQ(record->systemCacheType, 0x03);
    EXPECT_EQ(record->associativity, 0x07);
    EXPECT_EQ(record->errorCorrectionTypeName, "Single-bit ECC");
    EXPECT_EQ(record->systemCacheTypeName, "Instruction");
    EXPECT_EQ(record->associativityName, "8-way Set-Associative");
}

TEST(Type7, SpeedAndCodesNeedA210Table) {
    const auto record =
        Decode<Type_7>(v2_0_0, Cache(0x0F).Byte(0x0F, 10).Byte(0x10, 0x05).Byte(0x11, 0x03).Byte(0x12, 0x07));
    EXPECT_EQ(record->error, "");
    EXPECT_FALSE(record->cacheSpeed);
    EXPECT_FALSE(record->errorCorrectionType);
    EXPECT_FALSE(record->systemCacheType);
    EXPECT_FALSE(record->associativity);
    EXPECT_EQ(record->errorCorrectionTypeName, "");
    EXPECT_EQ(record->systemCacheTypeName, "");
    EXPECT_EQ(record->associativityName, "");
}

TEST(Type7, FieldsPastAShortStructureReadAsZero) {
    const auto record = Decode<Type_7>(v3_8_0, Cache(0x0F).Word(0x07, 0xFFFF).Word(0x09, 0xFFFF));
    EXPECT_EQ(record->error, "");
    EXPECT_FALSE(record->maximumCacheSize);
    EXPECT_FALSE(record->installedSize);
    EXPECT_FALSE(record->cacheSpeed);
    EXPECT_EQ(record->errorCorrectionType, 0);
    EXPECT_EQ(record->systemCacheType, 0);
    EXPECT_EQ(record->associativity, 0);
    EXPECT_EQ(record->associativityName, "");
}

// Tables

TEST(Type7, EveryErrorCorrectionTypeHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "None"},
        {0x04, "Parity"},
        {0x05, "Single-bit ECC"},
        {0x06, "Multi-bit ECC"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_7>(v2_1_0, Cache(0x13).Byte(0x10, code));
        EXPECT_EQ(record->errorCorrectionType, code);
        return record->errorCorrectionTypeName;
    });
}

TEST(Type7, EverySystemCacheTypeHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "Instruction"},
        {0x04, "Data"},
        {0x05, "Unified"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_7>(v2_1_0, Cache(0x13).Byte(0x11, code));
        EXPECT_EQ(record->systemCacheType, code);
        return record->systemCacheTypeName;
    });
}

TEST(Type7, EveryAssociativityHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "Direct Mapped"},
        {0x04, "2-way Set-Associative"},
        {0x05, "4-way Set-Associative"},
        {0x06, "Fully Associative"},
        {0x07, "8-way Set-Associative"},
        {0x08, "16-way Set-Associative"},
        {0x09, "12-way Set-Associative"},
        {0x0A, "24-way Set-Associative"},
        {0x0B, "32-way Set-Associative"},
        {0x0C, "48-way Set-Associative"},
        {0x0D, "64-way Set-Associative"},
        {0x0E, "20-way Set-Associative"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_7>(v2_1_0, Cache(0x13).Byte(0x12, code));
        EXPECT_EQ(record->associativity, code);
        return record->associativityName;
    });
}

TEST(Type7, EverySramTypeBitHasItsName) {
    const std::vector<std::string> names = {
        "dontCare", "Non-Burst", "Burst", "Pipeline Burst", "Synchronous", "Asynchronous"};
    const auto record = Decode<Type_7>(v2_0_0, Cache(0x0F));
    ExpectBitNames(*record->supportedSramType, names);
    ExpectBitNames(*record->currentSramType, names);
}

}  // namespace
}  // namespace SMBIOS::Tests
