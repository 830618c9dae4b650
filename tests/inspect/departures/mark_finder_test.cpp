#include "smbios-inspect/departures/mark_finder.h"

#include <gtest/gtest.h>

#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "smbios-inspect/departures/find_departures.h"
#include "tests/inspect/departures/departures_support.h"
#include "tests/support/random.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::Departures::Departure;
using Inspect::Departures::MarkFinder;
using Manager::Types::StructureTypes;
using Samples::StructureBuilder;
using Samples::TableBuilder;

/// The labels for each decoder, one behind the other.
using LabelsOfDecoders = std::map<const Structures::BaseStructure*, std::string>;

LabelsOfDecoders FoundOneByOne(const std::vector<std::uint8_t>& rawTable,
                               const Manager::DecodedTable& table) {
    LabelsOfDecoders labels;
    MarkFinder finder(rawTable);
    for (const auto& [key, run] : table.structures) {
        for (const Manager::FiledStructure& structure : run) {
            for (const std::string_view label : finder.MarksOf(structure)) {
                labels[structure.second.get()].append(label).append(";");
            }
        }
    }
    return labels;
}

class LabelKeeper final : public Inspect::Departures::DepartureVisitor {
public:
    void Visit(const Departure& departure) override {
        if (departure.decoder != nullptr) {
            labels[departure.decoder].append(departure.label == nullptr ? "" : departure.label).append(";");
        }
    }

    LabelsOfDecoders labels;
};

LabelsOfDecoders FoundInTheWholeTable(const std::vector<std::uint8_t>& rawTable,
                                      const Manager::DecodedTable& table) {
    LabelKeeper keeper;
    Inspect::Departures::FindDepartures(rawTable, table, keeper);
    return keeper.labels;
}

TEST(MarkFinder, GivesEachStructureItsOwnMarks) {
    const auto table = TableBuilder(3, 8, 0)
                           .Add(StructureBuilder(16, 0x17).Dword(0x07, 0x01000000))
                           .Add(StructureBuilder(16, 0x17).Dword(0x07, 0x80000000).Qword(0x0F, 0))
                           .RawTable();
    const Manager::DecodedTable decoded = Manager::DecodeTable(table);
    MarkFinder finder(table);
    const auto& arrays = decoded.structures.at(StructureTypes::PhysicalMemoryArray);
    EXPECT_EQ(finder.MarksOf(arrays.at(0)).size(), 0U);
    ASSERT_EQ(finder.MarksOf(arrays.at(1)).size(), 1U);
}

TEST(MarkFinder, FindsWhatTheComparisonOfTheWholeTableDoes) {
    Random random(1);
    for (int i = 0; i < 2000; ++i) {
        std::vector<std::uint8_t> bytes(1 + random.Below(600));
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(random.Below(4) == 0 ? random.Next() : random.Below(24));
        }
        const auto table = TableBuilder(3, 8, 0).AddBytes(bytes).RawTable();
        const Manager::DecodedTable decoded = Manager::DecodeTable(table);
        ASSERT_EQ(FoundOneByOne(table, decoded), FoundInTheWholeTable(table, decoded)) << "table " << i;
    }
}

TEST(MarkFinder, MarksTheBytesOfAStructureThatTheStandardDoesNotHave) {
    const auto table = TableBuilder(3, 8, 0).Add(StructureBuilder(16, 0x17)).RawTable();
    const Manager::DecodedTable decoded = Manager::DecodeTable(table);
    MarkFinder finder(table);
    const Manager::FiledStructure& array = decoded.structures.at(StructureTypes::PhysicalMemoryArray).at(0);
    (void)finder.MarksOf(array);
    const auto marks = finder.MarksOf(array);
    ASSERT_EQ(marks.size(), 1U);
    EXPECT_EQ(marks.front(), "Raw bytes");
}

}  // namespace
}  // namespace SMBIOS::Tests
