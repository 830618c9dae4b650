#include "structures/type_9.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Manager::SmbiosVersionIndex;
using Structures::Type_9;

constexpr std::uint16_t kHandle = 0x0011;

StructureBuilder Slot(std::uint8_t length) {
    return {9, length, kHandle};
}

// What is accepted

TEST(Type9, AcceptsTheShortestStructureInEveryTable) {
    const auto record = Decode<Type_9>(v2_0_0, Slot(0x0C));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
}

TEST(Type9, AcceptsLengthsFrom12On) {
    const AcceptanceCase cases[] = {
        {0x0B, v2_0_0, kMalformed},
        {0x0C, v2_0_0, ""},
        {0x0B, v3_8_0, kMalformed},
        {0x0C, v3_8_0, ""},
        {0x0D, v3_8_0, ""},
        {0xFF, v3_8_0, ""},
    };
    ExpectAcceptance<Type_9>(9, cases);
}

TEST(Type9, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_9>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type9, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_9>(v2_8_0, {9, 0x11, 0x11})->error, kMalformed);
}

TEST(Type9, LengthsAbove12NeedA210Table) {
    const char* const refused = "v2.1.0 structure or later in a v2.0.0 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x0C, v2_0_0, ""},
        {0x0C, v2_1_0, ""},
        {0x0C, v2_2_0, ""},
        {0x0D, v2_0_0, refused},
        {0x0D, v2_1_0, ""},
        {0x0D, v2_2_0, ""},
        {0x0E, v2_0_0, refused},
        {0x0E, v2_1_0, ""},
        {0x0E, v2_2_0, ""},
    };
    ExpectAcceptance<Type_9>(9, cases);
}

TEST(Type9, Length17NeedsA260Table) {
    const char* const refused = "v2.6.0 structure or later in a v2.5.0 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x10, v2_1_0, ""},
        {0x11, v2_1_0, refused},
        {0x10, v2_5_0, ""},
        {0x11, v2_5_0, refused},
        {0x10, v2_6_0, ""},
        {0x11, v2_6_0, ""},
        {0x11, v2_6_1, ""},
    };
    ExpectAcceptance<Type_9>(9, cases);
}

TEST(Type9, LengthsAbove17NeedA320Table) {
    const char* const refused = "v3.2.0 structure or later in a v3.1.1 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x11, v3_1_1, ""},
        {0x11, v3_2_0, ""},
        {0x11, v3_3_0, ""},
        {0x12, v3_1_1, refused},
        {0x12, v3_2_0, ""},
        {0x12, v3_3_0, ""},
        {0x13, v3_1_1, refused},
        {0x13, v3_2_0, ""},
        {0x13, v3_3_0, ""},
    };
    ExpectAcceptance<Type_9>(9, cases);
}

TEST(Type9, Lengths13To16PassInEveryTableFrom210On) {
    for (std::uint8_t length = 0x0D; length <= 0x10; ++length) {
        EXPECT_EQ(Decode<Type_9>(v2_1_0, Slot(length))->error, "") << "length " << int{length};
        EXPECT_EQ(Decode<Type_9>(v3_8_0, Slot(length))->error, "") << "length " << int{length};
    }
}

TEST(Type9, A17ByteStructureFailsInA250TableWhereA16ByteOnePasses) {
    EXPECT_EQ(Decode<Type_9>(v2_5_0, Slot(0x11))->error,
              "v2.6.0 structure or later in a v2.5.0 BIOS or older");
    EXPECT_EQ(Decode<Type_9>(v2_5_0, Slot(0x10))->error, "");
}

TEST(Type9, LongerStructuresInAnOldTableGetTheMessageOf320) {
    EXPECT_EQ(Decode<Type_9>(v2_5_0, Slot(0x12))->error,
              "v3.2.0 structure or later in a v3.1.1 BIOS or older");
}

TEST(Type9, TheFirstGateThatMatchesGivesTheMessage) {
    const AcceptanceCase cases[] = {
        {0x11, v2_0_0, "v2.1.0 structure or later in a v2.0.0 BIOS or older"},
        {0x18, v2_0_0, "v2.1.0 structure or later in a v2.0.0 BIOS or older"},
    };
    ExpectAcceptance<Type_9>(9, cases);
}

TEST(Type9, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_9>(v2_5_0, Slot(0x11).Byte(0x05, 6).String(0x04, "PCI 1"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->slotType);
    EXPECT_FALSE(record->slotId);
    EXPECT_FALSE(record->slotCharacteristics1);
    EXPECT_EQ(record->slotDesignation, "");
    EXPECT_EQ(record->rawBytes.size(), 0x11U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"PCI 1"});
}

TEST(Type9, ARefusedStructureWithoutStringsHasNoStringSet) {
    EXPECT_FALSE(Decode<Type_9>(v2_5_0, Slot(0x11))->strings);
}

TEST(Type9, AnAcceptedStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record = Decode<Type_9>(v2_0_0, Slot(0x0C));
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

// Fields of every version

TEST(Type9, SlotIdIsTheWordAt09) {
    EXPECT_EQ(Decode<Type_9>(v2_0_0, Slot(0x0C).Word(0x09, 0x0102))->slotId, 0x0102);
}

TEST(Type9, CodesOfTheSlotAreTheBytesFrom05To08) {
    const auto record = Decode<Type_9>(
        v2_0_0, Slot(0x0C).Byte(0x05, 0xAA).Byte(0x06, 0x0D).Byte(0x07, 0x04).Byte(0x08, 0x03));
    EXPECT_EQ(record->slotType, 0xAA);
    EXPECT_EQ(record->slotDataBusWidth, 0x0D);
    EXPECT_EQ(record->currentUsage, 0x04);
    EXPECT_EQ(record->slotLength, 0x03);
    EXPECT_EQ(record->slotTypeName, "PCI Express x16");
    EXPECT_EQ(record->slotDataBusWidthName, "16x or x16");
    EXPECT_EQ(record->currentUsageName, "In Use");
    EXPECT_EQ(record->slotLengthName, "Short Length");
}

TEST(Type9, SlotDesignationIsTheStringAt04) {
    EXPECT_EQ(Decode<Type_9>(v2_0_0, Slot(0x0C).String(0x04, " PCIE 1 "))->slotDesignation, "PCIE 1");
}

TEST(Type9, AStringNumberBeyondTheStringSetIsAnEmptyText) {
    const auto record = Decode<Type_9>(v2_0_0, Slot(0x0C).Byte(0x04, 1));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->slotDesignation, "");
}

TEST(Type9, Characteristics1AreTheBitsOfTheByteAt0B) {
    const auto record = Decode<Type_9>(v2_0_0, Slot(0x0C).Byte(0x0B, 0x84));
    ASSERT_TRUE(record->slotCharacteristics1);
    EXPECT_EQ(record->slotCharacteristics1->GetBitCount(), 8U);
    EXPECT_TRUE(record->slotCharacteristics1->Test(2));
    EXPECT_TRUE(record->slotCharacteristics1->Test(7));
    EXPECT_FALSE(record->slotCharacteristics1->Test(3));
    EXPECT_STREQ(record->slotCharacteristics1->GetBitName(2), "doesProvide__3_3V");
    EXPECT_EQ(record->slotCharacteristics1->GetBitName(0), nullptr);
}

// Version groups

TEST(Type9, Characteristics2AreTheBitsOfTheByteAt0CFrom210On) {
    const auto record = Decode<Type_9>(v2_1_0, Slot(0x0D).Byte(0x0C, 0x82));
    ASSERT_TRUE(record->slotCharacteristics2);
    EXPECT_EQ(record->slotCharacteristics2->GetBitCount(), 8U);
    EXPECT_TRUE(record->slotCharacteristics2->Test(1));
    EXPECT_TRUE(record->slotCharacteristics2->Test(7));
    EXPECT_FALSE(record->slotCharacteristics2->Test(0));
    EXPECT_STREQ(record->slotCharacteristics2->GetBitName(1), "isHotPlugSupported");
}

TEST(Type9, Characteristics2NeedA210Table) {
    const auto record = Decode<Type_9>(v2_0_0, Slot(0x0C).Byte(0x0C, 0x82));
    EXPECT_EQ(record->error, "");
    EXPECT_FALSE(record->slotCharacteristics2);
}

TEST(Type9, AddressOfTheDeviceNeedsA260Table) {
    const StructureBuilder slot =
        Slot(0x10).Word(0x0D, 0x0102).Byte(0x0F, 0x05).Byte(0x10, 0x1A).Byte(0x11, 0x0B);
    const auto record = Decode<Type_9>(v2_6_0, slot);
    EXPECT_EQ(record->segmentGroupNumber, 0x0102);
    EXPECT_EQ(record->busNumber, 0x05);
    EXPECT_EQ(record->deviceNumber, 3);
    EXPECT_EQ(record->functionNumber, 2);
    EXPECT_EQ(record->dataBusWidth, 0x0B);
    EXPECT_EQ(record->dataBusWidthName, "8x or x8");

    const auto old = Decode<Type_9>(v2_5_0, slot);
    EXPECT_EQ(old->error, "");
    EXPECT_FALSE(old->segmentGroupNumber);
    EXPECT_FALSE(old->busNumber);
    EXPECT_FALSE(old->deviceNumber);
    EXPECT_FALSE(old->functionNumber);
    EXPECT_FALSE(old->dataBusWidth);
    EXPECT_EQ(old->dataBusWidthName, "");
}

TEST(Type9, DeviceTakesTheHighFiveBitsAndFunctionTheLowThree) {
    const auto device = Decode<Type_9>(v2_6_0, Slot(0x11).Byte(0x10, 0xF8));
    EXPECT_EQ(device->deviceNumber, 31);
    EXPECT_EQ(device->functionNumber, 0);
    const auto function = Decode<Type_9>(v2_6_0, Slot(0x11).Byte(0x10, 0x07));
    EXPECT_EQ(function->deviceNumber, 0);
    EXPECT_EQ(function->functionNumber, 7);
}

TEST(Type9, AnAddressOfAllOnesIsAValue) {
    const auto record = Decode<Type_9>(v2_6_0, Slot(0x11).Word(0x0D, 0xFFFF).Byte(0x0F, 0xFF));
    EXPECT_EQ(record->segmentGroupNumber, 0xFFFF);
    EXPECT_EQ(record->busNumber, 0xFF);
}

TEST(Type9, FieldsPastAShortStructureReadAsZero) {
    const auto record = Decode<Type_9>(v3_8_0, Slot(0x0C));
    EXPECT_EQ(record->error, "");
    ASSERT_TRUE(record->slotCharacteristics2);
    EXPECT_FALSE(record->slotCharacteristics2->Test(0));
    EXPECT_EQ(record->segmentGroupNumber, 0);
    EXPECT_EQ(record->busNumber, 0);
    EXPECT_EQ(record->deviceNumber, 0);
    EXPECT_EQ(record->functionNumber, 0);
    EXPECT_EQ(record->dataBusWidth, 0);
    EXPECT_EQ(record->dataBusWidthName, "");
    EXPECT_FALSE(record->peerGroups);
    EXPECT_FALSE(record->slotInformation);
}

// Peer groups

/// A slot with this many bytes, of which the one at 0x12 says how many peer groups there are.
StructureBuilder SlotWithPeers(std::uint8_t length, std::uint8_t peerGroupCount) {
    return Slot(length).Byte(0x12, peerGroupCount);
}

TEST(Type9, APeerGroupIsFiveBytes) {
    const auto record =
        Decode<Type_9>(v3_2_0, SlotWithPeers(0x18, 1).Bytes(0x13, {0x02, 0x01, 0x05, 0x1A, 0x0B}));
    ASSERT_TRUE(record->peerGroups);
    ASSERT_EQ(record->peerGroups->size(), 1U);
    EXPECT_EQ(record->peerGroups->front().segmentGroupNumber, 0x0102);
    EXPECT_EQ(record->peerGroups->front().busNumber, 0x05);
    EXPECT_EQ(record->peerGroups->front().deviceNumber, 3);
    EXPECT_EQ(record->peerGroups->front().functionNumber, 2);
    EXPECT_EQ(record->peerGroups->front().dataBusWidth, 0x0B);
}

TEST(Type9, PeerGroupsFollowOneAnother) {
    const auto record = Decode<Type_9>(
        v3_2_0,
        SlotWithPeers(0x1D, 2).Bytes(0x13, {0, 0, 0x11, 0xF8, 0x09}).Bytes(0x18, {3, 4, 0x22, 0x07, 0x0A}));
    ASSERT_TRUE(record->peerGroups);
    ASSERT_EQ(record->peerGroups->size(), 2U);
    EXPECT_EQ(record->peerGroups->at(0).busNumber, 0x11);
    EXPECT_EQ(record->peerGroups->at(0).deviceNumber, 31);
    EXPECT_EQ(record->peerGroups->at(0).dataBusWidth, 0x09);
    EXPECT_EQ(record->peerGroups->at(1).segmentGroupNumber, 0x0403);
    EXPECT_EQ(record->peerGroups->at(1).busNumber, 0x22);
    EXPECT_EQ(record->peerGroups->at(1).functionNumber, 7);
    EXPECT_EQ(record->peerGroups->at(1).dataBusWidth, 0x0A);
}

TEST(Type9, PeerGroupsNeedA320Table) {
    // The length byte passes the gate of older tables although the bytes go on.
    const StructureBuilder slot = Slot(0x11).Byte(0x12, 1).Bytes(0x13, {0x02, 0x01, 0x05, 0x1A, 0x0B});
    EXPECT_TRUE(Decode<Type_9>(v3_2_0, slot)->peerGroups);
    const auto old = Decode<Type_9>(v3_1_1, slot);
    EXPECT_EQ(old->error, "");
    EXPECT_FALSE(old->peerGroups);
}

TEST(Type9, APeerGroupCountOfZeroIsNoList) {
    EXPECT_FALSE(Decode<Type_9>(v3_2_0, SlotWithPeers(0x18, 0))->peerGroups);
}

TEST(Type9, PeerGroupsThatDoNotFitAreNoFailureAndNoList) {
    const auto record = Decode<Type_9>(v3_2_0, SlotWithPeers(0x17, 1));
    EXPECT_EQ(record->error, "");
    EXPECT_FALSE(record->peerGroups);
    EXPECT_TRUE(Decode<Type_9>(v3_2_0, SlotWithPeers(0x18, 1))->peerGroups);
    EXPECT_FALSE(Decode<Type_9>(v3_2_0, SlotWithPeers(0x1C, 2))->peerGroups);
    EXPECT_FALSE(Decode<Type_9>(v3_2_0, SlotWithPeers(0xFF, 0xFF))->peerGroups);
}

TEST(Type9, AsManyPeerGroupsAsTheLengthByteAllowsAreRead) {
    const auto record = Decode<Type_9>(v3_2_0, SlotWithPeers(0xFE, 47));  // 19 + 5 * 47 is 254
    ASSERT_TRUE(record->peerGroups);
    EXPECT_EQ(record->peerGroups->size(), 47U);
}

TEST(Type9, TheLargestPeerGroupCountIsReadFromAnAreaThatHoldsIt) {
    StructureBuilder slot = SlotWithPeers(0xFF, 0xFF);
    slot.Bytes(0x13 + 5 * 254, {0x02, 0x01, 0x05, 0x1A, 0x0B});
    const auto record = Decode<Type_9>(v3_2_0, slot);
    ASSERT_TRUE(record->peerGroups);
    ASSERT_EQ(record->peerGroups->size(), 255U);
    EXPECT_EQ(record->peerGroups->back().segmentGroupNumber, 0x0102);
    EXPECT_EQ(record->peerGroups->back().dataBusWidth, 0x0B);
}

TEST(Type9, TheNumberOfBytesNotTheLengthByteTellsWhatFits) {
    std::vector<std::uint8_t> formattedBytes = SlotWithPeers(0x18, 1).FormattedBytes();
    formattedBytes.pop_back();
    EXPECT_FALSE(DecodeBytes<Type_9>(v3_2_0, formattedBytes)->peerGroups);
}

// Tail

/// A slot without peer groups that ends with these bytes.
StructureBuilder SlotWithTail(const std::vector<std::uint8_t>& tail) {
    return SlotWithPeers(static_cast<std::uint8_t>(0x13 + tail.size()), 0).Bytes(0x13, tail);
}

TEST(Type9, AFullTailHasFourFields) {
    const auto record = Decode<Type_9>(v3_4_0, SlotWithTail({0x05, 0x0D, 0xF8, 0x07, 0x03}));
    EXPECT_EQ(record->slotInformation, 0x05);
    EXPECT_EQ(record->slotPhysicalWidth, 0x0D);
    EXPECT_EQ(record->slotPhysicalWidthName, "16x or x16");
    EXPECT_EQ(record->slotPitch, 20.4F);  // 0x07F8 is 2040
    EXPECT_EQ(record->slotHeight, 0x03);
    EXPECT_EQ(record->slotHeightName, "Full Height");
}

TEST(Type9, ATailOfFourBytesHasNoHeight) {
    const auto record = Decode<Type_9>(v3_4_0, SlotWithTail({0x05, 0x0D, 0xF8, 0x07}));
    EXPECT_EQ(record->slotInformation, 0x05);
    EXPECT_EQ(record->slotPhysicalWidth, 0x0D);
    EXPECT_EQ(record->slotPitch, 20.4F);
    EXPECT_FALSE(record->slotHeight);
    EXPECT_EQ(record->slotHeightName, "");
}

TEST(Type9, ATailOfThreeBytesHasAPitchOfOneByte) {
    const auto record = Decode<Type_9>(v3_4_0, SlotWithTail({0x05, 0x0D, 0xF8}));
    EXPECT_EQ(record->slotInformation, 0x05);
    EXPECT_EQ(record->slotPhysicalWidth, 0x0D);
    EXPECT_EQ(record->slotPitch, 2.48F);
    EXPECT_FALSE(record->slotHeight);
}

TEST(Type9, ATailOfTwoBytesHasNoPitch) {
    const auto record = Decode<Type_9>(v3_4_0, SlotWithTail({0x05, 0x0D}));
    EXPECT_EQ(record->slotInformation, 0x05);
    EXPECT_EQ(record->slotPhysicalWidth, 0x0D);
    EXPECT_EQ(record->slotPhysicalWidthName, "16x or x16");
    EXPECT_FALSE(record->slotPitch);
    EXPECT_FALSE(record->slotHeight);
}

TEST(Type9, ATailOfOneByteIsTheSlotInformation) {
    const auto record = Decode<Type_9>(v3_4_0, SlotWithTail({0x05}));
    EXPECT_EQ(record->slotInformation, 0x05);
    EXPECT_FALSE(record->slotPhysicalWidth);
    EXPECT_EQ(record->slotPhysicalWidthName, "");
    EXPECT_FALSE(record->slotPitch);
    EXPECT_FALSE(record->slotHeight);
}

void ExpectNoTail(SmbiosVersionIndex version, const StructureBuilder& slot) {
    const auto record = Decode<Type_9>(version, slot);
    EXPECT_EQ(record->error, "");
    EXPECT_FALSE(record->slotInformation);
    EXPECT_FALSE(record->slotPhysicalWidth);
    EXPECT_EQ(record->slotPhysicalWidthName, "");
    EXPECT_FALSE(record->slotPitch);
    EXPECT_FALSE(record->slotHeight);
    EXPECT_EQ(record->slotHeightName, "");
}

TEST(Type9, ATailOfNoBytesHasNoFields) {
    ExpectNoTail(v3_4_0, SlotWithTail({}));
    ExpectNoTail(v3_4_0, SlotWithPeers(0x18, 1));
}

TEST(Type9, ATailOfMoreThanFiveBytesHasNoFields) {
    ExpectNoTail(v3_4_0, SlotWithTail({0x05, 0x0D, 0xF8, 0x07, 0x03, 0x00}));
    ExpectNoTail(v3_4_0, SlotWithPeers(0x1E, 1));
}

TEST(Type9, ATailNeedsA340Table) {
    const StructureBuilder slot = SlotWithTail({0x05, 0x0D, 0xF8, 0x07, 0x03});
    ExpectNoTail(v3_2_0, slot);
    ExpectNoTail(v3_3_0, slot);
    EXPECT_TRUE(Decode<Type_9>(v3_4_0, slot)->slotInformation);
}

TEST(Type9, APitchOfZeroIsAValue) {
    EXPECT_EQ(Decode<Type_9>(v3_4_0, SlotWithTail({0, 0, 0, 0}))->slotPitch, 0.0F);
}

TEST(Type9, ThePitchIsOneDivisionInSinglePrecision) {
    // 15 * 0.01F would differ in the last bit.
    EXPECT_EQ(Decode<Type_9>(v3_4_0, SlotWithTail({0, 0, 15, 0}))->slotPitch, 0.15F);
    EXPECT_EQ(Decode<Type_9>(v3_4_0, SlotWithTail({0, 0, 0xFF, 0xFF}))->slotPitch, 655.35F);
}

TEST(Type9, OnePeerGroupInA25ByteStructureLeavesATailOfOneByte) {
    const auto record = Decode<Type_9>(v3_4_0, SlotWithPeers(0x19, 1).Byte(0x15, 0x07).Byte(0x18, 0x05));
    ASSERT_TRUE(record->peerGroups);
    ASSERT_EQ(record->peerGroups->size(), 1U);
    EXPECT_EQ(record->peerGroups->front().busNumber, 0x07);
    EXPECT_EQ(record->slotInformation, 0x05);
    EXPECT_FALSE(record->slotPhysicalWidth);
    EXPECT_FALSE(record->slotPitch);
    EXPECT_FALSE(record->slotHeight);
}

TEST(Type9, ATailFollowsThePeerGroups) {
    const auto record =
        Decode<Type_9>(v3_4_0, SlotWithPeers(0x22, 2).Bytes(0x1D, {0x04, 0x0B, 0x10, 0x27, 0x04}));
    EXPECT_EQ(record->slotInformation, 0x04);
    EXPECT_EQ(record->slotPhysicalWidthName, "8x or x8");
    EXPECT_EQ(record->slotPitch, 100.0F);  // 0x2710 is 10000
    EXPECT_EQ(record->slotHeightName, "Low-profile");
}

TEST(Type9, PeerGroupsThatDoNotFitLeaveNoTail) {
    ExpectNoTail(v3_4_0, SlotWithPeers(0x17, 1));
    ExpectNoTail(v3_4_0, SlotWithPeers(0x14, 0xFF));
}

TEST(Type9, FewerThan20BytesHaveNeitherGroupsNorTail) {
    const StructureBuilder slot = SlotWithPeers(0x13, 1);
    ExpectNoTail(v3_8_0, slot);
    EXPECT_FALSE(Decode<Type_9>(v3_8_0, slot)->peerGroups);
    ExpectNoTail(v3_8_0, SlotWithPeers(0x13, 0));
}

// Tables

TEST(Type9, EverySlotTypeHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "ISA"},
        {0x04, "MCA"},
        {0x05, "EISA"},
        {0x06, "PCI"},
        {0x07, "PC Card (PCMCIA)"},
        {0x08, "VL-VESA"},
        {0x09, "Proprietary"},
        {0x0A, "Processor Card Slot"},
        {0x0B, "Proprietary Memory Card Slot"},
        {0x0C, "I/O Riser Card Slot"},
        {0x0D, "NuBus"},
        {0x0F, "AGP"},
        {0x10, "AGP 2X"},
        {0x11, "AGP 4X"},
        {0x12, "PCI-X"},
        {0x13, "AGP 8X"},
        {0x14, "M.2 Socket 1-DP (Mechanical Key A)"},
        {0x15, "M.2 Socket 1-SD (Mechanical Key E)"},
        {0x16, "M.2 Socket 2 (Mechanical Key B)"},
        {0x17, "M.2 Socket 3 (Mechanical Key M)"},
        {0x18, "MXM Type I"},
        {0x19, "MXM Type II"},
        {0x1A, "MXM Type III (standard connector)"},
        {0x1B, "MXM Type III (HE connector)"},
        {0x1C, "MXM Type IV"},
        {0x1D, "MXM 3.0 Type A"},
        {0x1E, "MXM 3.0 Type B"},
        {0x1F, "PCI Express Gen 2 SFF-8639 (U.2)"},
        {0x20, "PCI Express Gen 3 SFF-8639 (U.2)"},
        {0x21, "PCI Express Mini 52-pin (CEM 2.0) with bottom-side keep-outs"},
        {0x22, "PCI Express Mini 52-pin (CEM 2.0) without bottom-side keep-outs"},
        {0x23, "PCI Express Mini 76-pin (Display-Mini card)"},
        {0x24, "PCI Express Gen 4 SFF-8639 (U.2)"},
        {0x25, "PCI Express Gen 5 SFF-8639 (U.2)"},
        {0x26, "OCP NIC 3.0 Small Form Factor (SFF)"},
        {0x27, "OCP NIC 3.0 Large Form Factor (LFF)"},
        {0x28, "OCP NIC Prior to 3.0"},
        {0x30, "CXL Flexbus 1.0 (deprecated)"},
        {0xA0, "PC-98/C20"},
        {0xA1, "PC-98/C24"},
        {0xA2, "PC-98/E"},
        {0xA3, "PC-98/Local Bus"},
        {0xA4, "PC-98/Card"},
        {0xA5, "PCI Express"},
        {0xA6, "PCI Express x1"},
        {0xA7, "PCI Express x2"},
        {0xA8, "PCI Express x4"},
        {0xA9, "PCI Express x8"},
        {0xAA, "PCI Express x16"},
        {0xAB, "PCI Express Gen 2"},
        {0xAC, "PCI Express Gen 2 x1"},
        {0xAD, "PCI Express Gen 2 x2"},
        {0xAE, "PCI Express Gen 2 x4"},
        {0xAF, "PCI Express Gen 2 x8"},
        {0xB0, "PCI Express Gen 2 x16"},
        {0xB1, "PCI Express Gen 3"},
        {0xB2, "PCI Express Gen 3 x1"},
        {0xB3, "PCI Express Gen 3 x2"},
        {0xB4, "PCI Express Gen 3 x4"},
        {0xB5, "PCI Express Gen 3 x8"},
        {0xB6, "PCI Express Gen 3 x16"},
        {0xB8, "PCI Express Gen 4"},
        {0xB9, "PCI Express Gen 4 x1"},
        {0xBA, "PCI Express Gen 4 x2"},
        {0xBB, "PCI Express Gen 4 x4"},
        {0xBC, "PCI Express Gen 4 x8"},
        {0xBD, "PCI Express Gen 4 x16"},
        {0xBE, "PCI Express Gen 5"},
        {0xBF, "PCI Express Gen 5 x1"},
        {0xC0, "PCI Express Gen 5 x2"},
        {0xC1, "PCI Express Gen 5 x4"},
        {0xC2, "PCI Express Gen 5 x8"},
        {0xC3, "PCI Express Gen 5 x16"},
        {0xC4, "PCI Express Gen 6 and Beyond"},
        {0xC5, "Enterprise and Datacenter 1U E1 Form Factor Slot (EDSFF E1.S, E1.L)"},
        {0xC6, "Enterprise and Datacenter 3\" E3 Form Factor Slot(EDSFF E3.S, E3.L)"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_9>(v2_0_0, Slot(0x0C).Byte(0x05, code));
        EXPECT_EQ(record->slotType, code);
        return record->slotTypeName;
    });
}

TEST(Type9, EveryDataBusWidthHasItsNameInAllThreePlaces) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "8 bit"},
        {0x04, "16 bit"},
        {0x05, "32 bit"},
        {0x06, "64 bit"},
        {0x07, "128 bit"},
        {0x08, "1x or x1"},
        {0x09, "2x or x2"},
        {0x0A, "4x or x4"},
        {0x0B, "8x or x8"},
        {0x0C, "12x or x12"},
        {0x0D, "16x or x16"},
        {0x0E, "32x or x32"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_9>(v2_0_0, Slot(0x0C).Byte(0x06, code));
        EXPECT_EQ(record->slotDataBusWidth, code);
        return record->slotDataBusWidthName;
    });
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_9>(v3_2_0, Slot(0x12).Byte(0x11, code));
        EXPECT_EQ(record->dataBusWidth, code);
        return record->dataBusWidthName;
    });
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_9>(v3_4_0, SlotWithTail({0, code}));
        EXPECT_EQ(record->slotPhysicalWidth, code);
        return record->slotPhysicalWidthName;
    });
}

TEST(Type9, EveryCurrentUsageHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "Available"},
        {0x04, "In Use"},
        {0x05, "Unavailable"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_9>(v2_0_0, Slot(0x0C).Byte(0x07, code));
        EXPECT_EQ(record->currentUsage, code);
        return record->currentUsageName;
    });
}

TEST(Type9, EverySlotLengthHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "Short Length"},
        {0x04, "Long Length"},
        {0x05, "2.5\" drive form factor"},
        {0x06, "3.5\" drive form factor"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_9>(v2_0_0, Slot(0x0C).Byte(0x08, code));
        EXPECT_EQ(record->slotLength, code);
        return record->slotLengthName;
    });
}

TEST(Type9, EverySlotHeightHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x00, "Not Applicable"},
        {0x03, "Full Height"},
        {0x04, "Low-profile"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_9>(v3_4_0, SlotWithTail({0, 0, 0, 0, code}));
        EXPECT_EQ(record->slotHeight, code);
        return record->slotHeightName;
    });
}

TEST(Type9, EveryBitOfCharacteristics1HasItsName) {
    ExpectBitNames(*Decode<Type_9>(v2_0_0, Slot(0x0C))->slotCharacteristics1,
                   {"dontCare",
                    "doesProvide__5_0V",
                    "doesProvide__3_3V",
                    "isSlotOpeningShared",
                    "isPCCard16Supported",
                    "isCardBusSupported",
                    "isZoomVideoSupported",
                    "isModemRingResumeSupported"});
}

TEST(Type9, EveryBitOfCharacteristics2HasItsName) {
    ExpectBitNames(*Decode<Type_9>(v2_1_0, Slot(0x0D))->slotCharacteristics2,
                   {"isPMESupported",
                    "isHotPlugSupported",
                    "isSMBusSignalSupported",
                    "isBifurcationSupported",
                    "isAsync_SurpriseRemovalSupported",
                    "isFlexbusCXL__1_0Supported",
                    "isFlexbusCXL__2_0Supported",
                    "isFlexbusCXL__3_0Supported"});
}

}  // namespace
}  // namespace SMBIOS::Tests
