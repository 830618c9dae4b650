#include "common/dynamic_bitset.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

namespace SMBIOS::Tests {
namespace {

using Common::Dynamic_BitSet;
using Common::FlagBytes;
using Common::LowestSetBitName;
using Common::WordOf;

constexpr const char* kNames[] = {"dontCare", "first", "Unknown", "third"};

std::string OutOfRangeTextOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const std::out_of_range& failure) {
        return failure.what();
    }
    return "nothing thrown";
}

TEST(DynamicBitSet, AssignCopiesTheBitsOfTheWord) {
    Dynamic_BitSet set;
    set.Assign(0x0004, 16);
    EXPECT_TRUE(set.Test(2));
    EXPECT_FALSE(set.Test(3));
}

TEST(DynamicBitSet, AssignMakesTheSetAsWideAsAsked) {
    Dynamic_BitSet set;
    set.Assign(0, 17);
    EXPECT_EQ(set.GetBitCount(), 17U);
    EXPECT_EQ(set.GetByteCount(), 3U);
}

TEST(DynamicBitSet, AssignRepeatsTheWordPast64Bits) {
    Dynamic_BitSet set;
    set.Assign(0x8000000000000001, 130);
    EXPECT_TRUE(set.Test(63));
    EXPECT_TRUE(set.Test(64));
    EXPECT_FALSE(set.Test(65));
    EXPECT_TRUE(set.Test(127));
    EXPECT_TRUE(set.Test(128));
}

TEST(DynamicBitSet, AssignOfFewBitsForgetsTheManyBefore) {
    Dynamic_BitSet set(~std::uint64_t{0}, 130, kNames);
    set.Assign(0x0201, 16);
    EXPECT_EQ(set.bytes, (FlagBytes{0x01, 0x02}));
    set.Assign(0, 72);
    EXPECT_EQ(set.bytes, (FlagBytes{0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(DynamicBitSet, CopiesAreSetsOfTheirOwn) {
    for (const std::size_t bits : {std::size_t{16}, std::size_t{130}}) {
        const Dynamic_BitSet set(0, bits, kNames);
        Dynamic_BitSet copy = set;
        copy.Set(bits - 1, true);
        EXPECT_FALSE(set.Test(bits - 1));
        EXPECT_TRUE(copy.Test(bits - 1));
    }
}

TEST(DynamicBitSet, AssignOfNoBitsMakesAnEmptySet) {
    Dynamic_BitSet set(0xFF, 8, kNames);
    set.Assign(0xFF, 0);
    EXPECT_EQ(set.GetBitCount(), 0U);
    EXPECT_EQ(set.GetByteCount(), 0U);
}

TEST(DynamicBitSet, AssignForgetsEarlierBitsAndKeepsNames) {
    Dynamic_BitSet set(0xFF, 8, kNames);
    set.Assign(0x01, 8);
    EXPECT_FALSE(set.Test(1));
    EXPECT_STREQ(set.GetBitName(1), "first");
}

TEST(DynamicBitSet, StoresBitIInByteIDividedBy8LeastSignificantFirst) {
    const Dynamic_BitSet set(0x8001, 16, kNames);
    EXPECT_EQ(set.bytes, (FlagBytes{0x01, 0x80}));
}

TEST(DynamicBitSet, SetClearsAndSetsSingleBits) {
    Dynamic_BitSet set(0xFFFF, 16, kNames);
    set.Set(9, false);
    EXPECT_EQ(set.bytes, (FlagBytes{0xFF, 0xFD}));
    set.Set(9, true);
    EXPECT_EQ(set.bytes, (FlagBytes{0xFF, 0xFF}));
}

TEST(DynamicBitSet, TestPastTheBitCountThrows) {
    const Dynamic_BitSet set(0x0004, 16, kNames);
    EXPECT_EQ(OutOfRangeTextOf([&] { (void)set.Test(16); }), "Bit index out of range for Dynamic_BitSet");
}

TEST(DynamicBitSet, SetPastTheBitCountThrows) {
    Dynamic_BitSet set(0, 3, kNames);
    EXPECT_EQ(OutOfRangeTextOf([&] { set.Set(3, true); }), "Bit index out of range for Dynamic_BitSet");
}

TEST(DynamicBitSet, TestPastTheStorageThrows) {
    Dynamic_BitSet set;
    set.bitCount = 16;
    set.bytes = {0xFF};
    EXPECT_TRUE(set.Test(7));
    EXPECT_EQ(OutOfRangeTextOf([&] { (void)set.Test(8); }), "Byte index out of range for Dynamic_BitSet");
}

TEST(DynamicBitSet, SetPastTheStorageThrows) {
    Dynamic_BitSet set;
    set.bitCount = 16;
    set.bytes = {0xFF};
    EXPECT_EQ(OutOfRangeTextOf([&] { set.Set(8, true); }), "Byte index out of range for Dynamic_BitSet");
}

TEST(DynamicBitSet, TheBitCountIsCheckedBeforeTheStorage) {
    const Dynamic_BitSet set;
    EXPECT_EQ(OutOfRangeTextOf([&] { (void)set.Test(0); }), "Bit index out of range for Dynamic_BitSet");
}

TEST(DynamicBitSet, GetBitNameGivesTheNameOfTheBit) {
    EXPECT_STREQ(Dynamic_BitSet(0, 8, kNames).GetBitName(3), "third");
}

TEST(DynamicBitSet, GetBitNameOfDontCareIsNull) {
    EXPECT_EQ(Dynamic_BitSet(0, 8, kNames).GetBitName(0), nullptr);
}

TEST(DynamicBitSet, GetBitNameOfUnknownIsNull) {
    EXPECT_EQ(Dynamic_BitSet(0, 8, kNames).GetBitName(2), nullptr);
}

TEST(DynamicBitSet, GetBitNamePastTheNamesIsNull) {
    EXPECT_EQ(Dynamic_BitSet(0, 8, kNames).GetBitName(4), nullptr);
}

TEST(DynamicBitSet, WordOfIsWhatTheSetWasMadeOf) {
    EXPECT_EQ(WordOf(Dynamic_BitSet(0x8001, 16, kNames)), 0x8001U);
    EXPECT_EQ(WordOf(Dynamic_BitSet(0xFFFF, 12, kNames)), 0x0FFFU);
    EXPECT_EQ(WordOf(Dynamic_BitSet(0, 0, kNames)), 0U);
}

TEST(DynamicBitSet, WordOfHasTheFirst64FlagsOfALongerSet) {
    EXPECT_EQ(WordOf(Dynamic_BitSet(0x8000000000000003U, 72, kNames)), 0x8000000000000003U);
}

TEST(DynamicBitSet, LowestSetBitNameIsTheNameOfTheLowestSetBit) {
    EXPECT_STREQ(LowestSetBitName(Dynamic_BitSet(0x0A, 8, kNames)), "first");
}

TEST(DynamicBitSet, LowestSetBitNameIsNullWhenThatBitIsNotReported) {
    EXPECT_EQ(LowestSetBitName(Dynamic_BitSet(0x0B, 8, kNames)), nullptr);
}

TEST(DynamicBitSet, LowestSetBitNameIsNullWithoutASetBit) {
    EXPECT_EQ(LowestSetBitName(Dynamic_BitSet(0, 8, kNames)), nullptr);
}

}  // namespace
}  // namespace SMBIOS::Tests
