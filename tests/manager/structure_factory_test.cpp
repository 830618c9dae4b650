#include "manager/structure_factory.h"

#include <gtest/gtest.h>

#include <set>

#include "structures/decoded_types.h"
#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Manager::Types::StructureTypes;
using Structures::StructureFactory;

template <class Type>
bool Makes(int type, int expectedKey) {
    const auto [key, decoder] = StructureFactory::CreateTablePtr(StructureTypes{type});
    return static_cast<int>(key) == expectedKey && std::dynamic_pointer_cast<Type>(decoder) != nullptr;
}

TEST(StructureFactory, TypesWithoutADecoderGetUnknownTypeAndKey128) {
    EXPECT_TRUE(Makes<Structures::UnknownType>(5, 128));
    EXPECT_TRUE(Makes<Structures::UnknownType>(127, 128));
    EXPECT_TRUE(Makes<Structures::UnknownType>(200, 128));
}

TEST(StructureFactory, KeyOfIsWhatADecoderIsFiledUnder) {
    for (int type = 0; type < 256; ++type) {
        EXPECT_EQ(StructureFactory::KeyOf(StructureTypes{type}),
                  StructureFactory::CreateTablePtr(StructureTypes{type}).first)
            << type;
    }
}

TEST(StructureFactory, TwoCallsGiveTwoObjects) {
    const auto first = StructureFactory::CreateTablePtr(StructureTypes::MemoryDevice);
    const auto second = StructureFactory::CreateTablePtr(StructureTypes::MemoryDevice);
    EXPECT_NE(first.second, second.second);
}

TEST(StructureFactory, ANewDecoderHasNoHandle) {
    EXPECT_EQ(StructureFactory::CreateTablePtr(StructureTypes::MemoryDevice).second->GetHandle(), 65535);
    EXPECT_EQ(StructureFactory::CreateTablePtr(StructureTypes{200}).second->GetHandle(), 65535);
}

TEST(StructureFactory, EverySupportedTypeGetsItsOwnDecoder) {
    Structures::ForEachType(Structures::DecodedTypes(), []<class Type>() {
        const int key = static_cast<int>(Type::kKey);
        EXPECT_TRUE(Makes<Type>(key, key)) << "type " << key;
    });
}

TEST(StructureFactory, ADecoderIsMadeForTheVersionItIsGiven) {
    // A memory device of 28 bytes is refused in a table of 2.3.0 alone.
    const StructureBuilder device(17, 0x1C);
    for (const auto& [version, handle] : {std::pair(v2_3_0, 0), std::pair(v2_4_0, 0x1234)}) {
        const auto decoder = StructureFactory::CreateTablePtr(StructureTypes::MemoryDevice, version).second;
        decoder->Process(device.FormattedBytes(), {});
        EXPECT_EQ(decoder->GetHandle(), handle);
    }
}

TEST(StructureFactory, WithoutAVersionADecoderIsMadeForTheProcesssTable) {
    const StructureBuilder device(17, 0x1C);
    Manager::currentVersionIndex = v2_4_0;
    const auto decoder = StructureFactory::CreateTablePtr(StructureTypes::MemoryDevice).second;
    decoder->Process(device.FormattedBytes(), {});
    EXPECT_EQ(decoder->GetHandle(), 0x1234);
}

TEST(StructureFactory, EveryOtherTypeGetsUnknownType) {
    const std::set<int> supported = {0,  1,  2,  3,  4,  7,  8,  9,  11, 16, 17, 18, 19,
                                     20, 21, 22, 26, 27, 28, 29, 32, 33, 39, 41, 43};
    ASSERT_EQ(supported.size(), 25U);
    for (int type = 0; type <= 0xFF; ++type) {
        EXPECT_EQ(Makes<Structures::UnknownType>(type, 128), !supported.contains(type)) << "type " << type;
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
