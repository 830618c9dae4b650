#pragma once

#include <barrier>
#include <cstddef>
#include <thread>
#include <vector>

namespace SMBIOS::Tests {

/// Runs `work(number)` on `count` threads that start together, and waits for all of them.
template <class Work>
void RunTogether(std::size_t count, Work work) {
    std::barrier start(static_cast<std::ptrdiff_t>(count));
    std::vector<std::jthread> threads;
    for (std::size_t number = 0; number < count; ++number) {
        threads.emplace_back([&start, &work, number] {
            start.arrive_and_wait();
            work(number);
        });
    }
}

}  // namespace SMBIOS::Tests
