#include "smbios-inspect/departures/pairing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "manager/structure_factory.h"
#include "smbios-inspect/standard/types.h"
#include "structures/decoded_types.h"

namespace SMBIOS::Tests {
namespace {

using namespace Inspect::Departures;
using Manager::SmbiosVersionIndex;
using Manager::Types::StructureTypes;

/// What every record has; how these are compared is no matter of the type.
constexpr std::array<std::string_view, 4> kFrame = {"handle", "rawBytes", "strings", "error"};

std::vector<std::uint8_t> DecodedTypeNumbers() {
    return []<class... Types>(Structures::TypeList<Types...>) {
        return std::vector{static_cast<std::uint8_t>(Types::kKey)...};
    }(Structures::DecodedTypes());
}

std::vector<LibraryField> FieldsOfType(std::uint8_t type) {
    const auto [key, decoder] =
        Structures::StructureFactory::CreateTablePtr(StructureTypes{type}, SmbiosVersionIndex::v3_8_0);
    decoder->Process({type, 4, 0, 0}, {});
    return LibraryFieldsOf(key, *decoder);
}

bool HasField(std::uint8_t type, std::string_view name) {
    return std::ranges::any_of(FieldsOfType(type),
                               [&](const LibraryField& field) { return field.name == name; });
}

class PairsOfType : public testing::TestWithParam<std::uint8_t> {};

TEST_P(PairsOfType, LeaveNoFieldOfTheRecordOut) {
    const std::vector<LibraryField> fields = FieldsOfType(GetParam());
    const std::vector<Pair> pairs = PairsOf(GetParam(), fields).pairs;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const bool isInFrame = std::ranges::find(kFrame, std::string_view(fields[i].name)) != kFrame.end();
        EXPECT_TRUE(isInFrame || pairs[i].IsKnown()) << fields[i].name;
    }
}

TEST_P(PairsOfType, JoinFieldsThatThereAre) {
    const TypeJoins* joins = JoinsOf(GetParam());
    ASSERT_NE(joins, nullptr);
    for (const Join& join : joins->joins) {
        EXPECT_TRUE(HasField(GetParam(), join.field)) << join.field;
        EXPECT_NE(FindStandardField(GetParam(), join.standard).row, nullptr) << join.standard;
    }
}

TEST_P(PairsOfType, NameAsUnpairedOnlyFieldsThatThereAreAndThatTheStandardDoesNotHave) {
    for (const Unpaired& unpaired : JoinsOf(GetParam())->unpaired) {
        EXPECT_TRUE(HasField(GetParam(), unpaired.field)) << unpaired.field;
        EXPECT_FALSE(unpaired.why.empty()) << unpaired.field;
    }
}

INSTANTIATE_TEST_SUITE_P(Each, PairsOfType, testing::ValuesIn(DecodedTypeNumbers()));

}  // namespace
}  // namespace SMBIOS::Tests
