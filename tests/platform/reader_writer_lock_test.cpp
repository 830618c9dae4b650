#include "platform/reader_writer_lock.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <shared_mutex>
#include <thread>
#include <vector>

namespace SMBIOS::Platform {
namespace {

constinit ReaderWriterLock lockReadyAtLoadTime;

TEST(ReaderWriterLock, IsReadyAtLoadTime) {
    const std::unique_lock guard(lockReadyAtLoadTime);
    EXPECT_TRUE(guard.owns_lock());
}

TEST(ReaderWriterLock, AdmitsSeveralReadersAtOnce) {
    ReaderWriterLock lock;
    std::atomic<int> readersInside = 0;  // a std::latch of g++ 12 for Windows now and then wakes nobody
    const auto read = [&] {
        const std::shared_lock guard(lock);
        ++readersInside;
        while (readersInside != 3) {
            std::this_thread::yield();
        }
    };
    std::thread first(read);
    std::thread second(read);
    read();
    first.join();
    second.join();
    EXPECT_EQ(readersInside, 3);
}

TEST(ReaderWriterLock, AdmitsOneWriterAtATime) {
    constexpr int kThreads = 4;
    constexpr int kRounds = 10'000;
    ReaderWriterLock lock;
    int count = 0;
    std::vector<std::thread> threads;
    threads.reserve(kThreads);
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&] {
            for (int round = 0; round < kRounds; ++round) {
                const std::unique_lock guard(lock);
                ++count;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(count, kThreads * kRounds);
}

TEST(ReaderWriterLock, KeepsReadersOutWhileAWriterIsInside) {
    ReaderWriterLock lock;
    bool isWritten = false;
    bool wasSeen = false;
    std::unique_lock writer(lock);
    std::thread reader([&] {
        const std::shared_lock guard(lock);
        wasSeen = isWritten;
    });
    std::this_thread::yield();
    isWritten = true;
    writer.unlock();
    reader.join();
    EXPECT_TRUE(wasSeen);
}

TEST(ReaderWriterLock, KeepsAWriterOutWhileAReaderIsInside) {
    ReaderWriterLock lock;
    int value = 1;
    std::shared_lock reader(lock);
    std::thread writer([&] {
        const std::unique_lock guard(lock);
        value = 2;
    });
    std::this_thread::yield();
    EXPECT_EQ(value, 1);
    reader.unlock();
    writer.join();
    EXPECT_EQ(value, 2);
}

}  // namespace
}  // namespace SMBIOS::Platform
