#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <tuple>
#include <vector>

#include "smbios-inspect/record_completeness.h"
#include "smbios-inspect/record_fields.h"

// No field of a record is forgotten or misspelled.
namespace SMBIOS::Tests {
namespace {

using namespace Structures;
using Inspect::Description;
using Inspect::Field;

template <class Record>
constexpr std::size_t kFieldCount =
    std::tuple_size_v<std::remove_cvref_t<decltype(Description<Record>::fields)>>;

/// The names under which a record's own fields are described.
template <class Record>
std::vector<std::string> DescribedNames() {
    std::vector<std::string> names;
    Inspect::ForEachField(Description<Record>::fields,
                          [&](const auto& field) { names.emplace_back(field.name); });
    return names;
}

/// The names of the members that `header` declares in `structName`, in order.
std::vector<std::string> DeclaredNames(const std::string& header, const std::string& structName) {
    std::ifstream file(SMBIOS_SOURCE_DIR "/src/structures/" + header);
    const std::regex member(R"(^    [A-Za-z][\w:<>]* (\w+)( = [^;]+)?;.*)");
    std::vector<std::string> names;
    bool isInside = false;
    for (std::string line; std::getline(file, line) && !(isInside && line.starts_with("}"));) {
        isInside = isInside || line.starts_with("struct " + structName + " ");
        std::smatch match;
        if (isInside && std::regex_match(line, match, member)) {
            names.push_back(match[1]);
        }
    }
    return names;
}

TEST(StructuresFields, EveryRecordHasAsManyFieldsAsItsHeaderDeclares) {
    EXPECT_EQ(kFieldCount<Type0::Types::Type0Struct>, 14U);
    EXPECT_EQ(kFieldCount<Type1::Types::Type1Struct>, 9U);
    EXPECT_EQ(kFieldCount<Type2::Types::BoardFeatureFlags>, 6U);
    EXPECT_EQ(kFieldCount<Type2::Types::Type2Struct>, 11U);
    EXPECT_EQ(kFieldCount<Type3::Types::ContainedElement>, 5U);
    EXPECT_EQ(kFieldCount<Type3::Types::Type3Struct>, 20U);
    EXPECT_EQ(kFieldCount<Type4::Types::Type4Struct>, 40U);
    EXPECT_EQ(kFieldCount<Type7::Types::Type7Struct>, 18U);
    EXPECT_EQ(kFieldCount<Type8::Types::Type8Struct>, 8U);
    EXPECT_EQ(kFieldCount<Type9::Types::PeerGroup>, 5U);
    EXPECT_EQ(kFieldCount<Type9::Types::Type9Struct>, 25U);
    EXPECT_EQ(kFieldCount<Type11::Types::Type11Struct>, 0U);
    EXPECT_EQ(kFieldCount<Type16::Types::Type16Struct>, 9U);
    EXPECT_EQ(kFieldCount<Type17::Types::Type17Struct>, 42U);
    EXPECT_EQ(kFieldCount<Type18::Types::Type18Struct>, 10U);
    EXPECT_EQ(kFieldCount<Type19::Types::Type19Struct>, 4U);
    EXPECT_EQ(kFieldCount<Type20::Types::Type20Struct>, 7U);
    EXPECT_EQ(kFieldCount<Type21::Types::Type21Struct>, 5U);
    EXPECT_EQ(kFieldCount<Type22::Types::Type22Struct>, 12U);
    EXPECT_EQ(kFieldCount<Type26::Types::Type26Struct>, 10U);
    EXPECT_EQ(kFieldCount<Type27::Types::Type27Struct>, 7U);
    EXPECT_EQ(kFieldCount<Type28::Types::Type28Struct>, 10U);
    EXPECT_EQ(kFieldCount<Type29::Types::Type29Struct>, 10U);
    EXPECT_EQ(kFieldCount<Type32::Types::Type32Struct>, 3U);
    EXPECT_EQ(kFieldCount<Type33::Types::Type33Struct>, 10U);
    EXPECT_EQ(kFieldCount<Type39::Types::Type39Struct>, 16U);
    EXPECT_EQ(kFieldCount<Type41::Types::Type41Struct>, 8U);
    EXPECT_EQ(kFieldCount<Type43::Types::Type43Struct>, 10U);
    EXPECT_EQ(kFieldCount<TypeUnknown::Types::TypeUnknownStruct>, 5U);
}

TEST(StructuresFields, NamesAndOrderAreThoseOfTheDeclarations) {
    EXPECT_EQ(DescribedNames<Type0::Types::Type0Struct>(), DeclaredNames("type_0.h", "Type0Struct"));
    EXPECT_EQ(DescribedNames<Type1::Types::Type1Struct>(), DeclaredNames("type_1.h", "Type1Struct"));
    EXPECT_EQ(DescribedNames<Type2::Types::BoardFeatureFlags>(),
              DeclaredNames("type_2.h", "BoardFeatureFlags"));
    EXPECT_EQ(DescribedNames<Type2::Types::Type2Struct>(), DeclaredNames("type_2.h", "Type2Struct"));
    EXPECT_EQ(DescribedNames<Type3::Types::ContainedElement>(),
              DeclaredNames("type_3.h", "ContainedElement"));
    EXPECT_EQ(DescribedNames<Type3::Types::Type3Struct>(), DeclaredNames("type_3.h", "Type3Struct"));
    EXPECT_EQ(DescribedNames<Type4::Types::Type4Struct>(), DeclaredNames("type_4.h", "Type4Struct"));
    EXPECT_EQ(DescribedNames<Type7::Types::Type7Struct>(), DeclaredNames("type_7.h", "Type7Struct"));
    EXPECT_EQ(DescribedNames<Type8::Types::Type8Struct>(), DeclaredNames("type_8.h", "Type8Struct"));
    EXPECT_EQ(DescribedNames<Type9::Types::PeerGroup>(), DeclaredNames("type_9.h", "PeerGroup"));
    EXPECT_EQ(DescribedNames<Type9::Types::Type9Struct>(), DeclaredNames("type_9.h", "Type9Struct"));
    EXPECT_EQ(DescribedNames<Type16::Types::Type16Struct>(), DeclaredNames("type_16.h", "Type16Struct"));
    EXPECT_EQ(DescribedNames<Type17::Types::Type17Struct>(), DeclaredNames("type_17.h", "Type17Struct"));
    EXPECT_EQ(DescribedNames<Type18::Types::Type18Struct>(),
              DeclaredNames("memory_error.h", "MemoryErrorRecord"));
    EXPECT_EQ(DescribedNames<Type19::Types::Type19Struct>(), DeclaredNames("type_19.h", "Type19Struct"));
    EXPECT_EQ(DescribedNames<Type20::Types::Type20Struct>(), DeclaredNames("type_20.h", "Type20Struct"));
    EXPECT_EQ(DescribedNames<Type21::Types::Type21Struct>(), DeclaredNames("type_21.h", "Type21Struct"));
    EXPECT_EQ(DescribedNames<Type22::Types::Type22Struct>(), DeclaredNames("type_22.h", "Type22Struct"));
    EXPECT_EQ(DescribedNames<Type26::Types::Type26Struct>(), DeclaredNames("probe.h", "ProbeRecord"));
    EXPECT_EQ(DescribedNames<Type27::Types::Type27Struct>(), DeclaredNames("type_27.h", "Type27Struct"));
    EXPECT_EQ(DescribedNames<Type32::Types::Type32Struct>(), DeclaredNames("type_32.h", "Type32Struct"));
    EXPECT_EQ(DescribedNames<Type39::Types::Type39Struct>(), DeclaredNames("type_39.h", "Type39Struct"));
    EXPECT_EQ(DescribedNames<Type41::Types::Type41Struct>(), DeclaredNames("type_41.h", "Type41Struct"));
    EXPECT_EQ(DescribedNames<Type43::Types::Type43Struct>(), DeclaredNames("type_43.h", "Type43Struct"));
}

TEST(StructuresFields, WhatAllRecordsHaveIsDescribedToo) {
    EXPECT_EQ(std::tuple_size_v<decltype(Inspect::kFirstFields)> +
                  std::tuple_size_v<decltype(Inspect::kLastFields)>,
              DeclaredNames("structure_record.h", "StructureRecord").size());
}

// The compile-time proof itself, on records of its own.

struct SmallRecord : StructureRecord {
    std::string text;
    std::optional<std::uint8_t> number;
    std::optional<std::uint8_t> otherNumber;
};

TEST(StructuresFields, ADescriptionOfEveryFieldIsWhole) {
    constexpr std::tuple fields{Field{"text", "Text", &SmallRecord::text},
                                Field{"number", "Number", &SmallRecord::number},
                                Field{"otherNumber", "Other number", &SmallRecord::otherNumber}};
    EXPECT_TRUE(Inspect::DescribesEveryField<SmallRecord>(fields));
}

TEST(StructuresFields, ADescriptionThatForgetsTheLastFieldIsNotWhole) {
    constexpr std::tuple fields{Field{"text", "Text", &SmallRecord::text},
                                Field{"number", "Number", &SmallRecord::number}};
    EXPECT_FALSE(Inspect::DescribesEveryField<SmallRecord>(fields));
}

TEST(StructuresFields, ADescriptionThatForgetsTheFirstFieldIsNotWhole) {
    constexpr std::tuple fields{Field{"number", "Number", &SmallRecord::number},
                                Field{"otherNumber", "Other number", &SmallRecord::otherNumber}};
    EXPECT_FALSE(Inspect::DescribesEveryField<SmallRecord>(fields));
}

}  // namespace
}  // namespace SMBIOS::Tests
