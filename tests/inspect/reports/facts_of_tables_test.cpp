#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "platform/saved_table.h"
#include "smbios-inspect/reports/firmware_report.h"
#include "smbios-inspect/reports/get_report.h"
#include "smbios-inspect/reports/summary_report.h"
#include "smbios-inspect/reports/value_keys.h"
#include "tests/inspect/captured_tables.h"
#include "tests/inspect/run_tool.h"
#include "tests/inspect/standard/standard_support.h"
#include "tests/support/fake_platform.h"
#include "tests/support/json.h"

// What `summary` and `get` say holds for every table: those of real machines, and those that no firmware
// writes.
namespace SMBIOS::Tests {
namespace {

using Bytes = std::vector<std::uint8_t>;

Json SummaryOf(const Bytes& table) {
    const FakeFirmwareTable firmware(table);
    std::ostringstream output;
    Inspect::ReportSummary({.json = true}, {}, output);
    return Json::parse(output.str());
}

Json StructuresOf(const Bytes& table) {
    const FakeFirmwareTable firmware(table);
    std::ostringstream output;
    Inspect::ReportFirmware({.json = true}, {}, output);
    return Json::parse(output.str()).at("structures");
}

std::vector<std::string> ValuesOf(const Bytes& table) {
    const FakeFirmwareTable firmware(table);
    Inspect::Request request;
    for (const Inspect::ValueKey& key : Inspect::ValueKeys()) {
        request.keys.push_back(&key);
    }
    std::ostringstream output;
    Inspect::ReportValues(request, output);
    return LinesOf(output.str());
}

/// The fields of the first structure of a type, of processors that of the first in a socket.
Json FieldsOf(const Json& structures, unsigned type) {
    for (const Json& structure : structures) {
        const Json& fields = structure.at("fields");
        const bool isEmptySocket =
            type == 4 && fields.contains("status") && fields["status"]["text"] == "Unpopulated";
        if (structure.at("type") == type && !isEmptySocket) {
            return fields;
        }
    }
    return Json::object();
}

/// A value of JSON as `get` prints it.
std::string PlainText(const Json& fields, const std::string& name) {
    const Json field = fields.value(name, Json::object());
    const Json value = field.value("value", Json());
    if (value.is_null()) {
        return {};
    }
    const bool isCode = value.is_number() && field.contains("text") && !field.contains("unit");
    if (isCode) {
        return field.at("text");
    }
    return value.is_string() ? value.get<std::string>() : value.dump();
}

std::size_t CountOf(const Json& structures, unsigned type) {
    return static_cast<std::size_t>(std::ranges::count_if(
        structures, [=](const Json& structure) { return structure.at("type") == type; }));
}

class FactsOfCapturedTables : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (!HasCapturedTables()) {
            GTEST_SKIP() << "no captured tables";
        }
        table_ = Platform::LoadSavedTable(CapturedTable(GetParam()));
    }

    Bytes table_;
};

TEST_P(FactsOfCapturedTables, ValuesAreThoseOfTheFields) {
    const Json structures = StructuresOf(table_);
    const std::vector<std::string> values = ValuesOf(table_);
    for (std::size_t i = 0; i < Inspect::ValueKeys().size(); ++i) {
        const Inspect::ValueKey& key = Inspect::ValueKeys()[i];
        if (key.compute == nullptr) {
            EXPECT_EQ(values.at(i), PlainText(FieldsOf(structures, key.type), std::string(key.field)))
                << key.name;
        }
    }
}

TEST_P(FactsOfCapturedTables, TheSummaryHasEveryStructureThatItIsAbout) {
    const Json structures = StructuresOf(table_);
    const Json summary = SummaryOf(table_);
    EXPECT_EQ(summary.at("firmware").size(), CountOf(structures, 0));
    EXPECT_EQ(summary.at("systems").size(), CountOf(structures, 1));
    EXPECT_EQ(summary.at("boards").size(), CountOf(structures, 2));
    EXPECT_EQ(summary.at("chassis").size(), CountOf(structures, 3));
    EXPECT_EQ(summary.at("processors").size(), CountOf(structures, 4));
    EXPECT_EQ(summary.at("table").at("structures"), structures.size());
}

TEST_P(FactsOfCapturedTables, EverySlotIsFreeFilledOrUnknown) {
    const Json memory = SummaryOf(table_).at("memory");
    EXPECT_EQ(memory.at("slots").get<std::size_t>(),
              memory.at("modules").size() + memory.at("freeSlots").get<std::size_t>() +
                  memory.at("unknownSlots").get<std::size_t>());
}

INSTANTIATE_TEST_SUITE_P(Captures,
                         FactsOfCapturedTables,
                         testing::ValuesIn(kCapturedTables),
                         [](const auto& each) { return AsTestName(each.param); });

/// Structures of the types that the facts are made of, of any length and with any bytes.
Bytes RandomTable(std::mt19937& random) {
    constexpr std::uint8_t kTypes[] = {0, 1, 2, 3, 4, 7, 13, 16, 17, 24, 32, 43};
    TableBuilder table(3, static_cast<std::uint8_t>(random() % 9), 0);
    for (int i = 0; i < 40; ++i) {
        const auto length = static_cast<std::uint8_t>(4 + random() % 100);
        StructureBuilder structure(
            kTypes[random() % std::size(kTypes)], length, static_cast<std::uint16_t>(random() % 8));
        for (std::size_t offset = 4; offset < length; ++offset) {
            structure.Byte(offset, static_cast<std::uint8_t>(random() % 3 == 0 ? random() : random() % 8));
        }
        structure.String(std::string(1 + random() % 5, static_cast<char>(1 + random() % 255)));
        table.Add(structure);
    }
    return table.RawTable();
}

TEST(FactsOfRandomTables, AreValidJson) {
    std::mt19937 random(20);
    for (int i = 0; i < 100; ++i) {
        EXPECT_TRUE(SummaryOf(RandomTable(random)).is_object());
    }
}

TEST(FactsOfRandomTables, EveryKeyHasALine) {
    std::mt19937 random(21);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(ValuesOf(RandomTable(random)).size(), Inspect::ValueKeys().size());
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
