#include <gtest/gtest.h>

#include <barrier>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "report/delivery.h"
#include "report/json_report.h"
#include "smbios-inspect/command_line/table_input.h"
#include "smbios/report.h"

namespace SMBIOS::Tests {
namespace {

constexpr const char* kNames[] = {"memory", "processors", "structures", "fans"};

/// The status of a report of the table in use, and its text.
std::string Delivered(const char* name) {
    char* text = nullptr;
    const int status = Report::Deliver(text, [name] { return Report::JsonOf(Report::FindReport(name)); });
    const std::unique_ptr<char, decltype(&smbios_report_free)> owned(text, smbios_report_free);
    return std::to_string(status) + (owned == nullptr ? "(null)" : owned.get());
}

std::vector<std::string> EveryReport() {
    std::vector<std::string> reports;
    for (const char* name : kNames) {
        reports.push_back(Delivered(name));
    }
    return reports;
}

TEST(ReportThreads, AllGetTheSameReports) {
    constexpr int kThreads = 4;
    constexpr int kRounds = 20;
    const Inspect::TableInput sample(SMBIOS_SAMPLE_TABLE);
    std::barrier together(kThreads);
    std::vector<std::vector<std::vector<std::string>>> seen(kThreads);
    {
        std::vector<std::jthread> threads;
        for (auto& reports : seen) {
            threads.emplace_back([&together, &reports] {
                together.arrive_and_wait();
                for (int round = 0; round < kRounds; ++round) {
                    reports.push_back(EveryReport());
                }
            });
        }
    }
    const std::vector<std::string> expected = EveryReport();
    EXPECT_EQ(expected[0].substr(0, 2), "0{");
    for (const auto& reports : seen) {
        EXPECT_EQ(reports, std::vector(kRounds, expected));
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
