#include "structures/record_block.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <string>
#include <vector>

#include "manager/decoded_records.h"
#include "manager/decoded_table.h"
#include "structures/type_17.h"
#include "tests/support/counted_allocations.h"
#include "tests/support/decode.h"

// That a block goes with the last thing in it, and not before, the sanitizers see.
namespace SMBIOS::Tests {
namespace {

using Structures::RecordBlock;

using Piece = std::array<std::byte, 200>;  // they leave room for something small

template <class Thing, class... Arguments>
std::shared_ptr<Thing> MadeIn(RecordBlock& block, const Arguments&... arguments) {
    return std::allocate_shared<Thing>(std::pmr::polymorphic_allocator<Thing>(&block), arguments...);
}

/// Makes pieces until the block has had no room for one.
std::vector<std::shared_ptr<Piece>> Fill(RecordBlock& block) {
    std::vector<std::shared_ptr<Piece>> pieces;
    while (!block.IsFull()) {
        pieces.push_back(MadeIn<Piece>(block));
    }
    return pieces;
}

TEST(RecordBlock, HoldsThingsWithoutMemoryOfTheirOwn) {
    const RecordBlock::Owner block = RecordBlock::Make();
    const CountedAllocations counted;
    const auto one = MadeIn<int>(*block, 1);
    const auto two = MadeIn<std::string>(*block, "two");
    EXPECT_EQ(counted.Count(), 0U);
    EXPECT_EQ(*one, 1);
    EXPECT_EQ(*two, "two");
    EXPECT_FALSE(block->IsFull());
}

TEST(RecordBlock, AlignsWhatItHolds) {
    const RecordBlock::Owner block = RecordBlock::Make();
    void* const byte = block->allocate(1);
    void* const behind = block->allocate(1);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(byte) % alignof(std::max_align_t), 0U);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(behind) % alignof(std::max_align_t), 0U);
    block->deallocate(byte, 1);
    block->deallocate(behind, 1);
}

TEST(RecordBlock, KeepsThingsApart) {
    const RecordBlock::Owner block = RecordBlock::Make();
    const auto pieces = Fill(*block);
    ASSERT_GT(pieces.size(), 10U);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        pieces[i]->fill(std::byte(i));
    }
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        EXPECT_EQ(pieces[i]->front(), std::byte(i));
        EXPECT_EQ(pieces[i]->back(), std::byte(i));
    }
}

TEST(RecordBlock, WhatAFullOneHasNoRoomForHasMemoryOfItsOwn) {
    const RecordBlock::Owner block = RecordBlock::Make();
    const auto pieces = Fill(*block);
    const CountedAllocations counted;
    const auto small = MadeIn<int>(*block, 7);
    EXPECT_EQ(counted.Count(), 1U);
    EXPECT_EQ(*small, 7);
}

TEST(RecordBlock, AThingLargerThanItHasMemoryOfItsOwn) {
    const RecordBlock::Owner block = RecordBlock::Make();
    const auto large = MadeIn<std::array<char, 100'000>>(*block);
    large->fill('x');
    EXPECT_EQ(large->back(), 'x');
}

struct alignas(64) Wide {
    char bytes[64] = {};
};

TEST(RecordBlock, AThingOfAWiderAlignmentHasMemoryOfItsOwn) {
    const RecordBlock::Owner block = RecordBlock::Make();
    const auto wide = MadeIn<Wide>(*block);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(wide.get()) % alignof(Wide), 0U);
}

TEST(RecordBlock, ThingsStayWhenItsOwnerIsGone) {
    RecordBlock::Owner block = RecordBlock::Make();
    const auto inside = MadeIn<std::string>(*block, "inside");
    const auto pieces = Fill(*block);
    const auto outside = MadeIn<std::string>(*block, "outside");
    block.reset();
    EXPECT_EQ(*inside, "inside");
    EXPECT_EQ(*outside, "outside");
}

TEST(RecordBlock, EachOfManyRecordsStaysWhenTheTableIsGone) {
    constexpr int kDevices = 200;
    TableBuilder builder(2, 8, 0);
    for (int i = 0; i < kDevices; ++i) {
        builder.Add(
            StructureBuilder(17, 0x28, static_cast<std::uint16_t>(i)).String(0x18, "S" + std::to_string(i)));
    }
    const auto records =
        Manager::DecodedRecords<Structures::Type_17>(Manager::DecodeTable(builder.RawTable()));
    ASSERT_EQ(records.size(), std::size_t{kDevices});
    for (int i = 0; i < kDevices; ++i) {
        EXPECT_EQ(records[static_cast<std::size_t>(i)]->handle, i);
        EXPECT_EQ(records[static_cast<std::size_t>(i)]->serialNumber, "S" + std::to_string(i));
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
