#include "platform/entry_point.h"

#include <gtest/gtest.h>

#include <string_view>

#include "platform/entry_point_bytes.h"

namespace SMBIOS::Platform {
namespace {

using Tests::Bytes;
using Tests::ChangeByte;
using Tests::EndOfTable;
using Tests::EntryPoint32;
using Tests::EntryPoint64;

Bytes BytesOf(std::string_view text) {
    return Bytes(text.begin(), text.end());
}

TEST(EntryPointAnchor, Is32BitAnchorAtTheStart) {
    EXPECT_TRUE(StartsWithEntryPointAnchor(BytesOf("_SM_")));
}

TEST(EntryPointAnchor, Is64BitAnchorAtTheStart) {
    EXPECT_TRUE(StartsWithEntryPointAnchor(BytesOf("_SM3_")));
}

TEST(EntryPointAnchor, IsNotFoundFurtherIn) {
    EXPECT_FALSE(StartsWithEntryPointAnchor(BytesOf(" _SM_")));
}

TEST(EntryPointAnchor, IsNotFoundWhenCutShort) {
    EXPECT_FALSE(StartsWithEntryPointAnchor(BytesOf("_SM")));
    EXPECT_FALSE(StartsWithEntryPointAnchor(BytesOf("_SM3")));
    EXPECT_FALSE(StartsWithEntryPointAnchor({}));
}

TEST(EntryPoint32Bit, GivesVersionWithoutRevision) {
    const auto entryPoint = ParseEntryPoint(EntryPoint32());
    ASSERT_TRUE(entryPoint);
    EXPECT_EQ(entryPoint->majorVersion, 2);
    EXPECT_EQ(entryPoint->minorVersion, 8);
    EXPECT_EQ(entryPoint->revision, 0);
}

TEST(EntryPoint32Bit, GivesTableLengthAndAddress) {
    Bytes bytes = EntryPoint32();
    ChangeByte(bytes, 0x16, 0x34, Tests::kIntermediateChecksum);
    ChangeByte(bytes, 0x17, 0x12, Tests::kIntermediateChecksum);
    ChangeByte(bytes, 0x18, 0x00, Tests::kIntermediateChecksum);
    ChangeByte(bytes, 0x19, 0x10, Tests::kIntermediateChecksum);
    ChangeByte(bytes, 0x1A, 0x0E, Tests::kIntermediateChecksum);
    ChangeByte(bytes, 0x1B, 0xF0, Tests::kIntermediateChecksum);
    const auto entryPoint = ParseEntryPoint(bytes);
    ASSERT_TRUE(entryPoint);
    EXPECT_EQ(entryPoint->tableLength, 0x1234U);
    EXPECT_EQ(entryPoint->tableAddress, 0xF00E1000U);
    EXPECT_FALSE(entryPoint->lengthIsMaximum);
}

TEST(EntryPoint32Bit, MayBeFollowedByOtherBytes) {
    Bytes bytes = EntryPoint32();
    bytes.resize(100, 0xFF);
    const auto entryPoint = ParseEntryPoint(bytes);
    ASSERT_TRUE(entryPoint);
    EXPECT_EQ(entryPoint->size, 0x1FU);
}

TEST(EntryPoint32Bit, IsRefusedWhenAByteIsMissing) {
    Bytes bytes = EntryPoint32();
    bytes.pop_back();
    EXPECT_FALSE(ParseEntryPoint(bytes));
}

TEST(EntryPoint32Bit, IsRefusedWithAWrongChecksum) {
    Bytes bytes = EntryPoint32();
    ++bytes[0x04];
    EXPECT_FALSE(ParseEntryPoint(bytes));
}

TEST(EntryPoint32Bit, IsRefusedWithAWrongIntermediateChecksum) {
    Bytes bytes = EntryPoint32();
    ChangeByte(bytes, 0x15, 0x1A, Tests::kChecksum32);
    EXPECT_FALSE(ParseEntryPoint(bytes));
}

TEST(EntryPoint32Bit, IsRefusedWithoutItsIntermediateAnchor) {
    Bytes bytes = EntryPoint32();
    ChangeByte(bytes, 0x11, 'E', Tests::kIntermediateChecksum);
    EXPECT_FALSE(ParseEntryPoint(bytes));
}

TEST(EntryPoint32Bit, IsAcceptedWhenItStatesOneByteTooFew) {
    Bytes bytes = EntryPoint32();
    ChangeByte(bytes, 0x05, 0x1E, Tests::kChecksum32);
    const auto entryPoint = ParseEntryPoint(bytes);
    ASSERT_TRUE(entryPoint);
    EXPECT_EQ(entryPoint->size, 0x1FU);
}

TEST(EntryPoint32Bit, IsRefusedWhenItStatesTwoBytesTooFew) {
    Bytes bytes = EntryPoint32();
    ChangeByte(bytes, 0x05, 0x1D, Tests::kChecksum32);
    EXPECT_FALSE(ParseEntryPoint(bytes));
}

TEST(EntryPoint32Bit, IsRefusedWhenItStatesMoreBytesThanThereAre) {
    Bytes bytes = EntryPoint32();
    ChangeByte(bytes, 0x05, 0x20, Tests::kChecksum32);
    EXPECT_FALSE(ParseEntryPoint(bytes));
}

TEST(EntryPoint64Bit, GivesVersionAndRevision) {
    const auto entryPoint = ParseEntryPoint(EntryPoint64());
    ASSERT_TRUE(entryPoint);
    EXPECT_EQ(entryPoint->majorVersion, 3);
    EXPECT_EQ(entryPoint->minorVersion, 5);
    EXPECT_EQ(entryPoint->revision, 1);
}

TEST(EntryPoint64Bit, GivesMaximumLengthAndAddress) {
    Bytes bytes = EntryPoint64();
    ChangeByte(bytes, 0x0C, 0x78, Tests::kChecksum64);
    ChangeByte(bytes, 0x0D, 0x56, Tests::kChecksum64);
    ChangeByte(bytes, 0x0E, 0x34, Tests::kChecksum64);
    ChangeByte(bytes, 0x0F, 0x12, Tests::kChecksum64);
    ChangeByte(bytes, 0x10, 0x10, Tests::kChecksum64);
    ChangeByte(bytes, 0x17, 0xAB, Tests::kChecksum64);
    const auto entryPoint = ParseEntryPoint(bytes);
    ASSERT_TRUE(entryPoint);
    EXPECT_EQ(entryPoint->tableLength, 0x12345678U);
    EXPECT_EQ(entryPoint->tableAddress, 0xAB00000000000010U);
    EXPECT_TRUE(entryPoint->lengthIsMaximum);
}

TEST(EntryPoint64Bit, IsRefusedWhenAByteIsMissing) {
    Bytes bytes = EntryPoint64();
    bytes.pop_back();
    EXPECT_FALSE(ParseEntryPoint(bytes));
}

TEST(EntryPoint64Bit, IsRefusedWithAWrongChecksum) {
    Bytes bytes = EntryPoint64();
    ++bytes[0x05];
    EXPECT_FALSE(ParseEntryPoint(bytes));
}

TEST(EntryPoint64Bit, IsRefusedWhenItStatesTooFewBytes) {
    Bytes bytes = EntryPoint64();
    ChangeByte(bytes, 0x06, 0x17, Tests::kChecksum64);
    EXPECT_FALSE(ParseEntryPoint(bytes));
}

TEST(EntryPoint64Bit, IsRefusedWhenItStatesMoreBytesThanThereAre) {
    Bytes bytes = EntryPoint64();
    ChangeByte(bytes, 0x06, 0x19, Tests::kChecksum64);
    EXPECT_FALSE(ParseEntryPoint(bytes));
}

TEST(EntryPoint, IsRefusedWithoutAnAnchor) {
    EXPECT_FALSE(ParseEntryPoint(Bytes(64)));
    EXPECT_FALSE(ParseEntryPoint({}));
}

TEST(EntryPoint, IsRefusedWhenOnlyItsAnchorIsThere) {
    EXPECT_FALSE(ParseEntryPoint(BytesOf("_SM_")));
    EXPECT_FALSE(ParseEntryPoint(BytesOf("_SM3_")));
}

TEST(RawTable, HasTheHeaderInFrontOfTheTable) {
    const EntryPoint entryPoint{.majorVersion = 3, .minorVersion = 5, .revision = 1, .tableLength = 6};
    const Bytes expected{0, 3, 5, 1, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00};
    EXPECT_EQ(AssembleRawTable(entryPoint, EndOfTable()), expected);
}

TEST(RawTable, StatesItsLengthInLittleEndian) {
    const auto raw = AssembleRawTable({.tableLength = 0x010203}, Bytes(0x010203));
    ASSERT_TRUE(raw);
    EXPECT_EQ(Bytes(raw->begin() + 4, raw->begin() + 8), (Bytes{0x03, 0x02, 0x01, 0x00}));
}

TEST(RawTable, IsCutAtTheStatedLength) {
    const auto raw = AssembleRawTable({.tableLength = 6}, Bytes(7));
    ASSERT_TRUE(raw);
    EXPECT_EQ(raw->size(), 14U);
}

TEST(RawTable, IsRefusedWhenShorterThanTheExactLength) {
    EXPECT_FALSE(AssembleRawTable({.tableLength = 6}, Bytes(5)));
}

TEST(RawTable, MayBeShorterThanTheMaximumLength) {
    const auto raw = AssembleRawTable({.tableLength = 16, .lengthIsMaximum = true}, EndOfTable());
    ASSERT_TRUE(raw);
    EXPECT_EQ((*raw)[4], 6);
    EXPECT_EQ(raw->size(), 14U);
}

TEST(RawTable, IsCutAtTheMaximumLength) {
    const auto raw = AssembleRawTable({.tableLength = 16, .lengthIsMaximum = true}, Bytes(20));
    ASSERT_TRUE(raw);
    EXPECT_EQ(raw->size(), 24U);
}

TEST(RawTable, IsRefusedWhenEmpty) {
    EXPECT_FALSE(AssembleRawTable({.tableLength = 0}, EndOfTable()));
    EXPECT_FALSE(AssembleRawTable({.tableLength = 16, .lengthIsMaximum = true}, {}));
}

}  // namespace
}  // namespace SMBIOS::Platform
