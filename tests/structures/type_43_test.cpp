#include "structures/type_43.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_43;

constexpr std::uint16_t kHandle = 0x0043;

StructureBuilder TpmDevice(std::uint8_t length) {
    return {43, length, kHandle};
}

// What is accepted

TEST(Type43, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_43>(v2_1_0, {})->error, kInvalidPointer);
}

TEST(Type43, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_43>(v3_1_0, {43, 0x1F, 0x11})->error, kMalformed);
}

TEST(Type43, KeepsTheHandle) {
    EXPECT_EQ(Decode<Type_43>(v3_1_0, TpmDevice(0x1F))->handle, kHandle);
}

TEST(Type43, AcceptsOnly31BytesInEveryTable) {
    const AcceptanceCase cases[] = {
        {0x04, v3_8_0, kMalformed},
        {30, v3_1_0, kMalformed},
        {31, v3_1_0, ""},
        {32, v3_1_0, kMalformed},
        {0xFF, v3_8_0, kMalformed},
        {31, v2_0_0, ""},
        {31, v3_0_0, ""},
        {31, v3_8_0, ""},
    };
    ExpectAcceptance<Type_43>(43, cases);
}

TEST(Type43, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_43>(v3_1_0, TpmDevice(32).Byte(0x08, 2).String(0x12, "TPM"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->majorSpecVersion);
    EXPECT_FALSE(record->characteristics);
    EXPECT_EQ(record->vendorId + record->firmwareVersion + record->specVersion + record->description, "");
    EXPECT_EQ(record->rawBytes.size(), 32U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"TPM"});
}

TEST(Type43, FieldsPastTheBytesThatAreThereReadAsZero) {
    const auto record = DecodeBytes<Type_43>(v3_1_0, {43, 0x1F, 0x43, 0x00});
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->description, "");
    EXPECT_EQ(record->vendorId, std::string(4, '\0'));
    EXPECT_EQ(record->majorSpecVersion, 0);
    EXPECT_EQ(record->minorSpecVersion, 0);
    EXPECT_EQ(record->firmwareVersion1, 0U);
    EXPECT_EQ(record->firmwareVersion2, 0U);
    EXPECT_EQ(record->firmwareVersion, "0-0");
    EXPECT_EQ(record->specVersion, "0.0");
    EXPECT_EQ(record->oemDefined, 0U);
}

// Fields

TEST(Type43, VendorIdIsTheFourCharactersAt04) {
    const StructureBuilder device = TpmDevice(0x1F).Bytes(0x04, {'A', 'C', 'M', 'E'});
    EXPECT_EQ(Decode<Type_43>(v3_1_0, device)->vendorId, "ACME");
}

TEST(Type43, VendorIdKeepsWhiteSpaceAndNuls) {
    const StructureBuilder padded = TpmDevice(0x1F).Bytes(0x04, {' ', 'T', 'M', 0});
    EXPECT_EQ(Decode<Type_43>(v3_1_0, padded)->vendorId, std::string(" TM\0", 4));

    const StructureBuilder split = TpmDevice(0x1F).Bytes(0x04, {'A', 0, 'B', ' '});
    EXPECT_EQ(Decode<Type_43>(v3_1_0, split)->vendorId, std::string("A\0B ", 4));
}

TEST(Type43, VendorIdKeepsCharactersAbove7F) {
    const StructureBuilder device = TpmDevice(0x1F).Bytes(0x04, {0xFF, 0x80, 'M', 'E'});
    EXPECT_EQ(Decode<Type_43>(v3_1_0, device)->vendorId, "\xFF\x80ME");
}

TEST(Type43, StandardVersionIsTheBytesAt08And09InDecimal) {
    const auto record = Decode<Type_43>(v3_1_0, TpmDevice(0x1F).Byte(0x08, 2).Byte(0x09, 16));
    EXPECT_EQ(record->majorSpecVersion, 2);
    EXPECT_EQ(record->minorSpecVersion, 16);
    EXPECT_EQ(record->specVersion, "2.16");
}

TEST(Type43, StandardVersionIsSetForMajorVersion1Too) {
    const auto record = Decode<Type_43>(v3_1_0, TpmDevice(0x1F).Byte(0x08, 1).Byte(0x09, 2));
    EXPECT_EQ(record->specVersion, "1.2");
}

TEST(Type43, FirmwareVersionOfMajorVersion2IsTwoHexadecimalNumbers) {
    const auto record = Decode<Type_43>(
        v3_1_0, TpmDevice(0x1F).Byte(0x08, 2).Dword(0x0A, 0x00070002).Dword(0x0E, 0x0000000A));
    EXPECT_EQ(record->firmwareVersion, "70002-A");
    EXPECT_EQ(record->firmwareVersion1, 0x00070002U);
    EXPECT_EQ(record->firmwareVersion2, 0x0000000AU);
}

TEST(Type43, FirmwareVersionUsesUpperCaseAndAll32Bits) {
    const auto record = Decode<Type_43>(
        v3_1_0, TpmDevice(0x1F).Byte(0x08, 2).Dword(0x0A, 0xFEDCBA98).Dword(0x0E, 0xABCDEF01));
    EXPECT_EQ(record->firmwareVersion, "FEDCBA98-ABCDEF01");
}

TEST(Type43, FirmwareVersionOfMajorVersion1IsFourDecimalNumbers) {
    const auto record = Decode<Type_43>(
        v3_1_0, TpmDevice(0x1F).Byte(0x08, 1).Bytes(0x0A, {1, 2, 3, 4}).Dword(0x0E, 0x0000000A));
    EXPECT_EQ(record->firmwareVersion, "1.2.3.4");
    EXPECT_EQ(record->firmwareVersion1, 0x04030201U);
    EXPECT_FALSE(record->firmwareVersion2);
}

TEST(Type43, FirmwareVersionOfEveryOtherMajorVersionIsHexadecimal) {
    for (const std::uint8_t major : {std::uint8_t{0}, std::uint8_t{3}, std::uint8_t{0xFF}}) {
        const auto record =
            Decode<Type_43>(v3_1_0, TpmDevice(0x1F).Byte(0x08, major).Dword(0x0A, 0x1F).Dword(0x0E, 0x20));
        EXPECT_EQ(record->firmwareVersion, "1F-20");
        EXPECT_EQ(record->firmwareVersion2, 0x20U);
    }
}

TEST(Type43, DescriptionIsTheStringAt12) {
    const auto record = Decode<Type_43>(v3_1_0, TpmDevice(0x1F).String("other").String(0x12, " TPM 2.0 "));
    EXPECT_EQ(record->description, "TPM 2.0");
}

TEST(Type43, DescriptionWithoutItsStringIsEmpty) {
    const auto record = Decode<Type_43>(v3_1_0, TpmDevice(0x1F).Byte(0x12, 1));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->description, "");
}

TEST(Type43, CharacteristicsAreThe64BitsAt13) {
    const auto record = Decode<Type_43>(v3_1_0, TpmDevice(0x1F).Qword(0x13, 0x8000000000000108));
    ASSERT_TRUE(record->characteristics);
    ASSERT_EQ(record->characteristics->GetBitCount(), 64U);
    for (std::size_t bit = 0; bit < 64; ++bit) {
        EXPECT_EQ(record->characteristics->Test(bit), bit == 3 || bit == 8 || bit == 63) << "bit " << bit;
    }
}

TEST(Type43, OemDefinedIsTheDwordAt1B) {
    EXPECT_EQ(Decode<Type_43>(v3_1_0, TpmDevice(0x1F).Dword(0x1B, 0x01020304))->oemDefined, 0x01020304U);
}

// Tables

TEST(Type43, EveryCharacteristicHasItsName) {
    ExpectBitNames(*Decode<Type_43>(v3_1_0, TpmDevice(0x1F))->characteristics,
                   {"dontCare",
                    "dontCare",
                    "NotSupported",
                    "FamilyConfigurableViaFirmwareUpdate",
                    "FamilyConfigurableViaPlatformSoftwareSupport",
                    "FamilyConfigurableViaOEMProprietaryMechanism"});
}

TEST(Type43, CharacteristicsFromBit6OnHaveNoNames) {
    const auto record = Decode<Type_43>(v3_1_0, TpmDevice(0x1F));
    EXPECT_STREQ(record->characteristics->GetBitName(5), "FamilyConfigurableViaOEMProprietaryMechanism");
    EXPECT_EQ(record->characteristics->GetBitName(6), nullptr);
    EXPECT_EQ(record->characteristics->GetBitName(63), nullptr);
}

}  // namespace
}  // namespace SMBIOS::Tests
