#include "smbios-inspect/departures/find_departures.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/saved_table.h"
#include "tests/inspect/captured_tables.h"
#include "tests/inspect/departures/departures_support.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::Departures::ReasonId;
using Samples::StructureBuilder;
using Samples::TableBuilder;

// Values that agree

TEST(Departures, AreNoneWhereAllValuesAgree) {
    const auto table = TableBuilder(3, 8, 0)
                           .Add(StructureBuilder(41, 0x0B)
                                    .String(0x04, "  LAN ")
                                    .Byte(0x05, 0x85)
                                    .Byte(0x06, 1)
                                    .Word(0x07, 0x0001)
                                    .Byte(0x09, 0x03)
                                    .Byte(0x0A, 0xFE))
                           .RawTable();
    EXPECT_EQ(FieldsOf(DeparturesOf(table)), "");
}

TEST(Departures, AreNoneWhereACodeIsSpelledInAnotherWay) {
    const auto table =
        TableBuilder(3, 8, 0).Add(StructureBuilder(16, 0x17).Byte(0x04, 0xA4).Byte(0x05, 3)).RawTable();
    EXPECT_EQ(FieldsOf(DeparturesOf(table)), "");
}

TEST(Departures, AreNoneWhereAMarkerIsHandedOnAsItStands) {
    const auto table =
        TableBuilder(3, 8, 0).Add(StructureBuilder(27, 0x0F).Word(0x04, 0xFFFF).Byte(0x06, 0x63)).RawTable();
    EXPECT_EQ(FieldsOf(DeparturesOf(table)), "");
}

TEST(Departures, AreNoneWhereASizeIsInAnotherUnit) {
    const auto table =
        TableBuilder(3, 8, 0).Add(StructureBuilder(16, 0x17).Dword(0x07, 0x01000000)).RawTable();
    EXPECT_EQ(FieldsOf(DeparturesOf(table)), "");
}

TEST(Departures, AreNoneInAUuidOfAnotherCase) {
    const auto table =
        TableBuilder(3, 8, 0).Add(StructureBuilder(1, 0x1B).Qword(0x08, 0xABCDEF).Byte(0x18, 6)).RawTable();
    EXPECT_EQ(FieldsOf(DeparturesOf(table)), "");
}

TEST(Departures, AreNoneInAStructureThatBothFindTooShort) {
    const auto table = TableBuilder(3, 8, 0).Add(StructureBuilder(4, 0x10)).RawTable();
    EXPECT_EQ(FieldsOf(DeparturesOf(table)), "");
}

TEST(Departures, AreNoneInATypeThatTheLibraryDoesNotDecode) {
    const auto table = TableBuilder(3, 8, 0)
                           .Add(StructureBuilder(12, 5).Byte(0x04, 1).String("option"))
                           .Add(StructureBuilder(200, 8).String("of an OEM"))
                           .Add({127, 4})
                           .RawTable();
    EXPECT_EQ(FieldsOf(DeparturesOf(table)), "");
}

// Which structure

TEST(Departures, StandInTableOrder) {
    const auto table = TableBuilder(3, 8, 0)
                           .Add(StructureBuilder(33, 0x1F, 0x0021))
                           .Add(StructureBuilder(21, 7, 0x0015))
                           .Add(StructureBuilder(33, 0x1F, 0x0022))
                           .RawTable();
    const std::vector<FoundDeparture> found = DeparturesOf(table);
    ASSERT_EQ(FieldsOf(found), "vendorSyndrome error vendorSyndrome");
    EXPECT_EQ(found[0].json.at("handle"), 0x0021);
    EXPECT_EQ(found[1].json.at("handle"), 0x0015);
    EXPECT_EQ(found[2].json.at("handle"), 0x0022);
    EXPECT_EQ(found[2].json.at("type"), 33);
    EXPECT_EQ(found[2].json.at("name"), "64-bit Memory Error Information");
}

TEST(Departures, OfACodeAndItsWordAreToldOnce) {
    const auto table = TableBuilder(2, 0, 0).Add(StructureBuilder(1, 0x18).Byte(0x08, 1)).RawTable();
    EXPECT_EQ(FieldsOf(DeparturesOf(table)), "uuid");
}

TEST(Departures, TellOfAWordThatIsInPlaceOfAReference) {
    const auto table = TableBuilder(2, 0, 0).Add(StructureBuilder(4, 0x1A).Byte(0x06, 0xFE)).RawTable();
    const std::vector<FoundDeparture> found = DeparturesOf(table);
    ASSERT_EQ(FieldsOf(found), "processorFamilyName");
    EXPECT_EQ(found[0].reason, ReasonId::processorFamily);
    EXPECT_EQ(found[0].json.at("library"),
              "Indicator to obtain the processor family from the Processor Family 2 field");
}

// Where a table is cut

TEST(Departures, TellOfAStructureThatTheLibraryDoesNotFind) {
    const auto table = TableBuilder(3, 8, 0).AddBytes({41, 0x0B, 0x11, 0x00, 0x00}).RawTable();
    const std::vector<FoundDeparture> found = DeparturesOf(table);
    ASSERT_EQ(FieldsOf(found), "structure");
    EXPECT_EQ(found[0].json.at("library"), nullptr);
    EXPECT_EQ(found[0].reason, ReasonId::cutting);
}

TEST(Departures, TellOfStringsThatAreCutInAnotherWay) {
    auto bytes = StructureBuilder(126, 4).FormattedBytes();
    bytes.insert(bytes.end(), {'a', 0});
    const std::vector<FoundDeparture> found = DeparturesOf(TableBuilder(3, 8, 0).AddBytes(bytes).RawTable());
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(found[0].Field(), "strings");
    EXPECT_EQ(found[0].reason, ReasonId::cutting);
}

/// A zero that is followed by none ends the strings for the standard only.
TEST(Departures, TellOfBothStructuresWhereTheLibraryFindsAnotherOne) {
    const auto table = TableBuilder(3, 8, 0)
                           .AddBytes({200, 4, 2, 1, 0})
                           .AddBytes({201, 4, 1, 1, 0, 0})
                           .AddBytes({202, 4, 3, 1, 0, 0})
                           .RawTable();
    EXPECT_EQ(FieldsOf(DeparturesOf(table)), "strings structure rawBytes structure");
}

// Real machines

class DeparturesOfCapturedTable : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (!HasCapturedTables()) {
            GTEST_SKIP() << "no captured tables at " SMBIOS_DUMPS_DIR;
        }
    }
};

TEST_P(DeparturesOfCapturedTable, AllHaveAReason) {
    const auto found = DeparturesOf(Platform::LoadSavedTable(CapturedTable(GetParam())));
    EXPECT_FALSE(found.empty());
    for (const FoundDeparture& departure : found) {
        EXPECT_NE(departure.reason, ReasonId::unexplained) << departure.json.dump(2);
    }
}

INSTANTIATE_TEST_SUITE_P(Each,
                         DeparturesOfCapturedTable,
                         testing::ValuesIn(kCapturedTables),
                         [](const auto& table) { return AsTestName(table.param); });

}  // namespace
}  // namespace SMBIOS::Tests
