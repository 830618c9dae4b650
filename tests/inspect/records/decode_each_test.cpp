#include "smbios-inspect/records/decode_each.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "manager/decoded_table.h"
#include "platform/saved_table.h"
#include "samples/table_builder.h"
#include "tests/support/json.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::DecodeEach;
using Inspect::ErrorOf;
using Inspect::FiledStructure;
using Inspect::JsonWriter;
using Inspect::TypeOf;
using Manager::Types::StructureTypes;
using Samples::StructureBuilder;
using Samples::TableBuilder;

bool All(StructureTypes) {
    return true;
}

/// The type and the handle of each structure that is visited.
std::vector<std::pair<int, int>> Visited(const std::vector<std::uint8_t>& rawTable,
                                         bool (*isWanted)(StructureTypes)) {
    std::vector<std::pair<int, int>> visited;
    DecodeEach(rawTable, isWanted, [&](const FiledStructure& structure) {
        visited.emplace_back(TypeOf(structure), structure.second->GetHandle());
    });
    return visited;
}

std::vector<std::uint8_t> MixedTable() {
    return TableBuilder(3, 8, 0)
        .Add(StructureBuilder(200, 8, 1))
        .Add(StructureBuilder(32, 11, 2))
        .Add(StructureBuilder(5, 8, 3))
        .Add(StructureBuilder(11, 5, 4))
        .Add(StructureBuilder(32, 11, 5))
        .RawTable();
}

using Pairs = std::vector<std::pair<int, int>>;

TEST(DecodeEach, GoesByKeysAndBelowAKeyInTableOrder) {
    EXPECT_EQ(Visited(MixedTable(), All), (Pairs{{11, 4}, {32, 2}, {32, 5}, {200, 1}, {5, 3}}));
}

TEST(DecodeEach, PassesOverWhatIsNotWanted) {
    EXPECT_EQ(Visited(MixedTable(), [](StructureTypes key) { return key == StructureTypes{32}; }),
              (Pairs{{32, 2}, {32, 5}}));
    EXPECT_EQ(Visited(MixedTable(), [](StructureTypes key) { return key == StructureTypes::Unknown; }),
              (Pairs{{200, 1}, {5, 3}}));
}

TEST(DecodeEach, TakesAnUnlistedVersionFor200) {
    const auto table = TableBuilder(3, 9, 0).Add(StructureBuilder(17, 0x54, 1)).RawTable();
    std::string error;
    DecodeEach(table, All, [&](const FiledStructure& structure) { error = ErrorOf(structure); });
    EXPECT_EQ(error, ErrorOf(Manager::DecodeTable(table).structures.at(StructureTypes::MemoryDevice).at(0)));
    EXPECT_FALSE(error.empty());
}

TEST(DecodeEach, GivesWhatALoadFiles) {
    const auto table = Platform::LoadSavedTable(SMBIOS_SAMPLE_TABLE);
    const Manager::DecodedTable loaded = Manager::DecodeTable(table);
    const std::string expected = JsonText([&](JsonWriter& json) {
        json.BeginArray();
        for (const auto& [key, run] : loaded.structures) {
            for (const FiledStructure& structure : run) {
                WriteStructure(structure, json);
            }
        }
        json.EndArray();
    });
    EXPECT_EQ(JsonText([&](JsonWriter& json) {
                  json.BeginArray();
                  DecodeEach(table, All, [&](const FiledStructure& each) { WriteStructure(each, json); });
                  json.EndArray();
              }),
              expected);
}

}  // namespace
}  // namespace SMBIOS::Tests
