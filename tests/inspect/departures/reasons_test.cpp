#include "smbios-inspect/departures/reasons.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/inspect/departures/departures_support.h"
#include "tests/inspect/departures/reason_case.h"

namespace SMBIOS::Tests {
namespace {

std::vector<ReasonCase> AllCases() {
    std::vector<ReasonCase> cases;
    for (const auto& section : {EverywhereReasonCases(),
                                MemoryReasonCases(),
                                ProcessorReasonCases(),
                                SystemReasonCases(),
                                DeviceReasonCases()}) {
        cases.insert(cases.end(), section.begin(), section.end());
    }
    return cases;
}

std::vector<std::uint8_t> TableOf(const ReasonCase& tested) {
    const FieldCase structure = {
        tested.name, tested.type, tested.length, tested.patches, nullptr, nullptr, nullptr};
    return TableBuilder(tested.version.major, tested.version.minor, 0)
        .Add(StructureOf(structure))
        .AddBytes(tested.behind)
        .RawTable();
}

class ReasonOfDeparture : public testing::TestWithParam<ReasonCase> {};

TEST_P(ReasonOfDeparture, IsShownByATable) {
    const std::vector<FoundDeparture> found = DeparturesOf(TableOf(GetParam()));
    ASSERT_EQ(FieldsOf(found), GetParam().fields);
    const auto departure = std::ranges::find(found, std::string(GetParam().field), &FoundDeparture::Field);
    EXPECT_EQ(departure->reason, GetParam().reason) << departure->json.at("reason");
    EXPECT_EQ(departure->json.at("firmware"), Json::parse(GetParam().firmware));
    EXPECT_EQ(departure->json.at("library"), Json::parse(GetParam().library));
}

INSTANTIATE_TEST_SUITE_P(Each, ReasonOfDeparture, testing::ValuesIn(AllCases()), [](const auto& tested) {
    return std::string(tested.param.name);
});

TEST(ReasonsOfDepartures, HaveOneTableEachInTheirOrder) {
    const std::vector<ReasonCase> cases = AllCases();
    ASSERT_EQ(cases.size(), std::size(Inspect::Departures::kReasons));
    for (std::size_t i = 0; i < cases.size(); ++i) {
        EXPECT_EQ(cases[i].reason, ReasonId{static_cast<std::uint8_t>(i)}) << cases[i].name;
    }
}

TEST(ReasonsOfDepartures, AreToldInOneLineWithoutTheMarksOfTheDocument) {
    EXPECT_EQ(
        Inspect::Departures::ReasonText(ReasonId::deviceRank),
        "rank - the standard: bits 0 to 3; this library: bits 0 to 2: a rank of 8 or more shows its low "
        "three bits");
}

}  // namespace
}  // namespace SMBIOS::Tests
