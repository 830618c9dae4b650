#include "manager/structure_factory.h"

#include <gtest/gtest.h>

#include <set>

#include "structures/all_decoders.h"

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
    EXPECT_TRUE(Makes<Structures::Type_0>(0, 0));
    EXPECT_TRUE(Makes<Structures::Type_1>(1, 1));
    EXPECT_TRUE(Makes<Structures::Type_2>(2, 2));
    EXPECT_TRUE(Makes<Structures::Type_3>(3, 3));
    EXPECT_TRUE(Makes<Structures::Type_4>(4, 4));
    EXPECT_TRUE(Makes<Structures::Type_7>(7, 7));
    EXPECT_TRUE(Makes<Structures::Type_8>(8, 8));
    EXPECT_TRUE(Makes<Structures::Type_9>(9, 9));
    EXPECT_TRUE(Makes<Structures::Type_11>(11, 11));
    EXPECT_TRUE(Makes<Structures::Type_16>(16, 16));
    EXPECT_TRUE(Makes<Structures::Type_17>(17, 17));
    EXPECT_TRUE(Makes<Structures::Type_18>(18, 18));
    EXPECT_TRUE(Makes<Structures::Type_19>(19, 19));
    EXPECT_TRUE(Makes<Structures::Type_20>(20, 20));
    EXPECT_TRUE(Makes<Structures::Type_21>(21, 21));
    EXPECT_TRUE(Makes<Structures::Type_22>(22, 22));
    EXPECT_TRUE(Makes<Structures::Type_26>(26, 26));
    EXPECT_TRUE(Makes<Structures::Type_27>(27, 27));
    EXPECT_TRUE(Makes<Structures::Type_28>(28, 28));
    EXPECT_TRUE(Makes<Structures::Type_29>(29, 29));
    EXPECT_TRUE(Makes<Structures::Type_32>(32, 32));
    EXPECT_TRUE(Makes<Structures::Type_33>(33, 33));
    EXPECT_TRUE(Makes<Structures::Type_39>(39, 39));
    EXPECT_TRUE(Makes<Structures::Type_41>(41, 41));
    EXPECT_TRUE(Makes<Structures::Type_43>(43, 43));
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
