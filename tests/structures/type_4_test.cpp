#include "structures/type_4.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Manager::SmbiosVersionIndex;
using Structures::Type_4;

constexpr std::uint16_t kHandle = 0x0011;

StructureBuilder Processor(std::uint8_t length) {
    return {4, length, kHandle};
}

/// The longest structure that the oldest table may hold.
StructureBuilder OldProcessor() {
    return Processor(0x20);
}

// What is accepted

TEST(Type4, AcceptsTheShortestStructureInEveryTable) {
    const auto record = Decode<Type_4>(v2_0_0, Processor(0x1A));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
}

TEST(Type4, AcceptsLengthsFrom26On) {
    const AcceptanceCase cases[] = {
        {0x19, v2_0_0, kMalformed},
        {0x1A, v2_0_0, ""},
        {0x1B, v2_0_0, ""},
        {0x19, v3_8_0, kMalformed},
        {0x1A, v3_8_0, ""},
        {0x34, v3_8_0, ""},
        {0xFF, v3_8_0, ""},
    };
    ExpectAcceptance<Type_4>(4, cases);
}

TEST(Type4, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_4>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type4, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_4>(v2_8_0, {4, 0x28, 0x11})->error, kMalformed);
}

TEST(Type4, LengthsAbove32NeedA230Table) {
    const char* const refused = "v2.3.0 structure or later in a v2.1.0 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x20, v2_2_0, ""},
        {0x20, v2_3_0, ""},
        {0x20, v2_4_0, ""},
        {0x21, v2_2_0, refused},
        {0x21, v2_3_0, ""},
        {0x21, v2_4_0, ""},
        {0x22, v2_2_0, refused},
        {0x22, v2_3_0, ""},
        {0x22, v2_4_0, ""},
    };
    ExpectAcceptance<Type_4>(4, cases);
}

TEST(Type4, LengthsAbove35NeedA250Table) {
    const char* const refused = "v2.5.0 structure or later in a v2.3.0 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x23, v2_4_0, ""},
        {0x23, v2_5_0, ""},
        {0x23, v2_6_0, ""},
        {0x24, v2_4_0, refused},
        {0x24, v2_5_0, ""},
        {0x24, v2_6_0, ""},
        {0x25, v2_4_0, refused},
        {0x25, v2_5_0, ""},
        {0x25, v2_6_0, ""},
    };
    ExpectAcceptance<Type_4>(4, cases);
}

TEST(Type4, LengthsAbove40NeedA260Table) {
    const char* const refused = "v2.6.0 structure or later in a v2.5.0 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x28, v2_5_0, ""},
        {0x28, v2_6_0, ""},
        {0x28, v2_6_1, ""},
        {0x29, v2_5_0, refused},
        {0x29, v2_6_0, ""},
        {0x29, v2_6_1, ""},
        {0x2A, v2_5_0, refused},
        {0x2A, v2_6_0, ""},
        {0x2A, v2_6_1, ""},
    };
    ExpectAcceptance<Type_4>(4, cases);
}

TEST(Type4, LengthsAbove42NeedA300Table) {
    const char* const refused = "v3.0.0 structure or later in a v2.8.0 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x2A, v2_8_0, ""},
        {0x2A, v3_0_0, ""},
        {0x2A, v3_1_0, ""},
        {0x2B, v2_8_0, refused},
        {0x2B, v3_0_0, ""},
        {0x2B, v3_1_0, ""},
        {0x2C, v2_8_0, refused},
        {0x2C, v3_0_0, ""},
        {0x2C, v3_1_0, ""},
    };
    ExpectAcceptance<Type_4>(4, cases);
}

TEST(Type4, LengthsAbove48NeedA360Table) {
    const char* const refused = "v3.6.0 structure or later in a v3.4.0 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x30, v3_5_0, ""},
        {0x30, v3_6_0, ""},
        {0x30, v3_7_0, ""},
        {0x31, v3_5_0, refused},
        {0x31, v3_6_0, ""},
        {0x31, v3_7_0, ""},
        {0x32, v3_5_0, refused},
        {0x32, v3_6_0, ""},
        {0x32, v3_7_0, ""},
    };
    ExpectAcceptance<Type_4>(4, cases);
}

TEST(Type4, LengthsAbove50NeedA380Table) {
    const char* const refused = "v3.8.0 structure or later in a v3.7.1 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x32, v3_7_0, ""},
        {0x33, v3_7_0, refused},
        {0x32, v3_7_1, ""},
        {0x33, v3_7_1, refused},
        {0x34, v3_7_1, refused},
        {0x32, v3_8_0, ""},
        {0x33, v3_8_0, ""},
        {0x34, v3_8_0, ""},
    };
    ExpectAcceptance<Type_4>(4, cases);
}

TEST(Type4, AGateRefusesEveryOlderTable) {
    const AcceptanceCase cases[] = {
        {0x21, v2_0_0, "v2.3.0 structure or later in a v2.1.0 BIOS or older"},
        {0x21, v2_1_0, "v2.3.0 structure or later in a v2.1.0 BIOS or older"},
        {0x24, v2_3_0, "v2.5.0 structure or later in a v2.3.0 BIOS or older"},
        {0x29, v2_5_0, "v2.6.0 structure or later in a v2.5.0 BIOS or older"},
        {0x2B, v2_6_0, "v3.0.0 structure or later in a v2.8.0 BIOS or older"},
        {0x31, v3_0_0, "v3.6.0 structure or later in a v3.4.0 BIOS or older"},
        {0x33, v3_6_0, "v3.8.0 structure or later in a v3.7.1 BIOS or older"},
    };
    ExpectAcceptance<Type_4>(4, cases);
}

TEST(Type4, TheFirstGateThatMatchesGivesTheMessage) {
    EXPECT_EQ(Decode<Type_4>(v2_0_0, Processor(0x34))->error,
              "v2.3.0 structure or later in a v2.1.0 BIOS or older");
}

TEST(Type4, A48ByteStructureFailsInA280TableButPassesInA300Table) {
    EXPECT_EQ(Decode<Type_4>(v2_8_0, Processor(0x30))->error,
              "v3.0.0 structure or later in a v2.8.0 BIOS or older");
    EXPECT_EQ(Decode<Type_4>(v3_0_0, Processor(0x30))->error, "");
}

TEST(Type4, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record =
        Decode<Type_4>(v2_8_0, Processor(0x30).Byte(0x05, 3).Byte(0x18, 0x41).String(0x04, "CPU 1"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->processorType);
    EXPECT_FALSE(record->legacyVoltageMode);
    EXPECT_FALSE(record->supportedVoltages);
    EXPECT_FALSE(record->statusText);
    EXPECT_FALSE(record->socketPopulated);
    EXPECT_EQ(record->processorId, "");
    EXPECT_EQ(record->socketDesignation, "");
    EXPECT_EQ(record->rawBytes.size(), 0x30U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"CPU 1"});
}

TEST(Type4, ARefusedStructureWithoutStringsHasNoStringSet) {
    EXPECT_FALSE(Decode<Type_4>(v2_8_0, Processor(0x30))->strings);
}

TEST(Type4, AnAcceptedStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record = Decode<Type_4>(v2_0_0, Processor(0x1A));
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

// Voltage

using Texts = std::vector<std::string>;

auto DecodeVoltage(std::uint8_t voltage) {
    return Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x11, voltage));
}

/// The voltage byte of the caller's own bytes after they were decoded.
std::uint8_t VoltageAfterDecoding(SmbiosVersionIndex version, const StructureBuilder& processor) {
    std::vector<std::uint8_t> formattedBytes = processor.FormattedBytes();
    Type_4 decoder(version);
    decoder.Process(formattedBytes, {});
    return formattedBytes.at(0x11);
}

TEST(Type4, AVoltageWithBit7SetIsInTenthsOfAVolt) {
    const auto record = DecodeVoltage(0x8C);
    EXPECT_EQ(record->legacyVoltageMode, false);
    EXPECT_EQ(record->currentVoltage, 1.2F);
    EXPECT_FALSE(record->supportedVoltages);
}

TEST(Type4, AVoltageOfZeroTenthsIsAValue) {
    EXPECT_EQ(DecodeVoltage(0x80)->currentVoltage, 0.0F);
}

TEST(Type4, TheLargestVoltageTakesAllSevenBits) {
    EXPECT_EQ(DecodeVoltage(0xFF)->currentVoltage, 12.7F);
}

TEST(Type4, AVoltageWithBit7ClearListsTheSupportedVoltages) {
    const auto record = DecodeVoltage(0x03);
    EXPECT_EQ(record->legacyVoltageMode, true);
    EXPECT_EQ(record->supportedVoltages, (Texts{"5V", "3.3V"}));
    EXPECT_FALSE(record->currentVoltage);
}

TEST(Type4, EverySupportedVoltageHasItsBit) {
    EXPECT_EQ(DecodeVoltage(0x01)->supportedVoltages, Texts{"5V"});
    EXPECT_EQ(DecodeVoltage(0x02)->supportedVoltages, Texts{"3.3V"});
    EXPECT_EQ(DecodeVoltage(0x04)->supportedVoltages, Texts{"2.9V"});
    EXPECT_EQ(DecodeVoltage(0x07)->supportedVoltages, (Texts{"5V", "3.3V", "2.9V"}));
}

TEST(Type4, NoSupportedVoltageIsAnEmptyList) {
    const auto record = DecodeVoltage(0x78);
    EXPECT_EQ(record->legacyVoltageMode, true);
    EXPECT_EQ(record->supportedVoltages, Texts{});
}

TEST(Type4, ALegacyVoltageByteIsMaskedInTheBytesGivenAndInTheRawBytes) {
    const StructureBuilder processor = OldProcessor().Byte(0x11, 0x7A);
    EXPECT_EQ(VoltageAfterDecoding(v2_0_0, processor), 0x02);
    const auto record = Decode<Type_4>(v2_0_0, processor);
    EXPECT_EQ(record->rawBytes.at(0x11), 0x02);
    EXPECT_EQ(record->supportedVoltages, Texts{"3.3V"});
}

TEST(Type4, MaskingTheVoltageLeavesTheOtherBytesAlone) {
    std::vector<std::uint8_t> expected = OldProcessor().FormattedBytes();
    expected[0x10] = 0xFF;
    expected[0x11] = 0x02;
    expected[0x12] = 0xFF;
    const auto record =
        Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x10, 0xFF).Byte(0x11, 0x7A).Byte(0x12, 0xFF));
    EXPECT_EQ(record->rawBytes, expected);
}

TEST(Type4, AVoltageWithBit7SetIsNotMasked) {
    const StructureBuilder processor = OldProcessor().Byte(0x11, 0x8C);
    EXPECT_EQ(VoltageAfterDecoding(v2_0_0, processor), 0x8C);
    EXPECT_EQ(Decode<Type_4>(v2_0_0, processor)->rawBytes.at(0x11), 0x8C);
}

TEST(Type4, TheVoltageOfARefusedStructureIsNotMasked) {
    const StructureBuilder processor = Processor(0x30).Byte(0x11, 0x7A);
    EXPECT_EQ(VoltageAfterDecoding(v2_8_0, processor), 0x7A);
    EXPECT_EQ(Decode<Type_4>(v2_8_0, processor)->rawBytes.at(0x11), 0x7A);
}

// Fields of every version

TEST(Type4, ProcessorIdIsPrintedFromItsLastByteToItsFirst) {
    const auto record =
        Decode<Type_4>(v2_0_0, OldProcessor().Bytes(0x08, {0xA5, 0x06, 0x09, 0x00, 0xFF, 0xFB, 0xEB, 0xBF}));
    EXPECT_EQ(record->processorId, "BFEBFBFF000906A5");
}

TEST(Type4, ProcessorIdKeepsItsLeadingZeros) {
    EXPECT_EQ(Decode<Type_4>(v2_0_0, OldProcessor())->processorId, "0000000000000000");
}

TEST(Type4, ProcessorTypeIsTheByteAt05) {
    const auto record = Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x05, 0x03));
    EXPECT_EQ(record->processorType, 0x03);
    EXPECT_EQ(record->processorTypeName, "Central Processor");
}

TEST(Type4, ProcessorUpgradeIsTheByteAt19) {
    const auto record = Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x19, 0x31));
    EXPECT_EQ(record->processorUpgrade, 0x31);
    EXPECT_EQ(record->processorUpgradeName, "Socket AM4");
}

TEST(Type4, ProcessorFamilyIsTheByteAt06) {
    const auto record = Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x06, 0xC6));
    EXPECT_EQ(record->processorFamily, 0xC6);
    EXPECT_EQ(record->processorFamilyName, "Intel(R) Core(TM) i7 processor");
}

TEST(Type4, FamilyFEIsAFamilyWithANameOfItsOwn) {
    const auto record = Decode<Type_4>(v2_6_0, Processor(0x2A).Byte(0x06, 0xFE).Word(0x28, 0x0101));
    EXPECT_EQ(record->processorFamily, 0xFE);
    EXPECT_EQ(record->processorFamilyName,
              "Indicator to obtain the processor family from the Processor Family 2 field");
}

TEST(Type4, FamilyFFTakesTheSecondFamilyFrom260On) {
    const auto record = Decode<Type_4>(v2_6_0, Processor(0x2A).Byte(0x06, 0xFF).Word(0x28, 0x0101));
    EXPECT_EQ(record->processorFamily, 0x0101);
    EXPECT_EQ(record->processorFamilyName, "ARMv8");
}

TEST(Type4, FamilyFFInA250TableIsAbsent) {
    const auto record = Decode<Type_4>(v2_5_0, Processor(0x28).Byte(0x06, 0xFF).Word(0x28, 0x0101));
    EXPECT_EQ(record->error, "");
    EXPECT_FALSE(record->processorFamily);
    EXPECT_EQ(record->processorFamilyName, "");
}

TEST(Type4, ALongStructureWithASecondFamilyIsRefusedInA250Table) {
    const auto record = Decode<Type_4>(v2_5_0, Processor(0x2A).Byte(0x06, 0xFF).Word(0x28, 0x0101));
    EXPECT_EQ(record->error, "v2.6.0 structure or later in a v2.5.0 BIOS or older");
    EXPECT_FALSE(record->processorFamily);
}

TEST(Type4, FamilyFFInA261TableTakesTheSecondFamily) {
    EXPECT_EQ(Decode<Type_4>(v2_6_1, Processor(0x2A).Byte(0x06, 0xFF).Word(0x28, 0x0307))->processorFamily,
              0x0307);
}

TEST(Type4, ASecondFamilyOfFEOrFFIsAValueLikeAnyOther) {
    const auto indicator = Decode<Type_4>(v2_6_0, Processor(0x2A).Byte(0x06, 0xFF).Word(0x28, 0x00FE));
    EXPECT_EQ(indicator->processorFamily, 0x00FE);
    const auto obtain = Decode<Type_4>(v2_6_0, Processor(0x2A).Byte(0x06, 0xFF).Word(0x28, 0x00FF));
    EXPECT_EQ(obtain->processorFamily, 0x00FF);
    EXPECT_EQ(obtain->processorFamilyName, "");
}

TEST(Type4, ExternalClockIsTheWordAt12) {
    EXPECT_EQ(Decode<Type_4>(v2_0_0, OldProcessor().Word(0x12, 0x0102))->externalClock, 0x0102);
}

TEST(Type4, CurrentSpeedIsTheWordAt16) {
    EXPECT_EQ(Decode<Type_4>(v2_0_0, OldProcessor().Word(0x16, 3600))->currentSpeed, 3600);
}

TEST(Type4, ExternalClockAndCurrentSpeedOfZeroAreAbsent) {
    const auto record = Decode<Type_4>(v2_0_0, OldProcessor().Word(0x12, 0).Word(0x16, 0));
    EXPECT_FALSE(record->externalClock);
    EXPECT_FALSE(record->currentSpeed);
}

TEST(Type4, ExternalClockAndCurrentSpeedOfFFFFAreValues) {
    const auto record = Decode<Type_4>(v2_0_0, OldProcessor().Word(0x12, 0xFFFF).Word(0x16, 0xFFFF));
    EXPECT_EQ(record->externalClock, 0xFFFF);
    EXPECT_EQ(record->currentSpeed, 0xFFFF);
}

TEST(Type4, MaximumSpeedIsNotDecoded) {
    EXPECT_FALSE(Decode<Type_4>(v3_8_0, Processor(0x34).Word(0x14, 4200))->maxSpeed);
}

TEST(Type4, StatusTellsThePopulatedSocketAndTheEnabledProcessor) {
    const auto record = Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x18, 0x41));
    EXPECT_TRUE(record->socketPopulated);
    EXPECT_EQ(record->statusText, "CPU Enabled");
}

TEST(Type4, AStatusWithoutATextIsAnEmptyText) {
    const auto record = Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x18, 0x47));
    EXPECT_TRUE(record->socketPopulated);
    EXPECT_EQ(record->statusText, "");
}

TEST(Type4, OnlyBit6TellsAPopulatedSocket) {
    EXPECT_FALSE(Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x18, 0xBF))->socketPopulated);
    EXPECT_TRUE(Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x18, 0x40))->socketPopulated);
}

TEST(Type4, StatusTextTakesTheLowThreeBits) {
    EXPECT_EQ(Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x18, 0xF9))->statusText, "CPU Enabled");
}

TEST(Type4, TextsOfTheSocketAreTheStringsAt0407And10) {
    const auto record = Decode<Type_4>(
        v2_0_0, OldProcessor().String(0x04, "  U3E1  ").String(0x07, "Maker").String(0x10, "Version"));
    EXPECT_EQ(record->socketDesignation, "U3E1");
    EXPECT_EQ(record->processorManufacturer, "Maker");
    EXPECT_EQ(record->processorVersion, "Version");
}

TEST(Type4, AStringNumberBeyondTheStringSetIsAnEmptyText) {
    const auto record = Decode<Type_4>(v2_0_0, OldProcessor().String(0x04, "CPU 1").Byte(0x07, 2));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->processorManufacturer, "");
}

TEST(Type4, FieldsThatAreNotInTheFirmwareStayEmpty) {
    const auto record = Decode<Type_4>(v3_8_0, Processor(0x34));
    EXPECT_EQ(record->deviceId + record->caption + record->description, "");
    EXPECT_FALSE(record->maxSpeed);
    EXPECT_FALSE(record->addressWidth);
    EXPECT_FALSE(record->dataWidth);
    EXPECT_FALSE(record->l1CacheSize);
    EXPECT_FALSE(record->l2CacheSize);
    EXPECT_FALSE(record->l3CacheSize);
}

// Version groups

TEST(Type4, CacheHandlesNeedA210Table) {
    const StructureBuilder processor =
        OldProcessor().Word(0x1A, 0x0701).Word(0x1C, 0x0702).Word(0x1E, 0x0703);
    const auto record = Decode<Type_4>(v2_1_0, processor);
    EXPECT_EQ(record->l1CacheHandle, 0x0701);
    EXPECT_EQ(record->l2CacheHandle, 0x0702);
    EXPECT_EQ(record->l3CacheHandle, 0x0703);

    const auto old = Decode<Type_4>(v2_0_0, processor);
    EXPECT_EQ(old->error, "");
    EXPECT_FALSE(old->l1CacheHandle);
    EXPECT_FALSE(old->l2CacheHandle);
    EXPECT_FALSE(old->l3CacheHandle);
}

TEST(Type4, CacheHandlesOfFFFFAreAbsent) {
    const auto record =
        Decode<Type_4>(v2_1_0, OldProcessor().Word(0x1A, 0xFFFF).Word(0x1C, 0xFFFF).Word(0x1E, 0xFFFF));
    EXPECT_FALSE(record->l1CacheHandle);
    EXPECT_FALSE(record->l2CacheHandle);
    EXPECT_FALSE(record->l3CacheHandle);
}

TEST(Type4, CacheHandlesOfFFFEAndZeroAreValues) {
    const auto record = Decode<Type_4>(v2_1_0, OldProcessor().Word(0x1A, 0xFFFE).Word(0x1C, 0));
    EXPECT_EQ(record->l1CacheHandle, 0xFFFE);
    EXPECT_EQ(record->l2CacheHandle, 0);
}

TEST(Type4, TextsOfTheProcessorNeedA230Table) {
    const StructureBuilder processor =
        OldProcessor().String(0x20, "Serial").String(0x21, "Asset").String(0x22, "Part");
    const auto record = Decode<Type_4>(v2_3_0, processor);
    EXPECT_EQ(record->serialNumber, "Serial");
    EXPECT_EQ(record->assetTag, "Asset");
    EXPECT_EQ(record->partNumber, "Part");

    const auto old = Decode<Type_4>(v2_2_0, processor);
    EXPECT_EQ(old->error, "");
    EXPECT_EQ(old->serialNumber + old->assetTag + old->partNumber, "");
}

TEST(Type4, CountsAreTheBytesAt2324And25From250On) {
    const StructureBuilder processor = Processor(0x23).Byte(0x23, 8).Byte(0x24, 6).Byte(0x25, 16);
    const auto record = Decode<Type_4>(v2_5_0, processor);
    EXPECT_EQ(record->coreCount, 8);
    EXPECT_EQ(record->coreEnabled, 6);
    EXPECT_EQ(record->threadCount, 16);

    const auto old = Decode<Type_4>(v2_4_0, processor);
    EXPECT_EQ(old->error, "");
    EXPECT_FALSE(old->coreCount);
    EXPECT_FALSE(old->coreEnabled);
    EXPECT_FALSE(old->threadCount);
}

TEST(Type4, CountsOfZeroAreAbsent) {
    const auto record = Decode<Type_4>(v3_0_0, Processor(0x30).Word(0x2A, 8).Word(0x2C, 8).Word(0x2E, 8));
    EXPECT_FALSE(record->coreCount);
    EXPECT_FALSE(record->coreEnabled);
    EXPECT_FALSE(record->threadCount);
}

TEST(Type4, CountsFromOneToFEAreTaken) {
    const auto record =
        Decode<Type_4>(v3_0_0, Processor(0x30).Byte(0x23, 0xFE).Word(0x2A, 300).Byte(0x24, 0x01));
    EXPECT_EQ(record->coreCount, 0xFE);
    EXPECT_EQ(record->coreEnabled, 1);
}

/// A processor whose counts do not fit their bytes.
StructureBuilder ManyCores(std::uint8_t length) {
    return Processor(length).Byte(0x23, 0xFF).Byte(0x24, 0xFF).Byte(0x25, 0xFF);
}

TEST(Type4, CountsOfFFTakeTheWideCountsFrom300On) {
    const auto record =
        Decode<Type_4>(v3_0_0, ManyCores(0x30).Word(0x2A, 0x0120).Word(0x2C, 0x0118).Word(0x2E, 0x0240));
    EXPECT_EQ(record->coreCount, 0x0120);
    EXPECT_EQ(record->coreEnabled, 0x0118);
    EXPECT_EQ(record->threadCount, 0x0240);
}

TEST(Type4, CountsOfFFWithWideCountsOfZeroAreAbsent) {
    const auto record = Decode<Type_4>(v3_0_0, ManyCores(0x30));
    EXPECT_EQ(record->error, "");
    EXPECT_FALSE(record->coreCount);
    EXPECT_FALSE(record->coreEnabled);
    EXPECT_FALSE(record->threadCount);
}

TEST(Type4, CountsOfFFInA280TableAreAbsent) {
    const auto record =
        Decode<Type_4>(v2_8_0, ManyCores(0x2A).Word(0x2A, 0x0120).Word(0x2C, 0x0118).Word(0x2E, 0x0240));
    EXPECT_EQ(record->error, "");
    EXPECT_FALSE(record->coreCount);
    EXPECT_FALSE(record->coreEnabled);
    EXPECT_FALSE(record->threadCount);
}

TEST(Type4, CharacteristicsComeAsWordAndAsNamedFlags) {
    const auto record = Decode<Type_4>(v2_5_0, Processor(0x28).Word(0x26, 0x0104));
    EXPECT_EQ(record->processorCharacteristics, 0x0104);
    ASSERT_TRUE(record->characteristicsFlags);
    EXPECT_EQ(record->characteristicsFlags->GetBitCount(), 16U);
    EXPECT_TRUE(record->characteristicsFlags->Test(2));
    EXPECT_TRUE(record->characteristicsFlags->Test(8));
    EXPECT_FALSE(record->characteristicsFlags->Test(3));
    EXPECT_STREQ(record->characteristicsFlags->GetBitName(8), "128bitCapable");
}

TEST(Type4, UnnamedCharacteristicsHaveNoName) {
    const auto record = Decode<Type_4>(v2_5_0, Processor(0x28).Word(0x26, 0xFFFF));
    EXPECT_EQ(record->characteristicsFlags->GetBitName(1), nullptr);
    EXPECT_EQ(record->characteristicsFlags->GetBitName(10), nullptr);
    EXPECT_TRUE(record->characteristicsFlags->Test(15));
}

TEST(Type4, VirtualizationIsBit6OfTheCharacteristics) {
    EXPECT_EQ(Decode<Type_4>(v2_5_0, Processor(0x28).Word(0x26, 0x0040))->virtualizationFirmwareEnabled,
              true);
    EXPECT_EQ(Decode<Type_4>(v2_5_0, Processor(0x28).Word(0x26, 0xFFBF))->virtualizationFirmwareEnabled,
              false);
}

TEST(Type4, CharacteristicsNeedA250Table) {
    const auto record = Decode<Type_4>(v2_4_0, Processor(0x23).Word(0x26, 0x00FC));
    EXPECT_EQ(record->error, "");
    EXPECT_FALSE(record->processorCharacteristics);
    EXPECT_FALSE(record->characteristicsFlags);
    EXPECT_FALSE(record->virtualizationFirmwareEnabled);
}

TEST(Type4, EnabledThreadsAreTheWordAt30From360On) {
    const StructureBuilder processor = Processor(0x30).Word(0x30, 0x0240);
    EXPECT_EQ(Decode<Type_4>(v3_6_0, processor)->threadEnabled, 0x0240);

    const auto old = Decode<Type_4>(v3_5_0, processor);
    EXPECT_EQ(old->error, "");
    EXPECT_FALSE(old->threadEnabled);
}

TEST(Type4, EnabledThreadsAreTakenAsRead) {
    EXPECT_EQ(Decode<Type_4>(v3_6_0, Processor(0x32).Word(0x30, 0))->threadEnabled, 0);
    EXPECT_EQ(Decode<Type_4>(v3_6_0, Processor(0x32).Word(0x30, 0xFFFF))->threadEnabled, 0xFFFF);
}

TEST(Type4, SocketTypeIsTheStringAt32From380On) {
    const StructureBuilder processor = Processor(0x32).String(0x32, "LGA1851");
    EXPECT_EQ(Decode<Type_4>(v3_8_0, processor)->socketType, "LGA1851");

    const auto old = Decode<Type_4>(v3_7_1, processor);
    EXPECT_EQ(old->error, "");
    EXPECT_EQ(old->socketType, "");
}

TEST(Type4, FieldsPastAShortStructureReadAsZero) {
    const auto record = Decode<Type_4>(v3_8_0, Processor(0x1A).Byte(0x06, 0xFF).String("A text"));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->processorFamily, 0);
    EXPECT_EQ(record->processorFamilyName, "");
    EXPECT_EQ(record->l1CacheHandle, 0);
    EXPECT_EQ(record->l2CacheHandle, 0);
    EXPECT_EQ(record->l3CacheHandle, 0);
    EXPECT_FALSE(record->coreCount);
    EXPECT_EQ(record->processorCharacteristics, 0);
    EXPECT_EQ(record->virtualizationFirmwareEnabled, false);
    EXPECT_EQ(record->threadEnabled, 0);
    EXPECT_EQ(record->assetTag + record->socketType, "");
}

TEST(Type4, AnAreaCutShortAfterItsHeaderReadsAsZero) {
    const auto record = DecodeBytes<Type_4>(v3_8_0, {4, 0x1A, 0x11, 0x00});
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->processorType, 0);
    EXPECT_EQ(record->processorId, "0000000000000000");
    EXPECT_EQ(record->supportedVoltages, Texts{});
    EXPECT_EQ(record->rawBytes.size(), 4U);
}

// Tables

TEST(Type4, EveryProcessorTypeHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "Central Processor"},
        {0x04, "Math Processor"},
        {0x05, "DSP Processor"},
        {0x06, "Video Processor"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x05, code));
        EXPECT_EQ(record->processorType, code);
        return record->processorTypeName;
    });
}

TEST(Type4, EveryStatusHasItsText) {
    const std::string texts[] = {"",
                                 "CPU Enabled",
                                 "CPU Disabled by User through Firmware Setup",
                                 "CPU Disabled By firmware (POST Error)",
                                 "CPU is Idle, waiting to be enabled.",
                                 "",
                                 "",
                                 ""};
    for (std::uint8_t status = 0; status < 8; ++status) {
        EXPECT_EQ(Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x18, status))->statusText, texts[status]);
    }
}

TEST(Type4, EveryCharacteristicHasItsName) {
    ExpectBitNames(*Decode<Type_4>(v2_5_0, Processor(0x28))->characteristicsFlags,
                   {"dontCare",
                    "dontCare",
                    "64bitCapable",
                    "multiCore",
                    "hardwareThread",
                    "executeProtection",
                    "enhacedVirtualization",
                    "powerPerformanceControl",
                    "128bitCapable",
                    "arm64SoC_ID"});
}

TEST(Type4, EveryProcessorUpgradeHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "Daughter Board"},
        {0x04, "ZIF Socket"},
        {0x05, "Replaceable Piggy Back"},
        {0x06, "None"},
        {0x07, "LIF Socket"},
        {0x08, "Slot 1"},
        {0x09, "Slot 2"},
        {0x0A, "370-pin socket"},
        {0x0B, "Slot A"},
        {0x0C, "Slot M"},
        {0x0D, "Socket 423"},
        {0x0E, "Socket A (Socket 462)"},
        {0x0F, "Socket 478"},
        {0x10, "Socket 754"},
        {0x11, "Socket 940"},
        {0x12, "Socket 939"},
        {0x13, "Socket mPGA604"},
        {0x14, "Socket LGA771"},
        {0x15, "Socket LGA775"},
        {0x16, "Socket S1"},
        {0x17, "Socket AM2"},
        {0x18, "Socket F (1207)"},
        {0x19, "Socket LGA1366"},
        {0x1A, "Socket G34"},
        {0x1B, "Socket AM3"},
        {0x1C, "Socket C32"},
        {0x1D, "Socket LGA1156"},
        {0x1E, "Socket LGA1567"},
        {0x1F, "Socket PGA988A"},
        {0x20, "Socket BGA1288"},
        {0x21, "Socket rPGA988B"},
        {0x22, "Socket BGA1023"},
        {0x23, "Socket BGA1224"},
        {0x24, "Socket LGA1155"},
        {0x25, "Socket LGA1356"},
        {0x26, "Socket LGA2011"},
        {0x27, "Socket FS1"},
        {0x28, "Socket FS2"},
        {0x29, "Socket FM1"},
        {0x2A, "Socket FM2"},
        {0x2B, "Socket LGA2011-3"},
        {0x2C, "Socket LGA1356-3"},
        {0x2D, "Socket LGA1150"},
        {0x2E, "Socket BGA1168"},
        {0x2F, "Socket BGA1234"},
        {0x30, "Socket BGA1364"},
        {0x31, "Socket AM4"},
        {0x32, "Socket LGA1151"},
        {0x33, "Socket BGA1356"},
        {0x34, "Socket BGA1440"},
        {0x35, "Socket BGA1515"},
        {0x36, "Socket LGA3647-1"},
        {0x37, "Socket SP3"},
        {0x38, "Socket SP3r2"},
        {0x39, "Socket LGA2066"},
        {0x3A, "Socket BGA1392"},
        {0x3B, "Socket BGA1510"},
        {0x3C, "Socket BGA1528"},
        {0x3D, "Socket LGA4189"},
        {0x3E, "Socket LGA1200"},
        {0x3F, "Socket LGA4677"},
        {0x40, "Socket LGA1700"},
        {0x41, "Socket BGA1744"},
        {0x42, "Socket BGA1781"},
        {0x43, "Socket BGA1211"},
        {0x44, "Socket BGA2422"},
        {0x45, "Socket LGA1211"},
        {0x46, "Socket LGA2422"},
        {0x47, "Socket LGA5773"},
        {0x48, "Socket BGA5773"},
        {0x49, "Socket AM5"},
        {0x4A, "Socket SP5"},
        {0x4B, "Socket SP6"},
        {0x4C, "Socket BGA883"},
        {0x4D, "Socket BGA1190"},
        {0x4E, "Socket BGA4129"},
        {0x4F, "Socket LGA4710"},
        {0x50, "Socket LGA7529"},
        {0x51, "Socket BGA1964"},
        {0x52, "Socket BGA1792"},
        {0x53, "Socket BGA2049"},
        {0x54, "Socket BGA2551"},
        {0x55, "Socket LGA1851"},
        {0x56, "Socket BGA2114"},
        {0x57, "Socket BGA2833"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x19, code));
        EXPECT_EQ(record->processorUpgrade, code);
        return record->processorUpgradeName;
    });
}

constexpr std::pair<std::uint16_t, const char*> kFamilies[] = {
    {0x03, "8086"},
    {0x04, "80286"},
    {0x05, "Intel386(TM) processor"},
    {0x06, "Intel486(TM) processor"},
    {0x07, "8087"},
    {0x08, "80287"},
    {0x09, "80387"},
    {0x0A, "80487"},
    {0x0B, "Intel Pentium(R) processor"},
    {0x0C, "Pentium(R) Pro processor"},
    {0x0D, "Pentium(R) II processor"},
    {0x0E, "Pentium(R) processor with MMX(TM) technology"},
    {0x0F, "Intel(R) Celeron(R) processor"},
    {0x10, "Pentium(R) II Xeon(R) processor"},
    {0x11, "Pentium(R) III processor"},
    {0x12, "M1 Family"},
    {0x13, "M2 Family"},
    {0x14, "Intel(R) Celeron(R) M processor"},
    {0x15, "Intel(R) Pentium(R) 4 HT processor"},
    {0x16, "Intel(R) Processor"},
    {0x18, "AMD Duron(TM) Processor Family"},
    {0x19, "K5 Family"},
    {0x1A, "K6 Family"},
    {0x1B, "K6 - 2"},
    {0x1C, "K6 - 3"},
    {0x1D, "AMD Athlon(TM) Processor Family"},
    {0x1E, "AMD29000 Family"},
    {0x1F, "K6 - 2 +"},
    {0x20, "Power PC Family"},
    {0x21, "Power PC 601"},
    {0x22, "Power PC 603"},
    {0x23, "Power PC 603 +"},
    {0x24, "Power PC 604"},
    {0x25, "Power PC 620"},
    {0x26, "Power PC x704"},
    {0x27, "Power PC 750"},
    {0x28, "Intel(R) Core(TM) Duo processor"},
    {0x29, "Intel(R) Core(TM) Duo mobile processor"},
    {0x2A, "Intel(R) Core(TM) Solo mobile processor"},
    {0x2B, "Intel(R) Atom(TM) processor"},
    {0x2C, "Intel(R) Core(TM) M processor"},
    {0x2D, "Intel(R) Core(TM) m3 processor"},
    {0x2E, "Intel(R) Core(TM) m5 processor"},
    {0x2F, "Intel(R) Core(TM) m7 processor"},
    {0x30, "Alpha Family"},
    {0x31, "Alpha 21064"},
    {0x32, "Alpha 21066"},
    {0x33, "Alpha 21164"},
    {0x34, "Alpha 21164PC"},
    {0x35, "Alpha 21164a"},
    {0x36, "Alpha 21264"},
    {0x37, "Alpha 21364"},
    {0x38, "AMD Turion(TM) II Ultra Dual - Core Mobile M Processor Family"},
    {0x39, "AMD Turion(TM) II Dual - Core Mobile M Processor Family"},
    {0x3A, "AMD Athlon(TM) II Dual - Core M Processor Family"},
    {0x3B, "AMD Opteron(TM) 6100 Series Processor"},
    {0x3C, "AMD Opteron(TM) 4100 Series Processor"},
    {0x3D, "AMD Opteron(TM) 6200 Series Processor"},
    {0x3E, "AMD Opteron(TM) 4200 Series Processor"},
    {0x3F, "AMD FX(TM) Series Processor"},
    {0x40, "MIPS Family"},
    {0x41, "MIPS R4000"},
    {0x42, "MIPS R4200"},
    {0x43, "MIPS R4400"},
    {0x44, "MIPS R4600"},
    {0x45, "MIPS R10000"},
    {0x46, "AMD C - Series Processor"},
    {0x47, "AMD E - Series Processor"},
    {0x48, "AMD A - Series Processor"},
    {0x49, "AMD G - Series Processor"},
    {0x4A, "AMD Z - Series Processor"},
    {0x4B, "AMD R - Series Processor"},
    {0x4C, "AMD Opteron(TM) 4300 Series Processor"},
    {0x4D, "AMD Opteron(TM) 6300 Series Processor"},
    {0x4E, "AMD Opteron(TM) 3300 Series Processor"},
    {0x4F, "AMD FirePro(TM) Series Processor"},
    {0x50, "SPARC Family"},
    {0x51, "SuperSPARC"},
    {0x52, "microSPARC II"},
    {0x53, "microSPARC IIep"},
    {0x54, "UltraSPARC"},
    {0x55, "UltraSPARC II"},
    {0x56, "UltraSPARC Iii"},
    {0x57, "UltraSPARC III"},
    {0x58, "UltraSPARC IIIi"},
    {0x60, "68040 Family"},
    {0x61, "68xxx"},
    {0x62, "68000"},
    {0x63, "68010"},
    {0x64, "68020"},
    {0x65, "68030"},
    {0x66, "AMD Athlon(TM) X4 Quad - Core Processor Family"},
    {0x67, "AMD Opteron(TM) X1000 Series Processor"},
    {0x68, "AMD Opteron(TM) X2000 Series APU"},
    {0x69, "AMD Opteron(TM) A - Series Processor"},
    {0x6A, "AMD Opteron(TM) X3000 Series APU"},
    {0x6B, "AMD Zen Processor Family"},
    {0x70, "Hobbit Family"},
    {0x78, "Crusoe(TM) TM5000 Family"},
    {0x79, "Crusoe(TM) TM3000 Family"},
    {0x7A, "Efficeon(TM) TM8000 Family"},
    {0x80, "Weitek"},
    {0x82, "Itanium(TM) processor"},
    {0x83, "AMD Athlon(TM) 64 Processor Family"},
    {0x84, "AMD Opteron(TM) Processor Family"},
    {0x85, "AMD Sempron(TM) Processor Family"},
    {0x86, "AMD Turion(TM) 64 Mobile Technology"},
    {0x87, "Dual - Core AMD Opteron(TM) Processor Family"},
    {0x88, "AMD Athlon(TM) 64 X2 Dual - Core Processor Family"},
    {0x89, "AMD Turion(TM) 64 X2 Mobile Technology"},
    {0x8A, "Quad - Core AMD Opteron(TM) Processor Family"},
    {0x8B, "Third - Generation AMD Opteron(TM) Processor Family"},
    {0x8C, "AMD Phenom(TM) FX Quad - Core Processor Family"},
    {0x8D, "AMD Phenom(TM) X4 Quad - Core Processor Family"},
    {0x8E, "AMD Phenom(TM) X2 Dual - Core Processor Family"},
    {0x8F, "AMD Athlon(TM) X2 Dual - Core Processor Family"},
    {0x90, "PA - RISC Family"},
    {0x91, "PA - RISC 8500"},
    {0x92, "PA - RISC 8000"},
    {0x93, "PA - RISC 7300LC"},
    {0x94, "PA - RISC 7200"},
    {0x95, "PA - RISC 7100LC"},
    {0x96, "PA - RISC 7100"},
    {0xA0, "V30 Family"},
    {0xA1, "Quad - Core Intel(R) Xeon(R) processor 3200 Series"},
    {0xA2, "Dual - Core Intel(R) Xeon(R) processor 3000 Series"},
    {0xA3, "Quad - Core Intel(R) Xeon(R) processor 5300 Series"},
    {0xA4, "Dual - Core Intel(R) Xeon(R) processor 5100 Series"},
    {0xA5, "Dual - Core Intel(R) Xeon(R) processor 5000 Series"},
    {0xA6, "Dual - Core Intel(R) Xeon(R) processor LV"},
    {0xA7, "Dual - Core Intel(R) Xeon(R) processor ULV"},
    {0xA8, "Dual - Core Intel(R) Xeon(R) processor 7100 Series"},
    {0xA9, "Quad - Core Intel(R) Xeon(R) processor 5400 Series"},
    {0xAA, "Quad - Core Intel(R) Xeon(R) processor"},
    {0xAB, "Dual - Core Intel(R) Xeon(R) processor 5200 Series"},
    {0xAC, "Dual - Core Intel(R) Xeon(R) processor 7200 Series"},
    {0xAD, "Quad - Core Intel(R) Xeon(R) processor 7300 Series"},
    {0xAE, "Quad - Core Intel(R) Xeon(R) processor 7400 Series"},
    {0xAF, "Multi - Core Intel(R) Xeon(R) processor 7400 Series"},
    {0xB0, "Pentium(R) III Xeon(R) processor"},
    {0xB1, "Pentium(R) III Processor with Intel(R) SpeedStep(TM) Technology"},
    {0xB2, "Pentium(R) 4 Processor"},
    {0xB3, "Intel(R) Xeon(R) processor"},
    {0xB4, "AS400 Family"},
    {0xB5, "Intel(R) Xeon(R) processor MP"},
    {0xB6, "AMD Athlon(TM) XP Processor Family"},
    {0xB7, "AMD Athlon(TM) MP Processor Family"},
    {0xB8, "Intel(R) Itanium(R) 2 processor"},
    {0xB9, "Intel(R) Pentium(R) M processor"},
    {0xBA, "Intel(R) Celeron(R) D processor"},
    {0xBB, "Intel(R) Pentium(R) D processor"},
    {0xBC, "Intel(R) Pentium(R) Processor Extreme Edition"},
    {0xBD, "Intel(R) Core(TM) Solo Processor"},
    {0xBE, "Reserved[3]"},
    {0xBF, "Intel(R) Core(TM) 2 Duo Processor"},
    {0xC0, "Intel(R) Core(TM) 2 Solo processor"},
    {0xC1, "Intel(R) Core(TM) 2 Extreme processor"},
    {0xC2, "Intel(R) Core(TM) 2 Quad processor"},
    {0xC3, "Intel(R) Core(TM) 2 Extreme mobile processor"},
    {0xC4, "Intel(R) Core(TM) 2 Duo mobile processor"},
    {0xC5, "Intel(R) Core(TM) 2 Solo mobile processor"},
    {0xC6, "Intel(R) Core(TM) i7 processor"},
    {0xC7, "Dual - Core Intel(R) Celeron(R) processor"},
    {0xC8, "IBM390 Family"},
    {0xC9, "G4"},
    {0xCA, "G5"},
    {0xCB, "ESA/390 G6"},
    {0xCC, "z/Architecture base"},
    {0xCD, "Intel(R) Core(TM) i5 processor"},
    {0xCE, "Intel(R) Core(TM) i3 processor"},
    {0xCF, "Intel(R) Core(TM) i9 processor"},
    {0xD0, "Intel(R) Xeon(R) D Processor family"},
    {0xD2, "VIA C7(TM) - M Processor Family"},
    {0xD3, "VIA C7(TM) - D Processor Family"},
    {0xD4, "VIA C7(TM) Processor Family"},
    {0xD5, "VIA Eden(TM) Processor Family"},
    {0xD6, "Multi - Core Intel(R) Xeon(R) processor"},
    {0xD7, "Dual - Core Intel(R) Xeon(R) processor 3xxx Series"},
    {0xD8, "Quad - Core Intel(R) Xeon(R) processor 3xxx Series"},
    {0xD9, "VIA Nano(TM) Processor Family"},
    {0xDA, "Dual - Core Intel(R) Xeon(R) processor 5xxx Series"},
    {0xDB, "Quad - Core Intel(R) Xeon(R) processor 5xxx Series"},
    {0xDD, "Dual - Core Intel(R) Xeon(R) processor 7xxx Series"},
    {0xDE, "Quad - Core Intel(R) Xeon(R) processor 7xxx Series"},
    {0xDF, "Multi - Core Intel(R) Xeon(R) processor 7xxx Series"},
    {0xE0, "Multi - Core Intel(R) Xeon(R) processor 3400 Series"},
    {0xE4, "AMD Opteron(TM) 3000 Series Processor"},
    {0xE5, "AMD Sempron(TM) II Processor"},
    {0xE6, "Embedded AMD Opteron(TM) Quad - Core Processor Family"},
    {0xE7, "AMD Phenom(TM) Triple - Core Processor Family"},
    {0xE8, "AMD Turion(TM) Ultra Dual - Core Mobile Processor Family"},
    {0xE9, "AMD Turion(TM) Dual - Core Mobile Processor Family"},
    {0xEA, "AMD Athlon(TM) Dual - Core Processor Family"},
    {0xEB, "AMD Sempron(TM) SI Processor Family"},
    {0xEC, "AMD Phenom(TM) II Processor Family"},
    {0xED, "AMD Athlon(TM) II Processor Family"},
    {0xEE, "Six - Core AMD Opteron(TM) Processor Family"},
    {0xEF, "AMD Sempron(TM) M Processor Family"},
    {0xFA, "i860"},
    {0xFB, "i960"},
    {0xFE, "Indicator to obtain the processor family from the Processor Family 2 field"},
    {0x100, "ARMv7"},
    {0x101, "ARMv8"},
    {0x102, "ARMv9"},
    {0x104, "SH - 3"},
    {0x105, "SH - 4"},
    {0x118, "ARM"},
    {0x119, "StrongARM"},
    {0x12C, "6x86"},
    {0x12D, "MediaGX"},
    {0x12E, "MII"},
    {0x140, "WinChip"},
    {0x15E, "DSP"},
    {0x1F4, "Video Processor"},
    {0x200, "RISC - V RV32"},
    {0x201, "RISC - V RV64"},
    {0x202, "RISC - V RV128"},
    {0x258, "LoongArch"},
    {0x259, "Loongson(TM) 1 Processor Family"},
    {0x25A, "Loongson(TM) 2 Processor Family"},
    {0x25B, "Loongson(TM) 3 Processor Family"},
    {0x25C, "Loongson(TM) 2K Processor Family"},
    {0x25D, "Loongson(TM) 3A Processor Family"},
    {0x25E, "Loongson(TM) 3B Processor Family"},
    {0x25F, "Loongson(TM) 3C Processor Family"},
    {0x260, "Loongson(TM) 3D Processor Family"},
    {0x261, "Loongson(TM) 3E Processor Family"},
    {0x262, "Dual - Core Loongson(TM) 2K Processor 2xxx Series"},
    {0x26C, "Quad - Core Loongson(TM) 3A Processor 5xxx Series"},
    {0x26D, "Multi - Core Loongson(TM) 3A Processor 5xxx Series"},
    {0x26E, "Quad - Core Loongson(TM) 3B Processor 5xxx Series"},
    {0x26F, "Multi - Core Loongson(TM) 3B Processor 5xxx Series"},
    {0x270, "Multi - Core Loongson(TM) 3C Processor 5xxx Series"},
    {0x271, "Multi - Core Loongson(TM) 3D Processor 5xxx Series"},
    {0x300, "Intel(R) Core(TM) 3"},
    {0x301, "Intel(R) Core(TM) 5"},
    {0x302, "Intel(R) Core(TM) 7"},
    {0x303, "Intel(R) Core(TM) 9"},
    {0x304, "Intel(R) Core(TM) Ultra 3"},
    {0x305, "Intel(R) Core(TM) Ultra 5"},
    {0x306, "Intel(R) Core(TM) Ultra 7"},
    {0x307, "Intel(R) Core(TM) Ultra 9"},
};

constexpr std::uint16_t kFamilyCount = 0x400;

/// The names of the families below `kFamilyCount`; those without a row are empty.
std::vector<std::string> FamilyNames() {
    std::vector<std::string> names(kFamilyCount);
    for (const auto& [family, name] : kFamilies) {
        names.at(family) = name;
    }
    return names;
}

auto DecodeWideFamily(std::uint16_t family) {
    return Decode<Type_4>(v2_6_0, Processor(0x2A).Byte(0x06, 0xFF).Word(0x28, family));
}

TEST(Type4, EveryFamilyOfTheByteHasItsName) {
    const std::vector<std::string> names = FamilyNames();
    for (std::uint8_t family = 0; family < 0xFF; ++family) {
        const auto record = Decode<Type_4>(v2_0_0, OldProcessor().Byte(0x06, family));
        EXPECT_EQ(record->processorFamily, family);
        EXPECT_EQ(record->processorFamilyName, names.at(family)) << "family " << int{family};
    }
}

TEST(Type4, EveryFamilyOfTheWordHasItsName) {
    const std::vector<std::string> names = FamilyNames();
    for (std::uint16_t family = 0; family < kFamilyCount; ++family) {
        const auto record = DecodeWideFamily(family);
        EXPECT_EQ(record->processorFamily, family);
        EXPECT_EQ(record->processorFamilyName, names.at(family)) << "family " << family;
    }
}

TEST(Type4, FamiliesPastTheTableHaveNoName) {
    for (const std::uint16_t family : std::initializer_list<std::uint16_t>{0x0400, 0x1101, 0x8003, 0xFFFF}) {
        const auto record = DecodeWideFamily(family);
        EXPECT_EQ(record->processorFamily, family);
        EXPECT_EQ(record->processorFamilyName, "") << "family " << family;
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
