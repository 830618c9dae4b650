#include "structures/type_41.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"
namespace SMBIOS::Tests {
namespace {

using Structures::Type_41;

constexpr std::uint16_t kHandle = 0x0041;

StructureBuilder OnboardDevice(std::uint8_t length) {
    return {41, length, kHandle};
}

// What is accepted

TEST(Type41, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_41>(v2_1_0, {})->error, kInvalidPointer);
}

TEST(Type41, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_41>(v2_6_0, {41, 0x0B, 0x11})->error, kMalformed);
}

TEST(Type41, KeepsTheHandle) {
    EXPECT_EQ(Decode<Type_41>(v2_6_0, OnboardDevice(0x0B))->handle, kHandle);
}

TEST(Type41, NeedsA260Table) {
    const AcceptanceCase cases[] = {
        {0x0B, v2_4_0, kMalformed},
        {0x0B, v2_5_0, kMalformed},
        {0x0B, v2_6_0, ""},
        {0x0B, v2_6_1, ""},
        {0x0B, v3_8_0, ""},
    };
    ExpectAcceptance<Type_41>(41, cases);
}

TEST(Type41, AcceptsEveryLength) {
    const AcceptanceCase cases[] = {
        {0x04, v2_6_0, ""},
        {0x0A, v2_6_0, ""},
        {0x0B, v2_6_0, ""},
        {0x0C, v2_6_0, ""},
        {0xFF, v2_6_0, ""},
    };
    ExpectAcceptance<Type_41>(41, cases);
}

TEST(Type41, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_41>(v2_5_0, OnboardDevice(0x0B).Byte(0x05, 0x83).String(0x04, "LAN"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->isEnabled);
    EXPECT_FALSE(record->deviceNumber);
    EXPECT_EQ(record->referenceDesignation + record->deviceType, "");
    EXPECT_EQ(record->rawBytes.size(), 0x0BU);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"LAN"});
}

TEST(Type41, AStructureOf4BytesReadsAsZeros) {
    const auto record = Decode<Type_41>(v2_6_0, OnboardDevice(0x04));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->referenceDesignation, "");
    EXPECT_EQ(record->deviceTypeInstance, 0);
    EXPECT_EQ(record->segmentGroupNumber, 0);
    EXPECT_EQ(record->busNumber, 0);
    EXPECT_EQ(record->isEnabled, false);
    EXPECT_EQ(record->deviceType, "");
    EXPECT_EQ(record->deviceNumber, 0);
    EXPECT_EQ(record->functionNumber, 0);
}

// Fields

TEST(Type41, ReferenceDesignationIsTheStringAt04) {
    const auto record = Decode<Type_41>(v2_6_0, OnboardDevice(0x0B).String("other").String(0x04, " LAN 1 "));
    EXPECT_EQ(record->referenceDesignation, "LAN 1");
}

TEST(Type41, ReferenceDesignationWithoutItsStringIsEmpty) {
    const auto record = Decode<Type_41>(v2_6_0, OnboardDevice(0x0B).Byte(0x04, 1));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->referenceDesignation, "");
}

TEST(Type41, EnabledIsBit7OfTheByteAt05) {
    const auto enabled = Decode<Type_41>(v2_6_0, OnboardDevice(0x0B).Byte(0x05, 0x85));
    EXPECT_EQ(enabled->isEnabled, true);
    EXPECT_EQ(enabled->deviceType, "Ethernet");

    const auto disabled = Decode<Type_41>(v2_6_0, OnboardDevice(0x0B).Byte(0x05, 0x05));
    EXPECT_EQ(disabled->isEnabled, false);
    EXPECT_EQ(disabled->deviceType, "Ethernet");
}

TEST(Type41, DeviceTypeInstanceIsTheByteAt06) {
    EXPECT_EQ(Decode<Type_41>(v2_6_0, OnboardDevice(0x0B).Byte(0x06, 0x02))->deviceTypeInstance, 2);
}

TEST(Type41, SegmentGroupNumberIsTheWordAt07) {
    EXPECT_EQ(Decode<Type_41>(v2_6_0, OnboardDevice(0x0B).Word(0x07, 0x0102))->segmentGroupNumber, 0x0102);
}

TEST(Type41, BusNumberIsTheByteAt09) {
    EXPECT_EQ(Decode<Type_41>(v2_6_0, OnboardDevice(0x0B).Byte(0x09, 0x7B))->busNumber, 0x7B);
}

TEST(Type41, DeviceAndFunctionShareTheByteAt0A) {
    const auto record = Decode<Type_41>(v2_6_0, OnboardDevice(0x0B).Byte(0x0A, 0xFA));
    EXPECT_EQ(record->deviceNumber, 31);
    EXPECT_EQ(record->functionNumber, 2);
}

TEST(Type41, AddressesOfDevicesThatAreNotOnABusAreKeptAsRead) {
    const auto record =
        Decode<Type_41>(v2_6_0, OnboardDevice(0x0B).Word(0x07, 0xFFFF).Byte(0x09, 0xFF).Byte(0x0A, 0xFF));
    EXPECT_EQ(record->segmentGroupNumber, 0xFFFF);
    EXPECT_EQ(record->busNumber, 0xFF);
    EXPECT_EQ(record->deviceNumber, 31);
    EXPECT_EQ(record->functionNumber, 7);
}

// Tables

TEST(Type41, EveryDeviceTypeHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "Video"},
        {4, "SCSI Controller"},
        {5, "Ethernet"},
        {6, "Token Ring"},
        {7, "Sound"},
        {8, "PATA Controller"},
        {9, "SATA Controller"},
        {10, "SAS Controller"},
        {11, "Wireless LAN"},
        {12, "Bluetooth"},
        {13, "WWAN"},
        {14, "eMMC (embedded Multi-Media Controller)"},
        {15, "NVMe Controller"},
        {16, "UFS Controller"},
    };
    ExpectNarrowNames(7, rows, [](std::uint8_t code) {
        return Decode<Type_41>(v2_6_0, OnboardDevice(0x0B).Byte(0x05, code))->deviceType;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
