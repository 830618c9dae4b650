#include "structures/type_22.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_22;

constexpr std::uint16_t kHandle = 0x0022;

StructureBuilder Battery(std::uint8_t length) {
    return {22, length, kHandle};
}

// What is accepted

TEST(Type22, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_22>(v2_1_0, {})->error, kInvalidPointer);
}

TEST(Type22, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_22>(v2_2_0, {22, 0x1A, 0x11})->error, kMalformed);
}

TEST(Type22, KeepsTheHandle) {
    EXPECT_EQ(Decode<Type_22>(v2_2_0, Battery(0x1A))->handle, kHandle);
}

constexpr const char* kNewInOld = "v2.2.0 structure or later in a v2.1.0 BIOS or older";

TEST(Type22, NeedsA210TableAndRefuses17BytesBefore220) {
    const AcceptanceCase cases[] = {
        {0x10, v2_0_0, kMalformed},
        {0x11, v2_0_0, kMalformed},
        {0x04, v2_1_0, ""},
        {0x10, v2_1_0, ""},
        {0x11, v2_1_0, kNewInOld},
        {0x12, v2_1_0, kNewInOld},
        {0x1A, v2_1_0, kNewInOld},
        {0x10, v2_2_0, ""},
        {0x11, v2_2_0, ""},
        {0x1A, v2_2_0, ""},
        {0x11, v2_3_0, ""},
        {0xFF, v3_8_0, ""},
    };
    ExpectAcceptance<Type_22>(22, cases);
}

TEST(Type22, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_22>(v2_1_0, Battery(0x1A).Word(0x0A, 5000).String(0x04, "Rear"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_EQ(record->location, "");
    EXPECT_FALSE(record->designCapacity);
    EXPECT_EQ(record->rawBytes.size(), 0x1AU);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"Rear"});
}

TEST(Type22, AStructureOf4BytesReadsAsZerosInA210Table) {
    const auto record = Decode<Type_22>(v2_1_0, Battery(0x04));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->location + record->manufacturer + record->deviceName + record->sbdsVersionNumber, "");
    EXPECT_EQ(record->serialNumber, "");
    EXPECT_EQ(record->manufactureDate, "");
    EXPECT_EQ(record->deviceChemistryValue, 0);
    EXPECT_EQ(record->deviceChemistry, "");
    EXPECT_FALSE(record->designVoltage);
    EXPECT_EQ(record->maximumErrorInBatteryData, 0);
    EXPECT_FALSE(record->designCapacity);
    EXPECT_FALSE(record->oemSpecific);
}

TEST(Type22, AStructureOf4BytesReadsItsLaterFieldsAsZerosInA220Table) {
    const auto record = Decode<Type_22>(v2_2_0, Battery(0x04));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->manufactureDate, "1980-00-00");
    EXPECT_EQ(record->serialNumber, "0");
    EXPECT_EQ(record->oemSpecific, 0U);
}

// Manufacture date

TEST(Type22, ManufactureDateIsTheStringAt06) {
    const StructureBuilder battery = Battery(0x1A).String(0x06, " May 2001 ").Word(0x12, 0x2C61);
    EXPECT_EQ(Decode<Type_22>(v2_2_0, battery)->manufactureDate, "May 2001");
}

TEST(Type22, ManufactureDateIsTheStringAt06InA210TableToo) {
    EXPECT_EQ(Decode<Type_22>(v2_1_0, Battery(0x10).String(0x06, "May 2001"))->manufactureDate, "May 2001");
}

TEST(Type22, ManufactureDateWithoutAStringIsThePackedDate) {
    EXPECT_EQ(Decode<Type_22>(v2_2_0, Battery(0x1A).Word(0x12, 0x2C61))->manufactureDate, "2002-03-01");
}

TEST(Type22, ManufactureDateWithoutAStringIsEmptyInA210Table) {
    EXPECT_EQ(Decode<Type_22>(v2_1_0, Battery(0x10).Word(0x12, 0x2C61))->manufactureDate, "");
}

TEST(Type22, ThePackedDateIsNotChecked) {
    EXPECT_EQ(Decode<Type_22>(v2_2_0, Battery(0x1A).Word(0x12, 0x0000))->manufactureDate, "1980-00-00");
    EXPECT_EQ(Decode<Type_22>(v2_2_0, Battery(0x1A).Word(0x12, 0xFFFF))->manufactureDate, "2107-15-31");
}

TEST(Type22, ADateStringThatIsNotThereIsEmptyWithoutThePackedDate) {
    const auto record = Decode<Type_22>(v2_2_0, Battery(0x1A).Byte(0x06, 9).Word(0x12, 0x2C61));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->manufactureDate, "");
}

// Serial number

TEST(Type22, SerialNumberIsTheStringAt07) {
    const StructureBuilder battery = Battery(0x1A).String(0x07, "SN-1").Word(0x10, 0x1234);
    EXPECT_EQ(Decode<Type_22>(v2_2_0, battery)->serialNumber, "SN-1");
}

TEST(Type22, SerialNumberWithoutAStringIsTheWordAt10InDecimal) {
    EXPECT_EQ(Decode<Type_22>(v2_2_0, Battery(0x1A).Word(0x10, 0x1234))->serialNumber, "4660");
    EXPECT_EQ(Decode<Type_22>(v2_2_0, Battery(0x1A).Word(0x10, 0xFFFF))->serialNumber, "65535");
}

TEST(Type22, SerialNumberWithoutAStringIsEmptyInA210Table) {
    EXPECT_EQ(Decode<Type_22>(v2_1_0, Battery(0x10).Word(0x10, 0x1234))->serialNumber, "");
}

TEST(Type22, ASerialNumberStringThatIsNotThereIsEmptyWithoutTheWord) {
    const auto record = Decode<Type_22>(v2_2_0, Battery(0x1A).Byte(0x07, 9).Word(0x10, 0x1234));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->serialNumber, "");
}

// Design capacity

TEST(Type22, DesignCapacityIsTheWordAt0ATimesTheByteAt15) {
    const StructureBuilder battery = Battery(0x1A).Word(0x0A, 0x1234).Byte(0x15, 10);
    EXPECT_EQ(Decode<Type_22>(v2_2_0, battery)->designCapacity, 46600U);  // 0x1234 is 4660
}

TEST(Type22, DesignCapacityGoesBeyond16Bits) {
    const StructureBuilder battery = Battery(0x1A).Word(0x0A, 0xFFFF).Byte(0x15, 0xFF);
    EXPECT_EQ(Decode<Type_22>(v2_2_0, battery)->designCapacity, 16711425U);  // 65535 * 255
}

TEST(Type22, DesignCapacityWithAMultiplierOfZeroIsZero) {
    EXPECT_EQ(Decode<Type_22>(v2_2_0, Battery(0x1A).Word(0x0A, 5000))->designCapacity, 0U);
}

TEST(Type22, DesignCapacityIsNotMultipliedInA210Table) {
    const StructureBuilder battery = Battery(0x10).Word(0x0A, 5000).Byte(0x15, 10);
    EXPECT_EQ(Decode<Type_22>(v2_1_0, battery)->designCapacity, 5000U);
}

TEST(Type22, DesignCapacityZeroIsAbsent) {
    EXPECT_FALSE(Decode<Type_22>(v2_2_0, Battery(0x1A).Byte(0x15, 10))->designCapacity);
    EXPECT_FALSE(Decode<Type_22>(v2_1_0, Battery(0x10))->designCapacity);
}

// Chemistry

TEST(Type22, ChemistryComesAsValueAndAsName) {
    const auto record = Decode<Type_22>(v2_1_0, Battery(0x10).Byte(0x09, 0x06));
    EXPECT_EQ(record->deviceChemistryValue, 0x06);
    EXPECT_EQ(record->deviceChemistry, "Lithium-ion");
}

TEST(Type22, UnknownChemistryIsNamedByTheByteAt14AndHasNoValue) {
    const auto record = Decode<Type_22>(v2_2_0, Battery(0x1A).Byte(0x09, 0x02).Byte(0x14, 0x05));
    EXPECT_FALSE(record->deviceChemistryValue);
    EXPECT_EQ(record->deviceChemistry, "Nickel metal hydride");
}

TEST(Type22, TheByteAt14IsNotAStringNumber) {
    const auto record = Decode<Type_22>(v2_2_0, Battery(0x1A).Byte(0x09, 0x02).String(0x14, "LION"));
    EXPECT_FALSE(record->deviceChemistryValue);
    EXPECT_EQ(record->deviceChemistry, "");
}

TEST(Type22, UnknownChemistryHasNoNameInA210Table) {
    const auto record = Decode<Type_22>(v2_1_0, Battery(0x10).Byte(0x09, 0x02).Byte(0x14, 0x05));
    EXPECT_FALSE(record->deviceChemistryValue);
    EXPECT_EQ(record->deviceChemistry, "");
}

TEST(Type22, KnownChemistryIgnoresTheByteAt14) {
    const auto record = Decode<Type_22>(v2_2_0, Battery(0x1A).Byte(0x09, 0x01).Byte(0x14, 0x05));
    EXPECT_EQ(record->deviceChemistryValue, 0x01);
    EXPECT_EQ(record->deviceChemistry, "");
}

// Other fields

TEST(Type22, TextsAreTheStringsAt04And05And08And0E) {
    const auto record = Decode<Type_22>(
        v2_1_0,
        Battery(0x10).String(0x04, "Rear").String(0x05, "Maker").String(0x08, "Cell 6").String(0x0E, "1.1"));
    EXPECT_EQ(record->location, "Rear");
    EXPECT_EQ(record->manufacturer, "Maker");
    EXPECT_EQ(record->deviceName, "Cell 6");
    EXPECT_EQ(record->sbdsVersionNumber, "1.1");
}

TEST(Type22, DesignVoltageIsTheWordAt0C) {
    EXPECT_EQ(Decode<Type_22>(v2_1_0, Battery(0x10).Word(0x0C, 0x2B5C))->designVoltage, 0x2B5C);
}

TEST(Type22, DesignVoltageZeroIsAbsent) {
    EXPECT_FALSE(Decode<Type_22>(v2_2_0, Battery(0x1A).Word(0x0C, 0))->designVoltage);
}

TEST(Type22, MaximumErrorIsTheByteAt0F) {
    EXPECT_EQ(Decode<Type_22>(v2_1_0, Battery(0x10).Byte(0x0F, 0xFE))->maximumErrorInBatteryData, 0xFE);
    EXPECT_EQ(Decode<Type_22>(v2_1_0, Battery(0x10).Byte(0x0F, 0))->maximumErrorInBatteryData, 0);
}

TEST(Type22, MaximumErrorFFIsAbsent) {
    EXPECT_FALSE(Decode<Type_22>(v2_1_0, Battery(0x10).Byte(0x0F, 0xFF))->maximumErrorInBatteryData);
}

TEST(Type22, OemSpecificIsTheDwordAt16From220On) {
    EXPECT_EQ(Decode<Type_22>(v2_2_0, Battery(0x1A).Dword(0x16, 0x01020304))->oemSpecific, 0x01020304U);
    EXPECT_FALSE(Decode<Type_22>(v2_1_0, Battery(0x10).Dword(0x16, 0x01020304))->oemSpecific);
}

// Tables

const std::pair<int, const char*> kChemistryRows[] = {
    {3, "Lead Acid"},
    {4, "Nickel Cadmium"},
    {5, "Nickel metal hydride"},
    {6, "Lithium-ion"},
    {7, "Zinc air"},
    {8, "Lithium Polymer"},
};

TEST(Type22, EveryChemistryHasItsName) {
    ExpectNames(kChemistryRows, [](std::uint8_t code) {
        return Decode<Type_22>(v2_1_0, Battery(0x10).Byte(0x09, code))->deviceChemistry;
    });
}

TEST(Type22, EveryChemistryAt14HasTheSameName) {
    ExpectNames(kChemistryRows, [](std::uint8_t code) {
        return Decode<Type_22>(v2_2_0, Battery(0x1A).Byte(0x09, 0x02).Byte(0x14, code))->deviceChemistry;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
