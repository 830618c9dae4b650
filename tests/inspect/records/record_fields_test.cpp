#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <tuple>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include "smbios-inspect/records/record_completeness.h"
#include "smbios-inspect/records/record_fields_board.h"
#include "smbios-inspect/records/record_fields_memory.h"
#include "smbios-inspect/records/record_fields_power.h"
#include "smbios-inspect/records/record_fields_processor.h"
#include "smbios-inspect/records/record_fields_system.h"
#include "structures/decoded_types.h"

// No field of a record is forgotten, described twice or out of its order.
namespace SMBIOS::Tests {
namespace {

using namespace Structures;
using Inspect::Description;
using Inspect::Field;
using enum Manager::SmbiosVersionIndex;

/// Where the described fields of a record lie within it, in the order of their description.
template <class Record>
std::vector<std::ptrdiff_t> PlacesOf(const auto& fields) {
    const Record record{};
    std::vector<std::ptrdiff_t> places;
    Inspect::ForEachField(fields, [&](const auto& field) {
        places.push_back(reinterpret_cast<const char*>(&(record.*field.value)) -
                         reinterpret_cast<const char*>(&record));
    });
    return places;
}

/// Expects the fields to lie one behind the other, which says that none stands twice or out of order.
template <class Record>
void ExpectDeclarationOrder() {
    const std::vector<std::ptrdiff_t> places = PlacesOf<Record>(Description<Record>::kFields);
    for (std::size_t i = 1; i < places.size(); ++i) {
        EXPECT_LT(places[i - 1], places[i]) << "field " << i << " of " << typeid(Record).name();
    }
}

TEST(RecordFields, EveryRecordIsDescribedInTheOrderOfItsDeclaration) {
    ForEachType(AllDecoders(), []<class Decoder>() {
        ExpectDeclarationOrder<
            typename std::remove_cvref_t<decltype(Decoder(v2_0_0).GetRecord())>::element_type>();
    });
}

TEST(RecordFields, EveryPartOfARecordIsDescribedInTheOrderOfItsDeclaration) {
    ExpectDeclarationOrder<Type2::Types::BoardFeatureFlags>();
    ExpectDeclarationOrder<Type3::Types::ContainedElement>();
    ExpectDeclarationOrder<Type9::Types::PeerGroup>();
}

TEST(RecordFields, EveryPartOfARecordIsDescribedWhole) {
    EXPECT_TRUE(Inspect::kIsDescribedWhole<Type2::Types::BoardFeatureFlags>);
    EXPECT_TRUE(Inspect::kIsDescribedWhole<Type3::Types::ContainedElement>);
    EXPECT_TRUE(Inspect::kIsDescribedWhole<Type9::Types::PeerGroup>);
}

TEST(RecordFields, WhatAllRecordsHaveIsDescribedWhole) {
    constexpr auto all = std::tuple_cat(Inspect::kFirstFields, Inspect::kLastFields);
    EXPECT_TRUE((Inspect::InitialisableFrom<StructureRecord,
                                            std::uint16_t,
                                            std::optional<std::vector<std::string>>,
                                            std::vector<std::uint8_t>,
                                            std::string>));
    EXPECT_EQ(std::tuple_size_v<decltype(all)>, 4U);
}

// The compile-time proof itself, on records of its own.

struct SmallRecord : StructureRecord {
    std::string text;
    std::optional<std::uint8_t> number;
    std::optional<std::uint8_t> otherNumber;
};

TEST(RecordFields, ADescriptionOfEveryFieldIsWhole) {
    constexpr std::tuple fields{Field{"text", "Text", &SmallRecord::text},
                                Field{"number", "Number", &SmallRecord::number},
                                Field{"otherNumber", "Other number", &SmallRecord::otherNumber}};
    EXPECT_TRUE(Inspect::DescribesEveryField<SmallRecord>(fields));
}

TEST(RecordFields, ADescriptionThatForgetsTheLastFieldIsNotWhole) {
    constexpr std::tuple fields{Field{"text", "Text", &SmallRecord::text},
                                Field{"number", "Number", &SmallRecord::number}};
    EXPECT_FALSE(Inspect::DescribesEveryField<SmallRecord>(fields));
}

TEST(RecordFields, TwoFieldsThatAreExchangedAreOutOfOrder) {
    constexpr std::tuple fields{Field{"otherNumber", "Other number", &SmallRecord::otherNumber},
                                Field{"number", "Number", &SmallRecord::number}};
    const std::vector<std::ptrdiff_t> places = PlacesOf<SmallRecord>(fields);
    EXPECT_GT(places[0], places[1]);
}

TEST(RecordFields, ADescriptionThatForgetsTheFirstFieldIsNotWhole) {
    constexpr std::tuple fields{Field{"number", "Number", &SmallRecord::number},
                                Field{"otherNumber", "Other number", &SmallRecord::otherNumber}};
    EXPECT_FALSE(Inspect::DescribesEveryField<SmallRecord>(fields));
}

}  // namespace
}  // namespace SMBIOS::Tests
