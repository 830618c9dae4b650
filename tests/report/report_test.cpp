#include "smbios/report.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <stdexcept>
#include <string>

#include "platform/firmware_table.h"
#include "report/delivery.h"
#include "report/json_report.h"
#include "smbios-inspect/command_line/options.h"
#include "smbios-inspect/command_line/saved_firmware_table.h"
#include "smbios-inspect/command_line/table_input.h"
#include "tests/inspect/run_tool.h"
#include "tests/support/failing_allocation.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::UsageError;

struct Delivered {
    int status;
    std::string text;
};

Delivered Taken(int status, char* text) {
    const std::unique_ptr<char, decltype(&smbios_report_free)> owned(text, smbios_report_free);
    return {status, owned == nullptr ? "(null)" : owned.get()};
}

Delivered ReportOfMachine(const char* name) {
    char* text = nullptr;
    const int status = smbios_report(name, &text);
    return Taken(status, text);
}

Delivered DeliveryOf(const std::function<std::string()>& makeText) {
    char* text = nullptr;
    const int status = Report::Deliver(text, makeText);
    return Taken(status, text);
}

/// A report of the sample table, and what the tool prints of it.
class SampleReport : public testing::TestWithParam<const char*> {};

TEST_P(SampleReport, IsWhatTheToolPrints) {
    const ToolResult tool = RunTool({GetParam(), "--json", "--from", SMBIOS_SAMPLE_TABLE});
    ASSERT_EQ(tool.status, 0) << tool.errors;
    const Inspect::TableInput sample(SMBIOS_SAMPLE_TABLE);
    EXPECT_EQ(Report::JsonOf(Report::FindReport(GetParam())), tool.output);
}

INSTANTIATE_TEST_SUITE_P(EveryName, SampleReport, testing::Values("memory", "processors", "structures"));

TEST(JsonReport, IsWholeOrFails) {
    const Inspect::TableInput sample(SMBIOS_SAMPLE_TABLE);
    const Report::NamedReport& structures = Report::FindReport("structures");
    const std::string whole = Report::JsonOf(structures);
    bool isShort = true;
    for (std::size_t n = 1; isShort; ++n) {
        std::string text = whole;
        const FailAllocation after(n);
        try {
            text = Report::JsonOf(structures);
        } catch (const std::bad_alloc&) {
        }
        isShort = after.HasFailed();
        ASSERT_TRUE(text == whole) << "allocation " << n;
    }
}

// Whatever this machine exposes: its table, or the reason why there is none.
class MachineReport : public testing::TestWithParam<const char*> {};

TEST_P(MachineReport, SaysWhatTheToolSays) {
    const ToolResult tool = RunTool({GetParam(), "--json"});
    const Delivered report = ReportOfMachine(GetParam());
    EXPECT_EQ(report.status, tool.status);
    EXPECT_EQ(tool.status == 0 ? report.text : "smbios-inspect: " + report.text + "\n",
              tool.status == 0 ? tool.output : tool.errors);
}

INSTANTIATE_TEST_SUITE_P(EveryName, MachineReport, testing::Values("memory", "processors", "structures"));

TEST(Report, OfAnUnknownNameIsRefused) {
    const Delivered report = ReportOfMachine("fans");
    EXPECT_EQ(report.status, 2);
    EXPECT_EQ(report.text, "unknown report 'fans'");
}

TEST(Report, RefusesAReportOfWhatIsNoReport) {
    EXPECT_EQ(ReportOfMachine("save").status, 2);
}

TEST(Report, WithoutANameIsRefused) {
    const Delivered report = ReportOfMachine(nullptr);
    EXPECT_EQ(report.status, 2);
    EXPECT_EQ(report.text, "no name of a report given");
}

TEST(Report, WithoutAPlaceForTheTextIsRefused) {
    EXPECT_EQ(smbios_report("memory", nullptr), 2);
}

TEST(Report, GivesBackNothing) {
    smbios_report_free(nullptr);
    SUCCEED();
}

TEST(Report, KnowsItsVersion) {
    EXPECT_STREQ(smbios_report_version(), SMBIOS_VERSION);
}

TEST(Delivery, CarriesTheTextWhole) {
    const Delivered delivered = DeliveryOf([] { return std::string("{\"a\": \"\xC3\xA4\"}\n"); });
    EXPECT_EQ(delivered.status, 0);
    EXPECT_EQ(delivered.text, "{\"a\": \"\xC3\xA4\"}\n");
}

TEST(Delivery, TurnsAnExceptionIntoItsMessage) {
    const Delivered delivered = DeliveryOf([]() -> std::string { throw std::runtime_error("no table"); });
    EXPECT_EQ(delivered.status, 1);
    EXPECT_EQ(delivered.text, "no table");
}

TEST(Delivery, TellsAWrongRequestFromAFailure) {
    EXPECT_EQ(DeliveryOf([]() -> std::string { throw UsageError("which?"); }).status, 2);
}

TEST(Delivery, LetsNothingElsePassEither) {
    const Delivered delivered = DeliveryOf([]() -> std::string { throw 1; });
    EXPECT_EQ(delivered.status, 1);
    EXPECT_EQ(delivered.text, "unknown error");
}

TEST(Delivery, MakesAMessageValidText) {
    EXPECT_EQ(DeliveryOf([]() -> std::string { throw std::runtime_error("\xFF!"); }).text, "\xEF\xBF\xBD!");
}

}  // namespace
}  // namespace SMBIOS::Tests
