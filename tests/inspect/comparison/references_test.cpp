#include "smbios-inspect/comparison/references.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <vector>

#include "tests/inspect/comparison/comparison_support.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::Comparing::Reference;
using Inspect::Standard::Structure;

/// A structure whose byte at each offset is the offset, but for the counts given.
struct Case {
    std::uint8_t type;
    std::uint8_t length;
    std::vector<std::pair<std::size_t, std::uint8_t>> counts;
    std::vector<std::size_t> offsets;  ///< where its handles stand
};

std::ostream& operator<<(std::ostream& output, const Case& tested) {
    return output << "type " << int{tested.type};
}

class References : public testing::TestWithParam<Case> {};

TEST_P(References, StandWhereTheStandardHasHandles) {
    std::vector<std::uint8_t> bytes(GetParam().length);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(i);
    }
    bytes[0] = GetParam().type;
    bytes[1] = GetParam().length;
    for (const auto& [offset, count] : GetParam().counts) {
        bytes[offset] = count;
    }
    Structure structure;
    structure.bytes = bytes;
    std::vector<Reference> references;
    Inspect::Comparing::AppendReferences(structure, references);
    std::vector<std::size_t> offsets;
    for (const Reference& reference : references) {
        offsets.push_back(reference.offset);
        EXPECT_EQ(reference.handle, structure.Area().Word(reference.offset));
    }
    EXPECT_EQ(offsets, GetParam().offsets);
}

const Case kCases[] = {
    {0, 0x1A, {}, {}},
    {2, 0x13, {{0x0E, 2}}, {0x0B, 0x0F, 0x11}},
    {4, 0x30, {}, {0x1A, 0x1C, 0x1E}},
    {5, 0x14, {{0x0E, 2}}, {0x0F, 0x11}},
    {14, 0x0B, {}, {0x06, 0x09}},
    {16, 0x0F, {}, {0x0B}},
    {17, 0x15, {}, {0x04, 0x06}},
    {19, 0x0F, {}, {0x0C}},
    {20, 0x13, {}, {0x0C, 0x0E}},
    {27, 0x0F, {}, {0x04}},
    {35, 0x0B, {}, {0x05, 0x07, 0x09}},
    {37, 0x0D, {{0x06, 9}}, {0x08, 0x0B}},  // more than there is room for
    {39, 0x16, {}, {0x10, 0x12, 0x14}},
    {40, 0x11, {{0x04, 2}, {0x05, 6}, {0x0B, 6}}, {0x06, 0x0C}},
    {44, 0x08, {}, {0x04}},
    {45, 0x1C, {{0x17, 2}}, {0x18, 0x1A}},
    {46, 0x09, {}, {0x07}},
    {200, 0x20, {}, {}},
};

INSTANTIATE_TEST_SUITE_P(Types, References, testing::ValuesIn(kCases), [](const auto& tested) {
    return "type" + std::to_string(tested.param.type);
});

TEST(ReferencesOfStructures, AreNoneWhereAFieldSaysThatThereIsNothing) {
    const std::vector<std::uint8_t> bytes = {27, 6, 0, 0, 0xFF, 0xFF};
    Structure structure;
    structure.bytes = bytes;
    std::vector<Reference> references;
    Inspect::Comparing::AppendReferences(structure, references);
    EXPECT_TRUE(references.empty());
}

TEST(ReferencesOfStructures, AreZerosInTheBytesWithoutHandles) {
    const std::vector<std::uint8_t> bytes = {27, 7, 1, 2, 3, 4, 5};
    Structure structure;
    structure.bytes = bytes;
    const std::vector<Reference> references = {{4, 0x0403}};
    EXPECT_EQ(Inspect::Comparing::BytesWithoutHandles(structure, references),
              (std::vector<std::uint8_t>{27, 7, 0, 0, 0, 0, 5}));
}

}  // namespace
}  // namespace SMBIOS::Tests
