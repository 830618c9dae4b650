#pragma once

#include <atomic>
#include <cstddef>
#include <thread>
#include <vector>

namespace SMBIOS::Tests {

/// Runs `work(number)` on `count` threads that start together, and waits for all of them.
template <class Work>
void RunTogether(std::size_t count, Work work) {
    std::atomic<std::size_t> arrived = 0;
    std::vector<std::jthread> threads;
    for (std::size_t number = 0; number < count; ++number) {
        threads.emplace_back([&, number] {
            ++arrived;
            while (arrived <
                   count) {  // not a std::barrier: that of g++ 12 for Windows now and then wakes nobody
                std::this_thread::yield();
            }
            work(number);
        });
    }
}

}  // namespace SMBIOS::Tests
