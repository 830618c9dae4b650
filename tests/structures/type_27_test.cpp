#include "structures/type_27.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"
namespace SMBIOS::Tests {
namespace {

using Structures::Type_27;

constexpr std::uint16_t kHandle = 0x0027;

StructureBuilder CoolingDevice(std::uint8_t length) {
    return {27, length, kHandle};
}

// What is accepted

TEST(Type27, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_27>(v2_1_0, {})->error, kInvalidPointer);
}

TEST(Type27, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_27>(v2_7_0, {27, 0x0F, 0x11})->error, kMalformed);
}

TEST(Type27, KeepsTheHandle) {
    EXPECT_EQ(Decode<Type_27>(v2_7_0, CoolingDevice(0x0F))->handle, kHandle);
}

constexpr const char* kNewInOld = "BIOS structure of version 2.7.0 or later in BIOS that is 2.6.1 or older";

TEST(Type27, NeedsA220TableAndRefuses15BytesBefore270) {
    const AcceptanceCase cases[] = {
        {0x0C, v2_0_0, kMalformed},
        {0x0C, v2_1_0, kMalformed},
        {0x0F, v2_1_0, kMalformed},
        {0x04, v2_2_0, ""},
        {0x0C, v2_2_0, ""},
        {0x0C, v2_3_0, ""},
        {0x0E, v2_2_0, ""},
        {0x0F, v2_2_0, kNewInOld},
        {0x0E, v2_6_1, ""},
        {0x0F, v2_6_1, kNewInOld},
        {0x10, v2_6_1, kNewInOld},
        {0x0E, v2_7_0, ""},
        {0x0F, v2_7_0, ""},
        {0x10, v2_7_0, ""},
        {0x0F, v2_7_1, ""},
        {0xFF, v3_8_0, ""},
    };
    ExpectAcceptance<Type_27>(27, cases);
}

TEST(Type27, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_27>(v2_6_1, CoolingDevice(0x0F).Byte(0x06, 0x63).String(0x0E, "Fan 1"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->deviceTypeAndStatus);
    EXPECT_EQ(record->description + record->deviceType + record->status, "");
    EXPECT_EQ(record->rawBytes.size(), 0x0FU);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"Fan 1"});
}

TEST(Type27, AStructureOf4BytesReadsAsZeros) {
    const auto record = Decode<Type_27>(v2_2_0, CoolingDevice(0x04));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->description + record->deviceType + record->status, "");
    EXPECT_EQ(record->deviceTypeAndStatus, 0);
    EXPECT_EQ(record->coolingUnitGroup, 0);
    EXPECT_EQ(record->temperatureProbeHandle, 0);
    EXPECT_EQ(record->oemDefined, 0U);
}

// Fields

TEST(Type27, TemperatureProbeHandleIsTheWordAt04) {
    EXPECT_EQ(Decode<Type_27>(v2_2_0, CoolingDevice(0x0C).Word(0x04, 0x1002))->temperatureProbeHandle,
              0x1002);
}

TEST(Type27, TemperatureProbeHandleFFFFIsAValue) {
    EXPECT_EQ(Decode<Type_27>(v2_2_0, CoolingDevice(0x0C).Word(0x04, 0xFFFF))->temperatureProbeHandle,
              0xFFFF);
}

TEST(Type27, DeviceTypeAndStatusShareTheByteAt06) {
    const auto record = Decode<Type_27>(v2_2_0, CoolingDevice(0x0C).Byte(0x06, 0x85));
    EXPECT_EQ(record->deviceTypeAndStatus, 0x85);
    EXPECT_EQ(record->deviceType, "Chip Fan");
    EXPECT_EQ(record->status, "Non-critical");
}

TEST(Type27, CoolingUnitGroupIsTheByteAt07) {
    EXPECT_EQ(Decode<Type_27>(v2_2_0, CoolingDevice(0x0C).Byte(0x07, 0x7B))->coolingUnitGroup, 0x7B);
}

TEST(Type27, OemDefinedIsTheDwordAt08) {
    EXPECT_EQ(Decode<Type_27>(v2_2_0, CoolingDevice(0x0C).Dword(0x08, 0x01020304))->oemDefined, 0x01020304U);
}

TEST(Type27, DescriptionIsTheStringAt0EFrom15BytesOn) {
    EXPECT_EQ(Decode<Type_27>(v2_7_0, CoolingDevice(0x0E).String(0x0E, "CPU fan"))->description, "");
    EXPECT_EQ(Decode<Type_27>(v2_7_0, CoolingDevice(0x0F).String(0x0E, "CPU fan"))->description, "CPU fan");
    EXPECT_EQ(Decode<Type_27>(v2_7_0, CoolingDevice(0x10).String(0x0E, "CPU fan"))->description, "CPU fan");
}

TEST(Type27, DescriptionIsAbsentFromA261Table) {
    const auto record = Decode<Type_27>(v2_6_1, CoolingDevice(0x0E).String(0x0E, "CPU fan"));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->description, "");
}

// Tables

TEST(Type27, EveryDeviceTypeHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "Fan"},
        {4, "Centrifugal blower"},
        {5, "Chip Fan"},
        {6, "Cabinet Fan"},
        {7, "Power Supply Fan"},
        {8, "Heat Pipe"},
        {9, "Integrated Refrigeration"},
        {16, "Active Cooling"},
        {17, "Passive Cooling"},
    };
    ExpectNarrowNames(5, rows, [](std::uint8_t code) {
        return Decode<Type_27>(v2_2_0, CoolingDevice(0x0C).Byte(0x06, code))->deviceType;
    });
}

TEST(Type27, EveryStatusHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "OK"},
        {4, "Non-critical"},
        {5, "Critical"},
        {6, "Non-recoverable"},
    };
    ExpectNarrowNames(3, rows, [](std::uint8_t code) {
        const auto shifted = static_cast<std::uint8_t>(code << 5);
        return Decode<Type_27>(v2_2_0, CoolingDevice(0x0C).Byte(0x06, shifted))->status;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
