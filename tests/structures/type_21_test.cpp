#include "structures/type_21.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_21;

constexpr std::uint16_t kHandle = 0x0021;

StructureBuilder PointingDevice(std::uint8_t length) {
    return {21, length, kHandle};
}

// What is accepted

TEST(Type21, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_21>(v2_1_0, {})->error, kInvalidPointer);
}

TEST(Type21, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_21>(v2_1_0, {21, 0x07, 0x11})->error, kMalformed);
}

TEST(Type21, KeepsTheHandle) {
    EXPECT_EQ(Decode<Type_21>(v2_1_0, PointingDevice(0x07))->handle, kHandle);
}

TEST(Type21, AcceptsOnly7BytesInA210Table) {
    const AcceptanceCase cases[] = {
        {0x04, v2_1_0, kMalformed},
        {0x06, v2_1_0, kMalformed},
        {0x07, v2_1_0, ""},
        {0x08, v2_1_0, kMalformed},
        {0xFF, v2_1_0, kMalformed},
        {0x07, v2_0_0, kMalformed},
        {0x07, v2_2_0, kMalformed},
        {0x07, v2_3_0, kMalformed},
        {0x07, v2_4_0, kMalformed},
        {0x07, v3_8_0, kMalformed},
    };
    ExpectAcceptance<Type_21>(21, cases);
}

TEST(Type21, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_21>(v2_4_0, PointingDevice(0x07).Byte(0x04, 0x03).String("text"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->typeValue);
    EXPECT_EQ(record->type, "");
    EXPECT_EQ(record->rawBytes.size(), 0x07U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"text"});
}

TEST(Type21, FieldsPastTheBytesThatAreThereReadAsZero) {
    const auto record = DecodeBytes<Type_21>(v2_1_0, {21, 0x07, 0x21, 0x00});
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->typeValue, 0);
    EXPECT_EQ(record->type, "");
    EXPECT_EQ(record->interfaceValue, 0);
    EXPECT_EQ(record->interface, "");
    EXPECT_EQ(record->numberOfButtons, 0);
}

// Fields

TEST(Type21, FieldsAreTheBytesAt04To06) {
    const auto record =
        Decode<Type_21>(v2_1_0, PointingDevice(0x07).Byte(0x04, 0x07).Byte(0x05, 0xA2).Byte(0x06, 0x03));
    EXPECT_EQ(record->typeValue, 0x07);
    EXPECT_EQ(record->type, "Touch Pad");
    EXPECT_EQ(record->interfaceValue, 0xA2);
    EXPECT_EQ(record->interface, "USB");
    EXPECT_EQ(record->numberOfButtons, 3);
}

// Tables

TEST(Type21, EveryTypeHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "Mouse"},
        {4, "Track Ball"},
        {5, "Track Point"},
        {6, "Glide Point"},
        {7, "Touch Pad"},
        {8, "Touch Screen"},
        {9, "Optical Sensor"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_21>(v2_1_0, PointingDevice(0x07).Byte(0x04, code));
        EXPECT_EQ(record->typeValue, code);
        return record->type;
    });
}

TEST(Type21, EveryInterfaceHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "Serial"},
        {4, "PS/2"},
        {5, "Infrared"},
        {6, "Vantor-HIL"},
        {7, "Bus mouse"},
        {8, "ADB (Apple Desktop Bus)"},
        {160, "Bus mouse DB-9"},
        {161, "Bus mouse micro-DIN"},
        {162, "USB"},
        {163, "I2C"},
        {164, "SPI"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_21>(v2_1_0, PointingDevice(0x07).Byte(0x05, code));
        EXPECT_EQ(record->interfaceValue, code);
        return record->interface;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
