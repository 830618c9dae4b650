#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "manager/smbios_version.h"
#include "manager/structure_factory.h"
#include "smbios-inspect/departures/compare_structure.h"
#include "smbios-inspect/standard/types.h"
#include "structures/decoded_types.h"
#include "tests/inspect/departures/departures_support.h"
#include "tests/support/random.h"

// Structures that no firmware would write: whatever departs in them has a reason.
namespace SMBIOS::Tests {
namespace {

using Inspect::Departures::Departure;
using Inspect::Departures::LibraryField;
using Inspect::Departures::Pair;
using Inspect::Departures::ReasonId;
using Inspect::Standard::ValueKind;
using Manager::SmbiosVersionIndex;
using Samples::StructureBuilder;
using Samples::TableBuilder;

class RandomContent : public Random {
public:
    using Random::Random;

    /// Small numbers, which are codes and counts, come often, and so do the markers.
    std::uint8_t Byte() {
        const auto bits = Next();
        switch (bits >> 8 & 0x07U) {
            case 0:
                return 0x00;
            case 1:
                return 0xFF;
            case 2:
                return bits % 2 == 0 ? 0x80 : 0x7F;
            case 3:
            case 4:
                return static_cast<std::uint8_t>(bits & 0x0FU);
            default:
                return static_cast<std::uint8_t>(bits);
        }
    }
};

StructureBuilder RandomStructure(std::uint8_t type, std::size_t length, RandomContent& random) {
    StructureBuilder structure(type, static_cast<std::uint8_t>(length));
    for (std::size_t offset = 4; offset < length; ++offset) {
        structure.Byte(offset, random.Byte());
    }
    for (std::size_t strings = random.Below(4); strings != 0; --strings) {
        structure.String(std::string(1 + random.Below(5), static_cast<char>(1 + random.Below(127))));
    }
    return structure;
}

/// A length that the library accepts, `wanted` where it may be.
std::size_t LengthOf(std::uint8_t type, std::size_t wanted) {
    switch (type) {
        case 0:
            return 0x1A;
        case 1:
            return 0x1B;
        case 16:
        case 18:
            return 0x17;
        case 9:
            return 0x18;
        case 21:
            return 0x07;
        case 43:
            return 0x1F;
        default:
            return wanted;
    }
}

SmbiosVersionIndex VersionOf(std::uint8_t type) {
    return type == 21 ? SmbiosVersionIndex::v2_1_0 : SmbiosVersionIndex::v3_8_0;
}

/// Tells every departure that has no reason.
class ReasonChecker final : public Inspect::Departures::DepartureVisitor {
public:
    void Visit(const Departure& departure) override {
        if (departure.reason == ReasonId::unexplained) {
            DepartureKeeper keeper;
            keeper.Visit(departure);
            ADD_FAILURE() << keeper.found.front().json.dump();
        }
        ++count;
    }

    int count = 0;
};

class RandomDepartures : public testing::TestWithParam<std::uint8_t> {};

TEST_P(RandomDepartures, AllHaveAReason) {
    RandomContent random(GetParam());
    ReasonChecker checker;
    for (const Manager::VersionRow& version : Manager::versionMap) {
        for (std::size_t length = 4; length < 128 && !HasFailure(); ++length) {
            const auto table = TableBuilder(version.major, version.minor, version.revision)
                                   .Add(RandomStructure(GetParam(), length, random))
                                   .RawTable();
            Inspect::Departures::FindDepartures(table, Manager::DecodeTable(table), checker);
        }
    }
    EXPECT_GT(checker.count, 0);
}

/// Each value of each code by itself, in structures as short and as long as they may be.
TEST_P(RandomDepartures, OfAnyCodeHaveAReason) {
    const Inspect::Standard::TypeDescription& type = *Inspect::Standard::DescriptionOf(GetParam());
    ReasonChecker checker;
    for (const auto& row : type.rows) {
        for (const unsigned major : {2U, 3U}) {
            for (const std::size_t length :
                 {std::max(type.leastLength, row.offset + row.width), std::size_t{0x7F}}) {
                for (int code = 0; code < 256 && row.form.kind == ValueKind::code && !HasFailure(); ++code) {
                    const auto table =
                        TableBuilder(static_cast<std::uint8_t>(major), major == 2 ? 0 : 8, 0)
                            .Add(StructureBuilder(GetParam(), static_cast<std::uint8_t>(length))
                                     .Byte(row.offset, static_cast<std::uint8_t>(code)))
                            .RawTable();
                    Inspect::Departures::FindDepartures(table, Manager::DecodeTable(table), checker);
                }
            }
        }
    }
}

/// Keeps the names of the fields that depart.
class NameKeeper final : public Inspect::Departures::DepartureVisitor {
public:
    void Visit(const Departure& departure) override { names.emplace(departure.field); }

    std::set<std::string> names;
};

/// Whether a field may depart by itself: a word departs in place of its code only.
bool IsNoWord(const LibraryField& field, const Pair& pair) {
    return pair.standard.row != nullptr && !(field.isText && pair.standard.row->form.kind == ValueKind::code);
}

TEST_P(RandomDepartures, TellEveryFieldOfAnotherStructure) {
    constexpr std::size_t kLength = 0x70;
    RandomContent random(GetParam());
    NameKeeper keeper;
    Inspect::Departures::ComparisonMemory memory;
    std::vector<LibraryField> fields;
    for (int i = 0; i < 500; ++i) {
        const std::size_t length = LengthOf(GetParam(), kLength);
        const StructureBuilder one = RandomStructure(GetParam(), length, random).String("one");
        const StructureBuilder other = RandomStructure(GetParam(), length, random).String("other");
        const auto table = TableBuilder(3, 8, 0).Add(other).RawTable();
        const auto structure = Inspect::Standard::TableWalk(table).Next();
        const auto [key, decoder] = Structures::StructureFactory::CreateTablePtr(
            Manager::Types::StructureTypes{GetParam()}, VersionOf(GetParam()));
        decoder->Process(one.FormattedBytes(), one.Strings());
        ASSERT_EQ(Inspect::Departures::FrameOf(key, *decoder).error, "");
        Inspect::Departures::CompareStructure(
            *structure, {key, *decoder, VersionOf(GetParam()), true}, memory, keeper);
        fields = Inspect::Departures::LibraryFieldsOf(key, *decoder);
    }
    const auto pairs = Inspect::Departures::PairsOf(GetParam(), fields).pairs;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        EXPECT_TRUE(!IsNoWord(fields[i], pairs[i]) || keeper.names.contains(fields[i].name))
            << fields[i].name;
    }
}

/// A glance says that values agree only where the rule that it spares does.
TEST_P(RandomDepartures, AreNeverOverlookedAtAGlance) {
    RandomContent random(GetParam());
    int glances = 0;
    for (int i = 0; i < 2000 && !HasFailure(); ++i) {
        const std::size_t length = LengthOf(GetParam(), 4 + random.Below(0x70));
        const auto one = RandomStructure(GetParam(), length, random);
        const auto other = random.Below(2) == 0 ? one : RandomStructure(GetParam(), length, random);
        const auto table = TableBuilder(3, 8, 0).Add(other).RawTable();
        const auto structure = Inspect::Standard::TableWalk(table).Next();
        const auto [key, decoder] = Structures::StructureFactory::CreateTablePtr(
            Manager::Types::StructureTypes{GetParam()}, VersionOf(GetParam()));
        decoder->Process(one.FormattedBytes(), one.Strings());
        const auto fields = Inspect::Departures::LibraryFieldsOf(key, *decoder);
        const auto pairs = Inspect::Departures::PairsOf(GetParam(), fields).pairs;
        for (std::size_t field = 0; field < fields.size(); ++field) {
            const Pair& pair = pairs[field];
            if (pair.glance != nullptr && pair.standard.IsWithin(*structure) &&
                pair.glance(fields[field].value, {*structure, *pair.standard.row, 0})) {
                const Inspect::Departures::Comparison comparison(*structure,
                                                                 *decoder,
                                                                 VersionOf(GetParam()),
                                                                 fields[field],
                                                                 pair.standard,
                                                                 pair.rule.lowBit,
                                                                 pair.rule.bitCount);
                EXPECT_TRUE(pair.rule.agree(comparison)) << fields[field].name;
                ++glances;
            }
        }
    }
    EXPECT_TRUE(glances > 0 || GetParam() == 11 || GetParam() == 32) << "no field is compared at a glance";
}

std::vector<std::uint8_t> DecodedTypeNumbers() {
    return []<class... Types>(Structures::TypeList<Types...>) {
        return std::vector{static_cast<std::uint8_t>(Types::kKey)...};
    }(Structures::DecodedTypes());
}

INSTANTIATE_TEST_SUITE_P(Each, RandomDepartures, testing::ValuesIn(DecodedTypeNumbers()));

TEST(RandomTables, AreComparedWhereverTheyEnd) {
    constexpr int kTables = 2000;
    RandomContent random(1);
    for (int i = 0; i < kTables; ++i) {
        std::vector<std::uint8_t> bytes(1 + random.Below(600));
        for (std::uint8_t& byte : bytes) {
            byte = random.Byte();
        }
        const auto table = TableBuilder(3, 8, 0).AddBytes(bytes).RawTable();
        ReasonChecker checker;
        Inspect::Departures::FindDepartures(table, Manager::DecodeTable(table), checker);
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
