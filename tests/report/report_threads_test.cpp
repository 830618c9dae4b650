#include <gtest/gtest.h>

#include <barrier>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "smbios/report.h"

namespace SMBIOS::Tests {
namespace {

std::string TextOf(const char* name) {
    char* text = nullptr;
    const int status = smbios_report(name, &text);
    const std::unique_ptr<char, decltype(&smbios_report_free)> owned(text, smbios_report_free);
    return std::to_string(status) + (owned == nullptr ? "(null)" : owned.get());
}

TEST(ReportThreads, AllGetTheSameReports) {
    constexpr int kThreads = 4;
    constexpr int kRounds = 20;
    const char* const names[] = {"memory", "processors", "structures", "fans"};
    std::barrier together(kThreads);
    std::vector<std::vector<std::string>> texts(kThreads);
    std::vector<std::jthread> threads;
    for (std::vector<std::string>& own : texts) {
        threads.emplace_back([&] {
            together.arrive_and_wait();
            for (int round = 0; round < kRounds; ++round) {
                for (const char* name : names) {
                    own.push_back(TextOf(name));
                }
            }
        });
    }
    threads.clear();
    for (const std::vector<std::string>& own : texts) {
        for (std::size_t i = 0; i < own.size(); ++i) {
            EXPECT_EQ(own[i], texts[0][i % std::size(names)]);
        }
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
