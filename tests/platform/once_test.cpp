#include "platform/once.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

namespace SMBIOS::Platform {
namespace {

constinit Once onceReadyAtLoadTime;

TEST(Once, IsReadyAtLoadTime) {
    int count = 0;
    onceReadyAtLoadTime.Call([&] { ++count; });
    EXPECT_EQ(count, 1);
}

TEST(Once, RunsTheFirstCallOnly) {
    Once once;
    int last = 0;
    once.Call([&] { last = 1; });
    once.Call([&] { last = 2; });
    EXPECT_EQ(last, 1);
}

TEST(Once, IsApartFromOtherObjects) {
    Once first;
    Once second;
    int count = 0;
    first.Call([&] { ++count; });
    second.Call([&] { ++count; });
    EXPECT_EQ(count, 2);
}

TEST(Once, LetsAnExceptionPass) {
    Once once;
    EXPECT_THROW(once.Call([] { throw std::runtime_error("refused"); }), std::runtime_error);
}

TEST(Once, TriesAgainAfterAnException) {
    Once once;
    EXPECT_ANY_THROW(once.Call([] { throw std::runtime_error("refused"); }));
    int count = 0;
    once.Call([&] { ++count; });
    once.Call([&] { ++count; });
    EXPECT_EQ(count, 1);
}

TEST(Once, LetsLaterCallersWaitForTheResult) {
    constexpr int kThreads = 8;
    Once once;
    std::atomic<int> created = 0;
    std::atomic<int> seenByAll = 0;
    int result = 0;
    std::vector<std::thread> threads;
    threads.reserve(kThreads);
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&] {
            once.Call([&] {
                ++created;
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
                result = 7;
            });
            seenByAll += result;
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(created, 1);
    EXPECT_EQ(seenByAll, 7 * kThreads);
}

}  // namespace
}  // namespace SMBIOS::Platform
